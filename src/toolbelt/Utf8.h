#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quendle {

// The 8-bit text of a UTF-8 text; nothing when a character has no place in the 8-bit set or the
// bytes aren't UTF-8.
std::optional<std::string> FromUtf8(std::string_view utf8);

}  // namespace quendle
