// See frmSection.h.
#include "section/frmSection.h"

#include "app/Declarations.h"
#include "app/ExportFile.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "engine/NumberText.h"

namespace {

double NumberIn(const TextBox& box) {
  return LeadingNumber(box.Text.Get());
}

/// In the unit of the other lengths: it is typed in inches or millimetres.
double Diameter(const frmMain& main) {
  const int units = ChannelState.UnitsEorM;
  return NumberIn(main.tbDiameter) / (UnitFactor(units, Units::Length) / UnitFactor(units, Units::Diameter));
}

}  // namespace

frmSection::frmSection(const frmMain& main) : Form("frmSection"), main_(main) {
  mnuFileExport.Caption = "Export...";
  mnuFileExit.Caption = "Exit";
  mnuEditCopy.Caption = "Copy";
  mnuFileExport.Click = [this] { mnuFileExport_Click(); };
  mnuFileExit.Click = [this] { mnuFileExit_Click(); };
  mnuEditCopy.Click = [this] { mnuEditCopy_Click(); };
}

void frmSection::Form_Load() {
  Caption = std::string(Declarations::AppTitle) + " - " + ChannelState.ChannelType;
  DrawChannel();
}

SectionTable::Table frmSection::Coordinates() const {
  const double depth = NumberIn(main_.tbDepth);
  switch (CurrentChannelType().Is) {
    case Shape::Survey:
      return SectionTable::Irregular(ChannelState.IrregPoints, ChannelState.IrregPointCount, depth);
    case Shape::Pipe:
      return SectionTable::Circular(Diameter(main_), depth, NumberIn(main_.tbTopW));
    case Shape::Prism:
      break;
  }
  return SectionTable::Prismatic(NumberIn(main_.tbBaseWidth), NumberIn(main_.tbSSL), NumberIn(main_.tbSSR),
                                 depth);
}

void frmSection::DrawChannel() {
  const bool surveyed = CurrentChannelType().IsSurveyed();
  const std::string unit = UnitLabel(ChannelState.UnitsEorM, Units::Length);
  MSChart1.XTitle = (surveyed ? "Station, " : "Distance, ") + unit;
  MSChart1.YTitle = (surveyed ? "Elevation, " : "Height, ") + unit;
  MSChart1.UniformAxis = CurrentChannelType().Is == Shape::Pipe;
  const SectionTable::Table table = Coordinates();
  if (MSChart1.UniformAxis) {
    drawing_.Pipe = SectionTable::PipeWall(Diameter(main_));
    drawing_.Level = *table[0][SectionTable::WaterY];
  } else {
    drawing_.Pools = SectionTable::Pools(table);
  }
  if (surveyed) {
    drawing_.Subsections = Outline::Subsections(ChannelState.IrregPoints, ChannelState.IrregPointCount);
  }
  std::vector<XYChart::Row> rows;
  for (const auto& row : table) rows.emplace_back(row.begin(), row.end());
  MSChart1.Load(std::move(rows), 4);
}

void frmSection::mnuFileExport_Click() {
  ChartPicture::Export(MSChart1, "Export Section");
}

void frmSection::mnuFileExit_Click() {
  Unload();
}

void frmSection::mnuEditCopy_Click() {
  ChartPicture::Copy(MSChart1);
}
