// The chart draws what its table holds, reads it off by mouse and keys, and gives it away as pictures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <memory>

#include "desktop/WidgetHands.h"
#include "desktop/chart/ChartPlot.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/EmptyNote.h"

namespace {

using testing::ElementsAre;

struct Owner : Form {
  Owner() : Form("Owner") {}
};

class Chart : public testing::Test {
 protected:
  void Show(std::vector<XYChart::Row> rows, int cols = 2) {
    chart_.XTitle = "Depth, ft";
    chart_.YTitle = "Flow, m^3/s";
    chart_.Load(std::move(rows), cols);
    widget_ = std::make_unique<ChartWidget>(chart_, nullptr);
    widget_->SetTexts(QStringLiteral("No depth fits."), QStringLiteral("It falls."));
    widget_->resize(800, 600);
    widget_->show();
    widget_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(widget_.get()));
    widget_->setFocus();
  }

  ChartPlot& Plot() { return widget_->Plot(); }
  QPoint PlaceOf(double x, double y) {
    return QPointF(Plot().xAxis->coordToPixel(x), Plot().yAxis->coordToPixel(y)).toPoint();
  }
  std::string Reading() { return widget_->Reading().toStdString(); }
  std::string ReadingAfter(const char* keys) {
    Press(keys);
    return Reading();
  }
  QString Note() { return widget_->findChild<EmptyNote*>()->text(); }

  Owner owner_;
  XYChart chart_{&owner_, "MSChart1"};
  std::unique_ptr<ChartWidget> widget_;
};

const XYChart::Row Gap{std::nullopt, std::nullopt};

/// What the curves of the plot hold: "x,y" or "-" for a break of the line.
std::string Drawn(const QCustomPlot& plot, int curve) {
  const auto* const drawn = dynamic_cast<QCPCurve*>(const_cast<QCustomPlot&>(plot).plottable(curve));
  std::string text;
  for (const QCPCurveData& point : *drawn->data()) {
    const QString pair =
        qIsNaN(point.value) ? QStringLiteral("- ") : QStringLiteral("%1,%2 ").arg(point.key).arg(point.value);
    text += pair.toStdString();
  }
  return text;
}

TEST_F(Chart, EveryPairOfColumnsIsALine) {
  Show({{1, 10, 5, 2}, {std::nullopt, std::nullopt, 4, 2}, {2, 30, std::nullopt, 7}, {1.5, 20, 3, 1}}, 4);
  EXPECT_EQ(Drawn(Plot(), 0), "1,10 - 2,30 1.5,20 ");
  EXPECT_EQ(Drawn(Plot(), 1), "1,10 ") << "a point alone is drawn as a dot";
  EXPECT_EQ(Drawn(Plot(), 2), "5,2 4,2 - 3,1 ");
  EXPECT_THAT(Plot().Points(), ElementsAre(QPointF(1, 10), QPointF(2, 30), QPointF(1.5, 20), QPointF(5, 2),
                                           QPointF(4, 2), QPointF(3, 1)));
  EXPECT_TRUE(Plot().xAxis->range().contains(5));
  EXPECT_EQ(Plot().yAxis->label(), QStringLiteral("Flow, m\u00B3/s"));
  chart_.Load({{3, 4}}, 2);
  EXPECT_THAT(Plot().Points(), ElementsAre(QPointF(3, 4)));
}

TEST_F(Chart, AScreenReaderReadsATableOfThePoints) {
  Show({{0.5, 2}, Gap, {1, 1234.5678}});
  QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(widget_.get());
  EXPECT_EQ(reader->role(), QAccessible::Chart);
  QAccessibleTableInterface* const table = reader->tableInterface();
  ASSERT_EQ(table->rowCount(), 3);
  ASSERT_EQ(table->columnCount(), 2);
  EXPECT_EQ(table->columnDescription(0), QStringLiteral("Depth, ft"));
  EXPECT_EQ(table->columnDescription(1), QStringLiteral("Flow, m\u00B3/s"));
  const auto text = [table](int row, int column) {
    return table->cellAt(row, column)->text(QAccessible::Name).toStdString();
  };
  EXPECT_EQ(text(0, 1), "2.000");
  EXPECT_EQ(text(1, 0), "") << "the line breaks here";
  EXPECT_EQ(text(2, 1), "1,235");
  EXPECT_EQ(table->cellAt(3, 0), nullptr);
  QAccessibleInterface* const last = reader->child(5);
  EXPECT_EQ(last, table->cellAt(2, 1));
  EXPECT_EQ(reader->indexOfChild(last), 5);
  EXPECT_EQ(last->parent(), reader);
  chart_.Load({{7, 8}}, 2);
  EXPECT_EQ(last->text(QAccessible::Name), QString());
  EXPECT_EQ(text(0, 0), "7.000");
}

TEST_F(Chart, MarkedRangesAreDrawnOnceMore) {
  chart_.Marked = {{1, 2}, {4, 5}};
  Show({{1, 1}, {2, 5}, {3, 4}, {4, 6}, {5, 8}, {6, 7}});
  EXPECT_EQ(Drawn(Plot(), 2), "2,5 3,4 - 5,8 6,7 - ");
  EXPECT_TRUE(widget_->accessibleDescription().endsWith(QStringLiteral("It falls.")));
}

TEST_F(Chart, NotesBesideTheRowsAreDrawnAndReadAloud) {
  chart_.Heading = {"Mill race", "b 3 m"};
  chart_.RowsName = "n = 0.013";
  chart_.Curves = {{"n = 0.011", {{1, 10}, {2, 60}}, {{0, 1}}, 1},
                   {"Critical Depth", {{1, 4}, Gap, {3, 9}}, {}, 0, true}};
  chart_.Present = {1.5, 70, "Depth 1.5 ft"};
  Show({{1, 5}, {2, 20}});
  EXPECT_TRUE(Plot().yAxis->range().contains(70));
  EXPECT_EQ(Drawn(Plot(), 2), "1,10 2,60 ");
  EXPECT_EQ(Drawn(Plot(), 6), "1,10 2,60 - ") << "marked";
  EXPECT_EQ(ReadingAfter("Right"), "n = 0.013\nDepth 1.000 ft\nFlow 5.000 m\u00B3/s");
  EXPECT_EQ(ReadingAfter("PgUp"), "Critical Depth\nDepth 3.000 ft\nFlow 9.000 m\u00B3/s");
  QAccessibleTableInterface* const table =
      QAccessible::queryAccessibleInterface(widget_.get())->tableInterface();
  ASSERT_EQ(table->rowCount() * 10 + table->columnCount(), 36);
  EXPECT_EQ(table->columnDescription(4), QStringLiteral("Critical Depth: Depth, ft"));
  EXPECT_EQ(table->cellAt(2, 5)->text(QAccessible::Name), QStringLiteral("9.000"));
  EXPECT_EQ(table->cellAt(2, 1)->text(QAccessible::Name), QString());
  const std::string drawing = chart_.PictureView("svg");
  for (const char* const text : {"Mill race", "b 3 m", "n = 0.013", "n = 0.011", "Critical Depth", "1.5 ft"})
    EXPECT_THAT(drawing, testing::HasSubstr(text));
  // Lines that end at one point, beside the one marked: their words keep clear of each other.
  chart_.Curves[0].Points[1] = {2, 20};
  chart_.Present = {2, 20, "Depth 2 ft"};
  chart_.Load({{1, 5}, {2, 20}}, 2);
  QList<QRectF> words;
  for (int i = 0; i < Plot().itemCount(); ++i) {
    const auto* const text = qobject_cast<QCPItemText*>(Plot().item(i));
    if (text == nullptr || !text->visible()) continue;
    const QRectF place(text->topLeft->pixelPosition(), text->bottomRight->pixelPosition());
    for (const QRectF& other : words) EXPECT_FALSE(place.intersects(other)) << text->text().toStdString();
    words << place;
  }
  EXPECT_EQ(words.size(), 4);
}

TEST_F(Chart, KeysReadOffOnePointAfterTheOther) {
  Show({{0.5, 2}, Gap, {1, 1234.5678}, {1.5, 3}});
  EXPECT_EQ(Reading(), "");
  EXPECT_EQ(ReadingAfter("Right"), "Depth 0.5000 ft\nFlow 2.000 m\u00B3/s");
  EXPECT_EQ(ReadingAfter("Right"), "Depth 1.000 ft\nFlow 1,235 m\u00B3/s");
  EXPECT_EQ(widget_->accessibleDescription().toStdString(), Reading());
  EXPECT_EQ(ReadingAfter("PgUp"), "Depth 1.500 ft\nFlow 3.000 m\u00B3/s");
  EXPECT_EQ(ReadingAfter("Up Left"), "Depth 1.000 ft\nFlow 1,235 m\u00B3/s");
}

TEST_F(Chart, ReadingsDistinguishNeighbours) {
  Show({{400.455, 0.00791}, {400.46, 0.0123}, {401.5, 35.42}});
  EXPECT_EQ(ReadingAfter("Right"), "Depth 400.455 ft\nFlow 0.007910 m\u00B3/s");
  EXPECT_EQ(ReadingAfter("Right"), "Depth 400.460 ft\nFlow 0.01230 m\u00B3/s");
  chart_.Load({{2e-20, 3e12}}, 2);
  EXPECT_EQ(ReadingAfter("Right"), "Depth 0.00000000000000000002000 ft\nFlow 3,000,000,000,000 m\u00B3/s");
}

TEST_F(Chart, TheMouseReadsOffTheNearestPoint) {
  Show({{1, 1}, {2, 4}, {3, 9}});
  QTest::mouseMove(&Plot(), PlaceOf(2.2, 4.4));
  EXPECT_EQ(Reading(), "Depth 2.000 ft\nFlow 4.000 m\u00B3/s");
  QTest::mouseMove(&Plot(), PlaceOf(2.9, 8));
  EXPECT_EQ(Reading(), "Depth 3.000 ft\nFlow 9.000 m\u00B3/s");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Plot(), &leave);
  EXPECT_EQ(Reading(), "");
}

TEST_F(Chart, ZoomAndDragHaveAWayBack) {
  Show({{1, 1}, {2, 4}, {3, 9}});
  const QCPRange whole = Plot().xAxis->range();
  const auto expectWhole = [&] {
    EXPECT_DOUBLE_EQ(Plot().xAxis->range().lower, whole.lower);
    EXPECT_DOUBLE_EQ(Plot().xAxis->range().upper, whole.upper);
  };
  const QPoint place = PlaceOf(2, 4);
  QWheelEvent wheel(place, Plot().mapToGlobal(place), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&Plot(), &wheel);
  EXPECT_NEAR(Plot().xAxis->range().size(), 0.8 * whole.size(), 1e-9);
  EXPECT_LE((PlaceOf(2, 4) - place).manhattanLength(), 2) << "what is under the pointer stays there";
  QTest::mouseDClick(&Plot(), Qt::LeftButton, {}, place);
  expectWhole();
  Press("Ctrl++ Right");
  EXPECT_TRUE(Plot().xAxis->range().contains(1)) << "a point read off is brought into view";
  Press("Home");
  expectWhole();
  for (int i = 0; i < 500; ++i) Press("Ctrl+-");
  EXPECT_LT(Plot().xAxis->range().size(), 100 * whole.size());
  Press("Home");
  Drag(Plot(), place, place + QPoint(60, 0));
  EXPECT_LT(Plot().xAxis->range().lower, whole.lower);
  Press("Home");
  expectWhole();
}

TEST_F(Chart, LogarithmicAxesLeaveOutWhatTheyCannotShow) {
  Show({{0, 0}, {0.1, 1}, {1, 100}, {-1, 5}, {2, 0}, {10, 1000}});
  Press("Ctrl+L");
  EXPECT_THAT(Plot().Points(), ElementsAre(QPointF(0.1, 1), QPointF(1, 100), QPointF(10, 1000)));
  EXPECT_GT(Plot().xAxis->range().lower, 0);
  EXPECT_NEAR(PlaceOf(1, 1).x() - PlaceOf(0.1, 1).x(), PlaceOf(10, 1).x() - PlaceOf(1, 1).x(), 1);
  Press("Ctrl+L");
  EXPECT_EQ(Plot().Points().size(), 6);
  chart_.Load({{0, 0}, {-1, 3}}, 2);
  EXPECT_EQ(Note(), QString());
  Press("Ctrl+L");
  EXPECT_TRUE(Plot().Points().isEmpty());
  EXPECT_FALSE(Note().isEmpty());
  EXPECT_EQ(ReadingAfter("Right"), "");
  EXPECT_FALSE(chart_.PictureView("png").empty());
}

TEST_F(Chart, OneScaleForBothAxesKeepsACircleRound) {
  chart_.UniformAxis = true;
  std::vector<XYChart::Row> circle;
  for (int i = 0; i <= 50; ++i)
    circle.push_back({1.02 + std::sin(i * M_PI / 25), 1.02 + std::cos(i * M_PI / 25)});
  Show(circle);
  for (const QSize size : {QSize(800, 600), QSize(1200, 400), QSize(400, 900), QSize(800, 600)}) {
    widget_->resize(size);
    QTest::qWait(1);
    const QPoint middle = PlaceOf(1.02, 1.02);
    EXPECT_NEAR(PlaceOf(2.02, 1.02).x() - middle.x(), middle.y() - PlaceOf(1.02, 2.02).y(), 1.5);
    EXPECT_TRUE(Plot().axisRect()->rect().contains(PlaceOf(2.02, 1.02)));
    EXPECT_TRUE(Plot().axisRect()->rect().contains(PlaceOf(1.02, 0.02)));
  }
}

TEST_F(Chart, AnEmptyChartSaysWhyAndAnyOtherWhatItHolds) {
  Show({Gap, Gap});
  EXPECT_EQ(Note(), QStringLiteral("No depth fits."));
  EXPECT_EQ(widget_->accessibleDescription(), Note());
  EXPECT_EQ(Plot().xAxis->label(), QStringLiteral("Depth, ft"));
  chart_.Load({{1, 2}, {2, 3}}, 2);
  EXPECT_EQ(Note(), QString());
  EXPECT_EQ(widget_->accessibleName(), QStringLiteral("Flow against Depth"));
  EXPECT_EQ(widget_->accessibleDescription().toStdString(),
            "2 points; Depth from 1.000 to 2.000 ft; Flow from 2.000 to 3.000 m\u00B3/s");
}

TEST_F(Chart, PicturesAreWholeAndLightWhateverTheScreen) {
  chart_.Marked = {{1, 2}};
  Show({{1, 1}, {2, 4}, {3, 3}});
  widget_->setPalette(QPalette(QColor(Qt::black)));
  const QImage dots = QImage::fromData(QByteArray::fromStdString(chart_.PictureView("png")));
  EXPECT_EQ(dots.size(), 2 * Plot().size());
  EXPECT_EQ(dots.pixelColor(0, 0), QColor(Qt::white));
  const std::string drawing = chart_.PictureView("svg");
  for (const char* const text :
       {"Flow, m\u00B3/s", "Depth, ft", "It falls.", "1.5", "2.5", "viewBox=\"0 0 800 600\""})
    EXPECT_THAT(drawing, testing::HasSubstr(text));
  EXPECT_EQ(chart_.PictureView("pdf").substr(0, 5), "%PDF-");
  chart_.CopyView();
  const QClipboard& clipboard = *QApplication::clipboard();
  EXPECT_EQ(clipboard.image().size(), dots.size());
  EXPECT_EQ(clipboard.mimeData()->data(QStringLiteral("image/svg+xml")).toStdString(), drawing);
}

}  // namespace
