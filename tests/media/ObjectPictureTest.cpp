#include "media/ObjectPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

#include "base/SeededRandom.h"
#include "media/Graphics.h"
#include "media/MediaPlatform.h"

namespace quendle {
namespace {

const char* const kArt = "\\art\\cat.bmp";

class ObjectPictureTest : public ::testing::Test {
 protected:
  void SetUp() override {
    platform_.files.Put("C:\\art\\cat.bmp", Drawn({"krk", "rgr"}));
    platform_.settings.GraphicsMode = 32;
  }
  void StartDirectX() { InitializeDirectDraw(world_, 7); }
  void StartWindow() {
    world_.UseDirectX = world_.FullScreen = false;
    InitializeWindowGraphics(world_);
  }
  void Lose(ObjectPicture& picture) {
    platform_.faults.Plan("Blt", 0, 1, true);
    EXPECT_EQ(picture.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
              DrawStatus::kSurfaceLost);
  }
  Color FramePixel(int x, int y) {
    const ContextHandle context = world_.off_screen_surface->GetDC();
    const Color color = platform_.gdi.GetPixel(context, {x, y});
    std::ignore = world_.off_screen_surface->ReleaseDC(context);
    return color;
  }

  MediaPlatform platform_;
  MediaWorld& world_ = platform_.world;
  ObjectPicture picture_{world_, platform_.gdi.WindowContext()};
};

using SurfacePicture = ObjectPictureTest;
using ContextPicture = ObjectPictureTest;

constexpr Color kRed = PackColor(255, 0, 0);
constexpr Color kGreen = PackColor(0, 255, 0);

TEST_F(ObjectPictureTest, NothingAndTheEmptyNameLoadNothing) {
  StartDirectX();
  for (const char* name : {"nothing", "NOTHING", ""}) {
    picture_.LoadPicture(name);
    EXPECT_FALSE(picture_.HasName()) << name;
    EXPECT_FALSE(picture_.Exists()) << name;
    EXPECT_EQ(picture_.PictureName(), name);
    picture_.LoadSurfacePicture(false);
    EXPECT_EQ(picture_.DirectDrawingSurface(), nullptr);
  }
}

TEST_F(SurfacePicture, StandsOnASurfaceOfItsSizeAndLeavesNoHandles) {
  StartDirectX();
  picture_.LoadPicture(kArt);
  ASSERT_TRUE(picture_.Exists());
  EXPECT_EQ(picture_.DirectDrawingSurface()->GetSize(), (Size{3, 2}));
  EXPECT_EQ(picture_.PictureHandle(), 0);
  EXPECT_EQ(picture_.picture(), 0);
  EXPECT_EQ(platform_.gdi.LiveContexts(), 0U);
  EXPECT_EQ(platform_.gdi.LiveBitmaps(), 0U);
}

TEST_F(SurfacePicture, DrawsWithoutTheKeyColour) {
  StartDirectX();
  picture_.LoadPicture(kArt);
  EXPECT_EQ(picture_.DrawFrameDirectX(*world_.off_screen_surface, {10, 20, 3, 2, 0, 0}),
            DrawStatus::kOk);
  EXPECT_EQ(FramePixel(10, 20), 0);
  EXPECT_EQ(FramePixel(11, 20), kRed);
  EXPECT_EQ(FramePixel(11, 21), kGreen);
}

TEST_F(SurfacePicture, HasNoPixelsForHitTests) {
  StartDirectX();
  picture_.LoadPicture(kArt);
  EXPECT_EQ(picture_.PixelAt(1, 1), kInvalidColor);
  EXPECT_EQ(picture_.CopyRectangle(0, 0, 3, 2)->GetPixelRGB(1, 1), kInvalidColor);
}

TEST_F(SurfacePicture, AFrameOutsideTheScreenIsRefusedAndThatIsAll) {
  StartDirectX();
  picture_.LoadPicture(kArt);
  for (PlacedFrame frame : {PlacedFrame{-3, 0, 3, 2, 0, 0}, PlacedFrame{800, 0, 3, 2, 0, 0},
                            PlacedFrame{0, -9, 3, 2, 0, 0}, PlacedFrame{0, 0, 3, 2, 1, 0}}) {
    EXPECT_EQ(picture_.DrawFrameDirectX(*world_.off_screen_surface, frame), DrawStatus::kFailed);
  }
}

TEST_F(SurfacePicture, ALostSurfaceIsLoadedAgainAndDrawsInTheNextFrame) {
  StartDirectX();
  picture_.LoadPicture(kArt);
  const SurfaceRef before = picture_.DirectDrawingSurface();
  Lose(picture_);
  EXPECT_EQ(FramePixel(1, 0), 0) << "the frame is dropped for this tick";
  EXPECT_EQ(picture_.DirectDrawingSurface(), before);
  EXPECT_EQ(picture_.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
            DrawStatus::kOk);
  EXPECT_EQ(FramePixel(1, 0), kRed);
  EXPECT_EQ(FramePixel(0, 0), 0) << "the key colour outlives the restoring";
}

TEST_F(SurfacePicture, ARestoreThatFailsMakesANewSurfaceWithoutAKey) {
  StartDirectX();
  picture_.LoadPicture(kArt);
  const SurfaceRef before = picture_.DirectDrawingSurface();
  platform_.faults.Plan("Restore", 0, 1, false);
  Lose(picture_);
  ASSERT_TRUE(picture_.Exists());
  EXPECT_NE(picture_.DirectDrawingSurface(), before);
  EXPECT_EQ(picture_.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
            DrawStatus::kFailed);
  picture_.LoadPicture(kArt);
  EXPECT_EQ(picture_.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
            DrawStatus::kOk);
}

TEST_F(SurfacePicture, ObjectsWithOnePictureShareItsSurfaceUntilTheLastIsReleased) {
  StartDirectX();
  picture_.LoadPicture(kArt);
  ObjectPicture other(world_, 0);
  other.LoadPicture(FoldCase(kArt));
  EXPECT_EQ(other.DirectDrawingSurface(), picture_.DirectDrawingSurface());
  picture_.Release();
  EXPECT_EQ(other.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
            DrawStatus::kOk);
  const std::weak_ptr<Surface> shared = other.DirectDrawingSurface();
  other.Release();
  EXPECT_TRUE(shared.expired());
}

TEST_F(SurfacePicture, AnyObjectThatSharesALostSurfaceBringsThePictureBack) {
  StartDirectX();
  ObjectPicture other(world_, 0);
  picture_.LoadPicture(kArt);
  other.LoadPicture(kArt);
  picture_.Release();
  Lose(other);
  EXPECT_EQ(other.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
            DrawStatus::kOk);
  EXPECT_EQ(FramePixel(1, 0), kRed);
}

TEST_F(SurfacePicture, EachStepOfLoadingMayFailAFewTimes) {
  for (const char* operation : {"LoadImageA", "CreateCompatibleDC", "SelectObject", "CreateSurface",
                                "GetDC", "BitBlt", "ReleaseDC"}) {
    MediaPlatform platform;
    platform.files.Put("C:\\art\\cat.bmp", Drawn({"krk", "rgr"}));
    InitializeDirectDraw(platform.world, 7);
    platform.faults.Plan(operation, 0, 3, false);
    ObjectPicture picture(platform.world, platform.gdi.WindowContext());
    picture.LoadPicture(kArt);
    EXPECT_EQ(picture.DrawFrameDirectX(*platform.world.off_screen_surface, {0, 0, 3, 2, 0, 0}),
              DrawStatus::kOk)
        << operation;
    EXPECT_EQ(platform.gdi.LiveContexts(), 0U) << operation;
    EXPECT_EQ(platform.gdi.LiveBitmaps(), 0U) << operation;
  }
}

TEST_F(SurfacePicture, AStepThatFailsForEverIsFatalAndNamesTheFile) {
  for (const char* operation : {"LoadImageA", "CreateCompatibleDC", "SelectObject", "GetObjectA",
                                "CreateSurface", "GetDC", "BitBlt", "ReleaseDC"}) {
    MediaPlatform platform;
    platform.files.Put("C:\\art\\cat.bmp", Drawn({"krk", "rgr"}));
    InitializeDirectDraw(platform.world, 7);
    platform.faults.Plan(operation, 0, 0, false);
    ObjectPicture picture(platform.world, platform.gdi.WindowContext());
    try {
      picture.LoadPicture(kArt);
      ADD_FAILURE() << operation;
    } catch (const FatalError& error) {
      EXPECT_EQ(error.Place().file, "art\\cat.bmp") << operation;
    }
    EXPECT_EQ(platform.gdi.LiveContexts(), 0U) << operation;
    EXPECT_EQ(platform.gdi.LiveBitmaps(), 0U) << operation;
  }
}

TEST_F(SurfacePicture, AMissingFileIsFatalWithTheBoxOfAMissingFile) {
  StartDirectX();
  try {
    picture_.LoadPicture("\\art\\dog.bmp");
    FAIL() << "a missing picture was missed";
  } catch (const FatalError& error) {
    EXPECT_EQ(error.BoxText(), "File C:\\art\\dog.bmp not found");
    EXPECT_EQ(error.Place().file, "art\\dog.bmp");
  }
}

TEST_F(SurfacePicture, ADamagedFileIsFatalWithTheReason) {
  StartDirectX();
  platform_.files.Put("C:\\art\\cat.bmp", Drawn({"krk", "rgr"}).substr(0, 60));
  try {
    picture_.LoadPicture(kArt);
    FAIL() << "a damaged picture was missed";
  } catch (const FatalError& error) {
    EXPECT_STREQ(error.what(),
                 "art\\cat.bmp: the picture can't be read: the file ends within its pixel data");
  }
}

TEST_F(SurfacePicture, AFileThatVanishedWhileItsSurfaceWasLostIsFatal) {
  StartDirectX();
  picture_.LoadPicture(kArt);
  platform_.files.Remove("C:\\art\\cat.bmp");
  platform_.faults.Plan("Blt", 0, 1, true);
  EXPECT_THROW(std::ignore = picture_.DrawFrameDirectX(*world_.off_screen_surface, {}), FatalError);
}

TEST_F(SurfacePicture, ARefusedColourKeyIsFatal) {
  StartDirectX();
  platform_.faults.Plan("SetColorKey", 0, 1, false);
  EXPECT_THROW(picture_.LoadPicture(kArt), FatalError);
}

TEST_F(SurfacePicture, AGlobalPictureIsSharedAndOutlivesTheObject) {
  StartDirectX();
  SurfaceRef sky = platform_.direct_draw.CreateSurface(3, 2);
  ASSERT_EQ(sky->SetColorKey(kColorKeySourceBlt, 0, 0), DrawStatus::kOk);
  world_.PictureRegistry.Add({"Sky", sky}, "Sky");
  picture_.LoadPicture("GlobalPicture_sky");
  EXPECT_EQ(picture_.DirectDrawingSurface(), sky);
  Lose(picture_);
  EXPECT_EQ(picture_.DirectDrawingSurface(), sky);
  EXPECT_EQ(picture_.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
            DrawStatus::kOk);
  picture_.Release();
  EXPECT_EQ(picture_.DirectDrawingSurface(), nullptr);
  EXPECT_EQ(world_.FindGlobalPicture("sky"), sky);
}

TEST_F(SurfacePicture, AGlobalPictureGetsNoColourKey) {
  StartDirectX();
  SurfaceRef sky = platform_.direct_draw.CreateSurface(3, 2);
  world_.PictureRegistry.Add({"Sky", sky}, "Sky");
  picture_.LoadPicture("globalpicture_sky");
  EXPECT_EQ(picture_.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
            DrawStatus::kFailed)
      << "a copy by key needs one";
  ASSERT_EQ(sky->SetColorKey(kColorKeySourceBlt, 5, 5), DrawStatus::kOk);
  picture_.LoadPicture("globalpicture_sky");
  EXPECT_EQ(picture_.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
            DrawStatus::kOk)
      << "whoever registered it has given it";
}

TEST_F(SurfacePicture, AnUnknownGlobalPictureDrawsNothing) {
  StartDirectX();
  picture_.LoadPicture("globalpicture_sky");
  EXPECT_FALSE(picture_.Exists());
  EXPECT_EQ(picture_.DrawFrameDirectX(*world_.off_screen_surface, {0, 0, 3, 2, 0, 0}),
            DrawStatus::kFailed);
}

TEST_F(ContextPicture, StandsInAContextWithItsPixels) {
  StartWindow();
  picture_.LoadPicture(kArt);
  EXPECT_TRUE(picture_.Exists());
  EXPECT_NE(picture_.PictureHandle(), 0);
  EXPECT_NE(picture_.picture(), 0);
  EXPECT_EQ(picture_.DirectDrawingSurface(), nullptr);
  EXPECT_EQ(picture_.PixelAt(1, 1), kGreen);
  EXPECT_EQ(picture_.PixelAt(0, 0), world_.TransparentColor);
  EXPECT_EQ(picture_.PixelAt(3, 0), kInvalidColor);
}

TEST_F(ContextPicture, DrawsWithoutTheKeyColour) {
  StartWindow();
  picture_.LoadPicture(kArt);
  const ContextHandle window = platform_.gdi.WindowContext();
  EXPECT_TRUE(picture_.DrawFrameWindow(window, {-1, 5, 3, 2, 0, 0}));
  EXPECT_EQ(platform_.gdi.GetPixel(window, {0, 5}), kRed);
  EXPECT_EQ(platform_.gdi.GetPixel(window, {0, 6}), kGreen);
  EXPECT_EQ(platform_.gdi.GetPixel(window, {1, 5}), 0);
}

TEST_F(ContextPicture, AMissingOrDamagedFileDrawsNothingAndIsLogged) {
  StartWindow();
  platform_.files.Put("C:\\art\\bad.bmp", "BM");
  for (const char* name : {"\\art\\dog.bmp", "\\art\\bad.bmp"}) {
    picture_.LoadPicture(name);
    EXPECT_TRUE(picture_.Exists()) << "it is still hit by its rectangles";
    EXPECT_NE(picture_.PictureHandle(), 0);
    EXPECT_EQ(picture_.picture(), 0);
    EXPECT_EQ(picture_.PixelAt(0, 0), kInvalidColor);
    EXPECT_FALSE(picture_.DrawFrameWindow(platform_.gdi.WindowContext(), {0, 0, 3, 2, 0, 0}));
  }
  EXPECT_TRUE(platform_.boxes.shown.empty());
  EXPECT_EQ(platform_.log.lines,
            (std::vector<std::string>{
                "Picture art\\dog.bmp draws nothing: the file is missing or can't be read",
                "Picture art\\bad.bmp draws nothing: it is not a bitmap file"}));
}

TEST_F(ContextPicture, LoadingAgainAndReleasingLeaveNoHandles) {
  StartWindow();
  picture_.LoadPicture(kArt);
  picture_.LoadPicture(kArt);
  EXPECT_EQ(platform_.gdi.LiveContexts(), 1U);
  EXPECT_EQ(platform_.gdi.LiveBitmaps(), 1U);
  picture_.Release();
  EXPECT_FALSE(picture_.Exists());
  EXPECT_EQ(platform_.gdi.LiveContexts(), 0U);
  EXPECT_EQ(platform_.gdi.LiveBitmaps(), 0U);
}

TEST_F(ContextPicture, ACopiedRectangleKeepsItsOwnPixels) {
  StartWindow();
  picture_.LoadPicture(kArt);
  const auto copy = picture_.CopyRectangle(1, 0, 2, 2);
  picture_.Release();
  EXPECT_EQ(copy->width(), 2);
  EXPECT_EQ(copy->height(), 2);
  EXPECT_EQ(copy->GetPixelRGB(0, 0), kRed);
  EXPECT_EQ(copy->GetPixelRGB(0, 1), kGreen);
  EXPECT_EQ(copy->GetPixelRGB(2, 0), kInvalidColor);
  EXPECT_EQ(copy->GetRed(0, 0), 0);
  EXPECT_EQ(copy->GetGreen(0, 0), 0);
  EXPECT_EQ(copy->GetBlue(0, 0), 0);
}

TEST(BitmapObjectTest, IsEmptyAtFirstAndOwnsItsHandles) {
  MediaPlatform platform;
  {
    BitmapObject object(platform.gdi);
    EXPECT_EQ(object.width(), 0);
    EXPECT_EQ(object.height(), 0);
    EXPECT_EQ(object.GetHandle(), 0);
    EXPECT_EQ(object.GetPixelRGB(0, 0), kInvalidColor);
    object.GenerateBitmap(platform.gdi.WindowContext(), 4, 4, 0, 0);
    object.GenerateBitmap(platform.gdi.WindowContext(), 5, 6, 0, 0);
    EXPECT_EQ(object.width(), 5);
    EXPECT_EQ(object.height(), 6);
    EXPECT_EQ(platform.gdi.LiveBitmaps(), 1U);
    EXPECT_THROW(object.GenerateBitmap(platform.gdi.WindowContext(), 40000, 1, 0, 0), FatalError);
  }
  EXPECT_EQ(platform.gdi.LiveBitmaps(), 0U);
  EXPECT_EQ(platform.gdi.LiveContexts(), 0U);
}

// The two drawing paths compose one picture: frames at, over and beyond every edge.
class DrawingPaths : public ::testing::TestWithParam<int> {};

TEST_P(DrawingPaths, GiveOnePicture) {
  MediaPlatform surfaces, contexts;
  surfaces.settings.GraphicsMode = 32;
  contexts.world.UseDirectX = contexts.world.FullScreen = false;
  SeededRandom random(static_cast<std::uint64_t>(GetParam()));
  const auto below = [&](int limit) { return static_cast<int>(random.Rnd() * limit); };
  std::vector<std::string> sheet(60);
  for (std::string& row : sheet) {
    while (row.size() < 90) row.append(1 + below(9), "kkrgbw"[below(6)]);
    row.resize(90);
  }
  for (MediaPlatform* platform : {&surfaces, &contexts}) {
    platform->files.Put("C:\\sheet.bmp", Drawn(sheet));
    platform->files.Put("C:\\ground.bmp", Filled(800, 600, 'b'));
  }
  InitializeDirectDraw(surfaces.world, 7);
  InitializeWindowGraphics(contexts.world);
  const ContextHandle back = contexts.gdi.CreateCompatibleDC(contexts.gdi.WindowContext());
  contexts.gdi.SelectObject(
      back, contexts.gdi.CreateCompatibleBitmap(contexts.gdi.WindowContext(), 800, 600));

  ObjectPicture surface_ground(surfaces.world, surfaces.gdi.WindowContext());
  ObjectPicture context_ground(contexts.world, contexts.gdi.WindowContext());
  ObjectPicture surface_sheet(surfaces.world, surfaces.gdi.WindowContext());
  ObjectPicture context_sheet(contexts.world, contexts.gdi.WindowContext());
  surface_ground.LoadPicture("\\ground.bmp");
  context_ground.LoadPicture("\\ground.bmp");
  surface_sheet.LoadPicture("\\sheet.bmp");
  context_sheet.LoadPicture("\\sheet.bmp");

  const auto draw = [&](ObjectPicture& on_surface, ObjectPicture& in_context, PlacedFrame frame) {
    const DrawStatus ignored =
        on_surface.DrawFrameDirectX(*surfaces.world.off_screen_surface, frame);
    in_context.DrawFrameWindow(back, frame);
    return ignored;
  };
  EXPECT_EQ(draw(surface_ground, context_ground, {0, 0, 800, 600, 0, 0}), DrawStatus::kOk);
  for (int i = 0; i < 200; ++i) {
    const int x = below(80), y = below(50);
    const PlacedFrame frame{
        below(1000) - 100, below(800) - 100, 1 + below(90 - x), 1 + below(60 - y), x, y};
    std::ignore = draw(surface_sheet, context_sheet, frame);
  }
  PresentDirectX(surfaces.world);
  PresentWindow(contexts.world, back);
  const std::size_t size = std::size_t{800} * 600;
  const std::vector<std::uint32_t> first(surfaces.screen.Frame(), surfaces.screen.Frame() + size);
  const std::vector<std::uint32_t> second(contexts.screen.Frame(), contexts.screen.Frame() + size);
  EXPECT_TRUE(first == second);
  EXPECT_NE(std::ranges::count(first, WordOfLetter('r')), 0);
  EXPECT_EQ(std::ranges::count(first, WordOfLetter('k')), 0) << "the key is never seen";
}

INSTANTIATE_TEST_SUITE_P(Scenes, DrawingPaths, ::testing::Range(1, 9));

}  // namespace
}  // namespace quendle
