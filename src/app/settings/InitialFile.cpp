// See InitialFile.h.
#include "app/settings/InitialFile.h"

#include <algorithm>
#include <string>

#include "app/Declarations.h"
#include "app/Units.h"
#include "app/settings/SettingsFile.h"
#include "engine/ChannelState.h"

namespace InitialFile {

namespace {

constexpr const char* Section = "Startup";

std::string Stored(const char* key) {
  return SettingsFile::Get(Section, key);
}

/// The stored text when it is a single digit from `first` to `last`.
int StoredDigit(const char* key, int first, int last, int otherwise) {
  const std::string text = Stored(key);
  if (text.size() != 1 || text[0] < '0' + first || text[0] > '0' + last) return otherwise;
  return text[0] - '0';
}

}  // namespace

void LoadPreferences() {
  const std::string type = Stored("ChanType");
  const bool known = std::ranges::find(ChannelTypes::All, std::string_view(type)) != ChannelTypes::All.end();
  ChannelState.ChannelType = known ? type : ChannelTypes::Circular;
  ChannelState.SolveForFlow = Stored("SolveForFlow") == "True";
  ChannelState.UnitsEorM = StoredDigit("UnitsEorM", Units::English, Units::Last, Units::English);
  Declarations::SigDigs = StoredDigit("SigDigs", 1, 5, 3);
  Declarations::EngDigs = StoredDigit("EngDigs", 1, 5, 3);
  Declarations::UserPath = Stored("UserPath");
  if (Declarations::UserPath.empty()) Declarations::UserPath = "c:\\";
}

void SavePreferences() {
  SettingsFile::Save(Section, {{"ChanType", ChannelState.ChannelType},
                               {"SolveForFlow", ChannelState.SolveForFlow ? "True" : "False"},
                               {"UnitsEorM", std::to_string(ChannelState.UnitsEorM)},
                               {"SigDigs", std::to_string(Declarations::SigDigs)},
                               {"EngDigs", std::to_string(Declarations::EngDigs)},
                               {"UserPath", Declarations::UserPath}});
}

}  // namespace InitialFile
