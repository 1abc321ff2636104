// What the calculator asks of the desktop it runs on. Program installs the services once; the windows only
// call them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Form;
class XYChart;

/// The system clipboard's text (UTF-8).
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void Clear() = 0;
  virtual std::string Text() = 0;
  virtual void SetText(const std::string& text) = 0;
  /// A text and the same as the body of a web page: the program that pastes takes what it can use.
  virtual void SetPage(const std::string& text, const std::string& html) = 0;
};

enum class BoxIcon { Exclamation, Information };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
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
  /// The full path chosen, or nothing when the user cancels.
  virtual std::optional<std::string> Choose(const FileDialogRequest& request) = 0;
};

struct PrintFont {
  std::string_view Name;
  int Size = 0;  ///< points
  bool Bold = false, Italic = false, Underline = false;

  /// Twips from one line to the next: Arial's own spacing is 1.15 of its size, and 20 twips are a point.
  constexpr int LineHeight() const { return Size * 20 * 115 / 100; }
};

/// What a printed text is, which decides how the painter sets one that is wider than its room.
enum class PrintedAs {
  Value,     ///< a caption, or a number and its unit: condensed; exponents are raised ("m^2")
  Name,      ///< as typed: wrapped onto a second line, which ends with "…" where it is too long as well
  FilePath,  ///< likewise, but the ellipsis stands inside the second line and its end stays
};

/// The page that is printed on. Positions and sizes are in twips (1440 to the inch), from the left top corner
/// of the paper.
class Printer {
 public:
  virtual ~Printer() = default;
  virtual int PageWidth() const = 0;
  virtual int PageHeight() const = 0;
  /// For the texts that follow, on this page and the next ones.
  virtual void SetFont(const PrintFont& font) = 0;
  /// A text, its top left corner at (x, y), at most `maxWidth` wide. Returns the number of lines it took, 1
  /// or 2, each a line height of the font below the one before.
  virtual int Text(int x, int y, const std::string& text, int maxWidth, PrintedAs as = PrintedAs::Value) = 0;
  virtual void Line(int x1, int y1, int x2, int y2, int penWidth) = 0;
  /// The chart as it is now, in light colours; it must live until the end of the document.
  virtual void Picture(const XYChart& chart, int x, int y, int width, int height) = 0;
  virtual void NewPage() = 0;
  /// Ends the document and sends its pages, telling how far it has come; false when they cannot be printed.
  /// That the user cancels is no failure.
  virtual bool End() = 0;
};

struct PrintRequest {
  std::string Title;        ///< of the dialog
  bool Landscape = false;   ///< the orientation proposed
  std::string Option = {};  ///< what a page of the dialog offers, off at first; empty: nothing
};

class PrinterDialog {
 public:
  virtual ~PrinterDialog() = default;
  /// The printer chosen, at the start of a document; null when the user cancels.
  virtual Printer* Choose(const PrintRequest& request) = 0;
  /// The user wants what the last dialog offered.
  virtual bool IsOptionChosen() const = 0;
  /// Shows on the screen the pages that `write` prints, from where the user may print them.
  virtual void Preview(const PrintRequest& request, const std::function<void(Printer&)>& write) = 0;
  /// The pages that `write` prints as the bytes of a PDF file; empty when it cannot be made.
  virtual std::string Pdf(const PrintRequest& request, const std::function<void(Printer&)>& write) = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  /// Today's date in the short form of the system.
  virtual std::string ShortDate() = 0;
};

/// Reports the progress of a long command.
class Progress {
 public:
  virtual ~Progress() = default;
  /// `done` of `total` steps of what the text names; the last step ends the display. False: the user
  /// cancels, and the display has ended.
  virtual bool Show(const std::string& text, int done, int total) = 0;
};

/// The window that shows the help file, beside whatever form is open.
class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  // Each brings the window to the front, opened where it was left, and is false when no help file can be
  // read.
  virtual bool ShowContents() = 0;
  virtual bool ShowIndex() = 0;
  /// The page, at the element with the id `anchor` where it has one.
  virtual bool ShowPage(const std::string& page, const std::string& anchor) = 0;
  virtual void Close() = 0;
};

/// Shows forms and keeps the order in which they lie above each other.
class WindowHost {
 public:
  virtual ~WindowHost() = default;
  /// Loads the form, shows it and returns while it stays open.
  void Show(Form& form);
  /// Loads and shows the form, returns when it is unloaded, and then activates the form below.
  void ShowModal(Form& form);
  /// Loads and shows the form beside the others, or brings it to the front when it is open. It is usable as
  /// long as it is loaded, whatever form is on top, and never is the one on top.
  void ShowBeside(Form& form);
  /// The form that answers the keyboard; null when none is open.
  Form* Top() const;
  /// From the lowest to the one on top, and forms just unloaded.
  const std::vector<Form*>& OpenForms() const { return open_; }
  /// Those shown beside them, and some of them unloaded.
  const std::vector<Form*>& FormsBeside() const { return beside_; }

 protected:
  virtual void Open(Form& form) = 0;
  /// Brings an open form to the front and gives it the keyboard.
  virtual void Raise(Form& form) = 0;
  /// Returns when the form is unloaded.
  virtual void Wait(Form& form) = 0;

 private:
  std::vector<Form*> open_, beside_;
};

struct Services {
  Clipboard& clipboard;
  MessageBox& messageBox;
  FileDialog& fileDialog;
  WindowHost& windows;
  PrinterDialog& printerDialog;
  Clock& clock;
  Progress& progress;
  HelpViewer& helpViewer;
};

/// Makes these the services of the program; they must outlive its windows.
void InstallServices(const Services& services);
const Services& TheServices();
