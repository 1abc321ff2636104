// The drawing of a section: its water stands where the pools are, and what leaves the program is the same
// drawing.
#include <numbers>

#include "app/Declarations.h"
#include "desktop/Desk.h"
#include "desktop/chart/ChartPlot.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/Appearance.h"
#include "section/frmSection.h"

namespace {

class Section : public Desk {
 protected:
  void Open(const std::function<void()>& look) {
    InModal(main_.mnuSolveSection, [&](Form& form) {
      drawn_ = &dynamic_cast<frmSection&>(form).MSChart1;
      chart_ = &hands_.Of<ChartWidget>(*drawn_);
      look();
    });
  }

  const ChartPlot& Plot() const { return chart_->Plot(); }
  QColor ColourAt(double x, double y) const {
    const QPointF place(Plot().xAxis->coordToPixel(x), Plot().yAxis->coordToPixel(y));
    return chart_->Plot().toPixmap().toImage().pixelColor(place.toPoint());
  }

  XYChart* drawn_ = nullptr;
  ChartWidget* chart_ = nullptr;
};

TEST_F(Section, WaterStandsBetweenGroundAndLevel) {
  // Two pools; the second one reaches the last station.
  EnterSection("100 4 0.03, 102 0, 104 4, 106 0, 108 1", "2");
  Open([this] {
    const QColor water = Appearance::Water(chart_->palette());
    const QColor earth = Appearance::Earth(chart_->palette());
    EXPECT_EQ(ColourAt(102.1, 1.5), water);
    EXPECT_EQ(ColourAt(107, 1.7), water);
    EXPECT_EQ(ColourAt(103.7, 1.5), earth);
    EXPECT_EQ(ColourAt(107.3, 0.2), earth);
    EXPECT_NE(ColourAt(108.15, 1.5), water);
    EXPECT_NE(ColourAt(104.5, 2.0), Appearance::WaterSurface(chart_->palette()));
    // The surfaces begin and end at the banks: 100 + 2/4 * 2 and so on.
    const QList<QPointF> surfaces = Plot().Points().mid(5);
    EXPECT_EQ(surfaces, (QList<QPointF>{{101, 2}, {103, 2}, {105, 2}, {108, 2}}));
    EXPECT_FALSE(Plot().xAxis->range().contains(54));  // no point that is not of this section
  });
}

TEST_F(Section, APipeIsRoundAndItsWaterNoWider) {
  Declarations::SigDigs = 1;  // the top width is told as 2 ft
  EnterPipe("24", "1.3");
  Declarations::SigDigs = 3;
  Open([this] {
    EXPECT_EQ(ColourAt(0.5, 0.8), Appearance::Water(chart_->palette()));
    EXPECT_NE(ColourAt(0.53, 1.53), Appearance::Water(chart_->palette()));
    // Between two of the fifty points of the table the wall bulges by 0.002 of its radius.
    const QPointF wall(1.02 + std::sin(std::numbers::pi / 50), 1.02 + std::cos(std::numbers::pi / 50));
    chart_->Plot().Zoom(10, {Plot().xAxis->coordToPixel(wall.x()), Plot().yAxis->coordToPixel(wall.y())});
    EXPECT_LT(qGray(ColourAt(wall.x(), wall.y()).rgb()), 100);
    EXPECT_TRUE(drawn_->Rows()[50][0] && !drawn_->Rows()[51][0]) << "the table keeps its points";
    const QList<QPointF> surface = Plot().Points().mid(51);
    ASSERT_EQ(surface.size(), 2);
    EXPECT_NEAR(surface[1].x() - surface[0].x(), 2 * 0.9539392014, 1e-9);
  });
}

TEST_F(Section, RangesOfDifferentNAreDistinct) {
  EnterSection("0 9 0.08, 40 5, 50 0 0.03, 60 5 0.08, 100 9", "6");
  Open([this] {
    const double above =
        Plot().yAxis->pixelToCoord(Plot().axisRect()->top() - Plot().fontMetrics().height() / 3.0);
    const QColor left = ColourAt(20, above);
    const QColor middle = ColourAt(55, above);
    EXPECT_NE(left, middle);
    EXPECT_EQ(ColourAt(80, above), left);
    EXPECT_NE(left, chart_->palette().color(QPalette::Base));
    EXPECT_NE(middle, chart_->palette().color(QPalette::Base));
  });
}

TEST_F(Section, AChannelIsDrawnWithItsNamesInTheWindowAndInPictures) {
  hands_.Click(main_.mnuOptionsTrap);
  hands_.Click(main_.mnuSolveForFlow);
  Enter("tbDepth 10, tbSlope 0.001, tbMann 0.013, tbBaseWidth 5, tbSSL 1, tbSSR 3");
  Open([this] {
    // Banks a fifth higher than the water; a hundredth of the extent is left free.
    const QList<QPointF> expected{{0.05, 12.12},  {12.05, 0.12}, {17.05, 0.12},
                                  {53.05, 12.12}, {2.05, 10.12}, {47.05, 10.12}};
    ASSERT_EQ(Plot().Points().size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i)
      EXPECT_LT((Plot().Points()[i] - expected[i]).manhattanLength(), 1e-9) << i;
    EXPECT_EQ(Plot().xAxis->label(), QStringLiteral("Distance, ft"));
    EXPECT_EQ(Plot().yAxis->label(), QStringLiteral("Height, ft"));
    EXPECT_TRUE(Plot().legend->realVisibility());
    EXPECT_EQ(Plot().legend->itemCount(), 2);
    const QColor water = Appearance::Water(Appearance::Paper());
    const QByteArray svg = QByteArray::fromStdString(drawn_->PictureView("svg"));
    EXPECT_TRUE(svg.contains("Channel"));
    EXPECT_TRUE(svg.contains("Water surface"));
    EXPECT_TRUE(svg.contains(water.name().toLatin1()));
    const QImage dots = QImage::fromData(QByteArray::fromStdString(drawn_->PictureView("png")));
    EXPECT_EQ(dots.pixelColor(dots.rect().center()), water);
  });
}

}  // namespace
