// See ImportSurvey.h.
#include "section/ImportSurvey.h"

#include <algorithm>
#include <filesystem>

#include "app/Declarations.h"
#include "engine/ChannelState.h"
#include "files/PathText.h"
#include "files/WholeFile.h"
#include "platform/Services.h"
#include "section/PastedSign.h"
#include "section/frmImport.h"

namespace {

constexpr const char* Reading = "Reading the survey";

void Complain(const std::string& text) {
  TheServices().messageBox.Show(text, Declarations::AppTitle, BoxIcon::Exclamation, BoxButtons::Ok);
}

void ShowProgress(double share) {
  constexpr int total = 100;
  if (!TheServices().progress.Show(Reading, static_cast<int>(share * (total - 1)), total))
    throw Survey::Cancelled();
}

/// Asks for the decimal sign where only the user can decide. False: the user cancelled.
bool AskSign(Survey::Import& import) {
  const Survey::Sign sign = import.TheSign();
  if (sign.Doubtful.empty()) return true;
  const BoxAnswer answer = PastedSign::Ask(sign.Doubtful, sign.Spelling.DecimalSign);
  const bool comma = sign.Spelling.DecimalSign == ",";
  if (answer == BoxAnswer::No) import.ChooseSign(comma ? Survey::DecimalPoint : Survey::DecimalComma);
  return answer == BoxAnswer::Yes || answer == BoxAnswer::No;
}

}  // namespace

std::optional<IrregTable::Table> ImportedPoints(const std::string& bytes) {
  try {
    Survey::Import import(bytes, ChannelState.UnitsEorM, ShowProgress);
    TheServices().progress.Show(Reading, 1, 1);
    if (!AskSign(import)) return std::nullopt;
    frmImport dialog(import);
    TheServices().windows.ShowModal(dialog);
    if (dialog.Accepted()) return import.Result().Table;
  } catch (const Survey::Cancelled&) {
    return std::nullopt;
  } catch (const std::runtime_error& refusal) {
    TheServices().progress.Show(Reading, 1, 1);
    Complain(refusal.what());
  }
  return std::nullopt;
}

std::optional<IrregTable::Table> PointsOfFile(const std::string& path) {
  std::error_code ignored;
  if (std::filesystem::file_size(PathOf(path), ignored) > Survey::MaxBytes && !ignored) {
    Complain("The file is larger than 64 MiB.");
    return std::nullopt;
  }
  std::string bytes;
  try {
    bytes = WholeFile::Read(path, Survey::MaxBytes);
  } catch (const std::runtime_error&) {
    Complain("The file cannot be read.");
    return std::nullopt;
  }
  return ImportedPoints(bytes);
}

bool HasHeadRow(const std::string& text) {
  std::string_view rest = text;
  std::string_view head = Survey::TakeLine(rest);
  if (rest.empty()) return false;
  for (bool more = true; more;) {
    const std::size_t end = std::min(head.find('\t'), head.size());
    if (Survey::RoleOf(head.substr(0, end)) != Survey::Role::Ignored) return true;
    more = end < head.size();
    head.remove_prefix(more ? end + 1 : end);
  }
  return false;
}
