// The services of a desktop without one: they remember what was asked and answer what was queued.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/Services.h"

class FakeClipboard : public Clipboard {
 public:
  void Clear() override { text_.clear(); }
  std::string Text() override { return text_; }
  void SetText(const std::string& text) override { text_ = text; }

 private:
  std::string text_;
};

class FakeMessageBox : public MessageBox {
 public:
  struct Shown {
    std::string Title, Text;
    BoxIcon Icon;
  };
  /// The queued answer; none queued: Cancel, or Ok where that is the only button.
  BoxAnswer Show(const std::string& text, const std::string& title, BoxIcon icon,
                 BoxButtons buttons) override;

  std::deque<BoxAnswer> Answers;
  std::vector<Shown> Boxes;
};

class FakeFileDialog : public FileDialog {
 public:
  /// The queued choice; none queued cancels.
  std::optional<std::string> Choose(const FileDialogRequest& request) override;

  std::deque<std::optional<std::string>> Choices;
  std::vector<FileDialogRequest> Requests;
};

struct FakeServices {
  FakeClipboard clipboard;
  FakeMessageBox messageBox;
  FakeFileDialog fileDialog;

  Services With(WindowHost& windows) { return {clipboard, messageBox, fileDialog, windows}; }
};
