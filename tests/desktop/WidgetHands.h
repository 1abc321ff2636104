// Acts on the widgets of the windows as a person does: by keys, clicks and the input method.
#pragma once

#include <QtWidgets>
#include <functional>
#include <memory>
#include <utility>

#include "console/Console.h"
#include "desktop/shell/QtWindowHost.h"

/// Real windows whose modal ones wait by calling a function, so that a test can go on.
class TestHost : public QtWindowHost {
 public:
  explicit TestHost(std::function<void(Form&)> wait) : wait_(std::move(wait)) {}

 protected:
  void WaitUntilUnloaded(Form& form) override { wait_(form); }

 private:
  std::function<void(Form&)> wait_;
};

/// Presses one key after the other at what has the keyboard: "Ctrl+Home Shift+Down".
void Press(const char* keys);
/// Presses the mouse at one place of the widget and lets it go at another.
void Drag(QWidget& widget, QPoint from, QPoint to);

class WidgetHands : public Hands {
 public:
  explicit WidgetHands(const QtWindowHost& windows) : windows_(windows) {}

  void Focus(FocusControl& control) override;
  void Type(TextBox& box, const std::string& text) override;
  void Select(TextBox& box, TextRange range) override;
  void Click(Control& control) override;
  void Pick(ListBox& list, int index) override;
  void DoubleClick(ListBox& list) override;
  void DoubleClick(FlexGrid& grid) override;
  void SelectBlock(FlexGrid& grid, GridBlock block) override;
  void Key(FocusControl& control, int keyCode, Keys::Modifier with) override;
  void Char(FocusControl& control, const std::string& character) override;
  void Close(Form& form) override;

  /// The window of the form, made the active one. The test fails when it shows anything else than the form
  /// holds.
  QWidget& Window(const Form& form) const;
  /// The widget or action that carries the control's name; fails the test when it is of another kind.
  template <class Widget>
  Widget& Of(const Control& control) const {
    auto* const widget = Window(control.Owner()).findChild<Widget*>(QString::fromStdString(control.Name()));
    if (widget == nullptr) qFatal("No widget of its kind for %s", control.Name().c_str());
    return *widget;
  }

 private:
  void PressCell(const FlexGrid& grid, int row, int col, Qt::KeyboardModifiers modifiers) const;

  const QtWindowHost& windows_;
};

/// The stage of a conversation with the real widgets.
inline Console::Stage WidgetStage(std::function<void(Form&)> wait) {
  auto windows = std::make_unique<TestHost>(std::move(wait));
  auto hands = std::make_unique<WidgetHands>(*windows);
  return {std::move(windows), std::move(hands)};
}
