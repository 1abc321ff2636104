// The point editor as a small spreadsheet: real keys, real mouse, the clipboard of other programs.
#include <QHeaderView>
#include <QScrollBar>

#include "desktop/Desk.h"
#include "desktop/PointGrid.h"
#include "engine/ChannelState.h"
#include "section/frmIrreg.h"

namespace {

class PointEditor : public Desk {
 protected:
  /// Runs `act` in the open editor; the section has these points.
  void Edit(const std::vector<std::array<const char*, 3>>& points, const std::function<void()>& act) {
    hands_.Click(main_.mnuOptionsIrreg);
    for (std::size_t i = 0; i < points.size(); ++i) {
      for (std::size_t column = 0; column < 3; ++column)
        ChannelState.IrregPoints[i + 1][column + 1] = points[i][column];
    }
    InModal(main_.cmdIrreg, [&](Form& form) {
      form_ = &dynamic_cast<frmIrreg&>(form);
      view_ = &hands_.Of<PointGrid>(form_->MSFlexGrid1);
      act();
    });
  }

  std::string Cell(int row, int col) const { return form_->MSFlexGrid1.Text(row, col); }
  GridBlock Block() const { return form_->MSFlexGrid1.Selection; }
  void Select(GridBlock block) { hands_.SelectBlock(form_->MSFlexGrid1, block); }
  QLineEdit& Box() { return hands_.Of<QLineEdit>(form_->tbSel); }
  bool GridHasTheKeyboard() const { return QApplication::focusWidget() == view_; }
  QRect Place(int row, int col) const { return view_->visualRect(view_->model()->index(row - 1, col - 1)); }
  void Copied(const char* text) { services_.clipboard.SetText(text); }

  frmIrreg* form_ = nullptr;
  PointGrid* view_ = nullptr;
};

TEST_F(PointEditor, TypingReplacesAndF2Edits) {
  Edit({{"5", "8", "0.03"}}, [this] {
    EXPECT_TRUE(GridHasTheKeyboard());
    EXPECT_EQ(Block(), (GridBlock{1, 1, 1, 1}));
    Keys("1");
    Keys("2.5");
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 1), "12.5");
    EXPECT_EQ(Block(), (GridBlock{1, 1, 1, 1}));
    EXPECT_TRUE(GridHasTheKeyboard());
    EXPECT_TRUE(Box().isHidden());
    Key(Qt::Key_F2);
    EXPECT_EQ(Box().cursorPosition(), 4);
    Keys("7");
    Key(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Cell(1, 1), "12.57");
    // Nothing typed with Ctrl or Alt is a text.
    Key(Qt::Key_K, Qt::ControlModifier);
    EXPECT_TRUE(Box().isHidden());
    EXPECT_TRUE(form_->IsLoaded());
  });
}

TEST_F(PointEditor, EscapeDropsTheEditAndThenClosesTheWindow) {
  Edit({{"5", "8", "0.03"}}, [this] {
    Keys("9");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Cell(1, 1), "5");
    ASSERT_TRUE(form_->IsLoaded());
    EXPECT_TRUE(GridHasTheKeyboard());
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form_->IsLoaded());
  });
  EXPECT_EQ(ChannelState.IrregPointCount, 0);
}

TEST_F(PointEditor, KeysMoveTheCellAndShiftMovesTheEndOfTheBlock) {
  Edit({{"0", "8", "0.03"}, {"5", "2", ""}, {"9", "8", ""}}, [this] {
    struct Step {
      Qt::Key Pressed;
      Qt::KeyboardModifiers With;
      GridBlock Then;
    };
    const Step steps[] = {
        {Qt::Key_Down, {}, {2, 1, 2, 1}},
        {Qt::Key_Right, {}, {2, 2, 2, 2}},
        {Qt::Key_End, {}, {2, 3, 2, 3}},
        {Qt::Key_Right, {}, {2, 3, 2, 3}},
        {Qt::Key_Home, {}, {2, 1, 2, 1}},
        {Qt::Key_Left, {}, {2, 1, 2, 1}},
        {Qt::Key_Down, Qt::ControlModifier, {3, 1, 3, 1}},
        {Qt::Key_Down, Qt::ControlModifier, {100, 1, 100, 1}},
        {Qt::Key_Down, {}, {100, 1, 100, 1}},
        {Qt::Key_Home, Qt::ControlModifier, {1, 1, 1, 1}},
        {Qt::Key_Up, {}, {1, 1, 1, 1}},
        {Qt::Key_End, Qt::ControlModifier, {3, 3, 3, 3}},
        {Qt::Key_Up, Qt::ShiftModifier, {3, 3, 2, 3}},
        {Qt::Key_Left, Qt::ShiftModifier, {3, 3, 2, 2}},
        {Qt::Key_Home, Qt::ShiftModifier | Qt::ControlModifier, {3, 3, 1, 1}},
        {Qt::Key_Left, {}, {3, 2, 3, 2}},
        {Qt::Key_Return, {}, {4, 2, 4, 2}},
        {Qt::Key_Return, Qt::ShiftModifier, {3, 2, 3, 2}},
        {Qt::Key_A, Qt::ControlModifier, {1, 1, 100, 3}},
    };
    for (const Step& step : steps) {
      Key(step.Pressed, step.With);
      EXPECT_EQ(Block(), step.Then) << step.Pressed;
    }
    Key(Qt::Key_Home, Qt::ControlModifier);
    Key(Qt::Key_PageDown);
    const int page = Block().Row - 1;
    EXPECT_GT(page, 3);
    EXPECT_LE(page, view_->viewport()->height() / view_->rowHeight(0));
    Key(Qt::Key_PageUp);
    EXPECT_EQ(Block(), (GridBlock{1, 1, 1, 1}));
  });
}

TEST_F(PointEditor, WhatMovesStaysInSight) {
  Edit({}, [this] {
    const auto seen = [this](int row) { return view_->viewport()->rect().contains(Place(row, 1)); };
    Key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_TRUE(seen(100));
    Key(Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(seen(1));
    view_->verticalScrollBar()->setValue(0);
    Select({1, 1, 1, 1});
    view_->verticalScrollBar()->setValue(view_->verticalScrollBar()->maximum());
    EXPECT_FALSE(seen(1));
    Keys("4");  // typed out of sight
    EXPECT_TRUE(seen(1));
    EXPECT_TRUE(Box().isVisible());
  });
}

TEST_F(PointEditor, TheBoxLiesOverItsCell) {
  Edit({}, [this] {
    const auto expectOver = [this](int row, int col) {
      const QRect cell = Place(row, col);
      const QRect box = Box().geometry();
      EXPECT_TRUE(cell.contains(box)) << row << " " << col;
      EXPECT_GE(box.width(), cell.width() - 8);
      EXPECT_GE(box.height(), Box().fontMetrics().height());
    };
    Select({5, 2, 5, 2});
    Key(Qt::Key_F2);
    expectOver(5, 2);
    Key(Qt::Key_PageDown);
    Key(Qt::Key_F2);
    expectOver(15, 2);
    view_->verticalScrollBar()->setValue(view_->verticalScrollBar()->value() + 7);
    expectOver(15, 2);
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 2);
    QApplication::setFont(large);
    QTest::qWait(1);
    expectOver(15, 2);
    QApplication::setFont(usual);
  });
}

TEST_F(PointEditor, TabGoesThroughThePointsAndOutBehindTheLast) {
  Edit({{"0", "8", "0.03"}, {"5", "2", ""}}, [this] {
    Key(Qt::Key_Tab);
    EXPECT_EQ(Block(), (GridBlock{1, 2, 1, 2}));
    Keys("7");
    Key(Qt::Key_Tab);  // keeps what was typed
    EXPECT_EQ(Cell(1, 2), "7");
    EXPECT_EQ(Block(), (GridBlock{1, 3, 1, 3}));
    EXPECT_TRUE(GridHasTheKeyboard());
    Key(Qt::Key_Tab);
    EXPECT_EQ(Block(), (GridBlock{2, 1, 2, 1}));
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Block(), (GridBlock{1, 3, 1, 3}));
    for (int i = 0; i < 4; ++i) Key(Qt::Key_Tab);
    EXPECT_EQ(Block(), (GridBlock{3, 1, 3, 1}));
    EXPECT_TRUE(GridHasTheKeyboard());
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("cmdCopy"));
    hands_.Focus(form_->MSFlexGrid1);
    Select({1, 1, 1, 1});
    Key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("cmdCopy"));
    EXPECT_EQ(Block(), (GridBlock{1, 1, 1, 1}));
  });
}

TEST_F(PointEditor, TheMouseSelectsBlocksRowsAndColumns) {
  Edit({{"0", "8", "0.03"}, {"5", "2", ""}}, [this] {
    QWidget* const cells = view_->viewport();
    QTest::mousePress(cells, Qt::LeftButton, {}, Place(2, 1).center());
    QTest::mouseMove(cells, Place(4, 3).center());
    QTest::mouseRelease(cells, Qt::LeftButton, {}, Place(4, 3).center());
    EXPECT_EQ(Block(), (GridBlock{2, 1, 4, 3}));
    QTest::mouseClick(cells, Qt::LeftButton, Qt::ShiftModifier, Place(1, 2).center());
    EXPECT_EQ(Block(), (GridBlock{2, 1, 1, 2}));
    QTest::mouseClick(view_->verticalHeader()->viewport(), Qt::LeftButton, {}, {4, Place(3, 1).center().y()});
    EXPECT_EQ(Block(), (GridBlock{3, 1, 3, 3}));
    QTest::mouseClick(view_->horizontalHeader()->viewport(), Qt::LeftButton, {},
                      {Place(1, 3).center().x(), 4});
    EXPECT_EQ(Block(), (GridBlock{1, 3, 100, 3}));
    EXPECT_TRUE(view_->selectionModel()->isColumnSelected(2));
    EXPECT_EQ(view_->selectionModel()->selectedIndexes().size(), 100);
  });
}

TEST_F(PointEditor, DraggingBeyondTheEdgeGoesOn) {
  Edit({}, [this] {
    QWidget* const cells = view_->viewport();
    const QPoint below(Place(1, 2).center().x(), cells->height() + 20);
    QTest::mousePress(cells, Qt::LeftButton, {}, Place(1, 1).center());
    QTest::mouseMove(cells, below);
    const int first = Block().RowSel;
    EXPECT_TRUE(QTest::qWaitFor([&] { return Block().RowSel > first + 3; }));
    EXPECT_EQ(Block().Row, 1);
    QTest::mouseRelease(cells, Qt::LeftButton, {}, below);
    const GridBlock then = Block();
    QTest::qWait(150);
    EXPECT_EQ(Block(), then);
  });
}

TEST_F(PointEditor, APressOnTheGridKeepsTheEdit) {
  Edit({{"5", "8", "0.03"}}, [this] {
    hands_.DoubleClick(form_->MSFlexGrid1);
    ASSERT_TRUE(Box().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    Keys("1");
    QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Place(3, 2).center());
    EXPECT_EQ(Cell(1, 1), "51");
    EXPECT_EQ(Block(), (GridBlock{3, 2, 3, 2}));
    Keys("9");
    QTest::mouseClick(view_->verticalHeader()->viewport(), Qt::LeftButton, {}, {4, Place(1, 1).center().y()});
    EXPECT_EQ(Cell(3, 2), "9");
    EXPECT_EQ(Block(), (GridBlock{1, 1, 1, 3}));
  });
}

TEST_F(PointEditor, AButtonPressedByItsLetterKeepsTheEdit) {
  Edit({{"0", "8", "0.03"}, {"5", "2", ""}}, [this] {
    Select({2, 2, 2, 2});
    Keys("3");
    Key(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form_->IsLoaded(); }));
  });
  EXPECT_EQ(ChannelState.IrregPointCount, 2);
  EXPECT_EQ(ChannelState.IrregPoints[2][2].Text(), "3");
}

TEST_F(PointEditor, PastesFromASpreadsheetAndCopiesBack) {
  Edit({}, [this] {
    Copied("0\t10\t0.03\r\n5\t8\t\r\n9\t10.5\t0.04\r\n");
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Block(), (GridBlock{1, 1, 3, 3}));
    EXPECT_EQ(Cell(2, 2), "8");
    EXPECT_EQ(Cell(3, 3), "0.04");
    EXPECT_EQ(form_->MSChart1.Rows().size(), 3U);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services_.clipboard.Text(), "0\t10\t0.03\r5\t8\t\r9\t10.5\t0.04");
    // A block takes no more than it holds.
    Copied("1\t2\r\n3\t4\r\n");
    Select({5, 1, 5, 2});
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Cell(5, 2), "2");
    EXPECT_EQ(Cell(6, 1), "");
    Select({1, 1, 2, 1});
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(services_.clipboard.Text(), "0\r5");
    EXPECT_EQ(Cell(1, 1) + Cell(2, 1), "");
    EXPECT_EQ(Cell(1, 2), "10");
    Select({1, 2, 3, 3});
    Key(Qt::Key_Delete);
    EXPECT_EQ(Cell(3, 3) + Cell(1, 2), "");
    EXPECT_EQ(Cell(3, 1), "9");
  });
}

TEST_F(PointEditor, ChangesAreUndoneAndRedone) {
  Edit({{"0", "8", "0.03"}, {"5", "2", ""}}, [this] {
    Keys("1");
    Key(Qt::Key_Return);
    Select({1, 1, 2, 2});
    Key(Qt::Key_Delete);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cell(1, 1) + Cell(2, 2), "12");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cell(1, 1), "0");
    Key(Qt::Key_Z, Qt::ControlModifier);  // nothing left
    EXPECT_EQ(Cell(1, 1), "0");
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Cell(1, 1), "1");
    Key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Cell(2, 2), "");
    // Within the box the same keys undo what is typed there.
    Select({3, 1, 3, 1});
    Keys("7");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(Box().isVisible());
    EXPECT_EQ(Cell(2, 2), "");
  });
}

TEST_F(PointEditor, ARefusedTableShowsTheCellThatFails) {
  Edit({{"0", "8", "0.03"}, {"5", "2", ""}, {"4", "8", ""}}, [this] {
    hands_.Click(form_->cmdOK);
    EXPECT_EQ(services_.messageBox.Boxes.back().Text, "Stations need to be in ascending order.");
    ASSERT_TRUE(form_->IsLoaded());
    EXPECT_EQ(Block(), (GridBlock{3, 1, 3, 1}));
    EXPECT_TRUE(GridHasTheKeyboard());
    Keys("6");
    Key(Qt::Key_Return);
    hands_.Click(form_->cmdOK);
    EXPECT_FALSE(form_->IsLoaded());
  });
  EXPECT_EQ(ChannelState.IrregPointCount, 3);
}

TEST_F(PointEditor, HeadsCarryNumbersAndUnits) {
  hands_.Click(main_.mnuOptionsUnitsMetric);
  Edit({}, [this] {
    const auto head = [this](int section, Qt::Orientation orientation) {
      return view_->model()->headerData(section, orientation, Qt::DisplayRole).toString().toStdString();
    };
    EXPECT_EQ(head(0, Qt::Horizontal), "Sta, m");
    EXPECT_EQ(head(1, Qt::Horizontal), "Elev, m");
    EXPECT_EQ(head(99, Qt::Vertical), "100");
    EXPECT_EQ(view_->model()->rowCount(), 100);
    EXPECT_FALSE(view_->horizontalScrollBar()->isVisible());
  });
}

}  // namespace
