#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/TextStream.h"
#include "object/AnimationFrame.h"

namespace quendle {

class SplineState;

using FrameRef = std::shared_ptr<AnimationFrame>;

// A set of parallel frame sequences that run at one interval, each going round at its own length.
class AnimationState {
 public:
  AnimationState();
  ~AnimationState();

  // The length of the longest sequence.
  std::int16_t GetNumFrames() const;
  // Appends a sequence; its loop flag is the state's loop state of this moment.
  void AddFrameSet(std::vector<std::string> names);
  bool GetLoopState() const { return loop_state_; }
  // "loop" sets the loop state, any other word clears it.
  void SetLoopState(std::string_view word);
  // All sequences are done, and the spline if there is one. Without a sequence: at once.
  bool IsLoopDone() const;
  // All sequences at their start. A spline goes on where it is.
  void Reset();
  // One step. An empty sequence is fatal.
  void UpdateAnimationPos();
  // Appends all names of all sequences, sequence by sequence.
  void EnumerateAllFrames(std::vector<std::string>& names) const;
  // For each sequence in order, the name at its position. An empty sequence is fatal.
  std::vector<std::string> GetCurrAnimationPos() const;
  // Milliseconds a step.
  std::int16_t Interval() const { return interval_; }
  void SetInterval(std::int16_t interval) { interval_ = interval; }
  void SetName(std::string name) { name_ = std::move(name); }
  const std::string& Name() const { return name_; }
  // Reads a directive file to its end: a line "spline" is followed by the path of a spline.
  void LoadFileDirective(TextStream& stream);
  // With a spline, moves the placement of the first of `frames` (the stored frame) to its next
  // point.
  void PostProcess(const std::vector<FrameRef>& frames);

  // For tools: the parts of the state.
  struct FrameSet {
    std::vector<std::string> names;
    std::int16_t position = 0;
    bool loops = false;
    bool done = false;
  };
  const std::vector<FrameSet>& FrameSets() const { return frame_sets_; }
  bool HasSpline() const { return spline_ != nullptr; }
  const SplineState* Spline() const { return spline_.get(); }

 private:
  std::string name_;
  std::int16_t interval_ = 0;
  bool loop_state_ = false;
  std::vector<FrameSet> frame_sets_;
  std::unique_ptr<SplineState> spline_;
};

}  // namespace quendle
