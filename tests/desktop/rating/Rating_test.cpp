// The windows of rating table and graph and their settings, worked by mouse and keys.

#include "desktop/Desk.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/EmptyNote.h"
#include "desktop/kit/GridTable.h"
#include "rating/frmGraph.h"
#include "rating/frmTable.h"
#include "rating/frmTableSettings.h"

namespace {

class Rating : public Desk {
 protected:
  Rating() {
    EnterTrapezoid();
    hands_.Focus(main_.tbProjName);
  }

  /// Opens table or graph behind its settings.
  template <class Window>
  void Open(
      Control& opens, const std::function<void(Window&)>& inWindow,
      const std::function<void(RangeSettings&)>& inSettings = [](RangeSettings&) {}) {
    InModal(opens, [&](Form& settings) {
      hands_.Window(settings);
      inSettings(dynamic_cast<RangeSettings&>(settings));
      inModal_ = [&](Form& window) {
        hands_.Window(window);
        inWindow(dynamic_cast<Window&>(window));
      };
      Press("Return");
    });
  }
};

TEST_F(Rating, TheTableHasRoomForItsTextsAndCountsItsRows) {
  Open<frmTable>(main_.mnuSolveTable, [this](frmTable& form) {
    const auto& table = hands_.Of<GridTable>(form.MSFlexGrid1);
    for (int column = 0; column < 14; ++column) {
      EXPECT_TRUE(table.model()->index(19, column).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
      EXPECT_GE(table.columnWidth(column),
                table.horizontalHeader()->sectionSizeHint(column) - table.fontMetrics().height());
    }
    EXPECT_EQ(hands_.Window(form).findChild<QStatusBar*>()->findChild<QLabel*>()->text(),
              u"20 rows; row 20 is the problem as typed");
    const auto isBold = [&table](int row) {
      return table.model()->index(row, 3).data(Qt::FontRole).value<QFont>().bold();
    };
    EXPECT_TRUE(isBold(19));
    EXPECT_FALSE(isBold(18));
  });
}

TEST_F(Rating, MouseAndKeysSelectABlockToCopy) {
  Open<frmTable>(main_.mnuSolveTable, [this](frmTable& form) {
    FlexGrid& grid = form.MSFlexGrid1;
    const auto& table = hands_.Of<GridTable>(grid);
    const auto drag = [&table](QPoint from, QPoint to) {
      const auto place = [&table](QPoint cell) {
        return table.visualRect(table.model()->index(cell.y(), cell.x())).center();
      };
      Drag(*table.viewport(), place(from), place(to));
    };
    Press("Shift+Down Shift+Right");
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{1, 1, 2, 2}));
    Press("Ctrl+C");
    EXPECT_THAT(services_.clipboard.Text(), testing::StartsWith("Flow, cfs\tDepth, ft\r"));
    drag({1, 1}, {2, 3});
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{2, 2, 4, 3}));
    Press("Shift+Down");
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{2, 2, 5, 3}));
    drag({3, 4}, {1, 2});
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{5, 4, 3, 2}));
    grid.SelectCell(7, 6);
    Press("Shift+Up");
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{7, 6, 6, 6}));
    Press("Ctrl+Home Ctrl+A");
    EXPECT_EQ(grid.Selection.Get(), (GridBlock{1, 1, 20, 14}));
    EXPECT_EQ(table.contextMenuPolicy(), Qt::ActionsContextMenu);
    table.actions().first()->trigger();
    EXPECT_EQ(std::ranges::count(services_.clipboard.Text(), '\r'), 20);
  });
}

TEST_F(Rating, TableAndGraphReportMissingPoints) {
  const auto range = [this](const char* first, const char* last) {
    return [this, first, last](RangeSettings& form) {
      hands_.Type(form.tbMin, first);
      hands_.Type(form.tbMax, last);
    };
  };
  const auto expectNote = [this](const QWidget& view) {
    EXPECT_TRUE(view.findChild<EmptyNote*>()->isVisible());
    EXPECT_TRUE(view.accessibleDescription().contains(u"Flow must be greater than 0"));
    Press("Ctrl+A Shift+Down");
  };
  Open<frmTable>(
      main_.mnuSolveTable, [&](frmTable& form) { expectNote(hands_.Of<QWidget>(form.MSFlexGrid1)); },
      range("-2", "-1"));
  Open<frmGraph>(
      main_.mnuSolveGraph,
      [&](frmGraph& form) {
        expectNote(hands_.Of<QWidget>(form.MSChart1));
        EXPECT_FALSE(hands_.Of<QWidget>(form.lblMissing).isVisible());
        // Another range while the window is open: the note goes, the points below the chart are counted.
        inModal_ = [&](Form& settings) {
          range("-200", "200")(dynamic_cast<RangeSettings&>(settings));
          Press("Return");
        };
        hands_.Click(form.mnuEditSettings);
        EXPECT_FALSE(hands_.Of<QWidget>(form.MSChart1).findChild<EmptyNote*>()->isVisible());
        const auto& missing = hands_.Of<QLabel>(form.lblMissing);
        EXPECT_TRUE(missing.isVisible());
        EXPECT_EQ(missing.text(), u"101 of 201 points: Flow must be greater than 0");
      },
      range("-2", "-1"));
}

TEST_F(Rating, AMistakeIsExplainedAndEnterDoesNotTakeIt) {
  RatingRange.RatingCancelled = false;
  InModal(main_.mnuSolveTable, [this](Form& settings) {
    auto& form = dynamic_cast<frmTableSettings&>(settings);
    const auto canUndo = [&] {
      return Edit(form.tbMin).isUndoAvailable() || Edit(form.tbIncrement).isUndoAvailable();
    };
    EXPECT_FALSE(canUndo());
    hands_.Focus(form.tbIncrement);
    hands_.Type(form.tbIncrement, "0.0001");
    const QString reason = QStringLiteral("Step must be greater: the range has more than 10000 steps");
    const auto labels = hands_.Window(form).findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(labels, [&](QLabel* label) { return label->text() == reason; }));
    EXPECT_EQ(Edit(form.tbIncrement).accessibleDescription(), QStringLiteral("cfs, ") + reason);
    Press("Return");
    EXPECT_TRUE(form.IsLoaded());
    hands_.Type(form.tbIncrement, "50");
    EXPECT_EQ(Edit(form.tbIncrement).accessibleDescription(), QStringLiteral("cfs"));
    EXPECT_TRUE(canUndo());
    hands_.Pick(form.cbxVary, 1);
    EXPECT_FALSE(canUndo()) << "to the numbers of another input";
    form.tbMax.Paste(std::string(TextBox::LongestText + 1, '9'));
    EXPECT_EQ(form.tbMax.ToolTip.Get(), "The text on the clipboard is too long for a box");
    Press("Esc");
    EXPECT_FALSE(form.IsLoaded());
  });
  EXPECT_TRUE(RatingRange.RatingCancelled);
}

}  // namespace
