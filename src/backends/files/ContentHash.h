#pragma once

#include <string>

namespace quendle {

// 16 hexadecimal digits for the content in a folder (native path), the same on every machine: names
// and bytes of all files in its subfolders. Files directly in the folder are left out, since the
// executables and what the game writes stand there, and so is what begins with a dot.
std::string HashOfContent(const std::string& folder);

}  // namespace quendle
