// Message boxes and file dialogs of the desktop, answered by keys.
#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "desktop/Dialogs.h"
#include "desktop/shell/QtServices.h"
#include "support/TestFolder.h"

namespace {

TEST(DesktopServices, AnswersOfAMessageBox) {
  QWidget window;
  window.setObjectName(QStringLiteral("frmMain"));
  window.show();
  QtMessageBox boxes;
  const auto answer = [&](BoxButtons buttons, Qt::Key key) {
    WhenOpen<QMessageBox>([key](QMessageBox& box) {
      EXPECT_EQ(box.text(), QStringLiteral("Save <b>?"));
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.windowModality(), Qt::WindowModal);
      EXPECT_EQ(box.windowType(), Qt::Dialog);  // a sheet has no title bar under Wayland
      QTest::keyClick(&box, key);
    });
    return boxes.Show("Save <b>?", "Flumewise", BoxIcon::Exclamation, buttons);
  };
  EXPECT_EQ(answer(BoxButtons::YesNoCancel, Qt::Key_Y), BoxAnswer::Yes);
  EXPECT_EQ(answer(BoxButtons::YesNoCancel, Qt::Key_N), BoxAnswer::No);
  EXPECT_EQ(answer(BoxButtons::YesNoCancel, Qt::Key_Escape), BoxAnswer::Cancel);
  EXPECT_EQ(answer(BoxButtons::YesNo, Qt::Key_Y), BoxAnswer::Yes);
  EXPECT_EQ(answer(BoxButtons::YesNo, Qt::Key_Escape), BoxAnswer::No);
  EXPECT_EQ(answer(BoxButtons::YesNo, Qt::Key_Return), BoxAnswer::No);
  EXPECT_EQ(answer(BoxButtons::Ok, Qt::Key_Escape), BoxAnswer::Ok);
}

TEST(DesktopServices, AFileDialogStartsWhereItCanAndAddsTheSuffixOfTheKindChosen) {
  QtFileDialog dialogs;
  FileDialogRequest request{true, "Save As", "c:\\", "Flumewise Data (*.fwd)|*.fwd|All Files (*.*)|*.*", ""};
  WhenOpen<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory(), QDir::home());
    EXPECT_EQ(dialog.nameFilters(),
              QStringList({QStringLiteral("Flumewise Data (*.fwd)"), QStringLiteral("All Files (*)")}));
    EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    dialog.reject();
  });
  EXPECT_EQ(dialogs.Choose(request), std::nullopt);
  request.Folder = QDir::tempPath().toStdString();
  request.Filter = "Picture (*.png)|*.png|Drawing (*.svg)|*.svg";
  for (const char* const suffix : {".png", ".svg"}) {
    WhenOpen<QFileDialog>([suffix](QFileDialog& dialog) {
      auto* const kinds = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
      if (suffix == std::string(".svg")) QTest::keyClick(kinds, Qt::Key_Down);
      dialog.findChild<QLineEdit*>()->setText(QStringLiteral("no such curve"));
      dynamic_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(dialogs.Choose(request), request.Folder + "/no such curve" + suffix);
  }
}

TEST(DesktopServices, AFileDialogTakesDoubleQuotesAsTheyAreTyped) {
  const TestFolder folder;
  QtFileDialog dialogs;
  FileDialogRequest request{true, "Save As", folder.Path(),
                            "Flumewise Data (*.fwd)|*.fwd|All Files (*.*)|*.*", ""};
  // Types the name and Return; where a box opens, `answer` is the key for it. It gives up what stays open.
  const auto type = [](const char* name, std::optional<Qt::Key> answer = {}) {
    WhenOpen<QFileDialog>([name, answer](QFileDialog& dialog) {
      if (answer) {
        WhenOpen<QMessageBox>([name, answer](QMessageBox& box) {
          EXPECT_TRUE(box.text().startsWith(QLatin1String(name))) << box.text().toStdString();
          QTest::keyClick(&box, *answer);
        });
      }
      QTest::keyClicks(dialog.focusWidget(), QLatin1String(name));
      QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
      if (dialog.isVisible()) dialog.reject();
    });
  };
  const std::string path = (folder.Path() / "18\" pipe.fwd").string();
  type("18\" pipe");
  EXPECT_EQ(dialogs.Choose(request), path);
  std::ofstream(path) << "old";
  type("18\" pipe.fwd", Qt::Key_N);
  EXPECT_EQ(dialogs.Choose(request), std::nullopt);
  type("18\" pipe.fwd", Qt::Key_Y);
  EXPECT_EQ(dialogs.Choose(request), path);
  request.Saving = false;
  type("18\" pipe.fwd");
  EXPECT_EQ(dialogs.Choose(request), path);
  type("\"18\" \"pipe\"", Qt::Key_Escape);
  EXPECT_EQ(dialogs.Choose(request), std::nullopt);
}

TEST(DesktopServices, TheClipboardEndsEveryLineAsSpreadsheetsDo) {
  QtClipboard clipboard;
  QGuiApplication::clipboard()->setText(QStringLiteral("0\t10\n5\t8\r\n9\t7\r"));
  EXPECT_EQ(clipboard.Text(), "0\t10\r\n5\t8\r\n9\t7\r\n");
  clipboard.SetText("0\t10\r5\t8\r\n9\t7");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("0\t10\r\n5\t8\r\n9\t7"));
}

TEST(Progress, OfACommandThatIsFeltIsShownAndCanBeCancelled) {
  QtProgress progress;
  constexpr int steps = 100;
  bool pressed = false;
  int done = 1;
  for (; done < steps && progress.Show("Computing", done, steps); ++done) {
    QTest::qSleep(4);
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) continue;
    pressed = true;
    QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
  }
  EXPECT_TRUE(pressed);
  EXPECT_LT(done, steps);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
