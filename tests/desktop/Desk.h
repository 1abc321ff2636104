// The whole program in real windows, on services that remember what was asked.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "app/SettingsFile.h"
#include "desktop/BoxEdit.h"
#include "desktop/WidgetHands.h"
#include "program/Program.h"
#include "support/FakeServices.h"

class Desk : public testing::Test {
 protected:
  Desk() {
    SettingsFile::Use("");
    program_.Start();
    hands_.Window(main_);
  }

  BoxEdit& Edit(const TextBox& box) { return hands_.Of<BoxEdit>(box); }

  /// Types key by key, as at the keyboard, into the box that has the focus.
  static void Keys(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text)); }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  /// Runs `act` in the modal window that the click opens, then closes what it left open.
  void InModal(Control& opens, const std::function<void(Form&)>& act) {
    inModal_ = act;
    hands_.Click(opens);
    EXPECT_FALSE(inModal_) << "no window opened";
  }

  void EnterTrapezoid() {
    hands_.Click(main_.mnuOptionsTrap);
    for (const auto& [box, text] :
         std::initializer_list<std::pair<TextBox*, const char*>>{{&main_.tbFlow, "400"},
                                                                 {&main_.tbSlope, "0.0016"},
                                                                 {&main_.tbMann, "0.025"},
                                                                 {&main_.tbBaseWidth, "20"},
                                                                 {&main_.tbSSL, "2"},
                                                                 {&main_.tbSSR, "2"}}) {
      hands_.Focus(*box);
      Keys(text);
    }
  }

  FakeServices services_;
  std::function<void(Form&)> inModal_;
  TestHost windows_{[this](Form& form) {
    if (const auto act = std::exchange(inModal_, nullptr)) act(form);
    if (form.IsLoaded()) form.Unload();
  }};
  Program program_{services_.With(windows_)};
  frmMain& main_ = program_.Main;
  WidgetHands hands_{windows_};
};
