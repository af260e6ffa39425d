#pragma once

#include <string>
#include <string_view>

namespace quendle {

// The name in the 8-bit character set of content that a file of the disk (in UTF-8) has. A name
// that isn't UTF-8, or holds a character that content can't write, stays as it is.
std::string ContentName(std::string_view disk_name);

}  // namespace quendle
