// The whole program beside a printer that writes down what it is told.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "app/Version.h"
#include "support/ProgramStage.h"

using Calls = std::vector<std::string>;

class PrintStage : public ProgramStage {
 protected:
  PrintStage() { Main.tbProjName.Text = "Mill race"; }

  /// For what is printed next, on clean paper.
  void AcceptTheDialog() {
    Paper.TakeCalls();
    Fakes.printerDialog.Answers = {true};
  }
  void PrintReport() {
    AcceptTheDialog();
    Main.mnuFilePrint_Click();
  }

  void UsePaper(int width, int height) {
    Paper.Width = width;
    Paper.Height = height;
  }

  /// What was printed on page `number`, from 1, its head and foot included.
  Calls Page(int number) const {
    auto first = Paper.Calls.begin();
    for (; number > 1; --number) first = std::find(first, Paper.Calls.end(), "newpage") + 1;
    return {first, std::find_if(first, Paper.Calls.end(),
                                [](const std::string& call) { return call == "newpage" || call == "end"; })};
  }
  auto Pages() const { return 1 + std::ranges::count(Paper.Calls, "newpage"); }

  /// What every page ends with on the paper in use.
  Calls Foot() const {
    const auto at = [this](int aboveBottom) { return std::to_string(Paper.Height - aboveBottom); };
    return {"font Arial 8 False True False",
            "line 1152 " + at(1808) + " " + std::to_string(Paper.Width - 1872) + " " + at(1808) + " 3",
            "text 1152 " + at(1708) + " Untitled    2026-03-09",
            "text 1152 " + at(1524) + " " + "v" + VersionName};
  }
  Calls Head() const {
    return {"font Arial 12 True False False", "text 1152 1008 Mill race",
            "text 1152 1284 Manning's Equation - " + ChannelState.ChannelType};
  }

  FakePrinter& Paper = Fakes.printerDialog.Paper;
};

inline Calls operator+(Calls before, const Calls& after) {
  before.insert(before.end(), after.begin(), after.end());
  return before;
}
