#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quendle {

// A whole sound as samples. Its length is counted in them: what a file says of itself is coarse.
struct DecodedSound {
  int rate = 0;                       // frames a second, above 0
  int channels = 0;                   // 1, or 2: left and right
  std::vector<std::int16_t> samples;  // the channels of a frame stand beside each other

  std::size_t Frames() const { return samples.size() / static_cast<std::size_t>(channels); }
  double Seconds() const { return static_cast<double>(Frames()) / rate; }
  std::size_t Bytes() const { return samples.size() * sizeof(std::int16_t); }
};

}  // namespace quendle
