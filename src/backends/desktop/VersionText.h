#pragma once

#include <string>

#include "backends/desktop/GameFolders.h"

namespace quendle {

// What --version prints: `build` as given, the libraries in use, the drawing backend that a window
// gets here, the font and the folders. Opens a hidden window for a moment.
std::string VersionText(const std::string& program, const std::string& build,
                        const GameFolders& folders);

}  // namespace quendle
