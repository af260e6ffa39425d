// Rules of content that the engine's own check and the author's tool share.
#pragma once

#include <string_view>

namespace quendle {

struct AnimationFrame;

// True if the numbers of a frame fit a frame of 800 by 600. Where it stands in its picture isn't
// looked at.
bool FrameFitsScreen(const AnimationFrame& frame);

// True if a patient's state of that name must have a twin, the name with "-owww" behind it.
bool NeedsOwwwTwin(std::string_view state_name);

}  // namespace quendle
