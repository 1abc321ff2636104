// The clipboard, message boxes, file dialogs, clock and progress bars of the desktop.
#pragma once

#include <QProgressDialog>
#include <memory>

#include "platform/Services.h"

class QtClipboard : public Clipboard {
 public:
  void Clear() override;
  std::string Text() override;
  void SetText(const std::string& text) override;
  void SetPage(const std::string& text, const std::string& html) override;
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

class QtClock : public Clock {
 public:
  std::string ShortDate() override;
};

class QtProgress : public Progress {
 public:
  bool Show(const std::string& text, int done, int total) override;

 private:
  std::unique_ptr<QProgressDialog> dialog_;
};
