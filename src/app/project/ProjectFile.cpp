// See ProjectFile.h.
#include "app/project/ProjectFile.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <limits>
#include <set>
#include <span>
#include <stdexcept>

#include "app/Declarations.h"
#include "app/Units.h"
#include "app/Version.h"
#include "app/project/FileNumber.h"
#include "app/project/ProjectItems.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"
#include "files/TextEncoding.h"
#include "files/WholeFile.h"

namespace ProjectFile {

namespace {

using ProjectItems::Item;

constexpr const char* CompanyName = "Flumewise";
constexpr std::string_view True = "#TRUE#";
constexpr std::string_view False = "#FALSE#";
constexpr int MaxPoints = 101;
constexpr int DefaultDigits = 3;

/// Places of items in a file, counted from 1.
constexpr size_t FirstInput = 4, TypeItem = 12, ModeItem = 13, UnitsItem = 14, NameItem = 15,
                 SigDigsItem = 16, EngDigsItem = 17, PointCountItem = 18, FirstPoint = 19;

/// Begins an extra item behind the points that names items by their places: texts that are no number for the
/// user who typed them but would be one in the file's spelling ("1.5" where the decimal sign is a comma).
/// They are not respelled.
constexpr std::string_view AsTyped = "As typed:";

std::string VersionText() {
  return std::to_string(VersionMajor) + "." + std::to_string(VersionMinor) + std::to_string(VersionRevision);
}

class Records {
 public:
  static constexpr const char* EndOfLine = "\r\n";

  void Add(std::string_view spelled, const char* end = EndOfLine) {
    text_.append(spelled).append(end);
    ++count_;
  }

  void AddText(std::string_view text) { Add(ProjectItems::Quoted(text)); }

  /// What the user typed where a number belongs.
  void AddTyped(const std::string& typed, const char* end = EndOfLine) {
    const std::string spelled = FileNumber::FromUser(typed);
    Add(ProjectItems::Quoted(spelled), end);
    if (spelled == typed && FileNumber::ToUser(spelled) != typed) asTyped_ += " " + std::to_string(count_);
  }

  void AddCell(const EngineValue& cell, const char* end) {
    if (cell.IsDouble()) {
      Add(PlainNumber(cell.Number()), end);
    } else {
      AddTyped(cell.Text(), end);
    }
  }

  /// The records, with what was noted about them at the end.
  std::string Finished() {
    if (!asTyped_.empty()) AddText(std::string(AsTyped) + asTyped_);
    return text_;
  }

 private:
  std::string text_;
  size_t count_ = 0;
  std::string asTyped_;
};

bool IsNumber(const Item& item) {
  return !item.Quoted && FileNumber::IsNumeric(item.Text);
}

/// A whole number; one that no int holds is the greatest, which is beyond every range too.
int WholeNumber(const Item& item) {
  int number = 0;
  const char* const end = item.Text.data() + item.Text.size();
  const auto read = std::from_chars(item.Text.data(), end, number);
  if (item.Quoted || read.ec == std::errc::invalid_argument || read.ptr != end)
    throw std::runtime_error("an item that must be a whole number is none");
  return read.ec == std::errc{} ? number : std::numeric_limits<int>::max();
}

int WholeNumber(const Item& item, int least, int most) {
  const int number = WholeNumber(item);
  if (number < least || number > most) throw std::runtime_error("an item is out of its range");
  return number;
}

int Digits(const Item& item) {
  const int digits = WholeNumber(item);
  return digits >= 1 && digits <= 5 ? digits : DefaultDigits;
}

bool Boolean(const Item& item) {
  if (item.Quoted || (item.Text != True && item.Text != False))
    throw std::runtime_error("the mode is neither #TRUE# nor #FALSE#");
  return item.Text == True;
}

std::string KnownType(const Item& item) {
  if (std::ranges::find(ChannelTypes::All, std::string_view(item.Text)) == ChannelTypes::All.end())
    throw std::runtime_error("its channel type is unknown");
  return item.Text;
}

/// The places that the extra items name; an extra item of any other content says nothing.
std::set<size_t> PlacesAsTyped(std::span<const Item> extra) {
  std::set<size_t> places;
  for (const Item& item : extra) {
    if (!item.Text.starts_with(AsTyped)) continue;
    const char* at = item.Text.data() + AsTyped.size();
    const char* const end = item.Text.data() + item.Text.size();
    for (size_t place = 0; at != end && *at == ' ';) {
      const auto read = std::from_chars(at + 1, end, place);
      if (read.ec != std::errc{}) break;
      places.insert(place);
      at = read.ptr;
    }
  }
  return places;
}

/// The items of a whole file by their places.
class ItemList {
 public:
  explicit ItemList(std::string_view bytes) : items_(ProjectItems::Split(DecodedText(bytes))) {
    if (items_.size() < FirstPoint) throw std::runtime_error("items are missing");
    const std::span summed(items_.data(), items_.size() - 1);
    if (!IsNumber(items_.back()) || Val(items_.back().Text) != ProjectItems::Checksum(summed))
      throw std::runtime_error("the checksum does not match: the file was cut off or changed");
    pointCount_ = static_cast<size_t>(WholeNumber(At(PointCountItem), 0, MaxPoints));
    const size_t known = PointCountItem + 3 * pointCount_;
    if (summed.size() < known) throw std::runtime_error("points are missing");
    asTyped_ = PlacesAsTyped(summed.subspan(known));
  }

  size_t PointCount() const { return pointCount_; }
  const Item& At(size_t place) const { return items_[place - 1]; }

  std::string Typed(size_t place) const {
    const std::string& text = At(place).Text;
    return asTyped_.contains(place) ? text : FileNumber::ToUser(text);
  }

  EngineValue Cell(size_t place) const {
    if (IsNumber(At(place))) return Val(At(place).Text);
    return Typed(place);
  }

 private:
  std::vector<Item> items_;
  size_t pointCount_ = 0;
  std::set<size_t> asTyped_;
};

}  // namespace

std::string Format(const Project& project) {
  Records records;
  records.AddText(CompanyName);
  records.AddText(Declarations::AppTitle);
  records.AddText(VersionText());
  for (const std::string& input : project.Inputs) records.AddTyped(input);
  records.AddText(project.ChannelType);
  records.Add(project.SolveForFlow ? True : False);
  records.Add(std::to_string(project.UnitsEorM));
  records.AddText(project.ProjName);
  records.Add(std::to_string(project.SigDigs));
  records.Add(std::to_string(project.EngDigs));
  records.Add(std::to_string(project.Points.size()));
  for (const auto& [station, elevation, manningN] : project.Points) {
    records.AddCell(station, ",");
    records.AddCell(elevation, ",");
    records.AddCell(manningN, Records::EndOfLine);
  }
  const std::string text = records.Finished();
  return text + PlainNumber(ProjectItems::Checksum(ProjectItems::Split(text))) + Records::EndOfLine;
}

Project Parse(std::string_view bytes) {
  if (bytes.size() > WholeFile::MaxSize) throw std::runtime_error("it is too large for a project");
  const ItemList items(bytes);
  Project project;
  for (size_t i = 0; i < project.Inputs.size(); ++i) project.Inputs[i] = items.Typed(FirstInput + i);
  project.ChannelType = KnownType(items.At(TypeItem));
  project.SolveForFlow = Boolean(items.At(ModeItem));
  project.UnitsEorM = WholeNumber(items.At(UnitsItem), Units::English, Units::Last);
  project.ProjName = items.At(NameItem).Text;
  project.SigDigs = Digits(items.At(SigDigsItem));
  project.EngDigs = Digits(items.At(EngDigsItem));
  for (size_t i = 0; i < items.PointCount(); ++i) {
    const size_t place = FirstPoint + 3 * i;
    project.Points.push_back({items.Cell(place), items.Cell(place + 1), items.Cell(place + 2)});
  }
  return project;
}

std::string Write(const std::string& path, const Project& project) {
  std::string bytes = Format(project);
  Parse(bytes);  // what does not open must not replace what does
  WholeFile::Write(path, bytes);
  return bytes;
}

Project Read(const std::string& path) {
  return Parse(WholeFile::Read(path));
}

}  // namespace ProjectFile
