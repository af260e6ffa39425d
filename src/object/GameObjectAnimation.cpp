// The running animation of a GameObject.

#include <string>

#include "base/Numbers.h"
#include "base/Watch.h"
#include "media/MediaWorld.h"
#include "media/PlacedFrame.h"
#include "media/SoundState.h"
#include "object/GameObject.h"
#include "platform/Ports.h"
#include "platform/TimerService.h"

namespace quendle {

void GameObject::RunAnimation(const std::string& name) {
  if (EqualsNoCase(name, "unchanged")) return;
  if (EqualsNoCase(name, "nothing")) {
    KillAnimationTimer();
    return;
  }
  if (!name.empty() && EqualsNoCase(name, CurrentAnimationName_)) return;
  KillAnimationTimer();
  if (EqualsNoCase(name, "terminate")) return;
  AnimationState& animation = AnimationNamed(name);
  CurrentAnimationName_ = name;
  animation.Reset();
  if (animation.GetNumFrames() < 2) {
    TimerID_ = 0;
    SetCurrentFrames(animation.GetCurrAnimationPos());
  } else {
    StartAnimationTimer(animation);
  }
  UpdateAnimationState();
}

void GameObject::StartAnimationTimer(const AnimationState& animation) {
  ObjectWorld& world = world_;
  TimerID_ = world.media.ports.timers.SetTimer(Milliseconds(animation.Interval()), "OnObjectTimer",
                                               [&world](int id) { OnObjectTimer(world, id); });
  world.TimedObjects.Add(self_, std::to_string(TimerID_));
  world.watch.Trace(TraceKind::kTimer, ObjectName_, "", "start " + CurrentAnimationName_);
}

void GameObject::KillAnimationTimer() {
  if (TimerID_ == 0) return;
  world_.media.ports.timers.KillTimer(TimerID_);
  world_.TimedObjects.Remove(std::to_string(TimerID_));
  TimerID_ = 0;
}

AnimationState& GameObject::AnimationNamed(const std::string& name) {
  if (std::shared_ptr<AnimationState>* found = Animations_.Find(name)) return **found;
  throw FatalError("object \"" + WorkPath() + "\" has no animation \"" + name + "\"" +
                       DidYouMean(name, Animations_.Keys()),
                   StatePlace());
}

void GameObject::SetCurrentFrames(const std::vector<std::string>& names) {
  std::vector<FrameRef> frames;
  for (const std::string& name : names) {
    FrameRef frame = QueryFrameState(name);
    if (frame == nullptr) {
      throw FatalError("animation \"" + CurrentAnimationName_ + "\" of object \"" + WorkPath() +
                           "\" shows the frame \"" + name + "\", which isn't there" +
                           DidYouMean(name, Frames_.Keys()),
                       StatePlace());
    }
    frames.push_back(std::move(frame));
  }
  CurrentFrames_ = std::move(frames);
}

void GameObject::UpdateAnimationState() {
  // A strong copy: what happens at the end of an animation may release this object.
  std::shared_ptr<AnimationState>* found = Animations_.Find(CurrentAnimationName_);
  if (found == nullptr) return;
  std::shared_ptr<AnimationState> animation = *found;
  SetCurrentFrames(animation->GetCurrAnimationPos());
  animation->PostProcess(CurrentFrames_);
  if (!CurrentFrames_.empty()) ShowFirstFrame(*CurrentFrames_.front());
  animation->UpdateAnimationPos();
  if (animation->IsLoopDone() || LastSoundIsSilent()) {
    KillAnimationTimer();
    PopStateHistory();
  }
}

void GameObject::ShowFirstFrame(const AnimationFrame& frame) {
  CurrentTextureXCoord_ = frame.SourceX;
  CurrentTextureYCoord_ = frame.SourceY;
  xpos_ = ToInt16(ResolveFramePosition(xpos_, frame.PlaceX), "xpos");
  ypos_ = ToInt16(ResolveFramePosition(ypos_, frame.PlaceY), "ypos");
  const bool use_source = frame.DrawWidth == 0 && frame.DrawHeight == 0;
  width_ = ToInt16(use_source ? frame.SourceWidth : frame.DrawWidth, "width of a frame");
  height_ = ToInt16(use_source ? frame.SourceHeight : frame.DrawHeight, "height of a frame");
}

bool GameObject::LastSoundIsSilent() {
  return !CurrentSoundName_.empty() && !SoundNamed(CurrentSoundName_).IsPlaying();
}

}  // namespace quendle
