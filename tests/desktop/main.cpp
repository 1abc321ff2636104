// The tests of the desktop run on real widgets without a screen.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("CUPS_SERVER", "/no/printer");  // no test may reach a printer of this machine
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setDoubleClickInterval(20);  // for so long a list that opens takes no click
  return RUN_ALL_TESTS();
}
