// Every window shows all of its form and nothing else, can be worked by keyboard and read by a screen reader.
#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolBar>
#include <algorithm>
#include <set>

#include "app/Declarations.h"
#include "app/frmDigits.h"
#include "app/frmMannParam.h"
#include "desktop/Desk.h"
#include "engine/ChannelState.h"

namespace {

class Windows : public Desk {
 protected:
  /// The check in each window of the program.
  void InEveryWindow(const std::function<void(Form&)>& check) {
    check(main_);
    InModal(main_.mnuOptionsDigits, check);
    InModal(main_.cmdMannParams, check);
    InModal(main_.mnuHelpAbout, check);
  }

  void InEveryType(const std::function<void()>& check) {
    for (MenuItem* const type : {&main_.mnuOptionsRect, &main_.mnuOptionsTriangular, &main_.mnuOptionsTrap,
                                 &main_.mnuOptionsCircular, &main_.mnuOptionsIrreg}) {
      SCOPED_TRACE(type->Caption.Get());
      hands_.Click(*type);
      check();
    }
  }
};

/// An action that Qt makes for itself.
bool IsOfQt(const QAction& action) {
  const auto* const bar = qobject_cast<QToolBar*>(action.parent());
  return qobject_cast<QLineEdit*>(action.parent()) != nullptr ||
         (bar != nullptr && bar->toggleViewAction() == &action);
}

/// Widgets and actions with which a person could do or change something.
std::vector<QObject*> Handles(const QWidget& window) {
  std::vector<QObject*> handles;
  for (QObject* const each : window.findChildren<QObject*>()) {
    const auto* const action = qobject_cast<QAction*>(each);
    const bool command =
        action != nullptr && !action->isSeparator() && action->menu() == nullptr && !IsOfQt(*action);
    const bool widget = qobject_cast<QLineEdit*>(each) != nullptr ||
                        qobject_cast<QListWidget*>(each) != nullptr ||
                        (qobject_cast<QAbstractButton*>(each) != nullptr && !each->inherits("QToolButton"));
    if (command || widget) handles.push_back(each);
  }
  return handles;
}

TEST_F(Windows, EveryControlHasItsWidgetAndTheReverse) {
  InEveryWindow([this](Form& form) {
    SCOPED_TRACE(form.Name());
    const QWidget& window = hands_.Window(form);
    for (const Control* const control : form.Controls()) {
      EXPECT_EQ(window.findChildren<QObject*>(QString::fromStdString(control->Name())).size(), 1)
          << control->Name();
    }
    for (const QObject* const handle : Handles(window)) {
      EXPECT_NE(form.Find(handle->objectName().toStdString()), nullptr)
          << handle->metaObject()->className() << " " << handle->objectName().toStdString();
    }
  });
}

TEST_F(Windows, EveryFieldHasANameForAScreenReader) {
  InEveryWindow([this](Form& form) {
    for (Control* const control : form.Controls()) {
      if (dynamic_cast<FocusControl*>(control) == nullptr) continue;
      QAccessibleInterface* const reader =
          QAccessible::queryAccessibleInterface(&hands_.Of<QWidget>(*control));
      EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty()) << control->Name();
    }
  });
  EXPECT_EQ(Edit(main_.tbVelocity).accessibleDescription(), QStringLiteral("fps"));
  hands_.Click(main_.mnuOptionsUnitsMetric);
  EXPECT_EQ(Edit(main_.tbArea).accessibleDescription(), QStringLiteral("m\u00B2"));
  EXPECT_EQ(Edit(main_.tbSlope).accessibleDescription(),
            QStringLiteral("m/m, Slope must be greater than 0 and less than 1"));
}

/// The letters behind "&" of the texts, joined.
QString Mnemonics(const QStringList& texts) {
  QString letters;
  for (QString text : texts) {
    text.remove(QLatin1String("&&"));
    const qsizetype at = text.indexOf(QLatin1Char('&'));
    if (at >= 0) letters += text[at + 1].toLower();
  }
  std::sort(letters.begin(), letters.end());
  return letters;
}

void ExpectUnique(const QString& letters) {
  EXPECT_EQ(std::adjacent_find(letters.begin(), letters.end()), letters.end()) << letters.toStdString();
}

TEST_F(Windows, MnemonicsAreUnique) {
  const QWidget& window = hands_.Window(main_);
  QStringList titles;
  for (const QAction* const title : window.findChild<QMenuBar*>()->actions()) {
    titles << title->text();
    QStringList items;
    for (const QAction* const item : title->menu()->actions()) items << item->text();
    const QString letters = Mnemonics(items);
    EXPECT_EQ(letters.size(), items.filter(QRegularExpression(QStringLiteral("."))).size());
    ExpectUnique(letters);
  }
  InEveryType([&] {
    QStringList texts = titles;
    for (const QLabel* const label : window.findChildren<QLabel*>()) {
      if (label->isVisible() && label->buddy() != nullptr) texts << label->text();
    }
    for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>()) {
      if (button->isVisible() && !button->inherits("QToolButton")) texts << button->text();
    }
    const QString letters = Mnemonics(texts);
    EXPECT_GE(letters.size(), titles.size() + 4);
    ExpectUnique(letters);
  });
}

TEST_F(Windows, TabGoesInReadingOrder) {
  hands_.Click(main_.mnuOptionsTrap);
  hands_.Focus(main_.tbProjName);
  QStringList order;
  do {
    order << QApplication::focusWidget()->objectName();
    Key(Qt::Key_Tab);
  } while (QApplication::focusWidget()->objectName() != order.first());
  EXPECT_EQ(order.join(QLatin1Char(' ')).toStdString(),
            "tbProjName tbFlow tbDepth tbSlope tbMann cmdMannParams tbBaseWidth tbSSL tbSSR "
            "tbVelocity tbVelHead tbArea tbWP tbHRad tbTopW tbFroude tbCritD tbCritS");
}

TEST_F(Windows, TheFirstInputHasTheKeyboardWhenTheWindowOpens) {
  EXPECT_EQ(QApplication::focusWidget(), &Edit(main_.tbFlow));
  EXPECT_EQ(main_.ActiveControl(), &main_.tbFlow);
}

/// Widgets that hold a text and are smaller than it needs.
QStringList CutOff(const QWidget& window) {
  QStringList cut;
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    const bool text = qobject_cast<const QLabel*>(widget) != nullptr ||
                      qobject_cast<const QLineEdit*>(widget) != nullptr ||
                      qobject_cast<const QAbstractButton*>(widget) != nullptr;
    const QSize least = widget->minimumSizeHint().boundedTo(widget->sizeHint());
    if (text && widget->isVisible() &&
        (widget->width() < least.width() || widget->height() < least.height())) {
      cut << widget->objectName() + QLatin1Char(':') + widget->property("text").toString();
    }
  }
  return cut;
}

TEST_F(Windows, NothingIsCutOffWhateverTheSizeOfTextAndWindow) {
  const QFont usual = QApplication::font();
  QWidget& window = hands_.Window(main_);
  for (const double larger : {1.0, 2.0}) {
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * larger);
    QApplication::setFont(font);
    for (const QSize size : {QSize(1024, 640), QSize(1280, 900), QSize(1920, 1080)}) {
      window.resize(size);
      InEveryType([&] {
        QTest::qWait(1);
        EXPECT_EQ(CutOff(window).join(QLatin1String(", ")).toStdString(), "")
            << larger << " " << size.width() << "x" << size.height();
        EXPECT_FALSE(window.findChild<QScrollArea*>()->horizontalScrollBar()->isVisible());
        EXPECT_EQ(window.size(), size);
      });
    }
  }
  QApplication::setFont(usual);
}

TEST_F(Windows, TheTypesKeepTheColumnsWhereTheyAre) {
  std::set<std::pair<int, int>> places;
  InEveryType([&] {
    QTest::qWait(1);
    const QWidget& window = hands_.Window(main_);
    places.emplace(Edit(main_.tbSlope).mapTo(&window, QPoint()).x(),
                   Edit(main_.tbSlope).mapTo(&window, QPoint()).y());
    places.emplace(Edit(main_.tbCritS).mapTo(&window, QPoint()).x(),
                   Edit(main_.tbCritS).mapTo(&window, QPoint()).y());
  });
  EXPECT_EQ(places.size(), 2U) << testing::PrintToString(places);
}

TEST_F(Windows, KeysWorkTheDialogs) {
  InModal(main_.mnuOptionsDigits, [this](Form& form) {
    hands_.Window(form);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("optSigDigs_3"));
    Key(Qt::Key_Right);
    EXPECT_TRUE(dynamic_cast<frmDigits&>(form).optSigDigs[4].Value);
    Key(Qt::Key_Return);
    EXPECT_FALSE(form.IsLoaded());
  });
  EXPECT_EQ(Declarations::SigDigs, 4);
  InModal(main_.mnuOptionsDigits, [this](Form& form) {
    hands_.Window(form);
    Key(Qt::Key_Right);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form.IsLoaded());
  });
  EXPECT_EQ(Declarations::SigDigs, 4);
  InModal(main_.cmdMannParams, [this](Form& form) {
    hands_.Window(form);
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_FALSE(form.IsLoaded());
  });
  EXPECT_EQ(main_.tbMann.Text.Get(), "0.013");
  InModal(main_.cmdMannParams, [this](Form& form) {
    auto& list = dynamic_cast<frmMannParam&>(form).lstMannParam;
    hands_.Pick(list, 7);
    hands_.DoubleClick(list);
    EXPECT_FALSE(form.IsLoaded());
  });
  EXPECT_EQ(main_.tbMann.Text.Get(), "0.100");
}

TEST_F(Windows, TheAboutBoxHasLinksAndEndsByEscape) {
  InModal(main_.mnuHelpAbout, [this](Form& form) {
    const auto* const licence = hands_.Window(form).findChild<QLabel*>(QStringLiteral("lblLicence"));
    EXPECT_THAT(licence->text().toStdString(),
                testing::HasSubstr("href=\"https://www.gnu.org/licenses/gpl-3.0.html\""));
    EXPECT_TRUE(licence->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form.IsLoaded());
  });
}

TEST_F(Windows, TheTitleBarBoxAsksAndMayBeRefused) {
  QWidget& window = hands_.Window(main_);
  Keys("4");
  EXPECT_TRUE(window.isWindowModified());
  services_.messageBox.Answers = {BoxAnswer::Cancel};
  hands_.Close(main_);
  EXPECT_TRUE(window.isVisible());
  services_.messageBox.Answers = {BoxAnswer::No};
  hands_.Close(main_);
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(main_.IsLoaded());
}

}  // namespace
