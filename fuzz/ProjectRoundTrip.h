// What must hold for any bytes read as a project file; shared by the fuzzer and by the test that replays its
// corpus.
#pragma once

#include <array>
#include <optional>
#include <stdexcept>
#include <string>

#include "app/project/ProjectFile.h"
#include "app/project/ProjectItems.h"
#include "engine/NumberText.h"
#include "files/TextEncoding.h"

namespace ProjectRoundTrip {

inline const std::array<NumberLocale, 4> Locales = {{{".", ","}, {",", "."}, {",", "\u202F"}, {",", ""}}};

inline std::optional<ProjectFile::Project> ParsedOrNothing(const std::string& bytes) {
  try {
    return ProjectFile::Parse(bytes);
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
}

/// True when bytes that open as a project are the same project after saving and opening again. Under a
/// no-break separator a plain blank may become that sign first.
inline bool ComesBack(const std::string& bytes) {
  auto project = ParsedOrNothing(bytes);
  if (!project) return true;
  if (CurrentNumberLocale().GroupSeparator == "\u202F")
    project = ProjectFile::Parse(ProjectFile::Format(*project));
  const std::string saved = ProjectFile::Format(*project);
  const ProjectFile::Project again = ProjectFile::Parse(saved);
  return again == *project && ProjectFile::Format(again) == saved;
}

/// The records with the checksum that chance would hardly find; empty when they are not even records.
inline std::string WithChecksum(const std::string& records) {
  try {
    const auto items = ProjectItems::Split(DecodedText(records));
    return records + "\r\n" + PlainNumber(ProjectItems::Checksum(items));
  } catch (const std::runtime_error&) {
    return {};
  }
}

/// The bytes come back, as a whole file and as one that lacks its checksum.
inline bool Holds(const std::string& bytes, const NumberLocale& locale) {
  SetNumberLocale(locale);
  const bool holds = ComesBack(bytes) && ComesBack(WithChecksum(bytes));
  SetNumberLocale({});
  return holds;
}

}  // namespace ProjectRoundTrip
