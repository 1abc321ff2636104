// The drawing of a section: its lines are the chart's rows, its water stands where the pools are, and what
// leaves the program is the same drawing.

#include "desktop/Appearance.h"
#include "desktop/ChartPlot.h"
#include "desktop/ChartWidget.h"
#include "desktop/Desk.h"
#include "engine/ChannelState.h"
#include "section/frmSection.h"

namespace {

class Section : public Desk {
 protected:
  void EnterSection(const std::vector<std::array<const char*, 3>>& points, const char* W) {
    hands_.Click(main_.mnuOptionsIrreg);
    hands_.Click(main_.mnuSolveForFlow);
    ChannelState.IrregPointCount = static_cast<int>(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
      for (std::size_t column = 0; column < 3; ++column)
        ChannelState.IrregPoints[i + 1][column + 1] = points[i][column];
    }
    Enter({{&main_.tbSlope, "0.002"}, {&main_.tbDepth, W}});
  }

  void Enter(std::initializer_list<std::pair<TextBox*, const char*>> texts) {
    for (const auto& [box, text] : texts) {
      hands_.Focus(*box);
      Keys(text);
    }
  }

  void Open(const std::function<void()>& look) {
    InModal(main_.mnuSolveSection, [&](Form& form) {
      form_ = &dynamic_cast<frmSection&>(form);
      chart_ = &hands_.Of<ChartWidget>(form_->MSChart1);
      look();
    });
  }

  const ChartPlot& Plot() const { return chart_->Plot(); }
  QPoint PixelOf(double x, double y) const {
    return {qRound(Plot().xAxis->coordToPixel(x)), qRound(Plot().yAxis->coordToPixel(y))};
  }
  QColor ColourAt(double x, double y) const {
    return chart_->Plot().toPixmap().toImage().pixelColor(PixelOf(x, y));
  }

  frmSection* form_ = nullptr;
  ChartWidget* chart_ = nullptr;
};

TEST_F(Section, DrawsTheRowsOfTheChart) {
  EnterTrapezoid();
  Open([this] {
    const auto& rows = form_->MSChart1.Rows();
    QList<QPointF> wanted;
    for (const std::size_t column : {0U, 2U}) {
      for (const XYChart::Row& row : rows) {
        if (row[column]) wanted.append({*row[column], *row[column + 1]});
      }
    }
    EXPECT_EQ(wanted.size(), 4 + 2);
    EXPECT_EQ(Plot().Points(), wanted);
    EXPECT_EQ(Plot().xAxis->label(), QStringLiteral("Distance, ft"));
    EXPECT_EQ(Plot().yAxis->label(), QStringLiteral("Height, ft"));
    for (const QPointF& point : wanted) {
      EXPECT_TRUE(Plot().xAxis->range().contains(point.x()));
      EXPECT_TRUE(Plot().yAxis->range().contains(point.y()));
    }
  });
}

TEST_F(Section, APipeIsRoundWhateverTheShapeOfTheWindow) {
  hands_.Click(main_.mnuOptionsCircular);
  hands_.Click(main_.mnuSolveForFlow);
  Enter({{&main_.tbSlope, "0.002"},
         {&main_.tbMann, "0.013"},
         {&main_.tbDiameter, "24"},
         {&main_.tbDepth, "1"}});
  Open([this] {
    for (const QSize size : {QSize(900, 500), QSize(500, 800), QSize(700, 700)}) {
      hands_.Window(*form_).resize(size);
      QTest::qWait(1);
      const QPoint crown = PixelOf(1.02, 2.02);
      const QPoint bed = PixelOf(1.02, 0.02);
      const QPoint left = PixelOf(0.02, 1.02);
      const QPoint right = PixelOf(2.02, 1.02);
      EXPECT_NEAR(right.x() - left.x(), bed.y() - crown.y(), 2) << size.width();
      for (const QPoint& point : {crown, bed, left, right})
        EXPECT_TRUE(Plot().axisRect()->rect().contains(point)) << size.width();
    }
    const QColor water = Appearance::Water(chart_->palette());
    EXPECT_EQ(ColourAt(0.5, 0.8), water);
    EXPECT_NE(ColourAt(0.53, 1.53), water);
  });
}

TEST_F(Section, WaterStandsBetweenGroundAndLevel) {
  // Two pools; the second one reaches the last station.
  EnterSection({{"100", "4", "0.03"}, {"102", "0", ""}, {"104", "4", ""}, {"106", "0", ""}, {"108", "1", ""}},
               "2");
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

TEST_F(Section, StretchesOfDifferentNAreToldApart) {
  EnterSection(
      {{"0", "9", "0.08"}, {"40", "5", ""}, {"50", "0", "0.03"}, {"60", "5", "0.08"}, {"100", "9", ""}}, "6");
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

TEST_F(Section, LinesAreNamedInWords) {
  EnterTrapezoid();
  Open([this] {
    ASSERT_EQ(Plot().legend->itemCount(), 2);
    EXPECT_TRUE(Plot().legend->realVisibility());
    EXPECT_EQ(Plot().legend->itemWithPlottable(chart_->Plot().plottable(0))->plottable()->name(),
              QStringLiteral("Channel"));
    hands_.Window(*form_).resize(600, 500);
    EXPECT_EQ(Plot().legend->itemCount(), 2);
  });
}

TEST_F(Section, PicturesHoldTheWholeDrawing) {
  EnterTrapezoid();
  Open([this] {
    const std::string png = form_->MSChart1.PictureView("png");
    QImage image;
    ASSERT_TRUE(image.loadFromData(QByteArray::fromStdString(png), "png"));
    const QColor water = Appearance::Water(Appearance::Paper());
    int wet = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) wet += image.pixelColor(x, y) == water;
    }
    EXPECT_GT(wet, image.width() * image.height() / 4);
    const QByteArray svg = QByteArray::fromStdString(form_->MSChart1.PictureView("svg"));
    EXPECT_TRUE(svg.contains("Water surface"));
    EXPECT_TRUE(svg.contains(water.name().toLatin1()));
    EXPECT_TRUE(form_->MSChart1.PictureView("pdf").starts_with("%PDF-"));
    EXPECT_EQ(form_->MSChart1.PictureView("doc"), "");
  });
}

TEST_F(Section, EscapeClosesTheDrawing) {
  EnterTrapezoid();
  Open([this] {
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form_->IsLoaded());
  });
}

}  // namespace
