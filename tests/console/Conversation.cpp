// See Conversation.h.
#include "console/Conversation.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "app/Version.h"
#include "support/LocaleTest.h"
#include "support/TestFolder.h"

namespace {

/// An empty folder to work in while it lives, so that a conversation can save and open "./name.fwd".
class WorkingFolder {
 public:
  WorkingFolder() { std::filesystem::current_path(folder_.Path()); }
  ~WorkingFolder() { std::filesystem::current_path(before_); }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
  TestFolder folder_;
};

/// With the version of the program in place of "{version}".
std::string WithVersion(std::string text) {
  constexpr std::string_view placeholder = "{version}";
  const std::size_t at = text.find(placeholder);
  if (at == std::string::npos) return text;
  return text.replace(at, placeholder.size(), std::string("v") + VersionName);
}

}  // namespace

std::vector<Exchange> ReadConversation(const std::string& path) {
  std::vector<Exchange> conversation;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    const std::size_t equals = line.find(" =");
    if (equals == std::string::npos) {
      conversation.push_back({line, "ok"});
    } else {
      conversation.push_back({line.substr(0, equals), line.substr(std::min(equals + 3, line.size()))});
    }
  }
  return conversation;
}

std::vector<Exchange> InLocale(const NumberLocale& locale, const std::vector<Exchange>& conversation) {
  std::vector<Exchange> respelled = {{"locale " + locale.DecimalSign + " " + locale.GroupSeparator, "ok"}};
  for (const Exchange& exchange : conversation) {
    const bool typed = exchange.Line.starts_with("type tb") || exchange.Line.starts_with("clipboard");
    const bool read = exchange.Line.starts_with("get tb") || exchange.Line.starts_with("get frmMain.tb") ||
                      exchange.Line.starts_with("get lst") || exchange.Line.starts_with("get lblMissing") ||
                      exchange.Line.starts_with("get lblStatus") || exchange.Line.starts_with("cell ") ||
                      exchange.Line == "printed" ||
                      (exchange.Line.starts_with("record points") && exchange.Reply.starts_with("t:")) ||
                      exchange.Line.starts_with("clipboard");
    respelled.push_back({typed ? Respelled(locale, exchange.Line) : exchange.Line,
                         read ? Respelled(locale, exchange.Reply) : exchange.Reply});
  }
  return respelled;
}

std::vector<std::string> Differences(const std::vector<Exchange>& conversation,
                                     const Console::MakeStage& stage) {
  const WorkingFolder folder;
  std::vector<std::string> differences;
  std::size_t asked = 0;
  std::size_t answered = 0;
  const auto read = [&]() -> std::optional<std::string> {
    if (asked == conversation.size()) return std::nullopt;
    return conversation[asked++].Line;
  };
  const auto write = [&](const std::string& reply) {
    const Exchange& exchange = conversation[answered++];
    const std::string expected = WithVersion(exchange.Reply);
    if (reply != expected) {
      differences.push_back(exchange.Line + ": " + reply + " instead of " + expected);
    }
  };
  Console(stage, read, write).Run();
  if (answered != conversation.size()) differences.push_back("the conversation broke off");
  return differences;
}

std::vector<std::string> ConversationFiles(const std::string& folder) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".txt") files.push_back(entry.path().string());
  }
  std::ranges::sort(files);
  return files;
}
