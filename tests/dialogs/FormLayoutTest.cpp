#include "dialogs/FormLayout.h"

#include <gtest/gtest.h>

#include "base/FatalError.h"

namespace quendle {
namespace {

Form FormOfSize(int width, int height) {
  Form form;
  form.name = "frmTest";
  form.size = {width, height};
  return form;
}

Form FormWithPairs(int last) {
  Form form = FormOfSize(300, 200);
  for (int index = 1; index < last; index += 2) {
    AddPicturePair(form, index, "b" + std::to_string(index), "",
                   {10, 20 * index, 60, 20 * index + 9});
  }
  return form;
}

std::vector<int> VisiblePictures(const Form& form) {
  std::vector<int> seen;
  for (const Control& control : form.controls) {
    if (control.visible) seen.push_back(control.index);
  }
  return seen;
}

TEST(LoadBorders, SixteenLinesLieOnFourRingsInsideTheEdge) {
  Form form = FormOfSize(200, 100);
  LoadBorders(form);
  ASSERT_EQ(form.controls.size(), 16u);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(form.Find("lines", i + 1)->area, (Rect{i, i, 200 - i, i + 1})) << "top " << i;
    EXPECT_EQ(form.Find("lines", i + 5)->area, (Rect{i, 99 - i, 200 - i, 100 - i})) << "bottom";
    EXPECT_EQ(form.Find("lines", i + 9)->area, (Rect{199 - i, i, 200 - i, 100 - i})) << "right";
    EXPECT_EQ(form.Find("lines", i + 13)->area, (Rect{i, i, i + 1, 100 - i})) << "left";
  }
}

TEST(LoadBorders, TopAndLeftAreLightBottomAndRightDarkAndTheInnermostRingSofter) {
  Form form = FormOfSize(200, 100);
  LoadBorders(form);
  for (int element = 1; element <= 16; ++element) {
    const Control& line = *form.Find("lines", element);
    const bool light = element <= 4 || element >= 13;
    const bool last_of_four = element % 4 == 0;
    const Color wanted =
        light ? (last_of_four ? 0xE0E0E0 : 0xC0C0C0) : (last_of_four ? 0x808080 : 0x404040);
    EXPECT_EQ(line.color, wanted) << "line " << element;
    EXPECT_EQ(line.kind, ControlKind::kLine);
    EXPECT_TRUE(line.visible);
  }
}

TEST(PairButtonPictures, AnEvenElementStandsOnePixelRightAndBelowItsOddPartner) {
  Form form = FormWithPairs(4);
  form.Find("Picture1", 1)->area = {30, 40, 80, 60};
  form.Find("Picture1", 3)->area = {100, 50, 150, 59};
  PairButtonPictures(form, 1, 4);
  EXPECT_EQ(form.Find("Picture1", 2)->area.left, 31);
  EXPECT_EQ(form.Find("Picture1", 2)->area.top, 41);
  EXPECT_EQ(form.Find("Picture1", 4)->area.left, 101);
  EXPECT_EQ(form.Find("Picture1", 4)->area.top, 51);
  EXPECT_EQ(form.Find("Picture1", 1)->area, (Rect{30, 40, 80, 60}));
}

TEST(PairButtonPictures, OnlyTheRangeIsPlaced) {
  Form form = FormWithPairs(6);
  form.Find("Picture1", 1)->area = {200, 1, 250, 10};
  form.Find("Picture1", 5)->area = {200, 1, 250, 10};
  PairButtonPictures(form, 3, 4);
  EXPECT_EQ(form.Find("Picture1", 2)->area.left, 10);
  EXPECT_EQ(form.Find("Picture1", 4)->area.left, 11);
  EXPECT_EQ(form.Find("Picture1", 6)->area.left, 10);
}

TEST(PairButtonPictures, AMissingPictureIsFatalAndNamed) {
  Form form = FormWithPairs(2);
  try {
    PairButtonPictures(form, 1, 4);
    FAIL() << "no fault";
  } catch (const FatalError& error) {
    EXPECT_EQ(error.Text(), "the form frmTest has no picture 3");
  }
}

TEST(PositionTitleButtons, TheThreeButtonsStandAtTheTopRight) {
  Form form = FormWithPairs(8);
  PositionTitleButtons(form, 3);
  EXPECT_EQ(form.Find("Picture1", 3)->area, (Rect{195, 9, 245, 18}));
  EXPECT_EQ(form.Find("Picture1", 5)->area, (Rect{227, 9, 277, 18}));
  EXPECT_EQ(form.Find("Picture1", 7)->area, (Rect{259, 9, 309, 18}));
}

TEST(ShowHighlight, AnOddIndexShowsItsTwinAndRestsTheOthers) {
  Form form = FormWithPairs(8);
  EXPECT_TRUE(ShowHighlight(form, 3, 8));
  EXPECT_EQ(VisiblePictures(form), (std::vector<int>{1, 4, 5, 7}));
  EXPECT_TRUE(ShowHighlight(form, 7, 8));
  EXPECT_EQ(VisiblePictures(form), (std::vector<int>{1, 3, 5, 8}));
}

TEST(ShowHighlight, ZeroOrLessRestsAll) {
  Form form = FormWithPairs(4);
  for (int index : {0, -1, -3}) {
    ShowHighlight(form, 1, 4);
    ShowHighlight(form, index, 4);
    EXPECT_EQ(VisiblePictures(form), (std::vector<int>{1, 3})) << index;
  }
}

TEST(ShowHighlight, ElementsBehindTheLastStayAsTheyAre) {
  Form form = FormWithPairs(6);
  form.Find("Picture1", 6)->visible = true;
  EXPECT_FALSE(ShowHighlight(form, 0, 4));
  EXPECT_EQ(VisiblePictures(form), (std::vector<int>{1, 3, 5, 6}));
}

TEST(SetRadio, OneOfAGroupIsSetAndOtherGroupsStay) {
  Form form = FormOfSize(100, 100);
  AddRadio(form, "Frame1", "a", "", {});
  AddRadio(form, "Frame1", "b", "", {});
  AddRadio(form, "Frame2", "c", "", {}).value = 1;
  SetRadio(form, "a");
  SetRadio(form, "b");
  EXPECT_FALSE(IsSet(form, "a"));
  EXPECT_TRUE(IsSet(form, "b"));
  EXPECT_TRUE(IsSet(form, "c"));
}

}  // namespace
}  // namespace quendle
