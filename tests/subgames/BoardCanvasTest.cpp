#include "subgames/BoardCanvas.h"

#include <gtest/gtest.h>

#include <optional>

#include "media/Graphics.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

struct Canvas : testing::Test {
  void UseSurfaces() {
    bench.media.UseDirectX = true;
    InitializeDirectDraw(bench.media, bench.backend.window.Handle());
    ASSERT_TRUE(bench.media.UseDirectX);
  }
  void Make() { canvas.emplace(bench.media, bench.backend.gdi.WindowContext(), 800, 600); }

  SquareBench bench;
  std::optional<BoardCanvas> canvas;
};

TEST_F(Canvas, ItIsAContextWithABitmap) {
  Make();
  bench.backend.gdi.SetPixel(canvas->Context(), {799, 599}, 0x123456);
  EXPECT_EQ(bench.backend.gdi.GetPixel(canvas->Context(), {799, 599}), 0x123456);
  EXPECT_EQ(bench.backend.gdi.GetPixel(canvas->Context(), {800, 599}), kInvalidColor);
  EXPECT_EQ(canvas->OffScreen(), nullptr);
}

TEST_F(Canvas, TheContextGoesWithIt) {
  Make();
  const ContextHandle context = canvas->Context();
  canvas.reset();
  EXPECT_EQ(bench.backend.gdi.GetPixel(context, {1, 1}), kInvalidColor);
}

TEST_F(Canvas, TheDirectDrawPathAddsASurfaceOfItsSize) {
  UseSurfaces();
  Make();
  ASSERT_NE(canvas->OffScreen(), nullptr);
  EXPECT_EQ(canvas->OffScreen()->GetSize(), (Size{800, 600}));
}

TEST_F(Canvas, ASurfaceThatIsRefusedIsLeftOut) {
  UseSurfaces();
  bench.faults.Plan("CreateSurface", 0, 1, false);
  Make();
  EXPECT_EQ(canvas->OffScreen(), nullptr);
}

TEST_F(Canvas, AColourKeyThatIsRefusedLeavesTheSurfaceOut) {
  UseSurfaces();
  bench.faults.Plan("SetColorKey", 0, 1, false);
  Make();
  EXPECT_EQ(canvas->OffScreen(), nullptr);
}

}  // namespace
}  // namespace quendle
