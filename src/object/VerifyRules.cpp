#include "object/VerifyRules.h"

#include <cstdlib>

#include "base/Text.h"
#include "object/AnimationFrame.h"
#include "platform/Geometry.h"

namespace quendle {
namespace {

bool Within(long value, long largest) { return std::abs(value) <= largest; }

}  // namespace

bool FrameFitsScreen(const AnimationFrame& frame) {
  return Within(frame.PlaceX, kFrameWidth) && Within(frame.DrawWidth, kFrameWidth) &&
         Within(frame.PlaceY, kFrameHeight) && Within(frame.DrawHeight, kFrameHeight) &&
         frame.SourceWidth >= 0 && frame.SourceWidth <= kFrameWidth && frame.SourceHeight >= 0 &&
         frame.SourceHeight <= kFrameHeight;
}

bool NeedsOwwwTwin(std::string_view state_name) {
  if (ContainsNoCase(state_name, "owww")) return false;
  return ContainsNoCase(state_name, "default") || ContainsNoCase(state_name, "better");
}

}  // namespace quendle
