// The whole program in real windows, on services that remember what was asked.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "app/settings/SettingsFile.h"
#include "desktop/WidgetHands.h"
#include "desktop/kit/BoxEdit.h"
#include "desktop/kit/Text.h"
#include "engine/ChannelState.h"
#include "program/Program.h"
#include "section/frmIrreg.h"
#include "support/FakeServices.h"
#include "support/Split.h"

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

/// Widgets that hold a text and are smaller than it needs.
inline std::string CutOff(const QWidget& window) {
  QString cut;
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    const bool text = qobject_cast<const QLabel*>(widget) != nullptr ||
                      qobject_cast<const QLineEdit*>(widget) != nullptr ||
                      qobject_cast<const QAbstractButton*>(widget) != nullptr;
    const QSize least = widget->minimumSizeHint().boundedTo(widget->sizeHint());
    if (text && widget->isVisible() &&
        (widget->width() < least.width() || widget->height() < least.height())) {
      cut += widget->objectName() + u':' + widget->property("text").toString() + u' ';
    }
  }
  return FromQt(cut);
}

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

  /// Types into one box after the other: "tbDepth 2, tbSlope 0.001".
  void Enter(const std::string& texts) {
    for (const std::string& text : Split(texts, ", ")) {
      const std::size_t blank = text.find(' ');
      hands_.Focus(dynamic_cast<TextBox&>(*main_.Find(text.substr(0, blank))));
      Keys(text.c_str() + blank + 1);
    }
  }
  void EnterTrapezoid() {
    hands_.Click(main_.mnuOptionsTrap);
    Enter("tbFlow 400, tbSlope 0.0016, tbMann 0.025, tbBaseWidth 20, tbSSL 2, tbSSR 2");
  }
  void EnterPipe(const std::string& diameter, const std::string& depth) {
    hands_.Click(main_.mnuOptionsCircular);
    hands_.Click(main_.mnuSolveForFlow);
    Enter("tbSlope 0.004, tbMann 0.013, tbDiameter " + diameter + ", tbDepth " + depth);
  }
  /// Makes the channel a section of points such as "0 10 0.03, 10 0, 20 10".
  void TakePoints(const std::string& points) {
    hands_.Click(main_.mnuOptionsIrreg);
    ChannelState.IrregPointCount = 0;
    for (const std::string& point : Split(points, ", ")) {
      const auto cells = Split(point, " ");
      const auto row = static_cast<std::size_t>(++ChannelState.IrregPointCount);
      std::ranges::copy(cells, ChannelState.IrregPoints[row].begin() + 1);
    }
  }
  void EnterSection(const std::string& points, const std::string& level) {
    TakePoints(points);
    hands_.Click(main_.mnuSolveForFlow);
    Enter("tbSlope 0.002, tbDepth " + level);
  }

  void InEveryType(const std::function<void()>& check) {
    for (MenuItem* const type : {&main_.mnuOptionsRect, &main_.mnuOptionsTriangular, &main_.mnuOptionsTrap,
                                 &main_.mnuOptionsCircular, &main_.mnuOptionsIrreg}) {
      SCOPED_TRACE(type->Caption.Get());
      hands_.Click(*type);
      check();
    }
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
