#pragma once

#include <string>

namespace quendle {

struct MediaWorld;

// Ends the game over a picture file (full path) that could not be loaded just now: with the box of
// a missing file, with what is wrong in a damaged one, or with the display's failure.
[[noreturn]] void FailOnPicture(const MediaWorld& world, const std::string& path);

}  // namespace quendle
