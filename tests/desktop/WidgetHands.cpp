// See WidgetHands.h.
#include "desktop/WidgetHands.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <map>

#include "desktop/kit/Text.h"
#include "platform/Keys.h"

namespace {

void ExpectTable(const FlexGrid& grid, const QTableView& view) {
  const QAbstractItemModel& table = *view.model();
  const auto expect = [&grid](int row, int col, const QVariant& shown) {
    EXPECT_EQ(FromQt(shown.toString()), FromQt(Printed(grid.Text(row, col)))) << row << " " << col;
  };
  ASSERT_EQ(table.rowCount() + 1, std::max(grid.Rows(), 1));
  ASSERT_EQ(table.columnCount() + 1, std::max(grid.Cols(), 1));
  for (int col = 1; col < grid.Cols(); ++col) expect(0, col, table.headerData(col - 1, Qt::Horizontal));
  for (int row = 1; row < grid.Rows(); ++row) {
    expect(row, 0, table.headerData(row - 1, Qt::Vertical));
    for (int col = 1; col < grid.Cols(); ++col) expect(row, col, table.index(row - 1, col - 1).data());
  }
  if (grid.Rows() <= 1) return;
  const GridBlock& block = grid.Selection;
  const QItemSelection selected(table.index(block.Top() - 1, block.Left() - 1),
                                table.index(block.Bottom() - 1, block.Right() - 1));
  EXPECT_EQ(view.selectionModel()->selection(), selected);
}

/// Fails the test where the widget or action shows anything but what its control holds.
void ExpectShown(const Control& control, const QObject& view) {
  SCOPED_TRACE(control.Owner().Name() + "." + control.Name());
  const auto* const widget = qobject_cast<const QWidget*>(&view);
  // Qt disables an action that is hidden.
  EXPECT_EQ(view.property("enabled").toBool(), control.Enabled && (widget != nullptr || control.Visible));
  EXPECT_EQ(widget != nullptr ? widget->isVisibleTo(widget->window()) : view.property("visible").toBool(),
            control.Visible);
  if (const auto* const box = dynamic_cast<const TextBox*>(&control)) {
    EXPECT_EQ(view.property("text").toString().toStdString(), box->Text.Get());
    EXPECT_EQ(FromQt(view.property("toolTip").toString()), FromQt(Printed(box->ToolTip.Get())));
    EXPECT_EQ(view.property("readOnly").toBool(), box->Locked);
    // The widget of an empty box need not be bold yet.
    EXPECT_TRUE(widget->font().bold() == box->Bold || box->Text.Get().empty());
  }
  if (const auto* const label = dynamic_cast<const HasCaption*>(&control)) {
    QString text = view.property(view.inherits("QGroupBox") ? "title" : "text").toString();
    if (Qt::mightBeRichText(text)) text = QTextDocumentFragment::fromHtml(text).toPlainText();  // with links
    EXPECT_EQ(FromQt(text.remove(u'&')), FromQt(Printed(label->Caption.Get()).remove(u'&')));
  }
  if (const auto* const page = dynamic_cast<const TextPage*>(&control)) {
    // But for what the page writes raised, lowered or in cells.
    const auto bare = [](QString text) {
      return text.remove(QRegularExpression(QStringLiteral("[\\^().\\s]")));
    };
    EXPECT_EQ(FromQt(bare(view.property("plainText").toString())), FromQt(bare(ToQt(page->Text))));
  }
  const bool isChecked = view.property("checked").toBool();
  if (const auto* const item = dynamic_cast<const MenuItem*>(&control)) {
    EXPECT_EQ(isChecked, item->Checked);
  } else if (const auto* const option = dynamic_cast<const OptionButton*>(&control)) {
    EXPECT_EQ(isChecked, option->Value);
  } else if (const auto* const list = dynamic_cast<const ComboBox*>(&control)) {
    EXPECT_EQ(view.property("currentIndex").toInt(), list->ListIndex);
  } else if (const auto* const grid = dynamic_cast<const FlexGrid*>(&control)) {
    ExpectTable(*grid, *qobject_cast<const QTableView*>(&view));
  }
}

}  // namespace

void Press(const char* keys) {
  for (const QString& key : QString::fromLatin1(keys).split(u' ')) {
    const QKeyCombination pressed = QKeySequence(key)[0];
    QTest::keyClick(QApplication::focusWidget(), pressed.key(), pressed.keyboardModifiers());
  }
}

void Drag(QWidget& widget, QPoint from, QPoint to) {
  QTest::mousePress(&widget, Qt::LeftButton, {}, from);
  QTest::mouseMove(&widget, to);
  QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
}

QWidget& WidgetHands::Window(const Form& form) const {
  QWidget* const window = windows_.WindowOf(form);
  if (window == nullptr) qFatal("No window for %s", form.Name().c_str());
  if (QApplication::activeWindow() != window) {
    window->activateWindow();
    const bool active = QTest::qWaitFor([window] { return QApplication::activeWindow() == window; });
    if (!active) qFatal("%s does not become active", form.Name().c_str());
  }
  EXPECT_EQ(FromQt(window->windowTitle()), form.Caption.Get() + "[*]");
  for (const Control* const control : form.Controls()) {
    if (const auto* const view = window->findChild<QObject*>(ToQt(control->Name())))
      ExpectShown(*control, *view);
  }
  return *window;
}

void WidgetHands::Focus(FocusControl& control) {
  Of<QWidget>(control).setFocus(Qt::ShortcutFocusReason);
}

void WidgetHands::Type(TextBox& box, const std::string& text) {
  auto& edit = Of<QLineEdit>(box);
  edit.selectAll();
  if (text.empty()) {
    QTest::keyClick(&edit, Qt::Key_Delete);
    return;
  }
  QInputMethodEvent event;
  event.setCommitString(QString::fromStdString(text));
  QApplication::sendEvent(&edit, &event);
}

void WidgetHands::Select(TextBox& box, TextRange range) {
  auto& edit = Of<QLineEdit>(box);
  QTest::keyClick(&edit, Qt::Key_Home);
  for (int i = 0; i < range.Start; ++i) QTest::keyClick(&edit, Qt::Key_Right);
  for (int i = 0; i < range.Length; ++i) QTest::keyClick(&edit, Qt::Key_Right, Qt::ShiftModifier);
}

void WidgetHands::Click(Control& control) {
  QObject& target = Of<QObject>(control);
  if (auto* const widget = qobject_cast<QWidget*>(&target)) {
    QTest::mouseClick(widget, Qt::LeftButton);
    return;
  }
  auto* const action = qobject_cast<QAction*>(&target);
  for (QObject* const place : action->associatedObjects()) {
    if (auto* const menu = qobject_cast<QMenu*>(place)) {
      menu->popup({});
      menu->setActiveAction(action);
      QTest::keyClick(menu, Qt::Key_Return);
      return;  // another menu may have the command too
    } else if (auto* const bar = qobject_cast<QToolBar*>(place)) {
      QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
    }
  }
}

void WidgetHands::Pick(ListBox& list, int index) {
  if (auto* const combo = qobject_cast<QComboBox*>(&Of<QWidget>(list))) {
    combo->showPopup();
    QAbstractItemView* const lines = combo->view();
    const QRect line = lines->visualRect(lines->model()->index(index, 0));
    QTest::mouseMove(lines->viewport(), line.center());
    QTest::qWait(QApplication::doubleClickInterval() + 1);  // a popup just opened takes no click for so long
    QTest::mouseClick(lines->viewport(), Qt::LeftButton, {}, line.center());
    return;
  }
  auto& widget = Of<QListWidget>(list);
  QListWidgetItem* const item = widget.item(index);
  widget.scrollToItem(item);
  QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.visualItemRect(item).center());
}

void WidgetHands::DoubleClick(ListBox& list) {
  auto& widget = Of<QListWidget>(list);
  const QPoint place = widget.visualItemRect(widget.currentItem()).center();
  QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {}, place);
}

// A grid's heads are its view's headers: the view's cells begin with cell (1, 1).
void WidgetHands::PressCell(const FlexGrid& grid, int row, int col, Qt::KeyboardModifiers modifiers) const {
  auto& view = Of<QTableView>(grid);
  const QModelIndex cell = view.model()->index(row - 1, col - 1);
  view.scrollTo(cell);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.visualRect(cell).center());
}

void WidgetHands::DoubleClick(FlexGrid& grid) {
  const GridBlock block = grid.Selection;
  PressCell(grid, block.Row, block.Col, {});
  auto& view = Of<QTableView>(grid);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.currentIndex()).center());
}

void WidgetHands::SelectBlock(FlexGrid& grid, GridBlock block) {
  PressCell(grid, block.Row, block.Col, {});
  if (block.Row != block.RowSel || block.Col != block.ColSel) {
    PressCell(grid, block.RowSel, block.ColSel, Qt::ShiftModifier);
  }
}

void WidgetHands::Key(FocusControl& control, int keyCode, Keys::Modifier with) {
  static const std::map<int, Qt::Key> codes{
      {Keys::Enter, Qt::Key_Return},  {Keys::KeypadEnter, Qt::Key_Enter}, {Keys::Escape, Qt::Key_Escape},
      {Keys::PageUp, Qt::Key_PageUp}, {Keys::PageDown, Qt::Key_PageDown}, {Keys::Left, Qt::Key_Left},
      {Keys::Up, Qt::Key_Up},         {Keys::Right, Qt::Key_Right},       {Keys::Down, Qt::Key_Down},
      {Keys::Delete, Qt::Key_Delete}};
  static const std::map<Keys::Modifier, Qt::KeyboardModifier> modifiers{
      {Keys::Modifier::None, Qt::NoModifier},
      {Keys::Modifier::Shift, Qt::ShiftModifier},
      {Keys::Modifier::Ctrl, Qt::ControlModifier}};
  QTest::keyClick(&Of<QWidget>(control), codes.at(keyCode), modifiers.at(with));
}

void WidgetHands::Char(FocusControl& control, const std::string& character) {
  QTest::keyClicks(&Of<QWidget>(control), QString::fromStdString(character));
}

void WidgetHands::Close(Form& form) {
  Window(form).close();
}
