#pragma once

#include <string>
#include <string_view>

namespace quendle {

// The 8-bit text of what the system gives in UTF-8; characters that content can't hold are left
// out.
std::string FromUtf8(std::string_view text);

}  // namespace quendle
