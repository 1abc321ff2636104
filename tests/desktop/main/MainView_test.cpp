// The window of the program: its inputs, results and drawing at every size of text and window.
#include <set>

#include "desktop/Desk.h"
#include "desktop/main/ShapeWidget.h"
#include "engine/NumberText.h"
#include "support/TestFolder.h"

namespace {

using MainView = Desk;

/// The sketch beside the inputs.
ShapeWidget& Sketch(const QWidget& window) {
  for (QWidget* const each : window.findChildren<QWidget*>()) {
    if (auto* const shape = dynamic_cast<ShapeWidget*>(each)) return *shape;
  }
  throw std::runtime_error("no sketch");
}

/// As it is drawn now.
const ShapeLayout& Drawn(ShapeWidget& sketch) {
  sketch.grab();
  return sketch.Layout();
}

TEST_F(MainView, TheDrawingShowsDimensionsThatHaveRoom) {
  SetNumberLocale({",", "\u202F"});
  hands_.Click(main_.mnuOptionsRect);
  const auto shown = [this](const char* typed) {
    hands_.Type(main_.tbBaseWidth, typed);
    return Sketch(hands_.Window(main_))
        .accessibleDescription()
        .contains(QStringLiteral("b = ") + QString::fromUtf8(typed));
  };
  EXPECT_TRUE(shown("1\u202F234\u202F567,89")) << "12 characters, in four bytes more";
  EXPECT_FALSE(shown("1\u202F234\u202F567,89123"));
  SetNumberLocale({});
}

TEST_F(MainView, TheDrawingFollowsASwitchOfUnits) {
  EnterSection("100 104 0.03, 110 100, 120 104", "102");
  for (Control* const units :
       std::initializer_list<Control*>{&main_.mnuOptionsUnitsMetric, &main_.mnuOptionsUnitsEnglish}) {
    hands_.Click(*units);
    const ShapeLayout& drawn = Drawn(Sketch(hands_.Window(main_)));
    ASSERT_EQ(drawn.Surfaces.size(), 1);
    const QRectF ground = drawn.Ground.boundingRect();
    EXPECT_NEAR((ground.bottom() - drawn.Surfaces[0].y1()) / ground.height(), 0.5, 0.01);
  }
  // The same trapezoid fills its room at once, with no pause as after typing: a metre is drawn as three feet
  // were.
  EnterTrapezoid();
  const auto scale = [this] { return Drawn(Sketch(hands_.Window(main_))).Scale.value().Across; };
  const double perFoot = scale();
  hands_.Click(main_.mnuOptionsUnitsMetric);
  EXPECT_GT(scale(), 2 * perFoot);
}

TEST_F(MainView, TheDrawingKeepsItsScaleUntilThePersonPauses) {
  EnterTrapezoid();
  const auto scale = [this] { return Drawn(Sketch(hands_.Window(main_))).Scale.value().Across; };
  hands_.Focus(main_.tbBaseWidth);
  const double before = scale();
  for (const char* const digit : {"2", "0", "."}) {
    Keys(digit);
    EXPECT_EQ(scale(), before) << digit;
  }
  hands_.Type(main_.tbBaseWidth, "2");
  EXPECT_EQ(scale(), before);
  EXPECT_TRUE(QTest::qWaitFor([&] { return scale() > before; })) << "after a pause it fills its room again";
}

TEST_F(MainView, NothingIsCutOffWhateverTheSizeOfTextAndWindow) {
  QWidget& window = hands_.Window(main_);
  for (const double larger : {1.0, 2.0, 2.5}) {
    const LargerText text(larger);
    for (const QSize size : {QSize(1024, 640), QSize(1280, 900), QSize(1920, 1080)}) {
      window.resize(size);
      InEveryType([&] {
        QTest::qWait(1);
        EXPECT_EQ(CutOff(window), "") << larger << " " << size.width() << "x" << size.height();
        EXPECT_FALSE(window.findChild<QScrollArea*>()->horizontalScrollBar()->isVisible());
        EXPECT_EQ(window.size(), size);
      });
    }
  }
}

TEST_F(MainView, ResultsStayInSightWhileTyping) {
  QWidget& window = hands_.Window(main_);
  for (const auto& [larger, size] : {std::pair{1.0, QSize(1024, 640)}, std::pair{2.0, QSize(1280, 900)}}) {
    const LargerText text(larger);
    window.resize(size);
    InEveryType([&, larger = larger] {
      hands_.Focus(main_.tbSlope);
      QTest::qWait(1);
      for (const TextBox* const box : {&main_.tbVelocity, &main_.tbCritS})
        EXPECT_EQ(Edit(*box).visibleRegion().boundingRect(), Edit(*box).rect()) << larger << box->Name();
    });
  }
}

TEST_F(MainView, ResultsAreInLineAtTheirDecimalSign) {
  EnterTrapezoid();
  std::set<int> places;
  int signs = 0;
  for (const TextBox* const box : {&main_.tbVelocity, &main_.tbVelHead, &main_.tbArea, &main_.tbCritS}) {
    BoxEdit& edit = Edit(*box);
    const auto sign = static_cast<int>(edit.text().indexOf(u'.'));
    if (sign < 0) continue;
    edit.setCursorPosition(sign);
    edit.grab();  // places the caret
    const QRect caret = edit.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    places.insert(edit.mapTo(edit.window(), caret.topLeft()).x());
    ++signs;
  }
  EXPECT_GE(signs, 3);
  EXPECT_LE(*places.rbegin() - *places.begin(), 1) << testing::PrintToString(places);
}

TEST_F(MainView, TheTypesKeepTheColumnsWhereTheyAre) {
  std::set<std::pair<int, int>> places;
  InEveryType([&] {
    QTest::qWait(1);
    for (const TextBox* const box : {&main_.tbSlope, &main_.tbCritS}) {
      const QPoint place = Edit(*box).mapTo(&hands_.Window(main_), QPoint());
      places.emplace(place.x(), place.y());
    }
  });
  EXPECT_EQ(places.size(), 2U) << testing::PrintToString(places);
}

TEST_F(MainView, ASwitchShowsTheModeAndKeysChooseModeTypeAndUnits) {
  hands_.Focus(main_.tbSlope);
  for (const auto& [key, item] : {std::pair{"Ctrl+1", &main_.mnuOptionsRect},
                                  {"Ctrl+2", &main_.mnuOptionsTriangular},
                                  {"Ctrl+3", &main_.mnuOptionsTrap},
                                  {"Ctrl+5", &main_.mnuOptionsIrreg},
                                  {"Ctrl+4", &main_.mnuOptionsCircular},
                                  {"Ctrl+U", &main_.mnuOptionsUnitsMetric},
                                  {"Ctrl+U", &main_.mnuOptionsUnitsEnglish},
                                  {"Ctrl+F", &main_.mnuSolveForFlow},
                                  {"Ctrl+D", &main_.mnuSolveForDepth}}) {
    Press(key);
    EXPECT_TRUE(item->Checked) << key;
    EXPECT_EQ(hands_.Of<QAbstractButton>(main_.optFlow).isChecked(), main_.mnuSolveForFlow.Checked.Get());
    EXPECT_EQ(hands_.Of<QAbstractButton>(main_.optDepth).isChecked(), main_.mnuSolveForDepth.Checked.Get());
  }
  EXPECT_EQ(Focused(), "tbSlope");
}

TEST_F(MainView, ARecentFileThatIsGoneIsGreyed) {
  const TestFolder folder;
  const auto path = folder.Path() / "gone.fwd";
  services_.fileDialog.Choices = {path.string()};
  hands_.Click(main_.mnuFileSaveAs);
  EXPECT_TRUE(main_.mnuFileRecent[1].Visible && main_.mnuFileRecent[1].Enabled);
  std::filesystem::remove(path);
  auto* const menu = qobject_cast<QMenu*>(hands_.Of<QAction>(main_.mnuFileNew).parent());
  menu->popup({});
  EXPECT_FALSE(hands_.Of<QAction>(main_.mnuFileRecent[1]).isEnabled());
  menu->close();
}

}  // namespace
