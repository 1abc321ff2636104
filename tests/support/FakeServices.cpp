// See FakeServices.h.
#include "support/FakeServices.h"

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
