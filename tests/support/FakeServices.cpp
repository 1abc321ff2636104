// See FakeServices.h.
#include "support/FakeServices.h"

#include <initializer_list>
#include <utility>

namespace {

template <class T>
std::optional<T> TakeFirst(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  T first = queue.front();
  queue.pop_front();
  return first;
}

}  // namespace

BoxAnswer FakeMessageBox::Show(const std::string& text, const std::string& title, BoxIcon icon,
                               BoxButtons buttons) {
  Boxes.push_back({title, text, icon});
  return TakeFirst(Answers).value_or(buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Cancel);
}

std::optional<std::string> FakeFileDialog::Choose(const FileDialogRequest& request) {
  Requests.push_back(request);
  return TakeFirst(Choices).value_or(std::nullopt);
}

namespace {

std::string Joined(const std::string& name, std::initializer_list<int> numbers) {
  std::string call = name;
  for (const int number : numbers) call += " " + std::to_string(number);
  return call;
}

}  // namespace

void FakePrinter::SetFont(const PrintFont& font) {
  std::string call = "font " + std::string(font.Name) + " " + std::to_string(font.Size);
  for (const bool is : {font.Bold, font.Italic, font.Underline}) call += is ? " True" : " False";
  Calls.push_back(call);
}

void FakePrinter::Text(int x, int y, const std::string& text, int maxWidth) {
  Texts.push_back({x, y, maxWidth, text});
  Calls.push_back(Joined("text", {x, y}) + " " + text);
}

void FakePrinter::Line(int x1, int y1, int x2, int y2, int penWidth) {
  Calls.push_back(Joined("line", {x1, y1, x2, y2, penWidth}));
}

void FakePrinter::Picture(const XYChart&, int x, int y, int width, int height) {
  Calls.push_back(Joined("picture", {x, y, width, height}));
}

bool FakePrinter::End() {
  Calls.emplace_back("end");
  return Works;
}

std::vector<std::string> FakePrinter::TakeCalls() {
  Texts.clear();
  return std::exchange(Calls, {});
}

Printer* FakePrinterDialog::Choose(const PrintRequest& request) {
  Requests.push_back(request);
  return TakeFirst(Answers).value_or(false) ? &Paper : nullptr;
}

void FakePrinterDialog::Preview(const PrintRequest& request, const std::function<void(Printer&)>& write) {
  Requests.push_back(request);
  write(Screen);
}

bool FakeProgress::Show(const std::string& text, int done, int total) {
  Reports.push_back(text + " " + std::to_string(done) + "/" + std::to_string(total));
  return done != CancelAt;
}
