// The windows that the main window opens, as far as it needs to know them: how to open each.
#pragma once

class SubWindows {
 public:
  virtual ~SubWindows() = default;
  virtual void OpenDigits() = 0;
  virtual void OpenMannParam() = 0;
  virtual void OpenGraph() {}
  virtual void OpenTable() {}
};
