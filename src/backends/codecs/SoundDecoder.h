#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "backends/codecs/DecodedSound.h"

namespace quendle {

// What a sound may take up at most.
struct SoundLimits {
  double seconds = 15 * 60;
  std::size_t samples = 50'000'000;  // of all channels together: 100 MB
};

// A decoded sound, or the reason why there is none.
struct SoundDecoding {
  std::shared_ptr<const DecodedSound> sound;  // null on failure, never without samples
  std::string problem;                        // a clause for the log: "it ..."
};

// Makes samples of the bytes of a sound file. Any bytes are safe: they give a sound or a reason,
// within the limits of memory, and always come to an end.
//
// Files are Windows Media Audio (1 or 2) and waves of plain samples (8 or 16 bits), by what the
// bytes show; the name of a file plays no part. A file that was cut sounds up to the cut. Pieces
// that can't be decoded are left out; when they are more than half of the sound, it is damaged.
class SoundDecoder {
 public:
  explicit SoundDecoder(SoundLimits limits = {}) : limits_(limits) {}

  SoundDecoding Decode(std::string_view bytes) const;
  // Name and version of the decoding library.
  static std::string Library();

 private:
  SoundLimits limits_;
};

}  // namespace quendle
