// The problem of the main window at one moment, for the way back to it.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "app/project/ProjectFile.h"
#include "engine/ChannelState.h"
#include "platform/Controls.h"

/// The file of a project, and what is remembered of it. A save changes it for every step that knows it.
struct KnownFile {
  std::string Path, Title, Folder;  ///< as the shared variables have them; up to date while it is not in use
  std::string RecoveredFrom;        ///< the file of recovered work until it is saved
  std::string Bytes;                ///< when it was opened or last saved
};

/// Texts that were typed in boxes which have become results, and the points at that time.
struct TypedBefore {
  std::map<const TextBox*, std::string> Texts;
  PointTable Points;
};

struct UndoStep {
  ProjectFile::Project Project;
  TypedBefore Typed;
  std::shared_ptr<KnownFile> File;
  bool Changed = false;

  /// The same problem in the same file.
  friend bool operator==(const UndoStep& a, const UndoStep& b) {
    return a.Project == b.Project && a.Typed.Texts == b.Typed.Texts && a.File->Path == b.File->Path;
  }
};
