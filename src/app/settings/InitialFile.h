// The preferences that last from one run to the next.
#pragma once

namespace InitialFile {

/// Reads the preferences into the shared variables; a value that is missing or not one of those accepted
/// becomes the default.
void LoadPreferences();

void SavePreferences();

}  // namespace InitialFile
