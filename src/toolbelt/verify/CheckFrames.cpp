#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "media/SplineState.h"
#include "object/VerifyRules.h"
#include "platform/Geometry.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

constexpr int kStay = -1;

// `stable+1` and `-1` as they stand in the file; the code for plain `stable` is the same.
void CheckUnitStep(const CheckContext& context, const ModelObject& object,
                   const ModelFrame& frame) {
  if (frame.frame.PlaceX != kStay && frame.frame.PlaceY != kStay) return;
  auto stream = context.gate.Content().OpenTextFileChecked(
      context.gate.Content().BaseDirectory() + "\\" + frame.place.file, OpenMode::kRead, false);
  for (int line = 1; line <= frame.place.line + 3 && !stream->AtEndOfStream(); ++line) {
    std::string text = stream->ReadLine("a line");
    if (line < frame.place.line + 2) continue;
    std::erase(text, ' ');
    if (!EqualsNoCase(text, "stable+1") && text != "-1") continue;
    context.Tell(Check::kStepOfOne, object, stream->Place(),
                 "\"" + text + "\" of frame \"" + frame.frame.FrameName + "\" stands still");
  }
}

void CheckRegions(const CheckContext& context, const ModelObject& object, const ModelFrame& frame) {
  const AnimationFrame& numbers = frame.frame;
  int line = 1;
  for (const Region& region : frame.regions) {
    const bool inside = region.X1() <= region.X2() && region.Y1() <= region.Y2() &&
                        region.X2() >= 0 && region.Y2() >= 0 &&
                        region.X1() <= numbers.SourceWidth && region.Y1() <= numbers.SourceHeight;
    if (!inside) {
      context.Tell(Check::kRegionOutside, object, {frame.region_file, line},
                   "region \"" + region.Name() + "\" lies outside of frame \"" + numbers.FrameName +
                       "\", which is " + std::to_string(numbers.SourceWidth) + " by " +
                       std::to_string(numbers.SourceHeight));
    }
    line += 5;
  }
}

// Every frame of the first sequence moves the object on, and none brings it back.
bool Drifts(const ModelObject& object, const ModelAnimation& animation,
            std::int32_t AnimationFrame::*place) {
  if (!animation.Loops() || animation.spline != nullptr || animation.Length() < 2) return false;
  long sum = 0;
  for (const std::string& name : animation.record.frame_sets.front()) {
    const ModelFrame* frame = object.Frame(name);
    if (frame == nullptr || frame->frame.*place >= 0) return false;
    if (frame->frame.*place < kStay) sum -= frame->frame.*place;
  }
  return sum != 0;
}

void CheckPath(const CheckContext& context, const ModelObject& object,
               const ModelAnimation& animation) {
  const SplineState& path = *animation.spline;
  const auto tell = [&](const std::string& text) {
    context.Tell(
        Check::kPath, object, {animation.directive_file, 0},
        "path \"" + path.Name() + "\" of animation \"" + animation.record.name + "\" " + text);
  };
  if (path.Speed() < 1) tell("has the speed " + std::to_string(path.Speed()) + " and never ends");
  if (path.XList().size() < 2) tell("has fewer than two points");
  if (path.YList().size() < path.XList().size()) tell("has fewer y values than x values");
  for (const auto* list : {&path.XList(), &path.YList()}) {
    for (const std::string& text : *list) {
      const std::optional<double> number = ParseNumber(text);
      if (!number) {
        tell("has the point \"" + text + "\", which is no number");
      } else if (RoundHalfEven(*number) < 0) {
        tell("has the point " + text + ", which is taken for a placement");
      }
    }
  }
}

}  // namespace

void CheckFrames(const CheckContext& context) {
  for (const ModelObjectRef& object : context.model.objects) {
    for (const ModelFrame& frame : object->frames) {
      if (!FrameFitsScreen(frame.frame)) {
        context.Tell(Check::kFrameRange, *object, frame.place,
                     "Invalid Frame Values of \"" + frame.frame.FrameName + "\"");
      }
      CheckUnitStep(context, *object, frame);
      CheckRegions(context, *object, frame);
    }
    for (const ModelAnimation& animation : object->animations) {
      if (animation.spline != nullptr) CheckPath(context, *object, animation);
      if (Drifts(*object, animation, &AnimationFrame::PlaceX) ||
          Drifts(*object, animation, &AnimationFrame::PlaceY)) {
        context.Tell(Check::kDrift, *object, animation.record.place,
                     "the looping animation \"" + animation.record.name +
                         "\" moves its object on and never back");
      }
    }
  }
}

}  // namespace quendle
