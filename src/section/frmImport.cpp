// See frmImport.h.
#include "section/frmImport.h"

#include <algorithm>
#include <cmath>

#include "app/FormStuff.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"

namespace {

using Survey::Role;

/// Rows of the file that are shown: enough to see what its columns are.
constexpr std::size_t PreviewRows = 50;
/// Points of a drawing: more than any screen has columns.
constexpr std::size_t DrawnPoints = 2000;

constexpr std::pair<char, const char*> Separators[] = {
    {',', "Comma"}, {';', "Semicolon"}, {'\t', "TAB"}, {Survey::Blanks, "Blanks"}};

constexpr int ColumnWidth = 1000;  // twips
constexpr const char* ChangesHead = "What is changed, and what it does to area and flow";

/// What a check box offers, by Survey::Kind.
constexpr std::array<const char*, Survey::KindCount> Offers = {
    "Take the columns as the head names them",
    "Apply the width factor",
    "Apply the offset",
    "Convert the unit",
    "Reverse the order",
    "Leave out repeated points",
    "Leave out the column of n",
    "Put points where n changes",
    "Set vertical walls apart",
    "Blank repeated n",
    "Give the first points an n",
    "Leave out points",
};

/// "+2.1 %"
std::string Percent(double share) {
  constexpr double least = 0.0005;  // shown as 0.0 otherwise
  constexpr double noise = 1e-9;    // of rounding
  if (std::abs(share) < noise) return "unchanged";
  if (std::abs(share) < least) return "changed by less than " + FixedFormat(0.1, 1, 1).Text() + " %";
  return (share > 0 ? "+" : "") + FixedFormat(share, 100, 1).Text() + " %";
}

std::string EffectText(const Survey::Effect& effect) {
  if (!effect.Area) return "Without this change there is neither area nor flow.";
  const std::string area = "Area " + Percent(*effect.Area);
  if (!effect.Flow) return area + ", no flow without n.";
  return area + ", flow " + Percent(*effect.Flow) +
         (*effect.Area == 0 && *effect.Flow == 0 ? "." : " at most.");
}

/// The points as a line of not too many: of each run of neighbours the lowest and the highest, which is all
/// that a screen can show of it.
std::vector<Survey::Point> Drawn(const std::vector<Survey::Point>& points) {
  if (points.size() <= DrawnPoints) return points;
  std::vector<Survey::Point> drawn = {points.front()};
  const std::size_t run = points.size() / (DrawnPoints / 2) + 1;
  for (std::size_t from = 0; from < points.size(); from += run) {
    const auto first = points.begin() + static_cast<std::ptrdiff_t>(from);
    const auto last = points.begin() + static_cast<std::ptrdiff_t>(std::min(from + run, points.size()));
    const auto [low, high] =
        std::minmax_element(first, last, [](const auto& a, const auto& b) { return a.Z.Value < b.Z.Value; });
    drawn.push_back(*std::min(low, high));
    drawn.push_back(*std::max(low, high));
  }
  drawn.push_back(points.back());
  return drawn;
}

}  // namespace

frmImport::frmImport(Survey::Import& import) : Form("frmImport"), import_(import) {
  Caption = "Import Points";
  lblSection.Caption = "Section";
  lblSeparator.Caption = "Columns are separated by";
  lblSign.Caption = "Decimal sign";
  lblStation.Caption = "Station";
  lblElevation.Caption = "Elevation";
  lblRoughness.Caption = "Manning's n";
  lblUnit.Caption = "Unit of length";
  lblFrontN.Caption = "n of the first points";
  for (int i = 0; i < Survey::KindCount; ++i) chkChange[i].Caption = Offers.at(static_cast<std::size_t>(i));
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";

  cbxSection.Click = [this] { cbxSection_Click(); };
  cbxSeparator.Click = [this] { cbxSeparator_Click(); };
  cbxSign.Click = [this] { cbxSign_Click(); };
  cbxUnit.Click = [this] { cbxUnit_Click(); };
  for (const RoleList& each : RoleLists()) each.List.Click = [this, role = each.Role] { Column_Click(role); };
  tbFrontN.Change = [this] { tbFrontN_Change(); };
  for (int i = 0; i < Survey::KindCount; ++i) chkChange[i].Click = [this, i] { chkChange_Click(i); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmImport::Form_Load() {
  ShowAll();
}

std::array<frmImport::RoleList, 3> frmImport::RoleLists() {
  return {{{Role::Station, cbxStation, lblStation},
           {Role::Elevation, cbxElevation, lblElevation},
           {Role::ManningN, cbxRoughness, lblRoughness}}};
}

// What the import holds, as the controls show it.

void frmImport::ShowAll() {
  showing_ = true;
  ShowRead();
  ShowChoices();
  showing_ = false;
  ShowChanges();
  ShowDrawing();
}

void frmImport::ShowRead() {
  std::vector<std::vector<std::string>> rows;
  const Survey::Sheet& sheet = import_.TheSheet();
  const std::size_t columns = import_.Sections().empty() ? sheet.Columns : 2;
  rows.push_back({""});
  for (std::size_t i = 0; i < columns; ++i) rows[0].push_back(ColumnName(i));
  const auto add = [&](std::size_t line, auto field) {
    rows.push_back({"Line " + std::to_string(line)});
    for (std::size_t i = 0; i < columns; ++i) rows.back().push_back(std::string(field(i)));
  };
  if (import_.Sections().empty()) {
    for (const Survey::Sheet::Row& row : sheet.Rows) {
      if (rows.size() > PreviewRows) break;
      add(row.Line, [&](std::size_t i) { return sheet.Field(row, i); });
    }
  } else {
    for (const Survey::Point& point : import_.Before()) {
      if (rows.size() > PreviewRows) break;
      add(point.Line, [&](std::size_t i) { return i == 0 ? point.X.Typed : point.Z.Typed; });
    }
  }
  std::vector<int> widths(columns + 1, ColumnWidth);
  widths[0] = 0;  // as wide as its texts
  MSFlexGrid1.ColWidths = std::move(widths);
  MSFlexGrid1.Load(std::move(rows), static_cast<int>(columns) + 1);
  const std::size_t count = import_.Sections().empty() ? sheet.Rows.size() : import_.Before().size();
  const std::string shown =
      count > PreviewRows ? ", of which the first " + std::to_string(PreviewRows) + " are shown" : "";
  lblRead.Caption = "What was read: " + Survey::Counted(count, "row") + shown;
  std::string notes;
  for (const std::string& note : import_.Notes()) notes += (notes.empty() ? "" : "\n") + note;
  lblNotes.Caption = notes;
  lblNotes.Visible = !notes.empty();
}

std::string frmImport::ColumnName(std::size_t column) const {
  const Survey::Sheet& sheet = import_.TheSheet();
  if (!import_.Sections().empty()) return column == 0 ? "Station" : "Elevation";
  if (column < sheet.Head.size() && !sheet.Head[column].empty()) return sheet.Head[column];
  return "Column " + std::to_string(column + 1);
}

void frmImport::Fill(ComboBox& list, Label& caption, std::vector<std::string> items, int chosen) {
  list.Visible = !items.empty();
  caption.Visible = !items.empty();
  list.ListIndex = -1;
  list.Items = std::move(items);
  if (list.Visible) list.ListIndex = chosen;
}

void frmImport::ShowChoices() {
  std::vector<std::string> sections;
  for (const Survey::Section& section : import_.Sections()) sections.push_back(section.Name);
  const bool isSheet = sections.empty();
  Fill(cbxSection, lblSection, std::move(sections), static_cast<int>(import_.ChosenSection()));

  std::vector<std::string> separators;
  std::vector<std::string> columns;
  std::vector<std::string> signs;
  int separator = -1;
  if (isSheet) {
    for (const auto& [sign, name] : Separators) {
      if (sign == import_.TheSheet().Separator) separator = static_cast<int>(separators.size());
      separators.emplace_back(name);
    }
    signs = {"Point", "Comma"};
    columns = {"None"};
    for (std::size_t i = 0; i < import_.TheSheet().Columns; ++i)
      columns.push_back(std::to_string(i + 1) + ": " + ColumnName(i));
  }
  Fill(cbxSeparator, lblSeparator, std::move(separators), separator);
  Fill(cbxSign, lblSign, std::move(signs), import_.TheSign().Spelling.DecimalSign == "," ? 1 : 0);
  for (const RoleList& each : RoleLists()) {
    const auto column = import_.TheColumns().Find(each.Role);
    Fill(each.List, each.Caption, columns, column ? static_cast<int>(*column) + 1 : 0);
  }
  ShowUnits();
}

void frmImport::ShowUnits() {
  const Survey::FileUnit& unit = import_.TheUnit();
  std::vector<std::string> units = {"Feet", "Metres"};
  int chosen = unit.Asked ? -1 : ChannelState.UnitsEorM;
  if (unit.Named()) {
    units.emplace_back("As the file names it");
    chosen = 2;
  }
  if (unit.Chosen) chosen = unit.Chosen->Name == Survey::Metres().Name ? 1 : 0;
  Fill(cbxUnit, lblUnit, std::move(units), chosen);
}

void frmImport::ShowChanges() {
  const Survey::Mended& result = import_.Result();
  bool asksN = result.LacksN;
  for (int i = 0; i < Survey::KindCount; ++i) {
    const auto change =
        std::ranges::find(result.Changes, static_cast<Survey::Kind>(i), &Survey::Change::What);
    const bool found = change != result.Changes.end();
    chkChange[i].Visible = found;
    lblChange[i].Visible = found;
    if (!found) continue;
    chkChange[i].Value = change->On;
    lblChange[i].Caption = change->Text + " " + EffectText(change->Effects);
    asksN = asksN || change->What == Survey::Kind::FrontN;
  }
  lblFrontN.Visible = asksN;
  tbFrontN.Visible = asksN;
  lblChanges.Caption = result.Changes.empty() ? "Nothing is changed." : ChangesHead;
  lblReason.Caption = result.Reason;
  cmdOK.Enabled = result.Reason.empty();
}

void frmImport::ShowDrawing() {
  const std::vector<Survey::Point> before = Drawn(import_.Before());
  const std::vector<Survey::Point> after = Drawn(import_.Result().Points);
  std::vector<XYChart::Row> rows(std::max(before.size(), after.size()), XYChart::Row(4));
  for (std::size_t i = 0; i < before.size(); ++i) {
    rows[i][0] = before[i].X.Value;
    rows[i][1] = before[i].Z.Value;
  }
  for (std::size_t i = 0; i < after.size(); ++i) {
    rows[i][2] = after[i].X.Value;
    rows[i][3] = after[i].Z.Value;
  }
  const std::string unit = UnitLabel(ChannelState.UnitsEorM, Units::Length);
  MSChart1.XTitle = "Sta, " + unit;
  MSChart1.YTitle = "Elev, " + unit;
  MSChart1.Load(std::move(rows), 4);
}

// What the user does.

void frmImport::cbxSection_Click() {
  if (showing_ || cbxSection.ListIndex < 0) return;
  import_.ChooseSection(static_cast<std::size_t>(cbxSection.ListIndex.Get()));
  ShowAll();
}

void frmImport::cbxSeparator_Click() {
  if (showing_ || cbxSeparator.ListIndex < 0) return;
  import_.ChooseSeparator(std::next(std::begin(Separators), cbxSeparator.ListIndex.Get())->first);
  ShowAll();
}

void frmImport::cbxSign_Click() {
  if (showing_ || cbxSign.ListIndex < 0) return;
  import_.ChooseSign(cbxSign.ListIndex == 1 ? Survey::DecimalComma : Survey::DecimalPoint);
  ShowAll();
}

void frmImport::cbxUnit_Click() {
  if (showing_ || cbxUnit.ListIndex < 0) return;
  const int chosen = cbxUnit.ListIndex;
  import_.ChooseUnit(chosen == 2 ? std::nullopt
                                 : std::optional(chosen == 1 ? Survey::Metres() : Survey::Feet()));
  ShowAll();
}

void frmImport::Column_Click(Role role) {
  if (showing_) return;
  Survey::Columns columns = import_.TheColumns();
  std::ranges::replace(columns.Roles, role, Role::Ignored);
  for (const RoleList& each : RoleLists()) {
    if (each.Role == role && each.List.ListIndex > 0)
      columns.Roles[static_cast<std::size_t>(each.List.ListIndex.Get()) - 1] = role;
  }
  import_.ChooseColumns(columns);
  ShowAll();
}

void frmImport::tbFrontN_Change() {
  const auto value = NumericValue(tbFrontN.Text.Get());
  const bool usable = value && *value > 0;
  FormStuff::Mark(tbFrontN, usable ? "" : "n must be a number greater than 0");
  import_.ChooseFrontN(usable ? std::optional(Survey::Number{*value, {}}) : std::nullopt);
  ShowChanges();
  ShowDrawing();
}

void frmImport::chkChange_Click(int index) {
  chkChange[index].Value = !chkChange[index].Value;
  import_.Switch(static_cast<Survey::Kind>(index), chkChange[index].Value);
  ShowAll();
}

void frmImport::cmdOK_Click() {
  accepted_ = true;
  Unload();
}

void frmImport::cmdCancel_Click() {
  Unload();
}
