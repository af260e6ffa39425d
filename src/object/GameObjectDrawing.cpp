// A GameObject and its children drawn by either path. Depth is nothing but tree order, and a child
// is placed against its immediate parent only.

#include "base/Watch.h"
#include "media/ObjectPicture.h"
#include "media/PlacedFrame.h"
#include "object/GameObject.h"
#include "platform/DirectDraw.h"

namespace quendle {
namespace {

bool NamesPicture(const std::string& name) {
  return !name.empty() && !EqualsNoCase(name, "nothing");
}

PlacedFrame Place(const AnimationFrame& frame, int x, int y, int parent_x, int parent_y) {
  return {parent_x + ResolveFramePosition(x, frame.PlaceX),
          parent_y + ResolveFramePosition(y, frame.PlaceY),
          frame.SourceWidth,
          frame.SourceHeight,
          frame.SourceX,
          frame.SourceY};
}

}  // namespace

void GameObject::Refresh(ContextHandle destination, int parent_x, int parent_y) {
  if (!Visible_) return;
  if (picture_ != nullptr && NamesPicture(PictureName_)) {
    for (const FrameRef& frame : CurrentFrames_) {
      PlacedFrame placed = Place(*frame, xpos_, ypos_, parent_x, parent_y);
      const bool drawn = picture_->DrawFrameWindow(destination, placed);
      if (world_.blit_watcher != nullptr) {
        world_.blit_watcher->Blitted(ObjectName_, frame->FrameName, placed,
                                     drawn ? DrawStatus::kOk : DrawStatus::kFailed);
      }
    }
  }
  if (Children_.Empty()) return;
  DepthGuard guard(world_.watch.depth, Work::kTreeWalk, ObjectName_, this);
  for (auto& entry : Children_) {
    if (entry.value->Visible()) entry.value->Refresh(destination, xpos_, ypos_);
  }
}

void GameObject::RefreshDirectX(Surface& destination, int parent_x, int parent_y) {
  if (!Visible_) return;
  if (picture_ != nullptr && NamesPicture(PictureName_)) {
    for (const FrameRef& frame : CurrentFrames_) {
      PlacedFrame placed = Place(*frame, xpos_, ypos_, parent_x, parent_y);
      DrawStatus status = picture_->DrawFrameDirectX(destination, placed);
      if (world_.blit_watcher != nullptr) {
        world_.blit_watcher->Blitted(ObjectName_, frame->FrameName, placed, status);
      }
    }
  }
  if (Children_.Empty()) return;
  DepthGuard guard(world_.watch.depth, Work::kTreeWalk, ObjectName_, this);
  for (auto& entry : Children_) {
    if (entry.value->Visible()) entry.value->RefreshDirectX(destination, xpos_, ypos_);
  }
}

}  // namespace quendle
