#pragma once

#include <string>

#include "platform/Geometry.h"

namespace quendle {

// A sentence to show, in 8-bit text. It stands above `bottom`, a height in the frame: what lies
// below is in use.
struct Caption {
  std::string text;
  int bottom = kFrameHeight;
  friend bool operator==(const Caption&, const Caption&) = default;
};

// What is said now, for those who read along. Asked while frames are shown; changes nothing.
class CaptionSource {
 public:
  virtual ~CaptionSource() = default;
  // False when the content has no captions.
  virtual bool HasCaptions() = 0;
  // The sentence that is said now; an empty text while nothing is said.
  virtual Caption SpokenNow() = 0;
};

}  // namespace quendle
