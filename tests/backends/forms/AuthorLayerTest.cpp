#include "backends/forms/AuthorLayer.h"

#include <gtest/gtest.h>

#include "support/BlockFonts.h"

namespace quendle {
namespace {

using Tone = AuthorLine::Tone;

class Page : public AuthorSource {
 public:
  void SwitchOn(bool on) override { watching = on; }
  AuthorPage PageAt(std::optional<Point> pointer) override {
    ++asked;
    asked_at = pointer;
    return page;
  }
  bool watching = false;
  int asked = 0;
  std::optional<Point> asked_at;
  AuthorPage page;
};

struct AuthorLayerBench : testing::Test {
  AuthorLayerBench() {
    page.page.under = {{Tone::kHead, 0, "Under the pointer"}, {Tone::kHit, 1, "a door"}};
    page.page.trail = {{Tone::kHead, 0, "Click"}};
    layer.SetSource(&page);
  }

  bool Press(FunctionKey key) { return layer.TakeKey(key); }
  // False when nothing new is shown.
  bool Update(bool anew = false) {
    const LayerContents* contents = layer.Update(view, anew);
    if (contents != nullptr) seen = *contents;
    return contents != nullptr;
  }
  Rect Panel(std::size_t number) const {
    const LayerPicture& picture = seen.pictures.at(number);
    const Size size = picture.canvas.PixelSize();
    return {picture.at.x, picture.at.y, picture.at.x + size.width, picture.at.y + size.height};
  }

  BlockFonts fonts;
  TextPainter text{fonts};
  Page page;
  AuthorLayer layer{text};
  LayerView view{{800, 600}, {0, 0, 800, 600}, Point{100, 100}};
  LayerContents seen;
};

using AuthorLayerTest = AuthorLayerBench;

TEST_F(AuthorLayerTest, OffNobodyIsAskedAndNothingIsShown) {
  Update();
  EXPECT_TRUE(seen.pictures.empty());
  EXPECT_EQ(page.asked, 0);
  EXPECT_FALSE(page.watching);
}

TEST_F(AuthorLayerTest, F12SwitchesItOnAndOff) {
  EXPECT_TRUE(Press(FunctionKey::kF12));
  EXPECT_TRUE(page.watching);
  Update();
  EXPECT_EQ(seen.pictures.size(), 2u);
  EXPECT_EQ(page.asked_at, (Point{100, 100}));
  EXPECT_TRUE(Press(FunctionKey::kF12));
  EXPECT_FALSE(page.watching);
  EXPECT_TRUE(Update());
  EXPECT_TRUE(seen.pictures.empty());
  EXPECT_FALSE(Update());
}

TEST_F(AuthorLayerTest, WithoutASourceF12IsAKeyOfTheGame) {
  layer.SetSource(nullptr);
  EXPECT_FALSE(Press(FunctionKey::kF12));
  EXPECT_FALSE(layer.On());
}

TEST_F(AuthorLayerTest, ASourceThatGoesIsSwitchedOff) {
  Press(FunctionKey::kF12);
  layer.SetSource(nullptr);
  EXPECT_FALSE(page.watching);
  EXPECT_TRUE(Update());
  EXPECT_TRUE(seen.pictures.empty());
}

TEST_F(AuthorLayerTest, NothingIsPaintedTwice) {
  Press(FunctionKey::kF12);
  EXPECT_TRUE(Update());
  EXPECT_FALSE(Update());
  page.page.trail.push_back({Tone::kPlain, 0, "a step"});
  EXPECT_TRUE(Update());
  EXPECT_TRUE(Update(true)) << "the device lost it";
}

TEST_F(AuthorLayerTest, TheTextStandsWhereThePointerIsNot) {
  Press(FunctionKey::kF12);
  Update();
  EXPECT_GE(Panel(0).left, 400);
  EXPECT_LE(Panel(0).right, 800);
  view.pointer = Point{700, 100};
  page.page.under[1].text = "a window";
  Update();
  EXPECT_LE(Panel(0).right, 400);
  view.pointer.reset();
  page.page.under.clear();
  Update();
  EXPECT_LE(Panel(0).right, 400) << "without a pointer it stays";
}

TEST_F(AuthorLayerTest, NothingLeavesTheFrameHoweverMuchThereIsToTell) {
  for (int i = 0; i < 200; ++i) {
    page.page.under.push_back({Tone::kPlain, i % 7, std::string(90, 'w') + " and more words"});
    page.page.trail.push_back({Tone::kPlain, i % 7, "step " + std::to_string(i)});
  }
  Press(FunctionKey::kF12);
  for (const Size size : {Size{800, 600}, Size{320, 240}, Size{2560, 1440}}) {
    const Rect frame = FrameArea(size, ScaleMode::kSharp);
    view = {size, frame, Point{100, 100}};
    Update();
    ASSERT_EQ(seen.pictures.size(), 2u);
    for (std::size_t number : {0u, 1u}) {
      EXPECT_GE(Panel(number).left, frame.left);
      EXPECT_LE(Panel(number).right, frame.right);
      EXPECT_LE(Panel(number).bottom, frame.bottom) << size.height;
    }
    EXPECT_GE(Panel(1).top, Panel(0).bottom);
  }
}

TEST_F(AuthorLayerTest, TheWheelScrollsTheTrailAndANewClickShowsItsBeginning) {
  EXPECT_FALSE(layer.TakeWheel(-1)) << "off";
  for (int i = 0; i < 100; ++i) page.page.trail.push_back({Tone::kPlain, 0, std::to_string(i)});
  Press(FunctionKey::kF12);
  Update();
  const std::vector<std::uint32_t> top = seen.pictures[1].canvas.Pixels();
  EXPECT_TRUE(layer.TakeWheel(-1));
  Update();
  EXPECT_NE(seen.pictures[1].canvas.Pixels(), top);
  EXPECT_TRUE(layer.TakeWheel(5));
  Update();
  EXPECT_EQ(seen.pictures[1].canvas.Pixels(), top) << "not beyond the first line";
  layer.TakeWheel(-5);
  Update();
  page.page.trail[0].text = "Another click";
  Update();
  layer.TakeWheel(-5);
  Update();
  page.page.trail[0].text = "Click";
  Update();
  EXPECT_EQ(seen.pictures[1].canvas.Pixels(), top);
}

TEST_F(AuthorLayerTest, OutlinesGrowWithTheFrameAndTheRegionHitLiesOnTop) {
  using Kind = AuthorOutline::Kind;
  page.page.outlines = {{Kind::kHitRegion, {10, 20, 30, 40}}, {Kind::kObject, {0, 0, 100, 100}}};
  view = {{1700, 1200}, {50, 0, 1650, 1200}, Point{100, 100}};
  Press(FunctionKey::kF12);
  Update();
  ASSERT_EQ(seen.outlines.size(), 2u);
  EXPECT_EQ(seen.outlines[0].area, (Rect{50, 0, 250, 200}));
  EXPECT_EQ(seen.outlines[1].area, (Rect{70, 40, 110, 80}));
  EXPECT_GT(seen.outlines[1].width, seen.outlines[0].width);
}

}  // namespace
}  // namespace quendle
