// See frmSection.h.
#include "section/frmSection.h"

#include "app/Declarations.h"
#include "app/ExportFile.h"
#include "app/Units.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"

namespace {

/// Inches in a foot, millimetres in a metre: diameters are typed in the smaller unit.
double DiametersInLength() {
  return ChannelState.UnitsEorM == Units::Metric ? 1000 : 12;
}

double NumberIn(const TextBox& box) {
  return LeadingNumber(box.Text.Get());
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
  const ChannelRecord& record = ChannelState;
  const double depth = NumberIn(main_.tbDepth);
  if (record.ChannelType == ChannelTypes::Irregular)
    return SectionTable::Irregular(record.IrregPoints, record.IrregPointCount, depth);
  if (record.ChannelType == ChannelTypes::Circular) {
    return SectionTable::Circular(NumberIn(main_.tbDiameter) / DiametersInLength(), depth,
                                  NumberIn(main_.tbTopW));
  }
  return SectionTable::Prismatic(NumberIn(main_.tbBaseWidth), NumberIn(main_.tbSSL), NumberIn(main_.tbSSR),
                                 depth);
}

void frmSection::DrawChannel() {
  const bool surveyed = ChannelState.ChannelType == ChannelTypes::Irregular;
  const std::string unit = UnitLabel(ChannelState.UnitsEorM, Units::Length);
  MSChart1.XTitle = (surveyed ? "Station, " : "Distance, ") + unit;
  MSChart1.YTitle = (surveyed ? "Elevation, " : "Height, ") + unit;
  MSChart1.UniformAxis = ChannelState.ChannelType == ChannelTypes::Circular;
  const SectionTable::Table table = Coordinates();
  pools_ = SectionTable::Pools(table);
  if (surveyed) {
    stretches_ = SectionTable::Stretches(ChannelState.IrregPoints, ChannelState.IrregPointCount);
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
