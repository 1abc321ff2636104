// What the main window opens and prints, as far as it needs to know it: how to begin each.
#pragma once

class SubWindows {
 public:
  virtual ~SubWindows() = default;
  virtual void OpenDigits() = 0;
  virtual void OpenMannParam() = 0;
  virtual void OpenIrreg() = 0;
  virtual void OpenSection() = 0;
  virtual void OpenGraph() = 0;
  virtual void OpenTable() = 0;
  virtual void OpenWorking() = 0;
  virtual void OpenFind() = 0;
  /// The inputs were judged anew: what shows the answer beside the main window follows.
  virtual void FollowAnswer() = 0;
  virtual void CopyResults() = 0;
  virtual void PrintReport() = 0;
  virtual void PreviewReport() = 0;
  virtual void OpenHelpContents() = 0;
  virtual void OpenHelpIndex() = 0;
  /// Closes the windows that stand beside the main window.
  virtual void CloseBeside() = 0;
  virtual void OpenAbout() = 0;
};
