#pragma once

#include <limits>
#include <string>

#include "platform/Picture.h"

namespace quendle {

// A picture, or what to tell the player who chose the file.
struct LoadedPicture {
  SharedPicture picture;  // nothing when `problem` is set
  std::string problem;    // one or two whole sentences; empty when the picture was read
};

// How large a picture is wanted, in pixels: one with a side longer than `most` comes shrunk, with
// no side longer than `wanted`.
struct PictureLimit {
  int most = std::numeric_limits<int>::max();
  int wanted = std::numeric_limits<int>::max();
  friend bool operator==(const PictureLimit&, const PictureLimit&) = default;
};

// Reads pictures of the player's own: JPEG, GIF (its first picture) and bitmap files.
class PictureLoader {
 public:
  virtual ~PictureLoader() = default;
  // `native_path` is a path of the system, as a file chooser gives it. What the file is goes by its
  // bytes and not by its name. The picture stands upright, as its camera meant it.
  virtual LoadedPicture LoadPicture(const std::string& native_path, PictureLimit limit) = 0;
};

}  // namespace quendle
