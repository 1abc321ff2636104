// The clipboard, message boxes and file dialogs of the desktop.
#pragma once

#include "platform/Services.h"

class QtClipboard : public Clipboard {
 public:
  void Clear() override;
  std::string Text() override;
  void SetText(const std::string& text) override;
};

class QtMessageBox : public MessageBox {
 public:
  BoxAnswer Show(const std::string& text, const std::string& title, BoxIcon icon,
                 BoxButtons buttons) override;
};

class QtFileDialog : public FileDialog {
 public:
  std::optional<std::string> Choose(const FileDialogRequest& request) override;
};
