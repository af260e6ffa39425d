#pragma once

#include <string>

#include "platform/Picture.h"

namespace quendle {

// Writes pictures of the game.
class PictureSaver {
 public:
  virtual ~PictureSaver() = default;
  // Writes a 24-bit bitmap file at a full path of the game, in place of any old one: pixels and
  // their size, and nothing else. False on failure; then the old file is still there.
  virtual bool SavePicture(const std::string& path, const Picture& picture) = 0;
};

}  // namespace quendle
