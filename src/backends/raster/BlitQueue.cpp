#include "backends/raster/BlitQueue.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "backends/raster/BlockCopy.h"

namespace quendle {
namespace {

// How far a copy may have moved in the list when others before it came or went.
constexpr std::size_t kLongestShift = 16;

bool Inside(const Rect& inner, const Rect& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

Rect Common(const Rect& a, const Rect& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

Rect Around(const Rect& a, const Rect& b) {
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

bool Holds(const Rect& area) { return area.left < area.right && area.top < area.bottom; }

int Pixels(const Rect& area) { return area.Width() * area.Height(); }

bool LeavesNoPixel(const QueuedBlit& blit) {
  return !blit.key || blit.source->Spans(blit.from, *blit.key).Whole();
}

// How many places behind `begin` the copy stands; kLongestShift when it isn't near.
std::size_t Distance(const std::vector<QueuedBlit>& list, std::size_t begin,
                     const QueuedBlit& blit) {
  const std::size_t end = std::min(list.size(), begin + kLongestShift);
  for (std::size_t i = begin; i < end; ++i) {
    if (list[i] == blit) return i - begin;
  }
  return kLongestShift;
}

}  // namespace

const std::vector<Rect>& BlitQueue::Flush(RasterBitmap& target) {
  changes_.clear();
  if (waiting_.empty()) return changes_;
  DropCovered(target.Bounds());
  const bool whole = waiting_.front().to == target.Bounds() && LeavesNoPixel(waiting_.front());
  if (target.Version() != shown_version_) shown_.clear();
  if (whole && !shown_.empty()) {
    FindChanges();
  } else {
    changes_.push_back(target.Bounds());
  }
  for (const Rect& area : changes_) Draw(target, area);
  shown_.swap(waiting_);
  waiting_.clear();
  if (!whole) shown_.clear();
  shown_version_ = target.Version();
  return changes_;
}

void BlitQueue::Forget() {
  waiting_.clear();
  shown_.clear();
}

// What lies under the last copy that covers everything is never seen.
void BlitQueue::DropCovered(const Rect& all) {
  const auto covers = [&all](const QueuedBlit& blit) {
    return blit.to == all && LeavesNoPixel(blit);
  };
  const auto last = std::find_if(waiting_.rbegin(), waiting_.rend(), covers);
  if (last != waiting_.rend()) waiting_.erase(waiting_.begin(), std::prev(last.base()));
}

// Walks both lists side by side. Where they differ, the shorter way to a copy that both have is
// taken; what is passed over on either side has changed.
void BlitQueue::FindChanges() {
  std::size_t old = 0, now = 0;
  while (old < shown_.size() && now < waiting_.size()) {
    if (shown_[old] == waiting_[now]) {
      ++old, ++now;
      continue;
    }
    const std::size_t gone = Distance(shown_, old + 1, waiting_[now]);
    const std::size_t come = Distance(waiting_, now + 1, shown_[old]);
    if (gone <= come) AddChange(shown_[old++].to);
    if (come <= gone) AddChange(waiting_[now++].to);
  }
  while (old < shown_.size()) AddChange(shown_[old++].to);
  while (now < waiting_.size()) AddChange(waiting_[now++].to);
}

// Rectangles that share more than they would waste together become one.
void BlitQueue::AddChange(const Rect& area) {
  Rect added = area;
  for (std::size_t i = 0; i < changes_.size();) {
    if (Inside(added, changes_[i])) return;
    const Rect both = Around(added, changes_[i]);
    if (Pixels(both) > Pixels(added) + Pixels(changes_[i])) {
      ++i;
      continue;
    }
    added = both;
    changes_.erase(changes_.begin() + static_cast<std::ptrdiff_t>(i));
    i = 0;
  }
  changes_.push_back(added);
}

void BlitQueue::Draw(RasterBitmap& target, const Rect& area) const {
  for (const QueuedBlit& blit : waiting_) {
    const Rect seen = Common(area, blit.to);
    if (!Holds(seen)) continue;
    const Point from{blit.from.left + seen.left - blit.to.left,
                     blit.from.top + seen.top - blit.to.top};
    if (!blit.key) {
      CopyBlock(target, *blit.source, {{seen.left, seen.top}, from, {seen.Width(), seen.Height()}},
                RasterOp::kCopy, {});
      continue;
    }
    const OpaqueSpans& spans = blit.source->Spans(blit.from, *blit.key);
    const std::uint32_t* source = blit.source->At(blit.from.left, blit.from.top);
    std::uint32_t* drawn = target.WritableAt(seen.left, seen.top);
    if (seen == blit.to) {
      spans.Copy(source, blit.source->Width(), drawn, target.Width());
      continue;
    }
    const Rect part{seen.left - blit.to.left, seen.top - blit.to.top, seen.right - blit.to.left,
                    seen.bottom - blit.to.top};
    spans.CopyPart(part, source, blit.source->Width(), drawn, target.Width());
  }
}

}  // namespace quendle
