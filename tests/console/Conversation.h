// A conversation with the program, kept as a file: a line to the console, and behind it the reply expected.
#pragma once

#include <string>
#include <vector>

#include "console/Console.h"
#include "engine/NumberText.h"

struct Exchange {
  std::string Line;
  std::string Reply;
};

/// Reads a conversation, a line "get tbArea.Text = 20.0" for each exchange; without "=" the reply is "ok".
/// "#" starts a remark.
std::vector<Exchange> ReadConversation(const std::string& path);

/// The same conversation in another locale: what is typed into boxes and read off them is spelled that way.
std::vector<Exchange> InLocale(const NumberLocale& locale, const std::vector<Exchange>& conversation);

/// Holds the conversation and returns what went otherwise, a line each. "{version}" in a reply is the version
/// of the program.
std::vector<std::string> Differences(const std::vector<Exchange>& conversation,
                                     const Console::MakeStage& stage);

/// All conversations in a folder, by path.
std::vector<std::string> ConversationFiles(const std::string& folder);
