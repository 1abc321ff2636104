// The whole program without a screen: builds the windows and joins each command of the main window to its
// window.
#pragma once

#include "app/main/SubWindows.h"
#include "app/main/frmMain.h"
#include "platform/Services.h"
#include "working/frmWorking.h"

class Program : private SubWindows {
 public:
  /// Installs the services; they must outlive the program. One program at a time: it owns the shared
  /// variables.
  explicit Program(const Services& services);

  /// Restores the preferences and shows the main window.
  void Start();

  frmMain Main;

 private:
  frmWorking working_{Main};

  void OpenDigits() override;
  void OpenMannParam() override;
  void OpenIrreg() override;
  void OpenSection() override;
  void OpenGraph() override;
  void OpenTable() override;
  void OpenWorking() override;
  void OpenFind() override;
  void FollowAnswer() override;
  void CopyResults() override;
  void PrintReport() override;
  void PreviewReport() override;
  void OpenHelpContents() override;
  void OpenHelpIndex() override;
  void CloseBeside() override;
  void OpenAbout() override;
};
