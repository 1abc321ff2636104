// See frmAbout.h.
#include "help/frmAbout.h"

#include "app/Declarations.h"

frmAbout::frmAbout() : Form("frmAbout") {
  Caption = "About Flumewise";
  lblName.Caption = Declarations::AppTitle;
  lblVersion.Caption = std::string("Version ") + VersionName;
  lblPurpose.Caption =
      "A calculator for open-channel hydraulics: Manning's equation for rectangular, triangular, trapezoidal "
      "and circular channels and for surveyed sections.";
  lblLicence.Caption =
      "Flumewise is free software under the GNU General Public License, version 3 or later "
      "(https://www.gnu.org/licenses/gpl-3.0.html). It comes without any warranty.";
  lblLibraries.Caption =
      "It stands on these libraries:\n"
      "Qt 6, GNU LGPL version 3 (https://www.qt.io)\n"
      "QCustomPlot, GNU GPL version 3 or later (https://www.qcustomplot.com)\n"
      "CHMLib, GNU LGPL version 2.1 or later (http://www.jedrea.com/chmlib)";
  cmdOK.Caption = "OK";
  cmdOK.Click = [this] { cmdOK_Click(); };
}

void frmAbout::cmdOK_Click() {
  Unload();
}
