#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendle {

// The components of a path below the base directory, folders first, the file's name last.
using ContentPath = std::vector<std::string>;

// Takes a full path apart: `base_directory` (case ignored) in front, then components parted by
// backslashes or slashes; doubled separators count as one. Nothing for a path that isn't below the
// base, ends with a separator, holds "..", a colon (a drive letter) or a NUL byte, or is longer
// than 4096 bytes.
std::optional<ContentPath> SplitContentPath(std::string_view path, std::string_view base_directory);

}  // namespace quendle
