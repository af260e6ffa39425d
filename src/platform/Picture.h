#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Geometry.h"

namespace quendle {

// Pixels in memory: words 0x00RRGGBB, row by row from the top, without padding.
struct Picture {
  Size size;
  std::vector<std::uint32_t> words;

  bool Empty() const { return words.empty(); }
  std::uint32_t At(int x, int y) const {
    return words[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                 static_cast<std::size_t>(x)];
  }
  friend bool operator==(const Picture&, const Picture&) = default;
};

// Pixels that several may look at and nobody changes.
using SharedPicture = std::shared_ptr<const Picture>;

}  // namespace quendle
