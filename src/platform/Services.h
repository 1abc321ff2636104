// What the calculator asks of the desktop it runs on. Program installs the services once; the windows only
// call them.
#pragma once

#include <optional>
#include <string>
#include <vector>

class Form;

/// The system clipboard's plain text (UTF-8).
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void Clear() = 0;
  virtual std::string Text() = 0;
  virtual void SetText(const std::string& text) = 0;
};

enum class BoxIcon { Exclamation, Information };
enum class BoxButtons { Ok, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };

class MessageBox {
 public:
  virtual ~MessageBox() = default;
  virtual BoxAnswer Show(const std::string& text, const std::string& title, BoxIcon icon,
                         BoxButtons buttons) = 0;
};

struct FileDialogRequest {
  bool Saving = false;  ///< a save dialog, which confirms before an existing file is overwritten
  std::string Title;
  std::string Folder;    ///< where to start; one that does not exist means the home folder
  std::string Filter;    ///< "Text (*.txt)|*.txt|All Files (*.*)|*.*"
  std::string FileName;  ///< proposed name
};

class FileDialog {
 public:
  virtual ~FileDialog() = default;
  /// The full path chosen, or nothing when the person cancels.
  virtual std::optional<std::string> Choose(const FileDialogRequest& request) = 0;
};

/// Shows forms and keeps the order in which they lie above each other.
class WindowHost {
 public:
  virtual ~WindowHost() = default;
  /// Loads the form, shows it and returns while it stays open.
  void Show(Form& form);
  /// Loads and shows the form, returns when it is unloaded, and then activates the form below.
  void ShowModal(Form& form);
  /// The form that answers the keyboard; null when none is open.
  Form* Top() const;
  /// From the lowest to the one on top, and forms just unloaded.
  const std::vector<Form*>& OpenForms() const { return open_; }

 protected:
  virtual void Open(Form& form) = 0;
  /// Returns when the form is unloaded.
  virtual void Wait(Form& form) = 0;

 private:
  std::vector<Form*> open_;
};

struct Services {
  Clipboard& clipboard;
  MessageBox& messageBox;
  FileDialog& fileDialog;
  WindowHost& windows;
};

/// Makes these the services of the program; they must outlive its windows.
void InstallServices(const Services& services);
const Services& TheServices();
