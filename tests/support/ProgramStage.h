// The whole program on services that remember what was asked, and problems to type into it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/ChannelState.h"
#include "program/Program.h"
#include "support/FakeServices.h"
#include "support/LocaleTest.h"
#include "support/ScriptedHost.h"
#include "support/Split.h"

/// A station, an elevation and a roughness; here and below texts have "." as the decimal sign.
using TypedPoint = std::array<std::string, 3>;

class ProgramStage : public LocaleTest {
 protected:
  ProgramStage() { All.Start(); }

  /// Types into one box after the other: "tbBaseWidth 20, tbSSL 2".
  void Enter(const char* texts) {
    for (const std::string& text : Split(texts, ", ")) {
      const std::size_t blank = text.find(' ');
      Type(dynamic_cast<TextBox&>(*Main.Find(text.substr(0, blank))), text.substr(blank + 1));
    }
  }
  static void Type(TextBox& box, const std::string& text) { box.Text = Spelled(text); }
  static std::string Text(const TextBox& box) { return box.Text; }

  /// The rectangle of the textbooks: b 10 ft, n 0.013, S 0.001; at y = 2 ft A is 20 sf, P 14 ft and Q 91.696.
  void TypeRectangle() {
    Main.mnuOptionsRect_Click();
    Type(Main.tbBaseWidth, "10");
    TypeUniformFlow("2", "0.001", "0.013");
  }

  void TypePipe(const std::string& diameter, const std::string& depth) {
    Main.mnuOptionsCircular_Click();
    Type(Main.tbDiameter, diameter);
    TypeUniformFlow(depth, "0.002", "0.013");
  }

  void TypeSection(const std::vector<TypedPoint>& points, const std::string& level) {
    Main.mnuOptionsIrreg_Click();
    ChannelState.IrregPointCount = static_cast<int>(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
      for (std::size_t column = 0; column < 3; ++column) {
        ChannelState.IrregPoints[i + 1][column + 1] = Spelled(points[i][column]);
      }
    }
    TypeUniformFlow(level, "0.001", "");
  }

  FakeServices Fakes;
  ScriptedHost Screen;
  Program All{Fakes.With(Screen)};
  frmMain& Main = All.Main;

 private:
  void TypeUniformFlow(const std::string& depth, const std::string& slope, const std::string& n) {
    Main.mnuSolveForFlow_Click();
    Type(Main.tbDepth, depth);
    Type(Main.tbSlope, slope);
    if (!n.empty()) Type(Main.tbMann, n);
  }
};
