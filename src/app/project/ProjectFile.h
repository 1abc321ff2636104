// Projects as files: the inputs as they were typed, how they are solved and shown, and the points of a
// section, with a checksum at the end. A project is written whole or not at all, and read whole or not at
// all.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "engine/EngineValue.h"

namespace ProjectFile {

/// All that a project file keeps. The texts stand as in the boxes, in the user's number locale.
struct Project {
  /// Flow, depth, Manning's n, slope, diameter, base width, right and left side slope.
  std::array<std::string, 8> Inputs;
  std::string ChannelType;  ///< one that the engine knows
  bool SolveForFlow = false;
  int UnitsEorM = 0;  ///< 0 English, 1 metric
  std::string ProjName;
  int SigDigs = 3, EngDigs = 3;  ///< 1 to 5
  std::vector<std::array<EngineValue, 3>>
      Points;  ///< station, elevation, Manning's n: texts or numbers; at most 101

  friend bool operator==(const Project&, const Project&) = default;
};

/// The bytes of the project's file, checksum included. UTF-8; numbers with "." and "," whatever the user's
/// locale. What is typed comes back from Parse under the same locale as it was; only a plain blank typed for
/// a no-break group separator comes back as that sign, and groups close up in a locale that has lost its
/// separator.
std::string Format(const Project& project);

/// The project of a file's bytes. std::runtime_error when they are no whole project: a wrong checksum, an
/// item missing or impossible, too many items, more than 4 MiB. Digits outside 1 to 5 become 3, their
/// default.
Project Parse(std::string_view bytes);

/// Writes the project to a file, over the one that is there, and returns its bytes. Fails as
/// WholeFile::Write.
std::string Write(const std::string& path, const Project& project);

/// Reads a project from a regular file. std::runtime_error when it cannot be read or, as for Parse, is no
/// whole project.
Project Read(const std::string& path);

}  // namespace ProjectFile
