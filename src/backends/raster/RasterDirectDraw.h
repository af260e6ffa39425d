#pragma once

#include <memory>
#include <vector>

#include "backends/raster/RasterSurface.h"
#include "platform/DirectDraw.h"
#include "platform/Faults.h"

namespace quendle {

class RasterGdi;
class RasterScreen;

// The display device in our own memory, at depth 32 or 16 (5-6-5). Operations that can be planned
// to fail: Create, SetDisplayMode, SetCooperativeLevel, CreatePrimarySurface, CreateSurface, and
// those of the surfaces. It must outlive its surfaces.
class RasterDirectDraw : public DirectDraw {
 public:
  // All must outlive this object and its surfaces.
  RasterDirectDraw(RasterGdi& gdi, RasterScreen& screen, Faults& faults)
      : gdi_(gdi), screen_(screen), faults_(faults) {}

  DrawStatus Create() override;
  DrawStatus SetDisplayMode(int width, int height, int depth) override;
  DrawStatus SetCooperativeLevel(int window, std::uint32_t flags) override;
  SurfaceRef CreatePrimarySurface() override;
  SurfaceRef CreateSurface(int width, int height) override;
  DrawStatus RestoreDisplayMode() override;
  void Release() override;

  bool Created() const { return created_; }
  // The depth of new surfaces.
  int Depth() const { return depth_; }
  // True while the game owns the display.
  bool FullScreen() const { return cooperative_flags_ == kCooperativeFullScreen; }
  // True while SetDisplayMode is in force.
  bool ModeIsSet() const { return mode_is_set_; }
  // Takes the memory of all living surfaces away.
  void LoseAllSurfaces();

 private:
  SurfaceRef Keep(std::shared_ptr<RasterSurface> surface);

  RasterGdi& gdi_;
  RasterScreen& screen_;
  Faults& faults_;
  bool created_ = false;
  bool mode_is_set_ = false;
  int depth_ = 32;
  std::uint32_t cooperative_flags_ = 0;
  BlitWait wait_;
  std::vector<std::weak_ptr<RasterSurface>> surfaces_;
};

}  // namespace quendle
