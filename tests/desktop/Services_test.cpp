// Message boxes and file dialogs of the desktop, answered by keys.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "desktop/QtServices.h"

namespace {

/// Runs `act` on the dialog that is about to open.
template <class Dialog>
void WhenOpen(const std::function<void(Dialog&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

TEST(DesktopServices, AnswersOfAMessageBox) {
  QtMessageBox boxes;
  const auto answer = [&](BoxButtons buttons, Qt::Key key) {
    WhenOpen<QMessageBox>([key](QMessageBox& box) {
      EXPECT_EQ(box.text(), QStringLiteral("Save <b>?"));
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      QTest::keyClick(&box, key);
    });
    return boxes.Show("Save <b>?", "Flumewise", BoxIcon::Exclamation, buttons);
  };
  EXPECT_EQ(answer(BoxButtons::YesNoCancel, Qt::Key_Y), BoxAnswer::Yes);
  EXPECT_EQ(answer(BoxButtons::YesNoCancel, Qt::Key_N), BoxAnswer::No);
  EXPECT_EQ(answer(BoxButtons::YesNoCancel, Qt::Key_Escape), BoxAnswer::Cancel);
  EXPECT_EQ(answer(BoxButtons::Ok, Qt::Key_Escape), BoxAnswer::Ok);
}

TEST(DesktopServices, AFileDialogStartsWhereItCanAndAddsTheSuffix) {
  QtFileDialog dialogs;
  FileDialogRequest request{true, "Save As", "c:\\", "Flumewise Data (*.fwd)|*.fwd|All Files (*.*)|*.*", ""};
  WhenOpen<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory(), QDir::home());
    EXPECT_EQ(dialog.nameFilters(),
              QStringList({QStringLiteral("Flumewise Data (*.fwd)"), QStringLiteral("All Files (*)")}));
    EXPECT_EQ(dialog.defaultSuffix(), QStringLiteral("fwd"));
    EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    dialog.reject();
  });
  EXPECT_EQ(dialogs.Choose(request), std::nullopt);
  request.Folder = QDir::tempPath().toStdString();
  WhenOpen<QFileDialog>([](QFileDialog& dialog) {
    dialog.selectFile(QStringLiteral("no such culvert"));
    dynamic_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(dialogs.Choose(request), request.Folder + "/no such culvert.fwd");
}

}  // namespace
