// The points as a whole: their drawing, what OK says of them, and the files they come from and go to.
#include "app/Declarations.h"
#include "app/ExportFile.h"
#include "app/Units.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"
#include "platform/Services.h"
#include "section/ImportSurvey.h"
#include "section/PointsCsv.h"
#include "section/frmIrreg.h"

namespace {

using IrregTable::Elevation;
using IrregTable::Index;
using IrregTable::ManningN;
using IrregTable::Station;

constexpr const char* ImportFilter =
    "Surveys (*.csv;*.txt;*.g??;*.inp)|*.csv;*.txt;*.g??;*.inp|All Files (*.*)|*.*";
constexpr const char* Filter = "Point Lists (*.csv;*.txt)|*.csv;*.txt|All Files (*.*)|*.*";

bool Confirms(const std::string& question) {
  return TheServices().messageBox.Show(question, "Warning", BoxIcon::Exclamation, BoxButtons::YesNo) ==
         BoxAnswer::Yes;
}

/// What an export says of itself.
std::string Remark(const std::string& unit) {
  return std::string(Declarations::AppTitle) + ": " + Declarations::FileTitle + ", " +
         TheServices().clock.ShortDate() + ", lengths in " + unit;
}

}  // namespace

void frmIrreg::LoadChart() {
  const IrregTable::Table table = Cells();
  std::vector<XYChart::Row> points;
  for (int row = 1; row <= IrregTable::PointCount(table); ++row) {
    const auto& texts = table[Index(row)];
    points.push_back({LeadingNumber(texts[Station]), LeadingNumber(texts[Elevation])});
  }
  MSChart1.Load(std::move(points), 2);
}

Outline::Line frmIrreg::Ground() const {
  Outline::Line ground;
  const IrregTable::Table table = Cells();
  for (int row = 1; row <= IrregTable::PointCount(table); ++row) {
    const auto& texts = table[Index(row)];
    if (texts[Elevation].empty()) break;
    ground.push_back({LeadingNumber(texts[Station]), LeadingNumber(texts[Elevation])});
  }
  return ground;
}

std::vector<Outline::Subsection> frmIrreg::Subsections() const {
  PointTable points;
  int row = 0;
  for (const Outline::Point& point : Ground()) {
    points[Index(++row)][Station] = point.X;
    points[Index(row)][ManningN] = MSFlexGrid1.Text(row, ManningN);
  }
  return Outline::Subsections(points, row);
}

void frmIrreg::ShowOffence() {
  IrregTable::Table table = Cells();
  std::string& firstN = table[1][ManningN];
  if (firstN.empty()) firstN = "1";  // what is behind it is judged all the same
  const auto failure = IrregTable::CheckTable(table);
  const bool wrong = failure && !MSFlexGrid1.Text(failure->Row, failure->Column).empty();
  MSFlexGrid1.Offending = wrong ? GridCell{failure->Row, failure->Column} : GridCell{};
  MSFlexGrid1.ToolTip = wrong ? std::string(IrregTable::MessageOf(failure->Code)) : "";
}

bool frmIrreg::CheckTable() {
  const auto failure = IrregTable::CheckTable(Cells());
  if (!failure) return true;
  TheServices().messageBox.Show(std::string(IrregTable::MessageOf(failure->Code)), "Warning",
                                BoxIcon::Information, BoxButtons::Ok);
  MSFlexGrid1.SelectCell(failure->Row, failure->Column);
  MoveFocus(MSFlexGrid1);
  return false;
}

void frmIrreg::LoadArray() {
  EmptySection();  // a point or an n taken out must not come back
  const IrregTable::Table table = Cells();
  ChannelState.IrregPointCount = IrregTable::PointCount(table);
  for (int row = 1; row <= ChannelState.IrregPointCount; ++row) {
    for (const int col : {Station, Elevation, ManningN})
      ChannelState.IrregPoints[Index(row)][Index(col)] = table[Index(row)][Index(col)];
  }
}

void frmIrreg::cmdOK_Click() {
  if (ChannelState.IrregPointCount > IrregTable::Rows &&
      !Confirms("Discard point 101? The table has room for 100."))
    return;
  if (!CheckTable()) return;
  LoadArray();
  settled_ = true;
  Unload();
  Declarations::DataChanged = true;
}

void frmIrreg::cmdCancel_Click() {
  settled_ = true;
  Unload();
}

bool frmIrreg::GiveUpPoints() {
  return Confirms("Discard the changed points?");
}

bool frmIrreg::Form_QueryUnload() {
  return settled_ || CellsInWork() == opened_ || GiveUpPoints();
}

std::optional<frmIrreg::Points> frmIrreg::ChangedPoints() const {
  const IrregTable::Table cells = CellsInWork();
  if (settled_ || cells == opened_) return std::nullopt;
  Points points;
  for (const auto& row : cells) points.push_back({row[Station], row[Elevation], row[ManningN]});
  points.erase(points.begin());
  if (ChannelState.IrregPointCount > IrregTable::Rows) {
    const auto& last = ChannelState.IrregPoints[IrregTable::Rows + 1];
    points.push_back({last[Station], last[Elevation], last[ManningN]});
  }
  while (!points.empty() && points.back() == Points::value_type{}) points.pop_back();
  return points;
}

void frmIrreg::mnuFileImport_Click() {
  const auto path =
      TheServices().fileDialog.Choose({false, "Import Points", Declarations::UserPath, ImportFilter, ""});
  if (path) ImportFile(*path);
}

void frmIrreg::ImportFile(const std::string& path) {
  CommitEdit();
  TakeOver(PointsOfFile(path));
}

void frmIrreg::mnuFileExport_Click() {
  CommitEdit();
  if (CheckTable()) {
    const std::string unit = UnitLabel(ChannelState.UnitsEorM, Units::Length);
    ExportFile({"Export Points", Filter, "csv"},
               [&](const std::string&) { return PointsCsv::Format(Cells(), unit, Remark(unit)); });
  }
}
