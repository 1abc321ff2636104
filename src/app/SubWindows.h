// The windows that the main window opens, as far as it needs to know them: how to open each.
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
};
