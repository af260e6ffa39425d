// What an author sees over the frame, ready to be drawn by any window.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace quendle {

// One line of text, in 8-bit text.
struct AuthorLine {
  enum class Tone { kHead, kHit, kPlain, kFaint };
  Tone tone = Tone::kPlain;
  int indent = 0;  // steps to the right
  std::string text;
  friend bool operator==(const AuthorLine&, const AuthorLine&) = default;
};

// A rectangle of the frame that is drawn as a line.
struct AuthorOutline {
  enum class Kind { kObject, kFrame, kRegion, kHitRegion };
  Kind kind = Kind::kObject;
  Rect area;
  friend bool operator==(const AuthorOutline&, const AuthorOutline&) = default;
};

struct AuthorPage {
  std::vector<AuthorOutline> outlines;
  std::vector<AuthorLine> under;  // what lies under the pointer
  std::vector<AuthorLine> trail;  // of the last click
  friend bool operator==(const AuthorPage&, const AuthorPage&) = default;
};

// Where a window gets that from. It costs the game nothing until it is switched on.
class AuthorSource {
 public:
  virtual ~AuthorSource() = default;
  virtual void SwitchOn(bool on) = 0;
  // The page for a pointer there, in pixels of the frame, or for none. Asked for each frame that is
  // shown; changes nothing.
  virtual AuthorPage PageAt(std::optional<Point> pointer) = 0;
};

}  // namespace quendle
