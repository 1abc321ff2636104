// The windows of rating table and graph and their settings, worked by mouse and keys.
#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QStatusBar>

#include "desktop/ChartPlot.h"
#include "desktop/ChartWidget.h"
#include "desktop/Desk.h"
#include "desktop/EmptyNote.h"
#include "desktop/GridTable.h"
#include "rating/frmGraph.h"
#include "rating/frmGraphSettings.h"
#include "rating/frmTable.h"
#include "rating/frmTableSettings.h"

namespace {

class Rating : public Desk {
 protected:
  Rating() {
    EnterTrapezoid();
    hands_.Focus(main_.tbProjName);
  }

  template <class Dialog, class Window>
  void Open(Control& opens, const std::function<void(Dialog&)>& inDialog,
            const std::function<void(Window&)>& inWindow) {
    bool shown = false;
    InModal(opens, [&](Form& dialog) {
      hands_.Window(dialog);
      inDialog(dynamic_cast<Dialog&>(dialog));
      inModal_ = [&](Form& window) {
        shown = true;
        hands_.Window(window);
        inWindow(dynamic_cast<Window&>(window));
      };
      Key(Qt::Key_Return);
    });
    EXPECT_TRUE(shown);
  }
  void OpenTable(
      const std::function<void(frmTable&)>& act,
      const std::function<void(frmTableSettings&)>& settings = [](frmTableSettings&) {}) {
    Open<frmTableSettings, frmTable>(main_.mnuSolveTable, settings, act);
  }
  void OpenGraph(
      const std::function<void(frmGraph&)>& act,
      const std::function<void(frmGraphSettings&)>& settings = [](frmGraphSettings&) {}) {
    Open<frmGraphSettings, frmGraph>(main_.mnuSolveGraph, settings, act);
  }

  void DragOver(GridTable& table, QPoint from, QPoint to) {
    const auto place = [&](QPoint cell) {
      return table.visualRect(table.model()->index(cell.y(), cell.x())).center();
    };
    QWidget* const view = table.viewport();
    QTest::mousePress(view, Qt::LeftButton, {}, place(from));
    QMouseEvent move(QEvent::MouseMove, place(to), view->mapToGlobal(place(to)), Qt::NoButton, Qt::LeftButton,
                     {});
    QApplication::sendEvent(view, &move);
    QTest::mouseRelease(view, Qt::LeftButton, {}, place(to));
  }
};

TEST_F(Rating, TheTableShowsItsGridUnderFixedHeaders) {
  OpenTable([this](frmTable& form) {
    const FlexGrid& grid = form.MSFlexGrid1;
    auto& table = hands_.Of<GridTable>(grid);
    ASSERT_EQ(table.model()->rowCount(), 20);
    ASSERT_EQ(table.model()->columnCount(), 14);
    for (int column = 1; column <= 14; ++column) {
      EXPECT_EQ(table.model()->headerData(column - 1, Qt::Horizontal).toString().toStdString(),
                grid.Text(0, column));
      const QModelIndex cell = table.model()->index(19, column - 1);
      EXPECT_EQ(cell.data().toString().toStdString(), grid.Text(20, column));
      EXPECT_TRUE(cell.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
      EXPECT_GE(table.columnWidth(column - 1),
                table.horizontalHeader()->sectionSizeHint(column - 1) - table.fontMetrics().height());
    }
    EXPECT_TRUE(hands_.Window(form).findChild<QStatusBar*>()->findChild<QLabel*>()->text().startsWith(u"20"));
  });
}

TEST_F(Rating, MouseAndKeysSelectABlockToCopy) {
  OpenTable([this](frmTable& form) {
    FlexGrid& grid = form.MSFlexGrid1;
    auto& table = hands_.Of<GridTable>(grid);
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{1, 1, 1, 1}));
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{1, 1, 2, 2}));
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services_.clipboard.Text(), grid.Text(0, 1) + "\t" + grid.Text(0, 2) + "\r" + grid.Text(1, 1) +
                                              "\t" + grid.Text(1, 2) + "\r" + grid.Text(2, 1) + "\t" +
                                              grid.Text(2, 2));
    DragOver(table, {1, 1}, {2, 3});
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{2, 2, 4, 3}));
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{2, 2, 5, 3}));
    DragOver(table, {3, 4}, {1, 2});
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{5, 4, 3, 2}));
    grid.SelectCell(7, 6);
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{7, 6, 6, 6}));
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{1, 1, 20, 14}));
    EXPECT_EQ(table.contextMenuPolicy(), Qt::ActionsContextMenu);
    table.actions().first()->trigger();
    EXPECT_EQ(std::ranges::count(services_.clipboard.Text(), '\r'), 20);
  });
}

TEST_F(Rating, ATableLoadedAgainStartsAtItsFirstCell) {
  OpenTable([this](frmTable& form) {
    Key(Qt::Key_A, Qt::ControlModifier);
    inModal_ = [this](Form& settings) {
      hands_.Window(settings);
      hands_.Type(dynamic_cast<frmTableSettings&>(settings).tbIncrement, "100");
      Key(Qt::Key_Return);
    };
    hands_.Click(form.mnuEditSettings);
    const auto& table = hands_.Of<GridTable>(form.MSFlexGrid1);
    EXPECT_EQ(table.model()->rowCount(), 4);
    EXPECT_EQ(form.MSFlexGrid1.Selection.Get(), (GridBlock{1, 1, 1, 1}));
    EXPECT_EQ(table.selectionModel()->selectedIndexes(), QModelIndexList{table.model()->index(0, 0)});
  });
}

TEST_F(Rating, AnEmptyTableAndAnEmptyGraphSayWhy) {
  const auto below = [this](RangeSettings& form) {
    hands_.Type(form.tbMin, "-2");
    hands_.Type(form.tbMax, "-1");
  };
  OpenTable(
      [this](frmTable& form) {
        const auto& table = hands_.Of<GridTable>(form.MSFlexGrid1);
        EXPECT_TRUE(table.findChild<EmptyNote*>()->isVisible());
        EXPECT_TRUE(table.findChild<EmptyNote*>()->text().contains(u"Flows must be greater than 0"));
        Key(Qt::Key_A, Qt::ControlModifier);
        Key(Qt::Key_Down, Qt::ShiftModifier);
      },
      below);
  OpenGraph(
      [this](frmGraph& form) {
        const auto& chart = hands_.Of<ChartWidget>(form.MSChart1);
        EXPECT_TRUE(chart.findChild<EmptyNote*>()->isVisible());
        EXPECT_TRUE(chart.accessibleDescription().contains(u"Flows must be greater than 0"));
      },
      below);
}

TEST_F(Rating, TheGraphDrawsThePointsOfItsChart) {
  OpenGraph([this](frmGraph& form) {
    const auto& chart = hands_.Of<ChartWidget>(form.MSChart1);
    const auto& rows = form.MSChart1.Rows();
    const QList<QPointF>& points = chart.Plot().Points();
    ASSERT_EQ(points.size(), static_cast<qsizetype>(rows.size()));
    ASSERT_GE(points.size(), 199);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      EXPECT_EQ(points[static_cast<qsizetype>(i)], QPointF(*rows[i][0], *rows[i][1]));
    }
    EXPECT_EQ(chart.Plot().xAxis->label(), QStringLiteral("Flow, cfs"));
    EXPECT_FALSE(hands_.Of<QLabel>(form.lblMarked).isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &chart);
    Key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(chart.Plot().IsLogarithmic());
    EXPECT_EQ(chart.Plot().Points(), points);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form.IsLoaded());
  });
}

TEST_F(Rating, TheFallingEndOfAPipeIsMarked) {
  hands_.Click(main_.mnuOptionsCircular);
  hands_.Click(main_.mnuSolveForFlow);
  for (const auto& [box, text] :
       {std::pair{&main_.tbDiameter, "36"}, {&main_.tbDepth, "3"}, {&main_.tbSlope, "0.004"}}) {
    hands_.Focus(*box);
    hands_.Type(*box, text);
  }
  OpenGraph([this](frmGraph& form) {
    EXPECT_TRUE(hands_.Of<QLabel>(form.lblMarked).isVisible());
    EXPECT_TRUE(hands_.Of<ChartWidget>(form.MSChart1).accessibleDescription().contains(u"the flow falls"));
  });
}

TEST_F(Rating, WhatCannotBeUsedKeepsOkOffAndSaysWhy) {
  const auto reasons = [this](const Form& form) {
    QStringList texts;
    for (const QLabel* const label : hands_.Window(form).findChildren<QLabel*>()) texts << label->text();
    return texts;
  };
  OpenTable([](frmTable&) {},
            [&](frmTableSettings& form) {
              auto& ok = hands_.Of<QAbstractButton>(form.cmdOK);
              EXPECT_TRUE(ok.isEnabled());
              hands_.Focus(form.tbIncrement);
              hands_.Type(form.tbIncrement, "0.0001");
              EXPECT_FALSE(ok.isEnabled());
              EXPECT_TRUE(reasons(form).contains(
                  QStringLiteral("Step must be greater: the range has more than 10000 steps")));
              EXPECT_NE(Edit(form.tbIncrement).palette().color(QPalette::Base),
                        Edit(form.tbMin).palette().color(QPalette::Base));
              EXPECT_FALSE(Edit(form.tbIncrement).toolTip().isEmpty());
              Key(Qt::Key_Return);
              EXPECT_TRUE(form.IsLoaded());
              hands_.Type(form.tbIncrement, "50");
              EXPECT_TRUE(ok.isEnabled());
              EXPECT_EQ(Edit(form.tbIncrement).accessibleDescription(), QStringLiteral("cfs"));
            });
}

TEST_F(Rating, ChoosingAnotherInputProposesItsRange) {
  InModal(main_.mnuSolveGraph, [this](Form& each) {
    auto& form = dynamic_cast<frmGraphSettings&>(each);
    hands_.Focus(form.cbxVary);
    Key(Qt::Key_Down);
    EXPECT_EQ(RatingRange.VaryCode, 3);
    EXPECT_EQ(Edit(form.tbMax).text(), QStringLiteral("0.20"));
    EXPECT_EQ(hands_.Of<QLabel>(form.lblunits[1]).text(), QStringLiteral("ft/ft"));
    hands_.Type(form.tbMax, "0.5");
    hands_.Pick(form.cbxVary, 1);
    EXPECT_EQ(Edit(form.tbMax).text(), QStringLiteral("0.20")) << "the line already chosen is clicked again";
    hands_.Pick(form.cbxY, 3);
    EXPECT_EQ(RatingRange.GraphYColumn, 8);
  });
}

TEST_F(Rating, OnlyCancelCancels) {
  RatingRange.RatingCancelled = false;
  InModal(main_.mnuSolveTable, [this](Form& form) {
    hands_.Window(form);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form.IsLoaded());
  });
  EXPECT_TRUE(RatingRange.RatingCancelled);
  InModal(main_.mnuSolveTable, [this](Form& form) { hands_.Close(form); });
  EXPECT_TRUE(RatingRange.RatingCancelled) << "the title bar leaves it as it is";
}

}  // namespace
