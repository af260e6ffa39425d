#pragma once

#include <string_view>

namespace quendle {

// What a menu does with a message.
enum class MenuVerb {
  kInner,  // what any object does with it
  kScore   // down to the children that show scores
};

MenuVerb MenuVerbOf(std::string_view message);

}  // namespace quendle
