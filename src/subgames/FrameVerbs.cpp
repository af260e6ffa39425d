#include "subgames/FrameVerbs.h"

#include "base/FirstFit.h"

namespace quendle {
namespace {

constexpr FitRow<FrameVerb> kRows[] = {
    {Fit::kHolds, "scorevalue", FrameVerb::kScore},
    {Fit::kHolds, "done", FrameVerb::kClimb},
    {Fit::kHolds, "won", FrameVerb::kClimb},
    {Fit::kHolds, "lost", FrameVerb::kClimb},
};

}  // namespace

FrameVerb FrameVerbOf(std::string_view message) {
  return FirstFit(kRows, message, FrameVerb::kInner);
}

}  // namespace quendle
