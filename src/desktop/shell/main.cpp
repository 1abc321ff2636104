// The program with its window: the calculator on the services of the desktop.
#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QTimer>

#include "app/Declarations.h"
#include "app/settings/SettingsFile.h"
#include "desktop/help/QtHelpViewer.h"
#include "desktop/kit/LineIcon.h"
#include "desktop/kit/Text.h"
#include "desktop/print/QtPrinter.h"
#include "desktop/shell/QtServices.h"
#include "desktop/shell/QtWindowHost.h"
#include "desktop/shell/Recovery.h"
#include "desktop/shell/Session.h"
#include "engine/NumberText.h"
#include "program/Program.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(Declarations::AppTitle));
  QApplication::setDesktopFileName(QStringLiteral(FLUMEWISE_ID));
  QApplication::setWindowIcon(LineIcon("flumewise"));
  // The main window alone ends the program; a message box that closes beside it does not.
  QApplication::setQuitOnLastWindowClosed(false);

  const QLocale locale = QLocale::system();
  SetNumberLocale({FromQt(locale.decimalPoint()), FromQt(locale.groupSeparator())});
  SettingsFile::Use(SettingsFile::DefaultPath());

  QtClipboard clipboard;
  QtMessageBox messageBox;
  QtFileDialog fileDialog;
  QtWindowHost windows;
  QtPrinterDialog printerDialog;
  QtClock clock;
  QtProgress progress;
  QtHelpViewer helpViewer(QtHelpViewer::Paths());
  Program program({clipboard, messageBox, fileDialog, windows, printerDialog, clock, progress, helpViewer});
  program.Start();
  Recovery recovery(program.Main);
  Session session(program.Main, recovery);
  QObject::connect(windows.WindowOf(program.Main), &QObject::destroyed, &application,
                   [] { QApplication::exit(); });
  // Once the window is there: both may have something to ask.
  QTimer::singleShot(0, &application, [&program, &recovery] {
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 1) program.Main.OpenInstead(FromQt(QFileInfo(arguments[1]).absoluteFilePath()));
    recovery.OfferLeftCopies();
  });
  return QApplication::exec();
}
