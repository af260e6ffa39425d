#pragma once

#include <string_view>

namespace quendle {

// What `quendle new` tells of the tree it makes, as the tree's README.md.
std::string_view NewContentReadme();

}  // namespace quendle
