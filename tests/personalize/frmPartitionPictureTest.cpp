#include "personalize/frmPartitionPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>

#include "personalize/WizardBench.h"
#include "support/Fatal.h"

namespace quendle {
namespace {

constexpr std::uint32_t kGrey = 0xC8C8C8;

// --- The face, computed another way -------------------------------------------------------------

// To the nearest whole number, ties to the even one.
double Nearest(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest != 0.5) return rest < 0.5 ? below : below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

// Whether an outline winds around a pixel's corner; its left and top edges count.
bool Inside(const std::vector<Point>& outline, int x, int y) {
  int winding = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point a = outline[i];
    const Point b = outline[(i + 1) % outline.size()];
    const long cross =
        static_cast<long>(b.x - a.x) * (y - a.y) - static_cast<long>(x - a.x) * (b.y - a.y);
    if (a.y <= y && y < b.y && cross <= 0) ++winding;
    if (b.y <= y && y < a.y && cross >= 0) --winding;
  }
  return winding != 0;
}

// One channel of the shrunk box: `box` holds the cut-out pixels, column by column.
int Shrunk(const std::vector<std::vector<std::uint32_t>>& box, int i, int j, int shift) {
  const auto width = static_cast<int>(box.size());
  const auto height = static_cast<int>(box[0].size());
  const double u = i * (width / 32.0);
  const double v = j * (height / 32.0);
  const auto x0 = static_cast<int>(Nearest(u - 0.5));
  const auto y0 = static_cast<int>(Nearest(v - 0.5));
  const int x1 = x0 + 1 < width ? x0 + 1 : x0;
  const int y1 = y0 + 1 < height ? y0 + 1 : y0;
  const auto value = [&](int x, int y) {
    return static_cast<double>(
        box[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] >> shift & 255);
  };
  const double right = u - x0;
  const double lower = v - y0;
  const double top = Nearest(value(x0, y0) * (1 - right) + value(x1, y0) * right);
  const double bottom = Nearest(value(x0, y1) * (1 - right) + value(x1, y1) * right);
  return static_cast<int>(Nearest(top * (1 - lower) + bottom * lower));
}

Picture ExpectedFace(const std::vector<Point>& outline) {
  int left = 1 << 20, top = left, right = -left, bottom = -left;
  for (const Point& point : outline) {
    left = std::min(left, point.x);
    right = std::max(right, point.x);
    top = std::min(top, point.y);
    bottom = std::max(bottom, point.y);
  }
  std::vector<std::vector<std::uint32_t>> box;
  for (int x = left; x < right; ++x) {
    std::vector<std::uint32_t>& column = box.emplace_back();
    for (int y = top; y < bottom; ++y) {
      column.push_back(Inside(outline, x, y) ? ColorAt(x, y) : kGrey);
    }
  }
  Picture face{{32, 32}, {}};
  for (int j = 0; j < 32; ++j) {
    for (int i = 0; i < 32; ++i) {
      std::uint32_t word = 0;
      for (int shift : {0, 8, 16}) {
        word |= static_cast<std::uint32_t>(Shrunk(box, i, j, shift)) << shift;
      }
      face.words.push_back(word);
    }
  }
  return face;
}

class frmPartitionPictureTest : public ::testing::Test, public WizardBench {
 protected:
  Picture CutOut(const std::vector<Point>& outline) {
    ToEditor(outline);
    return Written("face.bmp");
  }
};

TEST_F(frmPartitionPictureTest, ALargeFaceIsCutAndShrunkPixelByPixel) {
  const std::vector<Point> outline = {{60, 20},   {140, 35}, {171, 90},
                                      {120, 163}, {50, 150}, {31, 77}};
  EXPECT_TRUE(CutOut(outline) == ExpectedFace(outline));
  EXPECT_EQ(InView(), "frmEditDoctorCursor");
}

TEST_F(frmPartitionPictureTest, AFaceOf32By32KeepsItsPixels) {
  const std::vector<Point> outline = {{100, 50}, {132, 50}, {132, 82}, {100, 82}};
  const Picture face = CutOut(outline);
  EXPECT_TRUE(face == ExpectedFace(outline));
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) ASSERT_EQ(face.At(x, y), ColorAt(100 + x, 50 + y));
  }
}

TEST_F(frmPartitionPictureTest, ASmallFaceIsGrownByTheSameFormula) {
  const std::vector<Point> outline = {{10, 10}, {30, 12}, {25, 21}, {12, 19}};
  EXPECT_TRUE(CutOut(outline) == ExpectedFace(outline));
}

TEST_F(frmPartitionPictureTest, AFlatFaceShrinksOneWayAndGrowsTheOther) {
  const std::vector<Point> outline = {{0, 0}, {599, 3}, {400, 9}, {20, 11}};
  EXPECT_TRUE(CutOut(outline) == ExpectedFace(outline));
}

TEST_F(frmPartitionPictureTest, AnOutlineThatCrossesItselfIsFilledWhereItWindsAround) {
  const std::vector<Point> star = {{100, 0}, {160, 190}, {5, 70}, {195, 70}, {40, 190}};
  EXPECT_TRUE(CutOut(star) == ExpectedFace(star));
  EXPECT_NE(Written("face.bmp").At(16, 18), kGrey) << "the middle of a star is no hole";
}

TEST_F(frmPartitionPictureTest, OnePointGivesBlackAndTwoGiveGrey) {
  const Picture black{{32, 32}, std::vector<std::uint32_t>(1024, 0)};
  EXPECT_TRUE(CutOut({{40, 40}}) == black);
  PressPicture(1);  // back from stage 3, which drops the outline
  Click({{10, 10}, {50, 60}});
  PressPicture(3);
  EXPECT_TRUE(Written("face.bmp") == (Picture{{32, 32}, std::vector<std::uint32_t>(1024, kGrey)}));
  ASSERT_EQ(boxes.Shown().size(), 3u) << "the chooser, and a question for each";
  EXPECT_NE(boxes.Shown()[2].text.find("at least three points"), std::string::npos);
}

TEST_F(frmPartitionPictureTest, WithoutAnOutlineAParentMayStay) {
  ToPartition();
  boxes.QueueAnswer("no");
  PressPicture(3);
  EXPECT_EQ(InView(), "frmPartitionPicture");
  EXPECT_EQ(files.Get(std::string(kFolder) + "face.bmp"), std::nullopt);
}

TEST_F(frmPartitionPictureTest, AHundredPointsAreCutAndOneMoreIsToldWhileTheWizardGoesOn) {
  ToPartition();
  std::vector<Point> outline;
  for (int i = 0; i < 100; ++i) {
    const double angle = i * 2 * 3.14159 / 100;
    outline.push_back({static_cast<int>(std::lround(150 + 90 * std::cos(angle))),
                       static_cast<int>(std::lround(120 + 80 * std::sin(angle)))});
  }
  Click(outline);
  Click({{150, 120}});
  boxes.TakeShown();
  PressPicture(3);
  EXPECT_EQ(InView(), "frmPartitionPicture");
  ASSERT_EQ(boxes.Shown().size(), 1u);
  EXPECT_NE(boxes.Shown()[0].text.find("has 101 points, and 100 are the most"), std::string::npos);
  PressPicture(5);
  EXPECT_EQ(Lines(), 100);
  PressPicture(3);
  EXPECT_EQ(InView(), "frmEditDoctorCursor");
  EXPECT_TRUE(Written("face.bmp") == ExpectedFace(outline));
}

TEST_F(frmPartitionPictureTest, UndoTakesTheLastLineAndTheFirstTwoTogether) {
  ToPartition();
  PressPicture(5);
  EXPECT_EQ(Lines(), 0) << "on a fresh window it does nothing";
  Click({{1, 1}});
  PressPicture(5);
  EXPECT_EQ(Lines(), 0);
  Click({{1, 1}, {2, 2}});
  PressPicture(6);
  EXPECT_EQ(Lines(), 0) << "a single point is no line";
  Click({{1, 1}, {2, 2}, {3, 3}, {4, 4}});
  PressPicture(5);
  EXPECT_EQ(Lines(), 3);
  PressPicture(5);
  EXPECT_EQ(Lines(), 2);
  Click({{9, 9}});
  PressPicture(13);
  EXPECT_EQ(Lines(), 0) << "Start over";
}

TEST_F(frmPartitionPictureTest, EachLineBeginsWhereTheOneBeforeEndsAndTheFirstHasNoLength) {
  ToPartition();
  const Rect image = At("Image1").area;
  Click({{30, 40}, {80, 20}});
  EXPECT_EQ(At("Line1", 1).area,
            (Rect{image.left + 30, image.top + 40, image.left + 30, image.top + 40}));
  EXPECT_EQ(At("Line1", 2).area,
            (Rect{image.left + 30, image.top + 40, image.left + 80, image.top + 20}));
}

TEST_F(frmPartitionPictureTest, ASmallPhotographNeedsNoScrollBars) {
  ToPartition();
  EXPECT_FALSE(At("HScroll1").visible);
  EXPECT_FALSE(At("VScroll1").visible);
}

TEST_F(frmPartitionPictureTest, OutlineAndPhotographScrollTogetherAndEveryPixelIsReached) {
  loader.pictures["/large.jpg"] = ColorfulPicture({1300, 950});
  ToPartition("/large.jpg");
  Click({{30, 40}, {80, 20}});
  Control& across = At("HScroll1");
  ASSERT_TRUE(across.visible);
  EXPECT_EQ(across.value, across.maximum / 2) << "the middle is seen first";
  EXPECT_EQ(At("VScroll1").value, At("VScroll1").maximum / 3);
  host.Set("HScroll1", 0, 0);
  host.Set("VScroll1", 0, 0);
  const Rect before = At("Image1").area;
  EXPECT_EQ(before.left, At("Image1").clip.left) << "the first column is seen";
  EXPECT_EQ(before.top, At("Image1").clip.top);
  const Rect line = At("Line1", 2).area;
  const int right = across.maximum;
  ASSERT_TRUE(host.Set("HScroll1", 0, right));
  ASSERT_TRUE(host.Set("VScroll1", 0, 7));
  EXPECT_EQ(At("Image1").area.left, before.left - right);
  EXPECT_EQ(At("Image1").area.top, before.top - 7);
  EXPECT_EQ(At("Line1", 2).area,
            (Rect{line.left - right, line.top - 7, line.right - right, line.bottom - 7}));
  EXPECT_EQ(At("Image1").area.right, At("Image1").clip.right) << "the last column is seen";
  host.Set("VScroll1", 0, At("VScroll1").maximum);
  EXPECT_EQ(At("Image1").area.bottom, At("Image1").clip.bottom) << "and the last row";
  // A point is a place of the photograph, wherever that has been moved to.
  Click({{1299, 949}});
  EXPECT_EQ(At("Line1", 3).area.right, At("Image1").area.left + 1299);
}

TEST_F(frmPartitionPictureTest, AFaceIsCutWhereItIsInAScrolledPhotograph) {
  loader.pictures["/large.jpg"] = ColorfulPicture({1300, 950});
  ToPartition("/large.jpg");
  host.Set("HScroll1", 0, 300);
  const std::vector<Point> outline = {{1200, 800}, {1290, 820}, {1250, 940}};
  Click(outline);
  PressPicture(3);
  EXPECT_TRUE(Written("face.bmp") == ExpectedFace(outline));
}

TEST_F(frmPartitionPictureTest, APhotographIsAskedForThatCanBeClickedEverywhere) {
  loader.pictures["/exact.jpg"] = ColorfulPicture({2184, 100});
  ToPartition("/exact.jpg");
  EXPECT_EQ(loader.limits.back(), (PictureLimit{2184, 1200})) << "2184 pixels are 32760 twips";
  EXPECT_EQ(At("Image1").area.Width(), 2184);
  Click({{2183, 99}});
  EXPECT_EQ(Lines(), 1);
  EXPECT_LE(loader.limits.front().most, 600) << "for the preview less is enough";
}

TEST_F(frmPartitionPictureTest, ThePhotographStaysInMemoryOnlyWhileItCanBeSeen) {
  const SharedPicture& photograph = loader.pictures["/photos/child.jpg"];
  select.Open();
  Choose("/photos/child.jpg");
  const long without = photograph.use_count();
  const std::size_t bitmaps = backend.gdi.LiveBitmaps();
  const auto held = [&] { return photograph.use_count() > without; };
  PressPicture(3);
  EXPECT_TRUE(held());
  PressPicture(1);
  EXPECT_FALSE(held()) << "back to stage 1";
  PressPicture(3);
  PressPicture(11);
  EXPECT_FALSE(held()) << "closed";
  EXPECT_EQ(backend.gdi.LiveBitmaps(), bitmaps);

  const std::vector<int> ways_out = {11, 3};  // of stage 3: closed, and on to the end
  for (int way : ways_out) {
    select.Open();
    PressPicture(3);
    Click({{1, 1}, {20, 2}, {3, 30}});
    PressPicture(3);
    ASSERT_EQ(InView(), "frmEditDoctorCursor");
    EXPECT_TRUE(held()) << "stage 3 may go back to it";
    PressPicture(1);
    EXPECT_EQ(At("Image1").image, photograph);
    Click({{1, 1}, {20, 2}, {3, 30}});
    PressPicture(3);
    PressPicture(way);
    EXPECT_FALSE(held()) << way;
  }
}

TEST_F(frmPartitionPictureTest, APressBesideThePhotographIsNoPoint) {
  ToPartition();
  Click({{-1, 5}, {600, 5}, {5, 300}, {30000, 5}});
  EXPECT_EQ(Lines(), 0);
}

TEST_F(frmPartitionPictureTest, LinesStayWhileTheUserGoesBackAndNextBeginsAnew) {
  ToPartition();
  Form& partition = *host.InView();
  Click({{1, 1}, {2, 2}, {3, 3}});
  PressPicture(1);
  EXPECT_EQ(InView(), "frmSelectPicture");
  EXPECT_NE(partition.Find("Line1", 3), nullptr);
  PressPicture(3);
  EXPECT_EQ(partition.Find("Line1", 1), nullptr);
}

TEST_F(frmPartitionPictureTest, TheTitleButtonsMinimiseBeepAndClose) {
  ToPartition();
  PressPicture(9);
  EXPECT_EQ(system.beeps, 1);
  PressPicture(7);
  EXPECT_EQ(host.InView()->window_state, WindowState::kMinimised);
  PressPicture(12);
  EXPECT_EQ(InView(), "(none)");
  EXPECT_EQ(prompt.calls, (std::vector<std::string>{"Show"}));
}

TEST_F(frmPartitionPictureTest, APlaceThatCantBeWrittenIsFatal) {
  ToPartition();
  Click({{1, 1}, {20, 2}, {3, 30}});
  faults.Plan("write", 0, 0, false);
  EXPECT_THAT(FatalOf([&] { PressPicture(3); }),
              testing::HasSubstr("face.bmp: the picture could not be written"));
}

TEST_F(frmPartitionPictureTest, NothingIsLeftInTheContextsAfterACut) {
  ToPartition();
  const std::size_t bitmaps = backend.gdi.LiveBitmaps();
  const std::size_t contexts = backend.gdi.LiveContexts();
  Click({{1, 1}, {20, 2}, {3, 30}});
  faults.Plan("write", 0, 0, false);
  EXPECT_ANY_THROW(PressPicture(3));
  EXPECT_EQ(backend.gdi.LiveBitmaps(), bitmaps);
  EXPECT_EQ(backend.gdi.LiveContexts(), contexts);
  EXPECT_EQ(backend.gdi.LiveRegions(), 0u);
}

TEST_F(frmPartitionPictureTest, ANameIsAskedForAndAnEmptyAnswerChangesNothing) {
  PersonalizeServices services{Services(), prompt, boxes, backend.gdi, loader, saver};
  frmPartitionPicture form(services, select);
  boxes.QueueAnswer("cancel");
  form.AskRegionName();
  EXPECT_EQ(form.RegionFlag(), 0);
  boxes.QueueAnswer("nose");
  form.AskRegionName();
  EXPECT_EQ(form.RegionName(), "nose");
  EXPECT_EQ(form.RegionFlag(), 1);
  EXPECT_EQ(boxes.Shown()[0].text, "Region Name: ");
}

}  // namespace
}  // namespace quendle
