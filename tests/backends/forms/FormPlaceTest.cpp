#include "backends/forms/FormPlace.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

constexpr Size kForm{400, 300};

TEST(FormPlace, AWindowPositionIsThePixelOfTheFormUnderIt) {
  const FormPlace place{10, 20, 2};
  EXPECT_EQ(place.ToForm(10, 20), (Point{0, 0}));
  EXPECT_EQ(place.ToForm(11, 21), (Point{0, 0}));
  EXPECT_EQ(place.ToForm(12, 22), (Point{1, 1}));
  EXPECT_EQ(place.ToForm(9, 19), (Point{-1, -1}));
}

TEST(FormPlace, AFormGrowsInWholeStepsWithTheDisplay) {
  EXPECT_EQ(ScaleOnDisplay(kForm, {1799, 2000}), 1);
  EXPECT_EQ(ScaleOnDisplay(kForm, {1800, 1360}), 2);
  EXPECT_EQ(ScaleOnDisplay(kForm, {1800, 1359}), 1);
}

TEST(FormPlace, AFormLargerThanTheDisplayIsMadeToFit) {
  EXPECT_EQ(ScaleOnDisplay(kForm, {200, 600}), 0.5);
  EXPECT_EQ(ScaleOverFrame(kForm, {200, 600}, {0, 225, 200, 375}), 0.25);
}

TEST(FormPlace, OverTheFrameAFormGrowsWithItAndStaysInTheWindow) {
  EXPECT_EQ(ScaleOverFrame(kForm, {1600, 1200}, {0, 0, 1600, 1200}), 2);
  EXPECT_EQ(ScaleOverFrame({800, 600}, {800, 300}, {200, 0, 600, 300}), 0.5);
}

TEST(FormPlace, OverTheFrameAFormStandsInTheMiddle) {
  const FormPlace place = PlaceOverFrame(kForm, {1600, 1200}, {0, 0, 1600, 1200}, {800, 600});
  EXPECT_EQ(place.left, 200);
  EXPECT_EQ(place.top, 150);
  EXPECT_EQ(place.scale, 1) << "two pixels of the output are one unit of the window";
}

}  // namespace
}  // namespace quendle
