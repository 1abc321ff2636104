// The whole program on a stage where a person's acts in the modal windows to come are written down before.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "engine/ChannelState.h"
#include "program/Program.h"
#include "support/FakeServices.h"
#include "support/LocaleTest.h"

class ScriptedHost : public WindowHost {
 public:
  std::deque<std::function<void(Form&)>> Acts;

 private:
  void Open(Form&) override {}
  void Wait(Form& form) override {
    ASSERT_FALSE(Acts.empty()) << form.Name() << " was not expected";
    const auto act = Acts.front();
    Acts.pop_front();
    act(form);
    form.Unload();
  }
};

/// A station, an elevation and a roughness as typed; texts with "." as the decimal sign.
using TypedPoint = std::array<const char*, 3>;

class RatingStage : public LocaleTest {
 protected:
  RatingStage() { All.Start(); }
  ~RatingStage() override { EXPECT_TRUE(Screen.Acts.empty()) << "a window did not open"; }

  /// What is done in the next modal window, which is then closed by its title-bar box if it is still open.
  template <class Window>
  void Then(std::function<void(Window&)> act) {
    Screen.Acts.push_back([act](Form& form) {
      auto* const window = dynamic_cast<Window*>(&form);
      ASSERT_NE(window, nullptr) << form.Name();
      act(*window);
    });
  }

  static void Type(TextBox& box, const std::string& text) { box.Text = Spelled(text); }
  static std::string Text(const TextBox& box) { return box.Text; }

  /// The rectangle of the textbooks: b 10 ft, n 0.013, S 0.001; at y = 2 ft A is 20 sf, P 14 ft and Q 91.696.
  void TypeRectangle() {
    Main.mnuOptionsRect_Click();
    Main.mnuSolveForFlow_Click();
    Type(Main.tbDepth, "2");
    Type(Main.tbSlope, "0.001");
    Type(Main.tbMann, "0.013");
    Type(Main.tbBaseWidth, "10");
  }

  void TypePipe(const std::string& diameter, const std::string& depth) {
    Main.mnuOptionsCircular_Click();
    Main.mnuSolveForFlow_Click();
    Type(Main.tbDepth, depth);
    Type(Main.tbDiameter, diameter);
    Type(Main.tbSlope, "0.002");
    Type(Main.tbMann, "0.013");
  }

  void TypeSection(const std::vector<TypedPoint>& points, const std::string& level) {
    Main.mnuOptionsIrreg_Click();
    Main.mnuSolveForFlow_Click();
    ChannelState.IrregPointCount = static_cast<int>(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
      for (std::size_t column = 0; column < 3; ++column) {
        ChannelState.IrregPoints[i + 1][column + 1] = Spelled(points[i][column]);
      }
    }
    Type(Main.tbSlope, "0.001");
    Type(Main.tbDepth, level);
  }

  FakeServices Fakes;
  ScriptedHost Screen;
  Program All{Fakes.With(Screen)};
  frmMain& Main = All.Main;
};
