// See Bind.h.
#include "desktop/kit/Bind.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/kit/Text.h"

namespace Bind {

namespace {

template <class Widget>
Widget* Captioned(HasCaption& control, Widget* widget, std::string_view mnemonics) {
  Join(control.Caption, widget,
       [mnemonics](Widget& w, const std::string& caption) { w.setText(WithMnemonic(caption, mnemonics)); });
  return widget;
}

void Press(const HasClick& control) {
  if (control.Click) control.Click();
}

template <class Widget>
Widget* Checkable(OptionButton& option, Widget* made) {
  auto* const widget = Captioned(option, Adopt(option, made), "");
  Join(option.Value, widget, [](Widget& w, bool value) { w.setChecked(value); });
  QObject::connect(widget, &Widget::clicked, widget, [&option] { Press(option); });
  return widget;
}

}  // namespace

QString WithMnemonic(std::string_view caption, std::string_view mnemonics) {
  const QString text = Printed(caption);
  qsizetype mnemonic = -1;
  for (const char candidate : mnemonics) {
    mnemonic = text.indexOf(QLatin1Char(candidate), 0, Qt::CaseInsensitive);
    if (mnemonic >= 0) break;
  }
  QString result;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (i == mnemonic || text[i] == QLatin1Char('&')) result += QLatin1Char('&');
    result += text[i];
  }
  return result;
}

BoxEdit* Box(TextBox& box, QWidget* parent) {
  return Adopt(box, new BoxEdit(box, parent));
}

QLabel* Caption(Label& label, QWidget* parent, std::string_view mnemonics) {
  auto* const widget = Captioned(label, Named(label, new QLabel(parent)), mnemonics);
  widget->setTextFormat(Qt::PlainText);
  return widget;
}

QPushButton* Push(Button& button, QWidget* parent, std::string_view mnemonics) {
  auto* const widget = Captioned(button, Adopt(button, new QPushButton(parent)), mnemonics);
  widget->setAutoDefault(true);  // Return presses it in every window, not in dialogs alone
  QObject::connect(widget, &QPushButton::clicked, widget, [&button, widget] {
    widget->setFocus();  // its mnemonic presses a button too, and that must end the edit of a box
    Press(button);
  });
  return widget;
}

QRadioButton* Option(OptionButton& option, QWidget* parent) {
  return Checkable(option, new QRadioButton(parent));
}

QCheckBox* Check(CheckBox& box, QWidget* parent) {
  return Checkable(box, new QCheckBox(parent));
}

QListWidget* List(ListBox& list, QWidget* parent) {
  auto* const widget = Adopt(list, new QListWidget(parent));
  Join(list.Items, widget, [](QListWidget& w, const std::vector<std::string>& items) {
    w.clear();
    for (const std::string& item : items) w.addItem(ToQt(item));
  });
  Join(list.ListIndex, widget, [](QListWidget& w, int index) { w.setCurrentRow(index); });
  QObject::connect(widget, &QListWidget::currentRowChanged, widget,
                   [&list](int row) { list.ListIndex = row; });
  QObject::connect(widget, &QListWidget::itemDoubleClicked, widget, [&list] {
    if (list.DblClick) list.DblClick();
  });
  return widget;
}

QComboBox* Combo(ComboBox& list, QWidget* parent) {
  auto* const widget = Adopt(list, new QComboBox(parent));
  Join(list.Items, widget, [](QComboBox& w, const std::vector<std::string>& items) {
    w.clear();
    for (const std::string& item : items) w.addItem(ToQt(item));
  });
  Join(list.ListIndex, widget, [](QComboBox& w, int index) { w.setCurrentIndex(index); });
  QObject::connect(widget, &QComboBox::activated, widget, [&list](int index) {
    // The line already chosen is clicked again.
    if (list.ListIndex == index && list.Click) list.Click();
    list.ListIndex = index;
  });
  return widget;
}

QGroupBox* Group(Label& label, QWidget* parent, std::string_view mnemonics) {
  auto* const widget = Named(label, new QGroupBox(parent));
  Join(label.Caption, widget, [mnemonics](QGroupBox& w, const std::string& caption) {
    w.setTitle(WithMnemonic(caption, mnemonics));
  });
  return widget;
}

QAction* Item(MenuItem& item, QWidget* parent, std::string_view mnemonics) {
  auto* const action = Captioned(item, Named(item, new QAction(parent)), mnemonics);
  Join(item.Checked, action, [](QAction& a, bool checked) { a.setChecked(checked); });
  QObject::connect(action, &QAction::triggered, action, [&item, action] {
    // Qt has toggled the check mark already; whether it stays is the command's business.
    const QPointer<QAction> still(action);
    Press(item);
    if (still) action->setChecked(item.Checked);
  });
  return action;
}

QAction* Tool(ToolButton& tool, QWidget* parent) {
  auto* const action = Named(tool, new QAction(parent));
  QObject::connect(action, &QAction::triggered, action, [&tool] { Press(tool); });
  return action;
}

FocusControl* ControlOf(const QWidget* widget) {
  if (widget == nullptr) return nullptr;
  return static_cast<FocusControl*>(widget->property(ControlProperty).value<void*>());
}

}  // namespace Bind
