#include "object/AnimationState.h"

#include <algorithm>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "media/SplineState.h"

namespace quendle {
namespace {

void RequireFrames(const AnimationState::FrameSet& set, const std::string& animation) {
  if (!set.names.empty()) return;
  throw FatalError("animation \"" + animation + "\" has an empty line of frame names");
}

}  // namespace

AnimationState::AnimationState() = default;
AnimationState::~AnimationState() = default;

std::int16_t AnimationState::GetNumFrames() const {
  std::size_t longest = 0;
  for (const FrameSet& set : frame_sets_) longest = std::max(longest, set.names.size());
  return ToInt16(static_cast<double>(longest), "number of frames");
}

void AnimationState::AddFrameSet(std::vector<std::string> names) {
  frame_sets_.push_back({std::move(names), 0, loop_state_, false});
}

void AnimationState::SetLoopState(std::string_view word) {
  loop_state_ = EqualsNoCase(word, "loop");
}

bool AnimationState::IsLoopDone() const {
  return std::all_of(frame_sets_.begin(), frame_sets_.end(),
                     [](const FrameSet& set) { return set.done; }) &&
         (spline_ == nullptr || spline_->IsSplineDone());
}

void AnimationState::Reset() {
  for (FrameSet& set : frame_sets_) {
    set.position = 0;
    set.done = false;
  }
}

void AnimationState::UpdateAnimationPos() {
  if (IsLoopDone()) return;
  for (FrameSet& set : frame_sets_) {
    RequireFrames(set, name_);
    set.position =
        static_cast<std::int16_t>((set.position + 1) % static_cast<int>(set.names.size()));
    if (!set.loops && set.position == 0) set.done = true;
  }
}

void AnimationState::EnumerateAllFrames(std::vector<std::string>& names) const {
  for (const FrameSet& set : frame_sets_) {
    names.insert(names.end(), set.names.begin(), set.names.end());
  }
}

std::vector<std::string> AnimationState::GetCurrAnimationPos() const {
  std::vector<std::string> names;
  for (const FrameSet& set : frame_sets_) {
    RequireFrames(set, name_);
    names.push_back(set.names[static_cast<std::size_t>(set.position)]);
  }
  return names;
}

void AnimationState::LoadFileDirective(TextStream& stream) {
  while (!stream.AtEndOfStream()) {
    if (!EqualsNoCase(stream.ReadLine("a directive"), "spline")) continue;
    spline_ = std::make_unique<SplineState>();
    spline_->ProcessDirective(stream);
  }
}

void AnimationState::PostProcess(const std::vector<FrameRef>& frames) {
  if (spline_ == nullptr || frames.empty()) return;
  const CoordObject& next = spline_->GetNextCoords();
  frames.front()->PlaceX = ToInt32(next.X, "x of a spline");
  frames.front()->PlaceY = ToInt32(next.Y, "y of a spline");
}

}  // namespace quendle
