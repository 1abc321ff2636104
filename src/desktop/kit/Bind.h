// Binds a control to its widget both ways: the widget shows the control's properties, the control is notified
// of what the user does. The compare in Property ends every loop between them.
#pragma once

#include <QPointer>
#include <QString>
#include <QVariant>
#include <functional>
#include <utility>

#include "desktop/kit/BoxEdit.h"
#include "desktop/kit/Text.h"
#include "platform/Controls.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace Bind {

/// Shows the property now and whenever it changes, as long as the widget lives.
template <class T, class Widget, class Show>
void Join(Property<T>& property, Widget* widget, Show show) {
  property.View = [&property, guarded = QPointer<Widget>(widget), show] {
    if (guarded) show(*guarded, property.Get());
  };
  property.View();
}

/// Runs `follow` now and after each showing of a property that is already joined, as long as `owner` lives.
template <class T>
void Follow(Property<T>& property, QObject* owner, std::function<void()> follow) {
  follow();
  property.View = [before = std::move(property.View), guarded = QPointer<QObject>(owner),
                   follow = std::move(follow)] {
    if (before) before();
    if (guarded) follow();
  };
}

/// Attaches the widget or action to the control: its name, and whether it is enabled and visible.
template <class Widget>
Widget* Named(Control& control, Widget* widget) {
  widget->setObjectName(ToQt(control.Name()));
  Join(control.Enabled, widget, [](Widget& w, bool enabled) { w.setEnabled(enabled); });
  Join(control.Visible, widget, [](Widget& w, bool visible) { w.setVisible(visible); });
  Join(control.ToolTip, widget, [](Widget& w, const std::string& tip) { w.setToolTip(Printed(tip)); });
  return widget;
}

constexpr const char* ControlProperty = "control";  ///< of a widget that can have the keyboard

/// Attaches the widget to a control that can take the focus.
template <class Widget>
Widget* Adopt(FocusControl& control, Widget* widget) {
  widget->setProperty(ControlProperty, QVariant::fromValue(static_cast<void*>(&control)));
  control.FocusView = [guarded = QPointer<Widget>(widget)] {
    if (guarded) guarded->setFocus();
  };
  return Named(control, widget);
}

/// The caption with the first of `mnemonics` that it has as its mnemonic.
QString WithMnemonic(std::string_view caption, std::string_view mnemonics);

// Each makes the widget of a control, under the control's name. `mnemonics`: candidates for the mnemonic.
BoxEdit* Box(TextBox& box, QWidget* parent);
QLabel* Caption(Label& label, QWidget* parent, std::string_view mnemonics = "");
QPushButton* Push(Button& button, QWidget* parent, std::string_view mnemonics = "");
QRadioButton* Option(OptionButton& option, QWidget* parent);
QCheckBox* Check(CheckBox& box, QWidget* parent);
QListWidget* List(ListBox& list, QWidget* parent);
QComboBox* Combo(ComboBox& list, QWidget* parent);
/// The frame that a label heads.
QGroupBox* Group(Label& label, QWidget* parent, std::string_view mnemonics = "");
QAction* Item(MenuItem& item, QWidget* parent, std::string_view mnemonics);
QAction* Tool(ToolButton& tool, QWidget* parent);

/// The control whose widget this is and that can have the keyboard; null for any other widget.
FocusControl* ControlOf(const QWidget* widget);

}  // namespace Bind
