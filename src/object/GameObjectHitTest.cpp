// Is a point on a GameObject, and in which of its regions?

#include "media/MediaWorld.h"
#include "media/ObjectPicture.h"
#include "media/PlacedFrame.h"
#include "object/GameObject.h"

namespace quendle {
namespace {

const std::string kNoRegion;

// The offset of a coordinate from where the frame stands.
int OffsetFrom(int position, int placement, int coordinate) {
  return coordinate - ResolveFramePosition(position, placement);
}

// Of regions that overlap the last counts.
const Region* LastHolding(const std::vector<Region>& regions, int x, int y) {
  const Region* hit = nullptr;
  for (const Region& region : regions) {
    if (region.Holds(x, y)) hit = &region;
  }
  return hit;
}

}  // namespace

bool GameObject::AreWeOnTheObject(std::int16_t x, std::int16_t y) {
  if (picture_ == nullptr || !picture_->Exists()) return false;
  if (!InBox(x, y)) return false;
  if (y == -1) return true;
  for (const FrameRef& frame : CurrentFrames_) {
    const int fx = OffsetFrom(xpos_, frame->PlaceX, x);
    const int fy = OffsetFrom(ypos_, frame->PlaceY, y);
    // The edges of a frame don't count here, though they do for regions.
    if (fx <= 0 || fx >= frame->SourceWidth || fy <= 0 || fy >= frame->SourceHeight) continue;
    if (picture_->PixelAt(frame->SourceX + fx, frame->SourceY + fy) !=
        world_.media.TransparentColor) {
      return true;
    }
  }
  return false;
}

const AnimationFrame* GameObject::HitFrame(int x, int y, int& offset_x, int& offset_y) const {
  const AnimationFrame* hit = nullptr;
  for (const FrameRef& frame : CurrentFrames_) {
    const int fx = OffsetFrom(xpos_, frame->PlaceX, x);
    const int fy = OffsetFrom(ypos_, frame->PlaceY, y);
    if (fx < 0 || fx > frame->SourceWidth || fy < 0 || fy > frame->SourceHeight) continue;
    const Color pixel = picture_ == nullptr
                            ? kInvalidColor
                            : picture_->PixelAt(frame->SourceX + fx, frame->SourceY + fy);
    if (pixel == world_.media.TransparentColor) continue;
    hit = frame.get();
    offset_x = fx;
    offset_y = fy;
  }
  return hit;
}

const std::vector<Region>* GameObject::RegionsAt(int x, int y, int& offset_x, int& offset_y) const {
  const AnimationFrame* frame = HitFrame(x, y, offset_x, offset_y);
  if (frame == nullptr || EqualsNoCase(frame->RegionKey, "nothing")) return nullptr;
  return FrameRegions_.Find(frame->RegionKey);
}

const Region* GameObject::RegionUnder(int x, int y) const {
  int offset_x = 0;
  int offset_y = 0;
  const std::vector<Region>* regions = RegionsAt(x, y, offset_x, offset_y);
  return regions == nullptr ? nullptr : LastHolding(*regions, offset_x, offset_y);
}

const std::string& GameObject::GetRegionAtPoint(int x, int y) {
  int offset_x = 0;
  int offset_y = 0;
  const std::vector<Region>* regions = RegionsAt(x, y, offset_x, offset_y);
  if (regions == nullptr) {
    CurrentRegion_.clear();
    return kNoRegion;
  }
  // A miss inside a frame with regions keeps the region hit before.
  const Region* hit = LastHolding(*regions, offset_x, offset_y);
  if (hit == nullptr) return kNoRegion;
  CurrentRegion_ = hit->Name();
  return CurrentRegion_;
}

}  // namespace quendle
