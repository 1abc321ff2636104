// The drawing of the current channel's cross-section with its water surface.
#pragma once

#include <optional>
#include <vector>

#include "app/main/frmMain.h"
#include "platform/XYChart.h"
#include "section/SectionTable.h"

/// What a drawing shows besides the lines of its chart.
struct SectionDrawing {
  std::vector<Outline::Line> Pools;  ///< areas of water; of a pipe none, its wall holds the water
  std::vector<Outline::Subsection> Subsections;
  std::optional<Outline::Circle> Pipe;
  double Level = 0;  ///< of the water in the pipe
};

class frmSection : public Form {
 public:
  explicit frmSection(const frmMain& main);

  XYChart MSChart1{this, "MSChart1"};
  MenuItem mnuFileExport{this, "mnuFileExport"}, mnuFileExit{this, "mnuFileExit"};
  MenuItem mnuEditCopy{this, "mnuEditCopy"};

  const SectionDrawing& Drawing() const { return drawing_; }

  void mnuFileExport_Click();
  void mnuFileExit_Click();
  void mnuEditCopy_Click();

 protected:
  void Form_Load() override;

 private:
  void DrawChannel();
  SectionTable::Table Coordinates() const;

  const frmMain& main_;
  SectionDrawing drawing_;
};
