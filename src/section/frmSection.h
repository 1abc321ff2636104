// The drawing of the current channel's cross-section with its water surface.
#pragma once

#include <vector>

#include "app/main/frmMain.h"
#include "platform/XYChart.h"
#include "section/SectionTable.h"

class frmSection : public Form {
 public:
  explicit frmSection(const frmMain& main);

  XYChart MSChart1{this, "MSChart1"};
  MenuItem mnuFileExport{this, "mnuFileExport"}, mnuFileExit{this, "mnuFileExit"};
  MenuItem mnuEditCopy{this, "mnuEditCopy"};

  /// What the chart draws, as areas of water to fill and stretches of one n to tell apart.
  const std::vector<std::vector<SectionTable::Point>>& Pools() const { return pools_; }
  const std::vector<SectionTable::Stretch>& Stretches() const { return stretches_; }

  void mnuFileExport_Click();
  void mnuFileExit_Click();
  void mnuEditCopy_Click();

 protected:
  void Form_Load() override;

 private:
  void DrawChannel();
  SectionTable::Table Coordinates() const;

  const frmMain& main_;
  std::vector<std::vector<SectionTable::Point>> pools_;
  std::vector<SectionTable::Stretch> stretches_;
};
