// What is asked of the display when the game leaves it, and in which order.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "media/Graphics.h"
#include "media/MediaPlatform.h"

namespace quendle {
namespace {

// The display device, with a note of what is asked of it.
class NotedDirectDraw : public DirectDraw {
 public:
  explicit NotedDirectDraw(DirectDraw& device) : device_(device) {}

  DrawStatus Create() override { return device_.Create(); }
  DrawStatus SetDisplayMode(int width, int height, int depth) override {
    return device_.SetDisplayMode(width, height, depth);
  }
  DrawStatus SetCooperativeLevel(int window, std::uint32_t flags) override {
    calls.push_back("SetCooperativeLevel " + std::to_string(window) + " " + std::to_string(flags));
    return device_.SetCooperativeLevel(window, flags);
  }
  SurfaceRef CreatePrimarySurface() override { return Watch(device_.CreatePrimarySurface()); }
  SurfaceRef CreateSurface(int width, int height) override {
    return Watch(device_.CreateSurface(width, height));
  }
  DrawStatus RestoreDisplayMode() override {
    calls.emplace_back("RestoreDisplayMode");
    return device_.RestoreDisplayMode();
  }
  void Release() override {
    int alive = 0;
    for (const auto& surface : surfaces_) alive += surface.expired() ? 0 : 1;
    calls.push_back("Release with " + std::to_string(alive) + " surfaces");
    device_.Release();
  }

  std::vector<std::string> calls;

 private:
  SurfaceRef Watch(SurfaceRef surface) {
    surfaces_.push_back(surface);
    return surface;
  }

  DirectDraw& device_;
  std::vector<std::weak_ptr<Surface>> surfaces_;
};

struct LeavingBench {
  explicit LeavingBench(bool full_screen) {
    world.FullScreen = full_screen;
    InitializeDirectDraw(world, 7);
    direct_draw.calls.clear();
    ReleaseDirectDraw(world);
  }

  MediaPlatform platform;
  NotedDirectDraw direct_draw{platform.direct_draw};
  Ports ports{platform.files,          platform.clock,        platform.timers, platform.random,
              platform.boxes,          platform.gdi,          direct_draw,     platform.modes,
              platform.graphs,         platform.window,       platform.forms,  platform.system,
              platform.picture_loader, platform.picture_saver};
  MediaWorld world{platform.settings, ports, platform.content};
};

using Calls = std::vector<std::string>;

TEST(LeavingTheDisplay, OfAFullScreenRestoresTheModeAndCooperatesAgain) {
  EXPECT_EQ(LeavingBench(true).direct_draw.calls,
            (Calls{"RestoreDisplayMode", "SetCooperativeLevel 7 8", "Release with 0 surfaces"}));
}

TEST(LeavingTheDisplay, OfAWindowOnlyReleases) {
  EXPECT_EQ(LeavingBench(false).direct_draw.calls, (Calls{"Release with 0 surfaces"}));
}

}  // namespace
}  // namespace quendle
