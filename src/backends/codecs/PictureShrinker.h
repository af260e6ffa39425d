#pragma once

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "platform/Picture.h"
#include "platform/PictureLoader.h"

namespace quendle {

// Makes a picture of its rows as they come from a decoder. One that passes the limit is shrunk by
// the smallest whole number that brings both sides down to what is wanted, so that it is never in
// memory whole: each pixel is the mean of the block it comes from, and the rest at the right and
// the bottom is left out. A strip narrower than a block keeps one pixel.
class PictureShrinker {
 public:
  PictureShrinker(Size from, PictureLimit limit);

  // The next row from the top, as wide as the picture.
  void AddRow(std::span<const std::uint32_t> words);
  // The finished picture; call it after the last row.
  Picture Take() { return std::move(picture_); }

 private:
  struct Sum {
    std::uint64_t red = 0;
    std::uint64_t green = 0;
    std::uint64_t blue = 0;
  };
  void AddToSums(std::span<const std::uint32_t> words);
  void WriteSums();

  int factor_ = 1;
  int columns_ = 1;  // of a block
  int rows_ = 1;
  int height_ = 1;  // of what comes out
  int rows_added_ = 0;
  std::vector<Sum> sums_;
  Picture picture_;
};

}  // namespace quendle
