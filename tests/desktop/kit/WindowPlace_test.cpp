// Windows open where they were.
#include "desktop/kit/WindowPlace.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "app/settings/SettingsFile.h"
#include "support/TestFolder.h"

namespace {

TEST(WindowPlaces, AWindowOpensWhereItWasIfThatFitsTheScreen) {
  const TestFolder folder;
  SettingsFile::Use((folder.Path() / "settings.ini").string());
  const auto opened = [](QRect left) {
    for (const bool last : {false, true}) {
      QWidget window;
      window.setObjectName(QStringLiteral("frmAny"));
      window.resize(50, 60);
      KeepPlace(window);
      if (last) return window.geometry();
      window.setGeometry(left);
      window.show();
      window.hide();
    }
    return QRect();
  };
  EXPECT_EQ(opened({30, 40, 200, 100}), QRect(30, 40, 200, 100));
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_EQ(opened({screen.right() - 100, 40, 200, 100}).size(), QSize(50, 60));
  SettingsFile::Use("");
}

}  // namespace
