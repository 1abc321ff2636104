// The whole program in real windows, on services that remember what was asked.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "app/settings/SettingsFile.h"
#include "desktop/WidgetHands.h"
#include "desktop/kit/BoxEdit.h"
#include "engine/ChannelState.h"
#include "program/Program.h"
#include "section/frmIrreg.h"
#include "support/FakeServices.h"

/// While it lives, texts are so many times as large.
class LargerText {
 public:
  explicit LargerText(double times) {
    QFont font = usual_;
    font.setPointSizeF(usual_.pointSizeF() * times);
    QApplication::setFont(font);
  }
  ~LargerText() { QApplication::setFont(usual_); }
  LargerText(const LargerText&) = delete;
  LargerText& operator=(const LargerText&) = delete;

 private:
  QFont usual_ = QApplication::font();
};

class Desk : public testing::Test {
 protected:
  Desk() {
    SettingsFile::Use("");
    program_.Start();
    hands_.Window(main_);
  }

  BoxEdit& Edit(const TextBox& box) { return hands_.Of<BoxEdit>(box); }

  /// Types letter by letter, as at the keyboard, into what has the keyboard.
  static void Keys(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text)); }
  static std::string Focused() { return QApplication::focusWidget()->objectName().toStdString(); }

  /// Runs `act` in the modal window that the click opens, then closes what it left open.
  void InModal(Control& opens, const std::function<void(Form&)>& act) {
    inModal_ = act;
    hands_.Click(opens);
    EXPECT_FALSE(inModal_) << "no window opened";
  }

  /// Types into one box after the other.
  void Enter(std::initializer_list<std::pair<TextBox*, const char*>> texts) {
    for (const auto& [box, text] : texts) {
      hands_.Focus(*box);
      Keys(text);
    }
  }
  void EnterTrapezoid() {
    hands_.Click(main_.mnuOptionsTrap);
    Enter({{&main_.tbFlow, "400"},
           {&main_.tbSlope, "0.0016"},
           {&main_.tbMann, "0.025"},
           {&main_.tbBaseWidth, "20"},
           {&main_.tbSSL, "2"},
           {&main_.tbSSR, "2"}});
  }
  void EnterPipe(const char* diameter, const char* depth) {
    hands_.Click(main_.mnuOptionsCircular);
    hands_.Click(main_.mnuSolveForFlow);
    Enter({{&main_.tbSlope, "0.004"},
           {&main_.tbMann, "0.013"},
           {&main_.tbDiameter, diameter},
           {&main_.tbDepth, depth}});
  }
  using Points = std::vector<std::array<std::string, 3>>;
  /// Makes the channel a section of these points: station, elevation, n.
  void TakePoints(const Points& points) {
    hands_.Click(main_.mnuOptionsIrreg);
    ChannelState.IrregPointCount = static_cast<int>(points.size());
    for (std::size_t i = 0; i < points.size(); ++i)
      std::copy(points[i].begin(), points[i].end(), ChannelState.IrregPoints[i + 1].begin() + 1);
  }

  FakeServices services_;
  std::function<void(Form&)> inModal_;
  TestHost windows_{[this](Form& form) {
    if (const auto act = std::exchange(inModal_, nullptr)) act(form);
    if (auto* const editor = dynamic_cast<frmIrreg*>(&form)) editor->cmdCancel_Click();
    if (form.IsLoaded()) form.Unload();
  }};
  Program program_{services_.With(windows_)};
  frmMain& main_ = program_.Main;
  WidgetHands hands_{windows_};
};
