#pragma once

#include <string_view>

namespace quendle {

// What the frame of a subgame does with a message.
enum class FrameVerb {
  kInner,  // what any object does with it
  kScore,  // down to the menu
  kClimb   // to the parent, before any child is looked for
};

FrameVerb FrameVerbOf(std::string_view message);

}  // namespace quendle
