// A conversation with the program, kept as a file: a line to the console, and behind it the reply expected.
#pragma once

#include <string>
#include <vector>

#include "console/Console.h"
#include "engine/NumberText.h"

struct Exchange {
  std::string Line;
  std::string Reply = "ok";
};

/// Reads a conversation, a line "get tbArea.Text = 20.0" for each exchange; without "=" the reply is "ok".
/// "#" starts a remark. Some lines stand for several:
///   click mnuOptionsTrap, mnuSolveForFlow     one after the other
///   enter tbDepth 2, tbSlope 0.001            types into one box after the other
///   expect tbFlow 91.7, tbSSL.Enabled False   gets properties, the text where none is named,
///                                             or variables of the rating range
///   press tbSel Shift+Enter Escape            presses named keys
///   points 0 10 0.03, 10 0, 20 10             makes these points the section
///   paste 1 1 2 2: 5\t6\r7\t8                 pastes into this block of the open table
///   cells 1 2 10, 3 1                         texts of the table: 10 in row 1 and column 2, none in row 3
std::vector<Exchange> ReadConversation(const std::string& path);

/// The same conversation in another locale: what is typed into boxes and read off them is spelled that way.
std::vector<Exchange> InLocale(const NumberLocale& locale, const std::vector<Exchange>& conversation);

/// Holds the conversation and returns what went otherwise, a line each. "{version}" in a reply is the version
/// of the program.
std::vector<std::string> Differences(const std::vector<Exchange>& conversation,
                                     const Console::MakeStage& stage);

/// All conversations in a folder, by path.
std::vector<std::string> ConversationFiles(const std::string& folder);
