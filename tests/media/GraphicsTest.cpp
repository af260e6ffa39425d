#include "media/Graphics.h"

#include <gtest/gtest.h>

#include <string>

#include "base/ProcessEnds.h"
#include "media/MediaPlatform.h"

namespace quendle {
namespace {

constexpr std::int32_t kKey32 = 0xC8C8C8;
constexpr std::int32_t kKey16 = 25 << 11 | 50 << 5 | 25;

class GraphicsTest : public ::testing::Test {
 protected:
  void Fail(const char* operation, int after, int times) {
    platform_.faults.Plan(operation, after, times, false);
  }
  void Start() { InitializeDirectDraw(world_, platform_.window.Handle()); }
  std::string Warning() const {
    return "Warning: Could not initialize DirectX. Trying to initialize in normal window mode. "
           "Contact " +
           platform_.settings.SupportAddress + " if it does not work properly.";
  }
  void ExpectWindowPath() {
    EXPECT_FALSE(world_.UseDirectX);
    EXPECT_FALSE(world_.FullScreen);
    EXPECT_EQ(world_.primary_surface, nullptr);
    EXPECT_EQ(world_.off_screen_surface, nullptr);
    EXPECT_FALSE(platform_.direct_draw.Created());
    ASSERT_EQ(platform_.boxes.shown.size(), 1U);
    EXPECT_EQ(platform_.boxes.shown[0].first, "Wumbly");
    EXPECT_EQ(platform_.boxes.shown[0].second, Warning());
    EXPECT_EQ(platform_.modes.Depth(), 32);
    EXPECT_EQ(world_.TransparentColor, PackColor(200, 200, 200));
  }
  void ExpectDirectX(int depth) {
    EXPECT_TRUE(world_.UseDirectX);
    EXPECT_TRUE(world_.FullScreen);
    EXPECT_TRUE(platform_.boxes.shown.empty());
    EXPECT_EQ(platform_.direct_draw.Depth(), depth);
    EXPECT_EQ(world_.TransparentColor, depth == 16 ? kKey16 : kKey32);
  }

  MediaPlatform platform_;
  MediaWorld& world_ = platform_.world;
};

using Ladder = GraphicsTest;
using WindowGraphics = GraphicsTest;
using Presenting = GraphicsTest;

TEST_F(Ladder, TheWishedDepthIsTakenWhenItCanBeHad) {
  Start();
  ExpectDirectX(32);
  EXPECT_TRUE(platform_.direct_draw.FullScreen());
  ASSERT_NE(world_.primary_surface, nullptr);
  EXPECT_EQ(world_.off_screen_surface->GetSize(), (Size{kFrameWidth, kFrameHeight}));
}

TEST_F(Ladder, AWishFor16BitsIsTaken) {
  platform_.settings.GraphicsMode = 16;
  Start();
  ExpectDirectX(16);
}

TEST_F(Ladder, ARefused32BitModeRunsAt16BitsWithNoMessage) {
  Fail("SetDisplayMode", 0, 1);
  Start();
  ExpectDirectX(16);
}

TEST_F(Ladder, ARefused16BitModeLeavesForTheWindowPath) {
  platform_.settings.GraphicsMode = 16;
  Fail("SetDisplayMode", 0, 1);
  Start();
  ExpectWindowPath();
}

TEST_F(Ladder, BothModesRefusedLeaveForTheWindowPath) {
  Fail("SetDisplayMode", 0, 2);
  Start();
  ExpectWindowPath();
}

TEST_F(Ladder, ADeviceThatCantBeCreatedLeavesAtOnce) {
  Fail("Create", 0, 1);
  Start();
  ExpectWindowPath();
}

TEST_F(Ladder, AFailedLaterStepAt32IsNotRepeatedAndTheRestGoesOn) {
  Fail("SetCooperativeLevel", 0, 1);
  Start();
  ExpectDirectX(32);
  EXPECT_FALSE(platform_.direct_draw.FullScreen());
  ASSERT_NE(world_.primary_surface, nullptr);
}

TEST_F(Ladder, AFailedPrimarySurfaceAt32LeavesNoneAndGoesOn) {
  Fail("CreatePrimarySurface", 0, 1);
  Start();
  ExpectDirectX(32);
  EXPECT_EQ(world_.primary_surface, nullptr);
  PresentDirectX(world_);  // nothing to show it on
  EXPECT_EQ(platform_.screen.Presented(), 0);
}

TEST_F(Ladder, AFailedOffScreenSurfaceTakesTheMasksWithItAndLeaves) {
  Fail("CreateSurface", 0, 1);
  Start();
  ExpectWindowPath();
}

TEST_F(Ladder, UnknownMasksLeaveNoKeyColourAndSoLeave) {
  Fail("GetPixelFormat", 0, 1);
  Start();
  ExpectWindowPath();
}

TEST_F(Ladder, TwoFailedLaterStepsLeave) {
  Fail("SetCooperativeLevel", 0, 1);
  Fail("CreatePrimarySurface", 0, 1);
  Start();
  ExpectWindowPath();
}

TEST_F(Ladder, OneFailureAfterARefused32BitModeLeaves) {
  for (const char* operation :
       {"SetCooperativeLevel", "CreatePrimarySurface", "CreateSurface", "GetPixelFormat"}) {
    MediaPlatform platform;
    platform.faults.Plan("SetDisplayMode", 0, 1, false);
    platform.faults.Plan(operation, 0, 1, false);
    InitializeDirectDraw(platform.world, 7);
    EXPECT_FALSE(platform.world.UseDirectX) << operation;
    EXPECT_EQ(platform.boxes.shown.size(), 1U) << operation;
  }
}

TEST_F(Ladder, AnyFailureWithAWishFor16BitsLeaves) {
  for (const char* operation : {"Create", "SetDisplayMode", "SetCooperativeLevel",
                                "CreatePrimarySurface", "CreateSurface", "GetPixelFormat"}) {
    MediaPlatform platform;
    platform.settings.GraphicsMode = 16;
    platform.faults.Plan(operation, 0, 1, false);
    InitializeDirectDraw(platform.world, 7);
    EXPECT_FALSE(platform.world.UseDirectX) << operation;
    EXPECT_EQ(platform.boxes.shown.size(), 1U) << operation;
  }
}

TEST_F(Ladder, InAWindowNoModeIsSetAndAnyFailureLeaves) {
  world_.FullScreen = false;
  Fail("SetDisplayMode", 0, 0);
  Start();
  EXPECT_TRUE(world_.UseDirectX);
  EXPECT_FALSE(platform_.direct_draw.FullScreen());
  EXPECT_TRUE(platform_.boxes.shown.empty());

  MediaPlatform other;
  other.world.FullScreen = false;
  other.faults.Plan("CreatePrimarySurface", 0, 1, false);
  InitializeDirectDraw(other.world, 7);
  EXPECT_FALSE(other.world.UseDirectX);
}

TEST_F(Ladder, TheTitleOfTheWarningIsTheProduct) {
  platform_.settings.ProductName = "Tandrel";
  Fail("Create", 0, 1);
  Start();
  EXPECT_EQ(platform_.boxes.shown.at(0).first, "Tandrel");
}

TEST_F(WindowGraphics, TriesDepth32FirstWhateverTheSettingSays) {
  platform_.settings.GraphicsMode = 16;
  InitializeWindowGraphics(world_);
  EXPECT_EQ(platform_.modes.Depth(), 32);
  EXPECT_TRUE(platform_.boxes.shown.empty());
}

TEST_F(WindowGraphics, ARefused32BitModeFallsTo16) {
  Fail("TestMode", 0, 1);
  InitializeWindowGraphics(world_);
  EXPECT_EQ(platform_.modes.Depth(), 16);
}

TEST_F(WindowGraphics, WithoutAModeTheProcessEndsWithAMessage) {
  Fail("TestMode", 0, 2);
  try {
    InitializeWindowGraphics(world_);
    FAIL() << "the process goes on";
  } catch (const ProcessEnds& end) {
    EXPECT_FALSE(end.shut_down_game);
  }
  ASSERT_EQ(platform_.boxes.shown.size(), 1U);
  EXPECT_EQ(platform_.boxes.shown[0].first, "Wumbly");
  EXPECT_EQ(platform_.boxes.shown[0].second, "Could not initialize graphics. E-mail " +
                                                 platform_.settings.SupportAddress + " for help.");
  EXPECT_EQ(platform_.modes.Depth(), 0);
}

TEST_F(WindowGraphics, TheKeyColourIsTheTopLeftPixelOfTheArt) {
  platform_.files.Put("C:\\info\\tools\\tool.bmp", Drawn({"rg", "bw"}));
  InitializeWindowGraphics(world_);
  EXPECT_EQ(world_.TransparentColor, PackColor(255, 0, 0));
  EXPECT_EQ(platform_.gdi.LiveBitmaps(), 0U);
  EXPECT_EQ(platform_.gdi.LiveContexts(), 0U);
}

TEST_F(WindowGraphics, WithoutThatArtTheStartFailsAndNamesTheFile) {
  platform_.files.Remove("C:\\info\\tools\\tool.bmp");
  try {
    InitializeWindowGraphics(world_);
    FAIL() << "no key colour was missed";
  } catch (const FatalError& error) {
    EXPECT_EQ(error.BoxText(), "File C:\\info\\tools\\tool.bmp not found");
    EXPECT_EQ(error.Place().file, "info\\tools\\tool.bmp");
  }
}

TEST_F(WindowGraphics, ADamagedArtFailsWithTheReason) {
  platform_.files.Put("C:\\info\\tools\\tool.bmp", "BM");
  try {
    InitializeWindowGraphics(world_);
    FAIL() << "no key colour was missed";
  } catch (const FatalError& error) {
    EXPECT_STREQ(error.what(),
                 "info\\tools\\tool.bmp: the picture can't be read: it is not a bitmap file");
  }
}

TEST_F(GraphicsTest, ReleasingAFullScreenGivesTheDisplayBack) {
  Start();
  ReleaseDirectDraw(world_);
  EXPECT_FALSE(platform_.direct_draw.ModeIsSet());
  EXPECT_FALSE(platform_.direct_draw.Created());
  EXPECT_EQ(world_.primary_surface, nullptr);
  EXPECT_EQ(world_.off_screen_surface, nullptr);
}

TEST_F(GraphicsTest, TheWindowPathGoesBackToTheRegisteredMode) {
  InitializeWindowGraphics(world_);
  RestoreDisplaySettings(world_);
  EXPECT_EQ(platform_.modes.Depth(), 0);
}

TEST_F(GraphicsTest, MasksBecomeScales) {
  EXPECT_EQ(MaskToScale(0xFF0000), (ChannelScale{0x10000, 1}));
  EXPECT_EQ(MaskToScale(0xFF), (ChannelScale{1, 1}));
  EXPECT_EQ(MaskToScale(0xF800), (ChannelScale{0x800, 8}));
  EXPECT_EQ(MaskToScale(0x7E0), (ChannelScale{0x20, 4}));
  EXPECT_EQ(MaskToScale(0x1F), (ChannelScale{1, 8}));
  EXPECT_EQ(MaskToScale(0), (ChannelScale{1, 256}));  // a channel that isn't there
  EXPECT_EQ(MaskToScale(0x3FF), (ChannelScale{1, 1}));
}

TEST_F(GraphicsTest, Grey200OnA565SurfaceIs25And50And25) {
  const ColorScales scales{MaskToScale(0xF800), MaskToScale(0x7E0), MaskToScale(0x1F)};
  EXPECT_EQ(ToSurfaceColor(scales, 200, 200, 200), kKey16);
  EXPECT_EQ(ToSurfaceColor(scales, 255, 0, 7), 31 << 11);
  EXPECT_EQ(ToSurfaceColor({}, 200, 200, 200), 0);
}

TEST_F(GraphicsTest, APackedColourSplitsWithRedInTheLowByte) {
  EXPECT_EQ(SplitColor(0x030201), (ColorChannels{1, 2, 3}));
  EXPECT_EQ(SplitColor(0), (ColorChannels{0, 0, 0}));
  EXPECT_EQ(SplitColor(0x5), (ColorChannels{5, 0, 0}));
  EXPECT_EQ(SplitColor(kInvalidColor), (ColorChannels{255, 255, 255}));
}

TEST_F(Presenting, TheWholeOffScreenSurfaceIsShownInOneCopy) {
  Start();
  PresentDirectX(world_);
  EXPECT_EQ(platform_.screen.Presented(), 1);
}

TEST_F(Presenting, InAWindowTheFrameGoesToTheClientArea) {
  world_.FullScreen = false;
  platform_.window.corner = {30, 40};
  platform_.screen.SetClientOrigin({30, 40});
  Start();
  PresentDirectX(world_);
  EXPECT_EQ(platform_.screen.Presented(), 1);
  platform_.window.corner = {31, 40};  // moved away from under the copy: the platform refuses it
  PresentDirectX(world_);
  EXPECT_EQ(platform_.screen.Presented(), 1);
}

TEST_F(Presenting, LostSurfacesAreRestoredAndTheNextFrameShows) {
  Start();
  platform_.direct_draw.LoseAllSurfaces();
  PresentDirectX(world_);
  EXPECT_EQ(platform_.screen.Presented(), 0);
  PresentDirectX(world_);
  EXPECT_EQ(platform_.screen.Presented(), 1);
}

TEST_F(Presenting, AnotherFailureIsIgnored) {
  Start();
  Fail("Blt", 0, 1);
  PresentDirectX(world_);
  EXPECT_EQ(platform_.screen.Presented(), 0);
  PresentDirectX(world_);
  EXPECT_EQ(platform_.screen.Presented(), 1);
}

TEST_F(Presenting, TheWindowPathCopiesTheBackContextToTheWindow) {
  const ContextHandle back = platform_.gdi.CreateCompatibleDC(0);
  platform_.gdi.SelectObject(back, platform_.gdi.CreateCompatibleBitmap(back, 800, 600));
  platform_.gdi.SetPixel(back, {799, 599}, PackColor(1, 2, 3));
  PresentWindow(world_, back);
  EXPECT_EQ(platform_.screen.Presented(), 1);
  EXPECT_EQ(platform_.screen.Frame()[800 * 600 - 1], 0x010203U);
}

TEST_F(GraphicsTest, GlobalPicturesAreFoundByNameAndTheFirstCounts) {
  Start();
  SurfaceRef first = platform_.direct_draw.CreateSurface(1, 1);
  SurfaceRef second = platform_.direct_draw.CreateSurface(2, 2);
  world_.PictureRegistry.AddRepeatable({"Sky", first}, "Sky");
  world_.PictureRegistry.AddRepeatable({"sky", second}, "sky");
  EXPECT_EQ(world_.FindGlobalPicture("SKY"), first);
  EXPECT_EQ(world_.FindGlobalPicture("sea"), nullptr);
}

// What raster operations leave is what a copy with a key leaves.
TEST_F(GraphicsTest, ATransparentCopyLeavesTheKeyColourOut) {
  Gdi& gdi = platform_.gdi;
  const auto draw = [&](const std::vector<std::string>& rows) {
    platform_.files.Put("t.bmp", Drawn(rows));
    const ContextHandle context = gdi.CreateCompatibleDC(0);
    gdi.SelectObject(context, gdi.LoadImageA("t.bmp"));
    return context;
  };
  const std::vector<std::string> art{"krw", ".kb", "gkk"};
  const ContextHandle source = draw(art);
  const ContextHandle raster = draw({"gggg", "bbbb", "wwww", "rrrr"});
  const ContextHandle keyed = draw({"gggg", "bbbb", "wwww", "rrrr"});
  const std::size_t contexts = platform_.gdi.LiveContexts();
  const std::size_t bitmaps = platform_.gdi.LiveBitmaps();
  for (Point to : {Point{0, 0}, Point{1, 1}, Point{2, -1}}) {
    TransparentCopy(gdi, raster, source, to, {3, 3}, PackColor(200, 200, 200));
    gdi.TransparentBlt(keyed, to, {3, 3}, source, {0, 0}, PackColor(200, 200, 200));
    for (int y = 0; y < 4; ++y) {
      for (int x = 0; x < 4; ++x) {
        EXPECT_EQ(gdi.GetPixel(raster, {x, y}), gdi.GetPixel(keyed, {x, y})) << x << ',' << y;
      }
    }
  }
  EXPECT_EQ(gdi.GetPixel(raster, {2, 2}), PackColor(255, 255, 255)) << "stays under the key";
  EXPECT_EQ(gdi.GetPixel(raster, {3, 2}), PackColor(0, 0, 255));
  EXPECT_EQ(gdi.SetBkColor(source, 0), 0xFFFFFF) << "the source's background is put back";
  EXPECT_EQ(platform_.gdi.LiveContexts(), contexts);
  EXPECT_EQ(platform_.gdi.LiveBitmaps(), bitmaps);
}

}  // namespace
}  // namespace quendle
