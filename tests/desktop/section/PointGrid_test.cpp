// The point editor as a small spreadsheet: real keys, real mouse, the clipboard of other programs.

#include "desktop/section/PointGrid.h"
#include "desktop/Desk.h"
#include "desktop/chart/ChartPlot.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/Appearance.h"
#include "section/frmIrreg.h"

namespace {

class PointEditor : public Desk {
 protected:
  /// Runs `act` in the open editor; the section has these points.
  void Edit(const char* points, const std::function<void()>& act) {
    TakePoints(points);
    if (*points == '\0') ChannelState.IrregPointCount = 0;
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
  void PressHead(const QHeaderView& heads, QPoint place) {
    QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, place);
  }

  frmIrreg* form_ = nullptr;
  PointGrid* view_ = nullptr;
};

TEST_F(PointEditor, F2EditsTypingReplacesAndEscapeDropsTheEditBeforeItClosesTheWindow) {
  Edit("5 8 0.03", [this] {
    EXPECT_TRUE(GridHasTheKeyboard());
    Press("F2 7 Return");
    EXPECT_EQ(Cell(1, 1), "57");
    EXPECT_TRUE(GridHasTheKeyboard());
    Press("1 2 Enter 6 0 Return");
    EXPECT_EQ(Cell(1, 1) + " " + Cell(2, 1) + " " + Cell(3, 1), "57 12 60");
    Press("Ctrl+K");  // no text
    EXPECT_TRUE(Box().isHidden());
    Press("9 Esc 9 Shift+Esc");
    EXPECT_EQ(Cell(4, 1), "");
    EXPECT_TRUE(GridHasTheKeyboard());
    EXPECT_EQ(main_.UnsavedProject()->Points.size(), 3U);
    EXPECT_TRUE(services_.messageBox.Boxes.empty());
    for (const char* const keys : {"Esc", "Shift+Esc"}) {
      Press(keys);  // asks, and is not answered by Yes
      EXPECT_TRUE(GridHasTheKeyboard());
      EXPECT_TRUE(form_->IsLoaded());
      ASSERT_EQ(std::exchange(services_.messageBox.Boxes, {}).size(), 1U) << keys;
    }
    services_.messageBox.Answers = {BoxAnswer::Yes};
    Press("Esc");
    EXPECT_FALSE(form_->IsLoaded());
  });
  EXPECT_EQ(ChannelState.IrregPoints[1][1].Text(), "5");
  EXPECT_FALSE(main_.UnsavedProject());
}

TEST_F(PointEditor, WrongTextsAreTintedAndThePreviewColoursCompletePointsByN) {
  Edit("0 8 0.08, 5 2 0.03, 9 8", [this] {
    const auto ground = [this](int row, int col) {
      return view_->viewport()->grab().toImage().pixelColor(Place(row, col).topLeft() + QPoint(2, 2));
    };
    const QColor tint = Appearance::OffendingGround(view_->palette());
    Select({2, 2, 2, 2});
    Press("x Return");
    EXPECT_EQ(ground(2, 2), tint);
    EXPECT_NE(ground(2, 1), tint);
    Press("Ctrl+Z Down Home Down");
    EXPECT_NE(ground(2, 2), tint);
    Press("1 2 Return");  // a station without an elevation
    ChartPlot& plot = hands_.Of<ChartWidget>(form_->MSChart1).Plot();
    EXPECT_EQ(plot.Points(), (QList<QPointF>{{0, 8}, {5, 2}, {9, 8}}));
    const int above = plot.axisRect()->top() - plot.fontMetrics().height() / 3;
    const QImage drawn = plot.toPixmap().toImage();
    const auto colourAt = [&](double x) {
      return drawn.pixelColor(qRound(plot.xAxis->coordToPixel(x)), above);
    };
    EXPECT_NE(colourAt(1), colourAt(8.5));
    for (const double x : {1.0, 8.5}) EXPECT_NE(colourAt(x), plot.palette().color(QPalette::Base)) << x;
  });
}

TEST_F(PointEditor, KeysOfAnOpenCellDoNotReachTheGrid) {
  Edit("0 8 0.03, 5 2, 9 8", [this] {
    Select({2, 2, 2, 2});
    Press("1 2");
    for (const char* const keys :
         {"Shift+Up", "Shift+Down", "Shift+PgDown", "Ctrl+Up", "Ctrl+Down", "Ctrl+Home", "Ctrl+End",
          "Ctrl+PgUp", "Ctrl+PgDown", "Meta+Down", "Alt+Down", "Meta+Return", "Ctrl+Shift+Return", "Meta+Esc",
          "F2", "Ctrl+Tab", "Ctrl+Shift+Home"}) {
      Press(keys);
      EXPECT_TRUE(Box().hasFocus()) << keys;
      EXPECT_EQ(Box().text(), QStringLiteral("12")) << keys;
      EXPECT_EQ(Block(), (GridBlock{2, 2, 2, 2})) << keys;
    }
    Press("Shift+Return");
    EXPECT_EQ(Cell(2, 2), "12");
    EXPECT_EQ(Block(), (GridBlock{1, 2, 1, 2}));
    Press("3 Ctrl+Return");
    EXPECT_EQ(Cell(1, 2), "3");
    EXPECT_EQ(Block(), (GridBlock{1, 2, 1, 2}));
    Press("F2 Ctrl+Z");  // brings no other cell's text
    EXPECT_EQ(Box().text(), QStringLiteral("3"));
  });
}

TEST_F(PointEditor, ASurveyLongerThanTheTableIsNotCutSilently) {
  Edit("0 8 0.03", [this] {
    std::string rows;
    for (int i = 0; i < 150; ++i) rows += std::to_string(i) + "\t7\r\n";
    services_.clipboard.SetText(rows);
    inModal_ = [](Form& form) { EXPECT_EQ(form.Name(), "frmImport"); };
    Press("Ctrl+V");
    EXPECT_FALSE(inModal_) << "no dialog opened";
    EXPECT_EQ(Cell(1, 1) + Cell(2, 1), "0");
  });
}

TEST_F(PointEditor, KeysMoveTheCellAndShiftMovesTheEndOfTheBlock) {
  Edit("0 8 0.03, 5 2, 9 8", [this] {
    struct Step {
      const char* Keys;
      GridBlock Then;
    };
    const Step steps[] = {
        {"Down", {2, 1, 2, 1}},
        {"Right", {2, 2, 2, 2}},
        {"End", {2, 3, 2, 3}},
        {"Right", {2, 3, 2, 3}},
        {"Home", {2, 1, 2, 1}},
        {"Left", {2, 1, 2, 1}},
        {"Ctrl+Down", {3, 1, 3, 1}},
        {"Ctrl+Down", {100, 1, 100, 1}},
        {"Down", {100, 1, 100, 1}},
        {"Ctrl+Home", {1, 1, 1, 1}},
        {"Up", {1, 1, 1, 1}},
        {"Ctrl+End", {3, 3, 3, 3}},
        {"Shift+Up", {3, 3, 2, 3}},
        {"Shift+Left", {3, 3, 2, 2}},
        {"Ctrl+Shift+Home", {3, 3, 1, 1}},
        {"Left", {3, 2, 3, 2}},
        {"Return", {4, 2, 4, 2}},
        {"Shift+Return", {3, 2, 3, 2}},
        {"Ctrl+A", {1, 1, 100, 3}},
        {"Ctrl+Home Tab", {1, 2, 1, 2}},
        {"7 Tab", {1, 3, 1, 3}},  // keeps what was typed
        {"Tab", {2, 1, 2, 1}},
        {"Shift+Backtab", {1, 3, 1, 3}},
        {"Tab Tab Tab Tab Tab Tab Tab", {4, 1, 4, 1}},
    };
    for (const Step& step : steps) {
      Press(step.Keys);
      EXPECT_EQ(Block(), step.Then) << step.Keys;
    }
    EXPECT_EQ(Cell(1, 2), "7");
    EXPECT_TRUE(GridHasTheKeyboard());
    Press("Tab");  // behind the last point, as with Ctrl anywhere
    EXPECT_EQ(Focused(), "cmdCopy");
    Select({1, 1, 1, 1});
    Press("Ctrl+Tab");
    EXPECT_EQ(Focused(), "cmdCopy");
    Select({1, 1, 1, 1});
    Press("PgDown");
    const int page = Block().Row - 1;
    EXPECT_GT(page, 3);
    EXPECT_LE(page, view_->viewport()->height() / view_->rowHeight(0));
    Press("PgUp");
    EXPECT_EQ(Block(), (GridBlock{1, 1, 1, 1}));
  });
}

TEST_F(PointEditor, WhatMovesStaysInSight) {
  Edit("", [this] {
    const auto seen = [this](int row) { return view_->viewport()->rect().contains(Place(row, 1)); };
    EXPECT_FALSE(view_->horizontalScrollBar()->isVisible());
    Press("Ctrl+Down");
    EXPECT_TRUE(seen(100));
    Press("Ctrl+Shift+Home");
    EXPECT_TRUE(seen(1));
    Select({1, 1, 1, 1});
    view_->verticalScrollBar()->setValue(view_->verticalScrollBar()->maximum());
    EXPECT_FALSE(seen(1));
    Press("4");  // typed out of sight
    EXPECT_TRUE(seen(1));
    EXPECT_TRUE(Box().isVisible());
  });
}

TEST_F(PointEditor, TheBoxLiesOverItsCell) {
  Edit("", [this] {
    const auto expectOver = [this](int row, int col) {
      const QRect cell = Place(row, col);
      const QRect box = Box().geometry();
      EXPECT_TRUE(cell.contains(box)) << row << " " << col;
      EXPECT_GE(box.width(), cell.width() - 8);
      EXPECT_GE(box.height(), Box().fontMetrics().height());
    };
    Select({5, 2, 5, 2});
    Press("F2");
    expectOver(5, 2);
    Press("PgDown F2");
    expectOver(15, 2);
    view_->verticalScrollBar()->setValue(view_->verticalScrollBar()->value() + 7);
    expectOver(15, 2);
    const LargerText text(2);
    QTest::qWait(1);
    expectOver(15, 2);
  });
}

TEST_F(PointEditor, TheMouseSelectsBlocksRowsAndColumnsAndKeepsTheEdit) {
  Edit("0 8 0.03, 5 2", [this] {
    QWidget* const cells = view_->viewport();
    Drag(*cells, Place(2, 1).center(), Place(4, 3).center());
    EXPECT_EQ(Block(), (GridBlock{2, 1, 4, 3}));
    QTest::mouseClick(cells, Qt::LeftButton, Qt::ShiftModifier, Place(1, 2).center());
    EXPECT_EQ(Block(), (GridBlock{2, 1, 1, 2}));
    PressHead(*view_->verticalHeader(), {4, Place(3, 1).center().y()});
    EXPECT_EQ(Block(), (GridBlock{3, 1, 3, 3}));
    Press("9");
    PressHead(*view_->horizontalHeader(), {Place(1, 3).center().x(), 4});
    EXPECT_EQ(Cell(3, 1), "9");
    EXPECT_EQ(Block(), (GridBlock{1, 3, 100, 3}));
    hands_.Window(*form_);  // shows that block
  });
}

TEST_F(PointEditor, DraggingBeyondTheEdgeGoesOn) {
  Edit("", [this] {
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

TEST_F(PointEditor, AMnemonicKeepsTheEditAndARefusalReturnsToTheTable) {
  Edit("0 8 0.03, 5 2", [this] {
    Press("Down 0 Alt+O");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !services_.messageBox.Boxes.empty(); }));
    EXPECT_EQ(Block(), (GridBlock{2, 1, 2, 1}));
    EXPECT_TRUE(GridHasTheKeyboard());
    Press("6 Alt+O");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form_->IsLoaded(); }));
  });
  EXPECT_EQ(ChannelState.IrregPoints[2][1].Text(), "6");
}

TEST_F(PointEditor, KeysCutCopyPasteDeleteAndUndo) {
  Edit("", [this] {
    services_.clipboard.SetText("0\t10\t0.03\r\n5\t8\t\r\n9\t10.5\t0.04\r\n");
    Press("Ctrl+V");
    EXPECT_EQ(Block(), (GridBlock{1, 1, 3, 3}));
    EXPECT_EQ(form_->MSChart1.Rows().size(), 3U);
    Press("Ctrl+C");
    EXPECT_EQ(services_.clipboard.Text(), "0\t10\t0.03\r5\t8\t\r9\t10.5\t0.04");
    Select({1, 1, 2, 1});
    Press("Ctrl+X");
    EXPECT_EQ(services_.clipboard.Text(), "0\r5");
    const auto firsts = [this] { return Cell(1, 1) + Cell(2, 1) + Cell(3, 1); };
    EXPECT_EQ(firsts(), "9");
    Select({2, 1, 3, 1});
    Press("Del");
    EXPECT_EQ(firsts(), "");
    Press("Ctrl+Z");
    EXPECT_EQ(firsts(), "9");
    Press("Ctrl+Z");
    EXPECT_EQ(firsts(), "059");
    Press("Ctrl+Shift+Z");
    EXPECT_EQ(firsts(), "9");
    Press("Ctrl+Y");
    EXPECT_EQ(firsts(), "");
    // Within the box the same keys undo what is typed there.
    Press("7 Ctrl+Z");
    EXPECT_TRUE(Box().isVisible());
    EXPECT_EQ(firsts(), "");
  });
}

}  // namespace
