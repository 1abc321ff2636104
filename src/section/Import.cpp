// See Import.h.
#include "section/Import.h"

#include <algorithm>

#include "section/ModelFiles.h"

namespace Survey {

Import::Import(std::string_view bytes, int unitSystem, const Watch& watch)
    : watch_(watch), text_(SurveyText(bytes)), sections_(HecRasSections(*text_)) {
  terms_.UnitSystem = unitSystem;
  if (sections_.empty()) sections_ = SwmmSections(*text_);
  if (sections_.empty()) ReadColumns(std::nullopt);
  Update();
  watch_ = [](double) {};  // what follows a choice is not to be cancelled halfway
}

std::vector<std::string> Import::Notes() const {
  std::vector<std::string> notes = sheet_.Notes;
  notes.insert(notes.end(), notes_.begin(), notes_.end());
  for (std::size_t i = 0; i < columns_.Roles.size(); ++i) {
    if (columns_.Roles[i] != Role::Ignored) continue;
    const bool named = i < sheet_.Head.size() && !sheet_.Head[i].empty();
    const std::string name = named ? " " + InQuotes(sheet_.Head[i]) : "";
    notes.push_back("Column " + std::to_string(i + 1) + name + " left out.");
  }
  return notes;
}

void Import::ReadColumns(std::optional<char> separator) {
  sheet_ = ReadSheet(text_, separator, PartOf(watch_, 0, 0.5));
  byPlace_ = ColumnsByPlace(sheet_);
  columns_ = byHead_ = ColumnsByHead(sheet_);
  sign_ = SignOf(sheet_, columns_);
}

void Import::ChooseSection(std::size_t index) {
  chosen_ = index;
  Update();
}

void Import::ChooseSeparator(char separator) {
  try {
    ReadColumns(separator);
    Update();
  } catch (const std::runtime_error& refusal) {
    sheet_.Separator = separator;
    Give(refusal.what());
  }
}

void Import::ChooseSign(const NumberLocale& spelling) {
  sign_ = {spelling, ""};
  Update();
}

void Import::ChooseColumns(const Columns& columns) {
  columns_.Roles = columns.Roles;
  Update();
}

void Import::ChooseUnit(std::optional<LengthUnit> unit) {
  terms_.Unit = std::move(unit);
  Update();
}

void Import::ChooseFrontN(std::optional<Number> n) {
  terms_.FrontN = n;
  Update();
}

void Import::Switch(Kind kind, bool on) {
  if (kind == Kind::Columns) {
    ChooseColumns(on ? byHead_ : byPlace_);
  } else {
    if (on) {
      terms_.Off.erase(kind);
    } else {
      terms_.Off.insert(kind);
    }
    Update();
  }
}

Section Import::Chosen(const Watch& watch) const {
  return sections_.empty() ? SectionOf(sheet_, columns_, sign_.Spelling, watch) : sections_[chosen_];
}

std::optional<Change> Import::ColumnsChange() {
  bool twoOrders = false;  // a column without numbers has no place
  for (std::size_t i = 0; i < byPlace_.Roles.size(); ++i)
    twoOrders = twoOrders || (byPlace_.Roles[i] != Role::Ignored && byPlace_.Roles[i] != byHead_.Roles[i]);
  const bool twoSections =
      byPlace_.Find(Role::Elevation) && byHead_.Find(Role::Station) && byHead_.Find(Role::Elevation);
  if (!sections_.empty() || !twoOrders || !twoSections) return std::nullopt;
  const Curve after = CurveOf(before_);
  Curve byPlace;
  try {
    before_ = SectionOf(sheet_, byPlace_, sign_.Spelling, PartOf(watch_, 0.7, 0.8)).Points;
    byPlace = CurveOf(before_);
  } catch (const std::runtime_error&) {
    before_.clear();  // by place there is no section to be drawn
  }
  std::string text = "Columns taken as the head names them";
  for (const auto& [role, name] :
       {std::pair(Role::Station, "station"), {Role::Elevation, "elevation"}, {Role::ManningN, "n"}}) {
    if (const auto column = byHead_.Find(role))
      text += std::string(", ") + name + " from column " + std::to_string(*column + 1);
  }
  return Change{Kind::Columns, text + ": they stand in another order than station, elevation, n.",
                EffectOf(byPlace, after), columns_ == byHead_};
}

void Import::Update() {
  try {
    Section section = Chosen(PartOf(watch_, 0.5, 0.7));
    before_ = section.Points;
    notes_ = section.Notes;
    unit_ = {section.XUnit, section.ZUnit, terms_.Unit, section.AsksUnit};
    const auto columns = ColumnsChange();
    result_ = Mend(std::move(section), terms_, PartOf(watch_, 0.8, 1));
    if (columns) result_.Changes.insert(result_.Changes.begin(), *columns);
  } catch (const std::runtime_error& refusal) {
    Give(refusal.what());
  }
}

void Import::Give(const std::string& reason) {
  before_.clear();
  notes_.clear();
  result_ = {};
  result_.Reason = reason;
}

}  // namespace Survey
