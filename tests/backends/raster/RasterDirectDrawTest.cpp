#include "backends/raster/RasterDirectDraw.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "backends/raster/PictureFiles.h"
#include "backends/raster/RasterDisplayModes.h"
#include "backends/raster/RasterGdi.h"
#include "backends/raster/RasterScreen.h"

namespace quendle {
namespace {

constexpr Rect kWhole{0, 0, kFrameWidth, kFrameHeight};
constexpr std::int32_t kKey32 = 0xC8C8C8;
constexpr std::int32_t kKey16 = 25 << 11 | 50 << 5 | 25;

class RasterDirectDrawTest : public ::testing::Test {
 protected:
  void Start(int depth) {
    ASSERT_EQ(draw_.Create(), DrawStatus::kOk);
    ASSERT_EQ(draw_.SetDisplayMode(kFrameWidth, kFrameHeight, depth), DrawStatus::kOk);
    ASSERT_EQ(draw_.SetCooperativeLevel(1, kCooperativeFullScreen), DrawStatus::kOk);
  }
  SurfaceRef Draw(const std::vector<std::string>& rows) {
    SurfaceRef surface =
        draw_.CreateSurface(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
    Fill(*surface, rows);
    return surface;
  }
  void Fill(Surface& surface, const std::vector<std::string>& rows) {
    files_.Put("drawn.bmp", Drawn(rows));
    const BitmapHandle bitmap = gdi_.LoadImageA("drawn.bmp");
    const ContextHandle source = gdi_.CreateCompatibleDC(0);
    gdi_.SelectObject(source, bitmap);
    const ContextHandle target = surface.GetDC();
    ASSERT_NE(target, 0);
    gdi_.BitBlt(target, {0, 0}, surface.GetSize(), source, {0, 0}, RasterOp::kCopy);
    ASSERT_EQ(surface.ReleaseDC(target), DrawStatus::kOk);
    gdi_.DeleteObject(bitmap);
    gdi_.DeleteDC(source);
  }
  std::uint32_t Word(Surface& surface, int x, int y) {
    const ContextHandle context = surface.GetDC();
    const std::uint32_t word = WordOf(gdi_.GetPixel(context, {x, y}));
    std::ignore = surface.ReleaseDC(context);
    return word;
  }

  PictureFiles files_;
  RasterScreen screen_;
  Faults faults_;
  RasterGdi gdi_{files_, screen_, faults_};
  RasterDirectDraw draw_{gdi_, screen_, faults_};
};

TEST_F(RasterDirectDrawTest, NothingIsHadBeforeCreate) {
  EXPECT_EQ(draw_.SetDisplayMode(kFrameWidth, kFrameHeight, 32), DrawStatus::kFailed);
  EXPECT_EQ(draw_.SetCooperativeLevel(1, kCooperativeNormal), DrawStatus::kFailed);
  EXPECT_EQ(draw_.CreatePrimarySurface(), nullptr);
  EXPECT_EQ(draw_.CreateSurface(1, 1), nullptr);
}

TEST_F(RasterDirectDrawTest, OnlyTheGamesModesCanBeSet) {
  ASSERT_EQ(draw_.Create(), DrawStatus::kOk);
  EXPECT_EQ(draw_.SetDisplayMode(kFrameWidth, kFrameHeight, 8), DrawStatus::kFailed);
  EXPECT_EQ(draw_.SetDisplayMode(640, 480, 32), DrawStatus::kFailed);
  EXPECT_EQ(draw_.SetDisplayMode(kFrameWidth, kFrameHeight, 16), DrawStatus::kOk);
  EXPECT_TRUE(draw_.ModeIsSet());
  EXPECT_EQ(draw_.RestoreDisplayMode(), DrawStatus::kOk);
  EXPECT_FALSE(draw_.ModeIsSet());
}

TEST_F(RasterDirectDrawTest, EachDepthTellsItsMasks) {
  Start(32);
  PixelMasks masks;
  ASSERT_EQ(draw_.CreateSurface(1, 1)->GetPixelFormat(masks), DrawStatus::kOk);
  EXPECT_EQ(masks.red, 0xFF0000U);
  EXPECT_EQ(masks.green, 0xFF00U);
  EXPECT_EQ(masks.blue, 0xFFU);
  Start(16);
  ASSERT_EQ(draw_.CreateSurface(1, 1)->GetPixelFormat(masks), DrawStatus::kOk);
  EXPECT_EQ(masks.red, 0xF800U);
  EXPECT_EQ(masks.green, 0x7E0U);
  EXPECT_EQ(masks.blue, 0x1FU);
}

TEST_F(RasterDirectDrawTest, AKeyedCopyLeavesTheKeyOut) {
  Start(32);
  SurfaceRef target = Draw({"ggg"}), source = Draw({"krk"});
  ASSERT_EQ(source->SetColorKey(kColorKeySourceBlt, kKey32, kKey32), DrawStatus::kOk);
  EXPECT_EQ(target->Blt({0, 0, 3, 1}, *source, {0, 0, 3, 1}, kBltWaitKeySource), DrawStatus::kOk);
  EXPECT_EQ(Word(*target, 0, 0), WordOfLetter('g'));
  EXPECT_EQ(Word(*target, 1, 0), WordOfLetter('r'));
  EXPECT_EQ(target->Blt({0, 0, 3, 1}, *source, {0, 0, 3, 1}, kBltWait), DrawStatus::kOk);
  EXPECT_EQ(Word(*target, 0, 0), WordOfLetter('k'));
}

TEST_F(RasterDirectDrawTest, AKeyedCopyFromASurfaceWithoutAKeyIsRefused) {
  Start(32);
  SurfaceRef target = Draw({"g"}), source = Draw({"r"});
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWaitKeySource),
            DrawStatus::kFailed);
  EXPECT_EQ(Word(*target, 0, 0), WordOfLetter('g'));
  EXPECT_EQ(source->SetColorKey(kColorKeySourceBlt, 1, 2), DrawStatus::kFailed);
  EXPECT_EQ(source->SetColorKey(4, 1, 1), DrawStatus::kFailed);
}

// At depth 16 colours are converted first and compared then: greys near the key become the key.
TEST_F(RasterDirectDrawTest, AtDepth16GreysNearTheKeyAreTheKey) {
  Start(16);
  SurfaceRef target = Draw({"gggg"}), source = draw_.CreateSurface(4, 1);
  const ContextHandle context = source->GetDC();
  gdi_.SetPixel(context, {0, 0}, PackColor(200, 200, 200));
  gdi_.SetPixel(context, {1, 0}, PackColor(207, 203, 207));
  gdi_.SetPixel(context, {2, 0}, PackColor(208, 200, 200));
  gdi_.SetPixel(context, {3, 0}, PackColor(200, 204, 200));
  ASSERT_EQ(source->ReleaseDC(context), DrawStatus::kOk);
  ASSERT_EQ(source->SetColorKey(kColorKeySourceBlt, kKey16, kKey16), DrawStatus::kOk);
  ASSERT_EQ(target->Blt({0, 0, 4, 1}, *source, {0, 0, 4, 1}, kBltWaitKeySource), DrawStatus::kOk);
  EXPECT_EQ(Word(*target, 0, 0), WordOfLetter('g'));
  EXPECT_EQ(Word(*target, 1, 0), WordOfLetter('g'));
  EXPECT_EQ(Word(*target, 2, 0), ReduceTo565(0xD0C8C8));
  EXPECT_EQ(Word(*target, 3, 0), ReduceTo565(0xC8CCC8));
}

TEST_F(RasterDirectDrawTest, ACopyRefusesRectanglesThatLeaveASurface) {
  Start(32);
  SurfaceRef target = Draw({"gg", "gg"}), source = Draw({"rr", "rr"});
  const Rect good{0, 0, 2, 2};
  for (Rect bad : {Rect{-1, 0, 1, 2}, Rect{0, -1, 2, 1}, Rect{1, 0, 3, 2}, Rect{0, 1, 2, 3},
                   Rect{0, 0, 0, 2}, Rect{2, 0, 0, 2}, Rect{0, 2, 2, 0}, Rect{0, 0, 1, 2}}) {
    EXPECT_EQ(target->Blt(bad, *source, good, kBltWait), DrawStatus::kFailed);
    EXPECT_EQ(target->Blt(good, *source, bad, kBltWait), DrawStatus::kFailed);
  }
  EXPECT_EQ(Word(*target, 0, 0), WordOfLetter('g'));
}

TEST_F(RasterDirectDrawTest, ACopyToTheVisibleSurfaceIsAPresentedFrame) {
  Start(16);
  SurfaceRef primary = draw_.CreatePrimarySurface();
  SurfaceRef frame = draw_.CreateSurface(kFrameWidth, kFrameHeight);
  const ContextHandle context = frame->GetDC();
  gdi_.SetPixel(context, {799, 599}, PackColor(200, 100, 50));
  ASSERT_EQ(frame->ReleaseDC(context), DrawStatus::kOk);
  ASSERT_EQ(primary->Blt(kWhole, *frame, kWhole, kBltWait), DrawStatus::kOk);
  EXPECT_EQ(screen_.Presented(), 1);
  EXPECT_EQ(screen_.Frame()[kFrameWidth * kFrameHeight - 1], ReduceTo565(0xC86432));
}

TEST_F(RasterDirectDrawTest, InAWindowTheVisibleSurfaceTakesDesktopCoordinates) {
  ASSERT_EQ(draw_.Create(), DrawStatus::kOk);
  ASSERT_EQ(draw_.SetCooperativeLevel(1, kCooperativeNormal), DrawStatus::kOk);
  screen_.SetClientOrigin({100, 50});
  SurfaceRef primary = draw_.CreatePrimarySurface();
  SurfaceRef frame = draw_.CreateSurface(kFrameWidth, kFrameHeight);
  EXPECT_EQ(primary->Blt(kWhole, *frame, kWhole, kBltWait), DrawStatus::kFailed);
  EXPECT_EQ(primary->Blt({100, 50, 900, 650}, *frame, kWhole, kBltWait), DrawStatus::kOk);
}

TEST_F(RasterDirectDrawTest, ASourceThatChangesLaterWasCopiedAsItWas) {
  Start(32);
  SurfaceRef target = Draw({"gg"}), source = Draw({"rr"}), other = Draw({"bb"});
  ASSERT_EQ(target->Blt({0, 0, 2, 1}, *source, {0, 0, 2, 1}, kBltWait), DrawStatus::kOk);
  Fill(*source, {"bb"});
  EXPECT_EQ(Word(*target, 0, 0), WordOfLetter('r'));
  ASSERT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kOk);
  ASSERT_EQ(source->Blt({0, 0, 2, 1}, *target, {0, 0, 2, 1}, kBltWait), DrawStatus::kOk);
  EXPECT_EQ(Word(*target, 0, 0), WordOfLetter('b'));
  EXPECT_EQ(Word(*source, 1, 0), WordOfLetter('r'));
  ASSERT_EQ(target->Blt({0, 0, 2, 1}, *other, {0, 0, 2, 1}, kBltWait), DrawStatus::kOk);
  other.reset();
  EXPECT_EQ(Word(*target, 1, 0), WordOfLetter('b'));
}

TEST_F(RasterDirectDrawTest, ASurfaceThatIsCopiedOntoItselfCopiesAllThatWaited) {
  Start(32);
  SurfaceRef target = Draw({"gg"}), source = Draw({"rr"});
  ASSERT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kOk);
  ASSERT_EQ(target->Blt({1, 0, 2, 1}, *target, {0, 0, 1, 1}, kBltWait), DrawStatus::kOk);
  EXPECT_EQ(Word(*target, 1, 0), WordOfLetter('r'));
}

TEST_F(RasterDirectDrawTest, ALostSourceWasCopiedBeforeItsMemoryWent) {
  Start(32);
  SurfaceRef target = Draw({"g"}), source = Draw({"r"});
  ASSERT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kOk);
  static_cast<RasterSurface&>(*source).Lose();
  ASSERT_EQ(source->Restore(), DrawStatus::kOk);
  EXPECT_EQ(Word(*target, 0, 0), WordOfLetter('r'));
}

// The frame on the screen follows the back surface whether all of it is copied or what changed.
TEST_F(RasterDirectDrawTest, EachPresentedFrameIsTheWholeBackSurface) {
  Start(32);
  SurfaceRef primary = draw_.CreatePrimarySurface();
  SurfaceRef back = draw_.CreateSurface(kFrameWidth, kFrameHeight);
  SurfaceRef ground = draw_.CreateSurface(kFrameWidth, kFrameHeight), sprite = Draw({"rb", "br"});
  const auto compose = [&](Point at) {
    std::ignore = back->Blt(kWhole, *ground, kWhole, kBltWait);
    std::ignore = back->Blt({at.x, at.y, at.x + 2, at.y + 2}, *sprite, {0, 0, 2, 2}, kBltWait);
  };
  const auto shown_is_back = [&] {
    const RasterBitmap& pixels = static_cast<RasterSurface&>(*back).Bitmap();
    return std::equal(pixels.Pixels(), pixels.Pixels() + kFrameWidth * kFrameHeight,
                      screen_.Frame());
  };
  for (int step = 0; step < 40; ++step) {
    compose({step * 3 % 17, step * 5 % 11});
    if (step % 4 == 1) static_cast<RasterSurface&>(*back).Bitmap();  // looked at, not presented
    if (step % 4 == 1) compose({step, step});
    if (step % 7 == 2) Fill(*sprite, {step % 2 == 0 ? "gg" : "rr", "bb"});
    if (step % 9 == 5) Fill(*primary, {"g"});  // somebody else draws on the screen
    ASSERT_EQ(primary->Blt(kWhole, *back, kWhole, kBltWait), DrawStatus::kOk);
    ASSERT_TRUE(shown_is_back()) << "step " << step;
  }
  const std::uint64_t version = screen_.Bitmap()->Version();
  ASSERT_EQ(primary->Blt(kWhole, *back, kWhole, kBltWait), DrawStatus::kOk);
  EXPECT_EQ(screen_.Bitmap()->Version(), version);  // the same frame again touches no pixel
}

TEST_F(RasterDirectDrawTest, ALostSurfaceReportsItUntilRestoreAndIsThenBlack) {
  Start(32);
  SurfaceRef target = Draw({"g"}), source = Draw({"r"});
  draw_.LoseAllSurfaces();
  EXPECT_EQ(source->GetDC(), 0);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kSurfaceLost);
  EXPECT_EQ(target->Restore(), DrawStatus::kOk);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kSurfaceLost);
  EXPECT_EQ(source->Restore(), DrawStatus::kOk);
  EXPECT_EQ(Word(*source, 0, 0), 0U);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kOk);
}

TEST_F(RasterDirectDrawTest, ACopyPlannedAsLostLosesItsSource) {
  Start(32);
  SurfaceRef target = Draw({"g"}), source = Draw({"r"}), other = Draw({"b"});
  faults_.Plan("Blt", 0, 1, true);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kSurfaceLost);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kSurfaceLost);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *other, {0, 0, 1, 1}, kBltWait), DrawStatus::kOk);
}

TEST_F(RasterDirectDrawTest, RestoringASurfaceThatIsNotLostKeepsItsPixels) {
  Start(32);
  SurfaceRef surface = Draw({"r"});
  EXPECT_EQ(surface->Restore(), DrawStatus::kOk);
  EXPECT_EQ(Word(*surface, 0, 0), WordOfLetter('r'));
}

TEST_F(RasterDirectDrawTest, ASurfaceWhoseContextIsOutIsBusy) {
  Start(32);
  SurfaceRef target = Draw({"g"}), source = Draw({"r"});
  const ContextHandle context = source->GetDC();
  EXPECT_EQ(source->GetDC(), 0);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kFailed);
  EXPECT_EQ(source->ReleaseDC(context + 1), DrawStatus::kFailed);
  EXPECT_EQ(source->ReleaseDC(context), DrawStatus::kOk);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kOk);
  EXPECT_EQ(gdi_.LiveContexts(), 0U);
}

TEST_F(RasterDirectDrawTest, EachOperationFailsOnDemand) {
  Start(32);
  SurfaceRef target = Draw({"g"}), source = Draw({"r"});
  for (const char* name :
       {"Create", "SetDisplayMode", "SetCooperativeLevel", "CreatePrimarySurface", "CreateSurface",
        "GetPixelFormat", "SetColorKey", "Blt", "GetDC", "ReleaseDC", "Restore"}) {
    faults_.Plan(name, 0, 1, false);
  }
  PixelMasks masks;
  EXPECT_EQ(draw_.Create(), DrawStatus::kFailed);
  EXPECT_EQ(draw_.SetDisplayMode(kFrameWidth, kFrameHeight, 32), DrawStatus::kFailed);
  EXPECT_EQ(draw_.SetCooperativeLevel(1, kCooperativeNormal), DrawStatus::kFailed);
  EXPECT_EQ(draw_.CreatePrimarySurface(), nullptr);
  EXPECT_EQ(draw_.CreateSurface(1, 1), nullptr);
  EXPECT_EQ(source->GetPixelFormat(masks), DrawStatus::kFailed);
  EXPECT_EQ(source->SetColorKey(kColorKeySourceBlt, 0, 0), DrawStatus::kFailed);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kFailed);
  EXPECT_EQ(source->GetDC(), 0);
  EXPECT_EQ(source->ReleaseDC(source->GetDC()), DrawStatus::kFailed);
  EXPECT_EQ(source->Restore(), DrawStatus::kFailed);
  EXPECT_EQ(target->Blt({0, 0, 1, 1}, *source, {0, 0, 1, 1}, kBltWait), DrawStatus::kOk);
}

TEST_F(RasterDirectDrawTest, SurfacesBeyondTheLawfulSizeAreNotMade) {
  Start(32);
  EXPECT_EQ(draw_.CreateSurface(0, 1), nullptr);
  EXPECT_EQ(draw_.CreateSurface(1, 4097), nullptr);
}

TEST_F(RasterDirectDrawTest, ReleaseForgetsTheMode) {
  Start(16);
  draw_.Release();
  EXPECT_FALSE(draw_.Created());
  EXPECT_FALSE(draw_.FullScreen());
  EXPECT_EQ(draw_.Depth(), 32);
}

TEST(RasterDisplayModes, TheGamesModesCanBeHadUnlessPlannedOtherwise) {
  Faults faults;
  RasterDisplayModes modes(faults);
  EXPECT_GE(modes.Test(kFrameWidth, kFrameHeight, 32), 0);
  EXPECT_LT(modes.Test(kFrameWidth, kFrameHeight, 8), 0);
  EXPECT_LT(modes.Test(1024, 768, 32), 0);
  faults.Plan("TestMode", 0, 1, false);
  EXPECT_LT(modes.Test(kFrameWidth, kFrameHeight, 32), 0);
  EXPECT_GE(modes.Test(kFrameWidth, kFrameHeight, 16), 0);
  EXPECT_EQ(modes.Depth(), 0);
  faults.Plan("SetMode", 0, 1, false);
  EXPECT_LT(modes.Set(kFrameWidth, kFrameHeight, 32), 0);
  EXPECT_GE(modes.Set(kFrameWidth, kFrameHeight, 16), 0);
  EXPECT_EQ(modes.Depth(), 16);
  modes.Restore();
  EXPECT_EQ(modes.Depth(), 0);
}

}  // namespace
}  // namespace quendle
