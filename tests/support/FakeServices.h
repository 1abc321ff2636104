// The services of a desktop without one: they remember what was asked and answer what was queued.
#pragma once

#include <deque>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Services.h"

/// What was queued first, or nothing.
template <class T>
std::optional<T> TakeFirst(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  T first = queue.front();
  queue.pop_front();
  return first;
}

class FakeClipboard : public Clipboard {
 public:
  void Clear() override { text_.clear(); }
  std::string Text() override { return text_; }
  void SetText(const std::string& text) override { SetPage(text, ""); }
  void SetPage(const std::string& text, const std::string& html) override {
    text_ = text;
    Html = html;
  }

  std::string Html;

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
                 BoxButtons buttons) override {
    Boxes.push_back({title, text, icon});
    return TakeFirst(Answers).value_or(buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Cancel);
  }

  std::deque<BoxAnswer> Answers;
  std::vector<Shown> Boxes;
};

class FakeFileDialog : public FileDialog {
 public:
  /// The queued choice; none queued cancels.
  std::optional<std::string> Choose(const FileDialogRequest& request) override {
    Requests.push_back(request);
    return TakeFirst(Choices).value_or(std::nullopt);
  }

  std::deque<std::optional<std::string>> Choices;
  std::vector<FileDialogRequest> Requests;
};

/// Writes down what it is told, a line each.
class FakePrinter : public Printer {
 public:
  int Width = 12240, Height = 15840;    ///< twips: Letter
  std::size_t CharactersOfName = 1000;  ///< longer names take two lines
  bool Works = true;
  std::vector<std::string> Calls;

  struct PrintedText {
    int X, Y, MaxWidth;
    std::string Text;
  };
  std::vector<PrintedText> Texts;

  /// The calls so far, which are forgotten.
  std::vector<std::string> TakeCalls() {
    Texts.clear();
    return std::exchange(Calls, {});
  }

  int PageWidth() const override { return Width; }
  int PageHeight() const override { return Height; }
  void SetFont(const PrintFont& font) override {
    const auto told = [](bool is) { return is ? " True" : " False"; };
    Calls.push_back("font " + std::string(font.Name) + " " + std::to_string(font.Size) + told(font.Bold) +
                    told(font.Italic) + told(font.Underline));
  }
  int Text(int x, int y, const std::string& text, int maxWidth, PrintedAs as) override {
    Texts.push_back({x, y, maxWidth, text});
    Calls.push_back(Joined("text", {x, y}) + " " + text);
    return as != PrintedAs::Value && text.size() > CharactersOfName ? 2 : 1;
  }
  void Line(int x1, int y1, int x2, int y2, int penWidth) override {
    Calls.push_back(Joined("line", {x1, y1, x2, y2, penWidth}));
  }
  void Picture(const XYChart&, int x, int y, int width, int height) override {
    Calls.push_back(Joined("picture", {x, y, width, height}));
  }
  void NewPage() override { Calls.emplace_back("newpage"); }
  bool End() override {
    Calls.emplace_back("end");
    return Works;
  }

 private:
  static std::string Joined(std::string call, std::initializer_list<int> numbers) {
    for (const int number : numbers) call += " " + std::to_string(number);
    return call;
  }
};

class FakePrinterDialog : public PrinterDialog {
 public:
  /// The queued answer; none queued: null.
  Printer* Choose(const PrintRequest& request) override {
    Requests.push_back(request);
    return TakeFirst(Answers).value_or(false) ? &Paper : nullptr;
  }
  bool IsOptionChosen() const override { return Option; }
  void Preview(const PrintRequest& request, const std::function<void(Printer&)>& write) override {
    Requests.push_back(request);
    write(Screen);
  }
  std::string Pdf(const PrintRequest& request, const std::function<void(Printer&)>& write) override {
    Requests.push_back(request);
    write(File);
    return "%PDF of " + std::to_string(File.Texts.size()) + " texts";
  }

  bool Option = false;
  FakePrinter Paper, Screen, File;
  std::deque<bool> Answers;
  std::vector<PrintRequest> Requests;
};

class FakeClock : public Clock {
 public:
  std::string ShortDate() override { return Today; }
  std::string Today = "2026-03-09";
};

class FakeProgress : public Progress {
 public:
  bool Show(const std::string& text, int done, int total) override {
    Reports.push_back(text + " " + std::to_string(done) + "/" + std::to_string(total));
    return done != CancelAt;
  }

  int CancelAt = -1;                 ///< the step at which the person cancels
  std::vector<std::string> Reports;  ///< "text done/total"
};

/// Remembers what was shown, a line each.
class FakeHelpViewer : public HelpViewer {
 public:
  bool ShowContents() override { return Show("contents"); }
  bool ShowIndex() override { return Show("index"); }
  bool ShowPage(const std::string& page, const std::string& anchor) override {
    return Show(page + "#" + anchor);
  }
  void Close() override { Calls.emplace_back("close"); }

  bool HasFile = true;
  std::vector<std::string> Calls;

 private:
  bool Show(const std::string& what) {
    Calls.push_back(what);
    return HasFile;
  }
};

struct FakeServices {
  FakeClipboard clipboard;
  FakeMessageBox messageBox;
  FakeFileDialog fileDialog;
  FakePrinterDialog printerDialog;
  FakeClock clock;
  FakeProgress progress;
  FakeHelpViewer helpViewer;

  Services With(WindowHost& windows) {
    return {clipboard, messageBox, fileDialog, windows, printerDialog, clock, progress, helpViewer};
  }
};
