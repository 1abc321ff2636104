// See Conversation.h.
#include "console/Conversation.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <utility>

#include "app/Version.h"
#include "support/LocaleTest.h"
#include "support/Split.h"
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

/// The text before the first separator and the one behind it.
std::pair<std::string, std::string> Parted(const std::string& text, std::string_view separator) {
  const std::size_t at = std::min(text.find(separator), text.size());
  return {text.substr(0, at), text.substr(std::min(at + separator.size(), text.size()))};
}

/// "13 shift" of "Shift+Enter".
std::string CodeOf(const std::string& key) {
  static const std::map<std::string, std::string> codes = {
      {"Enter", "13"}, {"KeypadEnter", "108"}, {"Escape", "27"}, {"PageUp", "33"}, {"PageDown", "34"},
      {"Left", "37"},  {"Up", "38"},           {"Right", "39"},  {"Down", "40"},   {"Delete", "46"}};
  const auto [modifier, name] = Parted(key, "+");
  if (modifier == "Shift") return CodeOf(name) + " shift";
  if (modifier == "Ctrl") return CodeOf(name) + " ctrl";
  return codes.at(key);
}

std::vector<Exchange> Paste(const std::string& block, const std::string& text) {
  return {{"select MSFlexGrid1 " + block}, {"clipboard " + text}, {"click cmdPaste"}};
}

/// Makes the channel a section of points such as "0 10 0.03".
std::vector<Exchange> Section(const std::vector<std::string>& points) {
  std::string text;
  for (const std::string& point : points) {
    std::vector<std::string> cells = Split(point, " ");
    cells.resize(3);
    text += (text.empty() ? "" : "\\r") + cells[0] + "\\t" + cells[1] + "\\t" + cells[2];
  }
  std::vector<Exchange> section = Paste("1 1 " + std::to_string(points.size()) + " 3", text);
  section.insert(section.begin(), {"click cmdIrreg"});
  section.push_back({"click cmdOK"});
  return section;
}

/// The exchanges that a line of the file stands for.
std::vector<Exchange> Meant(const std::string& line) {
  const auto [word, rest] = Parted(line, " ");
  if (word == "points") return Section(Split(rest, ", "));
  if (word == "paste") return Paste(Parted(rest, ": ").first, Parted(rest, ": ").second);
  std::vector<Exchange> meant;
  if (word == "click" && line.find(" =") == std::string::npos) {
    for (const std::string& control : Split(rest, ", ")) meant.push_back({"click " + control});
  } else if (word == "enter") {
    for (const std::string& item : Split(rest, ", ")) meant.push_back({"type " + item});
  } else if (word == "expect") {
    for (const std::string& item : Split(rest, ", ")) {
      const auto [name, value] = Parted(item, " ");
      const bool shared = name.starts_with("RatingRange.");
      const char* const property = name.find('.') == std::string::npos ? ".Text" : "";
      meant.push_back({(shared ? "shared " : "get ") + name + property, value});
    }
  } else if (word == "cells") {
    for (const std::string& item : Split(rest, ", ")) {
      const auto [row, cell] = Parted(item, " ");
      const auto [col, text] = Parted(cell, " ");
      meant.push_back({"cell MSFlexGrid1 " + row + " " + col, text});
    }
  } else if (word == "press") {
    const auto [control, keys] = Parted(rest, " ");
    for (const std::string& key : Split(keys, " ")) meant.push_back({"key " + control + " " + CodeOf(key)});
  } else if (line.find(" =") == std::string::npos) {
    meant.push_back({line});
  } else {
    const auto [asked, reply] = Parted(line, " =");
    meant.push_back({asked, reply.substr(std::min<std::size_t>(1, reply.size()))});
  }
  return meant;
}

}  // namespace

std::vector<Exchange> ReadConversation(const std::string& path) {
  std::vector<Exchange> conversation;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    std::ranges::copy(Meant(line), std::back_inserter(conversation));
  }
  return conversation;
}

std::vector<Exchange> InLocale(const NumberLocale& locale, const std::vector<Exchange>& conversation) {
  std::vector<Exchange> respelled = {{"locale " + locale.DecimalSign + " " + locale.GroupSeparator, "ok"}};
  for (const Exchange& exchange : conversation) {
    const bool typed = exchange.Line.starts_with("type tb") || exchange.Line.starts_with("clipboard");
    const bool read = exchange.Line.starts_with("get tb") || exchange.Line.starts_with("get frmMain.tb") ||
                      exchange.Line.starts_with("get lst") || exchange.Line.starts_with("get frmWorking.") ||
                      exchange.Line.starts_with("get lbl") || exchange.Line.starts_with("get cmd") ||
                      exchange.Line.starts_with("cell ") || exchange.Line == "printed" ||
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
    if (entry.path().extension() == ".txt") files.push_back(entry.path().generic_string());
  }
  std::ranges::sort(files);
  return files;
}
