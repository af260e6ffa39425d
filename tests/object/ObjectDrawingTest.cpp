// The tree of objects on the screen: both drawing paths give one picture.
#include <gtest/gtest.h>

#include <tuple>

#include "backends/raster/RasterSurface.h"
#include "media/BitmapObject.h"
#include "media/PlacedFrame.h"
#include "support/ObjectBench.h"

namespace quendle {
namespace {

constexpr Color kRed = PackColor(255, 0, 0);
constexpr Color kGreen = PackColor(0, 255, 0);
constexpr Color kBlue = PackColor(0, 0, 255);

// A bench whose objects are drawn onto an empty frame of 800 by 600.
struct DrawingBench : ObjectBench {
  explicit DrawingBench(DrawingPath drawing_path) : ObjectBench(drawing_path), path(drawing_path) {
    RasterGdi& gdi = platform.backend.gdi;
    if (path == DrawingPath::kWindow) {
      context = gdi.CreateCompatibleDC(gdi.WindowContext());
      gdi.SelectObject(context, gdi.CreateCompatibleBitmap(gdi.WindowContext(), 800, 600));
    }
  }
  // An object of a picture of one colour and that size, at a place.
  TestObject& Block(const std::string& name, char color, int width, int height) {
    return Object(name)
        .Picture(Filled(width, height, color))
        .Still(width, height)
        .State("default", "nothing", "still");
  }
  void Draw(ForwardingObject& object, int parent_x = 0, int parent_y = 0) {
    if (path == DrawingPath::kWindow) {
      object.Refresh(context, parent_x, parent_y);
    } else {
      object.RefreshDirectX(*media.off_screen_surface, parent_x, parent_y);
    }
  }
  Color Pixel(int x, int y) {
    RasterGdi& gdi = platform.backend.gdi;
    if (path == DrawingPath::kWindow) return gdi.GetPixel(context, {x, y});
    const ContextHandle surface = media.off_screen_surface->GetDC();
    const Color color = gdi.GetPixel(surface, {x, y});
    std::ignore = media.off_screen_surface->ReleaseDC(surface);
    return color;
  }
  std::vector<Color> Pixels() {
    RasterGdi& gdi = platform.backend.gdi;
    const ContextHandle source =
        path == DrawingPath::kWindow ? context : media.off_screen_surface->GetDC();
    std::vector<Color> pixels;
    for (int y = 0; y < 600; ++y) {
      for (int x = 0; x < 800; ++x) pixels.push_back(gdi.GetPixel(source, {x, y}));
    }
    if (path != DrawingPath::kWindow) std::ignore = media.off_screen_surface->ReleaseDC(source);
    return pixels;
  }

  DrawingPath path;
  ContextHandle context = 0;
};

class ObjectDrawing : public ::testing::TestWithParam<DrawingPath> {
 protected:
  DrawingBench bench_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(BothPaths, ObjectDrawing,
                         ::testing::Values(DrawingPath::kDirectDraw, DrawingPath::kWindow),
                         [](const auto& test) {
                           return test.param == DrawingPath::kWindow ? "Window" : "DirectDraw";
                         });

TEST_P(ObjectDrawing, FramesStandAtTheParentsPlaceAndTheObjects) {
  bench_.Block("door", 'r', 4, 4);
  TestedObject door = bench_.LoadOn("door");
  door->Setxpos(10);
  door->Setypos(20);
  bench_.Draw(*door, 100, 200);
  EXPECT_EQ(bench_.Pixel(110, 220), kRed);
  EXPECT_EQ(bench_.Pixel(113, 223), kRed);
  EXPECT_EQ(bench_.Pixel(109, 220), 0);
  EXPECT_EQ(bench_.Pixel(114, 223), 0);
}

TEST_P(ObjectDrawing, PlacementsFollowPinAndKeepAnOffset) {
  bench_.Object("door")
      .Picture(Filled(4, 4, 'g'))
      .Frame("follow", {0, 0, 1, 1})
      .Frame("pinned", {0, 0, 1, 1}, "0", "0")
      .Frame("offset", {0, 0, 1, 1}, "-2", "stable+3")
      .Animation("still", 9, "loop", {"follow", "pinned", "offset"})
      .State("default", "nothing", "still");
  TestedObject door = bench_.LoadOn("door");
  door->Setxpos(50);
  door->Setypos(60);
  bench_.Draw(*door);
  EXPECT_EQ(bench_.Pixel(50, 60), kGreen);
  EXPECT_EQ(bench_.Pixel(0, 0), kGreen);
  EXPECT_EQ(bench_.Pixel(52, 63), kGreen);
}

TEST_P(ObjectDrawing, AStepIsDrawnOneStepAhead) {
  bench_.Object("door")
      .Picture(Filled(4, 4, 'g'))
      .Frame("step", {0, 0, 1, 1}, "stable+5", "40")
      .Animation("still", 9, "loop", {"step"})
      .State("default", "nothing", "still");
  TestedObject door = bench_.LoadOn("door");
  ASSERT_EQ(door->xpos(), 5);
  bench_.Draw(*door);
  EXPECT_EQ(bench_.Pixel(10, 40), kGreen);
  EXPECT_EQ(bench_.Pixel(5, 40), 0);
}

TEST_P(ObjectDrawing, TreeOrderIsDepthOrder) {
  bench_.Block("a", 'g', 4, 4);
  bench_.Block("b", 'b', 4, 4);
  bench_.Block("hall", 'r', 10, 10).Child("a").Child("b", "xpos_2");
  TestedObject hall = bench_.LoadOn("hall");
  bench_.Draw(*hall);
  EXPECT_EQ(bench_.Pixel(0, 0), kGreen);
  EXPECT_EQ(bench_.Pixel(2, 0), kBlue);
  EXPECT_EQ(bench_.Pixel(8, 8), kRed);
}

TEST_P(ObjectDrawing, ALaterFrameLiesOverAnEarlier) {
  bench_.Object("door")
      .Picture(Drawn({"rg"}))
      .Frame("red", {0, 0, 1, 1}, "5", "5")
      .Frame("green", {1, 0, 1, 1}, "5", "5")
      .Animation("still", 9, "loop", {"red", "green"})
      .State("default", "nothing", "still");
  TestedObject door = bench_.LoadOn("door");
  bench_.Draw(*door);
  EXPECT_EQ(bench_.Pixel(5, 5), kGreen);
}

TEST_P(ObjectDrawing, AGrandchildIsPlacedAgainstItsParentOnly) {
  bench_.Block("leaf", 'g', 2, 2);
  bench_.Block("branch", 'b', 2, 2).Child("leaf", "xpos_3");
  bench_.Block("hall", 'r', 2, 2).Child("branch", "xpos_20");
  TestedObject hall = bench_.LoadOn("hall");
  hall->Setxpos(100);
  bench_.Draw(*hall);
  EXPECT_EQ(bench_.Pixel(120, 0), kBlue);
  EXPECT_EQ(bench_.Pixel(23, 0), kGreen);
  EXPECT_EQ(bench_.Pixel(123, 0), 0);
}

TEST_P(ObjectDrawing, AnInvisibleObjectHidesAllBelowIt) {
  bench_.Block("leaf", 'g', 2, 2);
  bench_.Block("hall", 'r', 4, 4).Child("leaf");
  TestedObject hall = bench_.LoadOn("hall");
  hall->SetVisible(false);
  bench_.Draw(*hall);
  EXPECT_EQ(bench_.Pixel(0, 0), 0);
  hall->SetVisible(true);
  ObjectBench::Child(*hall, "leaf")->SetVisible(false);
  bench_.Draw(*hall);
  EXPECT_EQ(bench_.Pixel(0, 0), kRed);
}

TEST_P(ObjectDrawing, WithoutAPictureChildrenAreStillDrawn) {
  bench_.Block("leaf", 'g', 2, 2);
  bench_.Object("nothing").PictureLine("nothing").Child("leaf");
  bench_.Object("hall", "hall").Child("nothing");
  TestedObject hall = bench_.LoadOn("hall");
  bench_.Draw(*hall);
  EXPECT_EQ(bench_.Pixel(0, 0), kGreen);
}

TEST_P(ObjectDrawing, TheNameOfThePictureDecidesWhetherFramesAreDrawn) {
  bench_.Block("door", 'r', 4, 4);
  TestedObject door = bench_.LoadOn("door");
  for (const char* name : {"", "NOTHING"}) {
    door->SetPictureName(name);
    bench_.Draw(*door);
    EXPECT_EQ(bench_.Pixel(0, 0), 0) << name;
  }
}

TEST_P(ObjectDrawing, EveryFrameIsToldToAWatcher) {
  class Watcher : public BlitWatcher {
   public:
    Lines seen;
    void Blitted(const std::string& object, const std::string& frame, const PlacedFrame& placed,
                 DrawStatus status) override {
      seen.push_back(object + " " + frame + " " + std::to_string(placed.left) + "," +
                     std::to_string(placed.top) + (status == DrawStatus::kOk ? "" : " refused"));
    }
  } watcher;
  bench_.objects.blit_watcher = &watcher;
  bench_.Block("leaf", 'g', 2, 2);
  bench_.Block("hall", 'r', 4, 4).Child("leaf", "xpos_3 ypos_4");
  TestedObject hall = bench_.LoadOn("hall");
  bench_.Draw(*hall, 10, 0);
  EXPECT_EQ(watcher.seen, (Lines{"hall all 10,0", "leaf all 3,4"}));
}

TEST(DrawingPaths, GiveOnePicturePixelByPixel) {
  std::vector<std::vector<Color>> pictures;
  for (DrawingPath path : {DrawingPath::kDirectDraw, DrawingPath::kWindow}) {
    DrawingBench bench(path);
    const std::string art =
        Drawn({"kkrrggbb", "krrkggbk", "rrkkgkbb", "wwwwkkrr", "kwkwrrkk", "rgbwrgbw"});
    bench.Object("leaf")
        .Picture(art)
        .Frame("a", {1, 1, 6, 4}, "stable+2", "stable")
        .Frame("b", {0, 0, 8, 6}, "30/5", "12")
        .Animation("still", 9, "loop", {"a", "b"})
        .State("default", "nothing", "still");
    bench.Object("edge").Picture(art).Still(8, 6).State("default", "nothing", "still");
    bench.Block("hall", 'b', 200, 150)
        .Child("leaf", "xpos_40 ypos_50")
        .Child("edge", "xpos_797 ypos_596");
    bench.Object("corner").Picture(art).Still(8, 6).State("default", "nothing", "still");
    bench.Object("hall").Child("corner", "xpos_-3 ypos_-2");
    TestedObject hall = bench.LoadOn("hall");
    bench.Draw(*hall);
    pictures.push_back(bench.Pixels());
  }
  ASSERT_EQ(pictures[0].size(), pictures[1].size());
  EXPECT_TRUE(pictures[0] == pictures[1]);
  EXPECT_NE(pictures[0][0], 0);
  EXPECT_NE(pictures[0].back(), 0) << "cut at the far corner";
}

TEST(DrawingPaths, AMissingPictureIsFatalOnlyForSurfaces) {
  DrawingBench surfaces(DrawingPath::kDirectDraw);
  surfaces.Object("door").Still(10, 10).PictureLine("\\nosuch.bmp");
  EXPECT_EQ(FatalBoxOf([&] { surfaces.Load("door"); }), "File C:\\Game\\nosuch.bmp not found");

  DrawingBench window(DrawingPath::kWindow);
  window.Object("door")
      .Still(10, 10)
      .PictureLine("\\nosuch.bmp")
      .State("default", "nothing", "still");
  TestedObject door = window.LoadOn("door");
  window.Draw(*door);
  EXPECT_EQ(window.Pixel(5, 5), 0);
  EXPECT_NE(door->pictureHandle(), 0);
  EXPECT_TRUE(door->AreWeOnTheObject(5, 5)) << "hit by its rectangles";
}

TEST(DrawingPaths, ALostSurfaceIsRestoredForTheNextFrame) {
  DrawingBench bench(DrawingPath::kDirectDraw);
  bench.Block("door", 'r', 4, 4);
  TestedObject door = bench.LoadOn("door");
  bench.platform.faults.Plan("Blt", 0, 1, true);
  bench.Draw(*door);
  EXPECT_EQ(bench.Pixel(0, 0), 0) << "dropped for this tick";
  bench.Draw(*door);
  EXPECT_EQ(bench.Pixel(0, 0), kRed);
}

TEST(DrawingPaths, ALostFrameStopsNeitherTheFramesBehindItNorTheChildren) {
  DrawingBench bench(DrawingPath::kDirectDraw);
  bench.Block("lamp", 'b', 4, 4);
  bench.Object("door")
      .Picture(Filled(4, 4, 'g'))
      .Frame("one", {0, 0, 2, 2}, "10", "0")
      .Frame("two", {0, 0, 2, 2}, "20", "0")
      .Animation("still", 9, "loop", {"one", "two"})
      .State("default", "nothing", "still")
      .Child("lamp", "xpos_30");
  TestedObject door = bench.LoadOn("door");
  bench.platform.faults.Plan("Blt", 0, 1, true);
  bench.Draw(*door);
  EXPECT_EQ(bench.Pixel(10, 0), 0);
  EXPECT_EQ(bench.Pixel(20, 0), kGreen);
  EXPECT_EQ(bench.Pixel(40, 0), kBlue);
}

TEST(FrameAsObject, IsACopyOfTheLastFrameOfThatName) {
  DrawingBench bench(DrawingPath::kWindow);
  bench.Object("door")
      .Picture(Drawn({"rrg", "rrg"}))
      .Frame("a", {0, 0, 2, 2})
      .Frame("A", {2, 0, 1, 2});
  TestedObject door = bench.Load("door");
  auto copy = door->GetFrameAsObject("a");
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(copy->width(), 1);
  EXPECT_EQ(copy->height(), 2);
  EXPECT_EQ(copy->GetPixelRGB(0, 1), kGreen);
  EXPECT_EQ(copy->GetRed(0, 0), 0);
  EXPECT_EQ(door->GetFrameAsObject("nosuch"), nullptr);
}

TEST(FrameAsObject, OfAnObjectWithoutAPictureIsNothing) {
  DrawingBench bench(DrawingPath::kWindow);
  bench.Object("door");
  EXPECT_EQ(bench.Load("door")->GetFrameAsObject("a"), nullptr);
}

}  // namespace
}  // namespace quendle
