#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "backends/raster/RasterBitmap.h"
#include "platform/Geometry.h"

namespace quendle {

// One copy of a rectangle. Both rectangles lie inside their bitmaps.
struct QueuedBlit {
  std::shared_ptr<RasterBitmap> source;
  std::uint64_t version = 0;  // of the source
  Rect from;
  Rect to;
  std::optional<std::uint32_t> key;  // a word of the source that isn't copied

  bool operator==(const QueuedBlit&) const = default;
};

// Copies onto one bitmap that wait until somebody looks at it. A frame of a game is nearly the
// frame before it: the queue compares the two and draws only the rectangles in which they differ,
// with the same pixels as if all had been drawn. Sources must not change while they wait here.
class BlitQueue {
 public:
  bool Empty() const { return waiting_.empty(); }
  std::size_t Size() const { return waiting_.size(); }
  void Add(QueuedBlit blit) { waiting_.push_back(std::move(blit)); }
  // Draws what waits onto `target`. Returns the rectangles that were drawn, valid until the next
  // call.
  const std::vector<Rect>& Flush(RasterBitmap& target);
  // Drops what waits and what is known of the target.
  void Forget();

 private:
  void DropCovered(const Rect& all);
  void FindChanges();
  void AddChange(const Rect& area);
  void Draw(RasterBitmap& target, const Rect& area) const;

  std::vector<QueuedBlit> waiting_;
  // What made the target's pixels, from a copy that covers it whole on; empty when that isn't
  // known.
  std::vector<QueuedBlit> shown_;
  std::uint64_t shown_version_ = 0;  // of the target, after it was drawn
  std::vector<Rect> changes_;
};

}  // namespace quendle
