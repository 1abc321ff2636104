// The program with its window: the calculator on the services of the desktop.
#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QProxyStyle>
#include <QSessionManager>
#include <QTimer>

#include "app/Declarations.h"
#include "app/SettingsFile.h"
#include "desktop/LaterWindows.h"
#include "desktop/LineIcon.h"
#include "desktop/QtServices.h"
#include "desktop/QtWindowHost.h"
#include "desktop/Recovery.h"
#include "desktop/StartFonts.h"
#include "desktop/Text.h"
#include "engine/NumberText.h"
#include "program/Program.h"

namespace {

/// The desktop's style. Its arrow for what a narrow bar leaves out is one of our icons: the style's own is a
/// picture file, and for the first of these the toolkit loads all that it knows of pictures.
class Style : public QProxyStyle {
 public:
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override {
    const bool more =
        icon == SP_ToolBarHorizontalExtensionButton || icon == SP_ToolBarVerticalExtensionButton;
    return more ? LineIcon("more") : QProxyStyle::standardIcon(icon, option, widget);
  }
};

}  // namespace

int main(int argc, char* argv[]) {
  StartFonts fonts;
  // The menus stay in the window: to ask the desktop for another place would keep the window waiting.
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication application(argc, argv);
  fonts.Apply();
  QApplication::setStyle(new Style);
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
  QtWindowHost windows(LaterWindows);
  LaterPrinterDialog printerDialog;
  QtClock clock;
  QtProgress progress;
  LaterHelpViewer helpViewer;
  Program program({clipboard, messageBox, fileDialog, windows, printerDialog, clock, progress, helpViewer});
  program.Start();
  Recovery recovery(program.Main);
  QObject::connect(windows.WindowOf(program.Main), &QObject::destroyed, &application,
                   [] { QApplication::exit(); });
  QObject::connect(&application, &QGuiApplication::commitDataRequest, &application,
                   [&program](QSessionManager& session) {
                     if (!session.allowsInteraction()) return;
                     if (!program.Main.ChecknSave()) session.cancel();
                     session.release();
                   });
  // Once the window is there: both may have something to ask.
  QTimer::singleShot(0, &application, [&program, &recovery] {
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 1) program.Main.OpenInstead(FromQt(QFileInfo(arguments[1]).absoluteFilePath()));
    recovery.OfferLeftCopies();
  });
  return QApplication::exec();
}
