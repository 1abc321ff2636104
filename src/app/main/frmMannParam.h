// The list of typical Manning's n values; the one chosen goes to where the list was opened from: the main
// window's box, or a cell of the point editor.
#pragma once

#include <functional>
#include <string>

#include "app/main/frmMain.h"
#include "platform/Controls.h"

class frmMannParam : public Form {
 public:
  explicit frmMannParam(frmMain& main);
  /// `take` gets the n chosen, spelled as it is typed; `typed` is the text that it replaces.
  frmMannParam(std::string typed, std::function<void(const std::string& n)> take);

  ListBox lstMannParam{this, "lstMannParam"};
  Button cmdOK{this, "cmdOK"}, cmdCancel{this, "cmdCancel"};

  void cmdOK_Click();
  void cmdCancel_Click();

 protected:
  void Form_Load() override;

 private:
  std::string typed_;
  std::function<void(const std::string&)> take_;
};
