#include "diagnostics/AuthorLines.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/Text.h"
#include "diagnostics/ClickTrail.h"

namespace quendle {
namespace {

using Tone = AuthorLine::Tone;

constexpr std::size_t kMostNames = 6;  // of one list in a line
constexpr int kDeepest = 6;            // steps to the right

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string Place(const Rect& area) {
  return std::to_string(area.left) + "," + std::to_string(area.top) + ", " +
         std::to_string(area.Width()) + " x " + std::to_string(area.Height());
}

// "a, b, c and 3 more".
std::string Names(const std::vector<NamedArea>& areas) {
  std::string text;
  for (std::size_t i = 0; i < std::min(areas.size(), kMostNames); ++i) {
    text += (i == 0 ? "" : ", ") + areas[i].name;
  }
  if (areas.size() > kMostNames) {
    text += " and " + std::to_string(areas.size() - kMostNames) + " more";
  }
  return text;
}

class Page {
 public:
  void Add(Tone tone, int indent, std::string text) {
    lines_.push_back({tone, indent, std::move(text)});
  }
  std::vector<AuthorLine> Take() { return std::move(lines_); }

 private:
  std::vector<AuthorLine> lines_;
};

std::string RegionWords(const ObjectUnder& object) {
  if (!object.region.empty()) return "region " + Quoted(object.region);
  if (object.regions.empty()) return "no regions";
  return "outside of its regions " + Names(object.regions);
}

void AddObject(Page& page, const ObjectUnder& object) {
  const Tone tone = object.hit ? Tone::kHit : Tone::kFaint;
  const char* how = object.hidden ? "hidden" : object.hit ? "hit" : "not hit: beside its pixels";
  page.Add(tone, 0, object.path + " (" + object.type + "), " + how);
  page.Add(Tone::kPlain, 1,
           "state " + Quoted(object.state) +
               (object.script.empty() ? ", no script" : ", script " + Quoted(object.script)));
  if (!object.history.empty()) {
    std::string text = "comes back to";
    for (const std::string& state : object.history) text += " " + Quoted(state);
    page.Add(Tone::kPlain, 1, text);
  }
  page.Add(Tone::kPlain, 1, RegionWords(object));
  page.Add(Tone::kPlain, 1, "at " + Place(object.area));
  if (!object.frames.empty()) {
    page.Add(Tone::kPlain, 1,
             (object.animation.empty() ? "frames "
                                       : "animation " + Quoted(object.animation) + ", frames ") +
                 Names(object.frames));
  }
  if (object.timer != 0) {
    // A timer that is late comes as soon as it can.
    page.Add(Tone::kPlain, 1,
             "timer " + std::to_string(object.timer) + ": each " + std::to_string(object.interval) +
                 " ms, next in " + std::to_string(std::max(object.due, 0)));
  }
  if (!object.sound.empty() && !EqualsNoCase(object.sound, "nothing")) {
    page.Add(Tone::kPlain, 1,
             "sound " + Quoted(object.sound) + (object.sounding ? ", plays" : ", is over"));
  }
}

std::string Words(const TrailStep& step) {
  switch (step.kind) {
    case TraceKind::kHit:
      return step.to + " is hit" + (step.text.empty() ? "" : ", region " + Quoted(step.text));
    case TraceKind::kScript:
      return step.to + ": script " + Quoted(step.from) + " gets " + Quoted(step.text);
    case TraceKind::kBranch:
      if (step.text.empty()) return "no branch matches";
      if (step.from.empty()) return step.text;
      return step.text + "  (" + step.from + ")";
    case TraceKind::kStatement:
      return step.to + " does: " + step.text;
    case TraceKind::kMessage:
      return "to " + step.to + (step.from.empty() ? "" : " from " + step.from) + ": " + step.text;
    case TraceKind::kState:
      return step.to + ": state " + Quoted(step.from) + " becomes " + Quoted(step.text);
    case TraceKind::kSound:
      return step.to + ": sound " + Quoted(step.text);
    case TraceKind::kTimer:
      return step.to + ": timer, " + step.text;
    case TraceKind::kScreen:
      return "screen " + step.to + ": " + step.text;
    case TraceKind::kClick:
      return "a script clicks at " + step.text + " with " + Quoted(step.to);
    case TraceKind::kLog:
      break;
  }
  return step.text;
}

}  // namespace

std::vector<AuthorLine> LinesOf(Point pointer, const std::vector<ObjectUnder>& objects) {
  Page page;
  page.Add(Tone::kHead, 0,
           "Under the pointer at " + std::to_string(pointer.x) + "," + std::to_string(pointer.y));
  if (objects.empty()) page.Add(Tone::kFaint, 0, "nothing");
  for (const ObjectUnder& object : objects) AddObject(page, object);
  return page.Take();
}

std::vector<AuthorLine> LinesOf(const ClickTrail& trail) {
  Page page;
  if (trail.Empty()) {
    page.Add(Tone::kHead, 0, "Click: its trail will stand here");
    return page.Take();
  }
  page.Add(Tone::kHead, 0, "Click at " + trail.Place() + " with " + Quoted(trail.Pointer()));
  if (trail.Steps().empty()) page.Add(Tone::kFaint, 0, "nothing is hit, and no script acts");
  int lowest = trail.Steps().empty() ? 0 : trail.Steps().front().depth;
  for (const TrailStep& step : trail.Steps()) lowest = std::min(lowest, step.depth);
  for (const TrailStep& step : trail.Steps()) {
    const bool hit = step.kind == TraceKind::kHit;
    const bool inside = step.kind == TraceKind::kBranch || step.kind == TraceKind::kScript;
    const bool none = step.kind == TraceKind::kBranch && step.text.empty();
    const int indent = std::min(hit ? 0 : step.depth - lowest + (inside ? 1 : 0), kDeepest);
    page.Add(hit ? Tone::kHit : none ? Tone::kFaint : Tone::kPlain, indent, Words(step));
  }
  if (trail.LeftOut() > 0) {
    page.Add(Tone::kFaint, 0, "and " + std::to_string(trail.LeftOut()) + " steps more");
  }
  if (trail.Skipped())
    page.Add(Tone::kFaint, 0, "the pointer had changed: the screen did not get this click");
  return page.Take();
}

std::vector<AuthorOutline> OutlinesOf(const std::vector<ObjectUnder>& objects) {
  using Kind = AuthorOutline::Kind;
  std::vector<AuthorOutline> outlines;
  const auto add = [&outlines](Kind kind, const Rect& area) {
    const AuthorOutline outline{kind, area};
    if (area.Width() <= 0 || area.Height() <= 0) return;
    if (std::find(outlines.begin(), outlines.end(), outline) == outlines.end()) {
      outlines.push_back(outline);
    }
  };
  for (const ObjectUnder& object : objects) {
    if (object.hidden) continue;
    add(Kind::kObject, object.area);
    for (const NamedArea& frame : object.frames) {
      if (frame.area != object.area) add(Kind::kFrame, frame.area);
    }
    for (const NamedArea& region : object.regions) {
      const bool hit = !object.region.empty() && region.name == object.region;
      add(hit ? Kind::kHitRegion : Kind::kRegion, region.area);
    }
  }
  return outlines;
}

}  // namespace quendle
