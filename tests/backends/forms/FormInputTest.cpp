#include "backends/forms/FormInput.h"

#include <gtest/gtest.h>

#include "backends/forms/FormPointer.h"

namespace quendle {
namespace {

class Recorder : public FormEvents {
 public:
  explicit Recorder(Form& form) : form_(form) {}
  void PointerOverForm() override { log.push_back("form"); }
  void PointerOver(Control& control) override {
    log.push_back("over " + control.name);
    if (swap_on_over) {
      for (Control& other : form_.controls) other.visible = &other != &control;
    }
  }
  void Press(Control& control, Point at) override {
    log.push_back("press " + control.name + " " + std::to_string(at.x) + "," +
                  std::to_string(at.y));
  }
  void Set(Control& control, int value) override {
    control.value = value;
    log.push_back("set " + control.name + " " + std::to_string(value));
  }
  bool TakesDrops() const override { return true; }
  void Drop(const std::string& path) override { log.push_back("drop " + path); }
  void Key(FormKey) override { log.push_back("key"); }
  void QueryClose() override { log.push_back("close"); }

  std::vector<std::string> log;
  bool swap_on_over = false;

 private:
  Form& form_;
};

using Log = std::vector<std::string>;

class FormInputTest : public ::testing::Test {
 protected:
  FormInputTest() { form_.size = {300, 200}; }

  Control& Add(ControlKind kind, const std::string& name, const Rect& area) {
    Control& control = form_.controls.emplace_back();
    control.kind = kind;
    control.name = name;
    control.area = area;
    return control;
  }

  Form form_;
  Recorder events_{form_};
  FormInput input_{form_, events_};
};

TEST_F(FormInputTest, AButtonIsPressedWhereThePointerIsLetGo) {
  Add(ControlKind::kPicture, "ok", {10, 50, 110, 90});
  input_.Down({20, 55});
  EXPECT_EQ(input_.Look().pressed, 0);
  EXPECT_TRUE(events_.log.empty());
  input_.Up({30, 60});
  EXPECT_EQ(events_.log, (Log{"press ok 20,10"}));
  EXPECT_EQ(input_.Look().pressed, -1);
}

TEST_F(FormInputTest, APushThatIsDraggedAwayPressesNothing) {
  Add(ControlKind::kPicture, "ok", {10, 50, 110, 90});
  Add(ControlKind::kPicture, "cancel", {120, 50, 220, 90});
  input_.Down({20, 55});
  input_.Up({130, 55});
  EXPECT_TRUE(events_.log.empty());
}

TEST_F(FormInputTest, AButtonThatShowsItsHighlightMeanwhileIsPressedAllTheSame) {
  Add(ControlKind::kPicture, "normal", {10, 50, 110, 90});
  Add(ControlKind::kPicture, "highlight", {11, 51, 111, 91}).visible = false;
  events_.swap_on_over = true;
  input_.Down({20, 55});
  input_.Move({21, 56});
  EXPECT_EQ(input_.Look().pressed, 1);
  input_.Up({21, 56});
  EXPECT_EQ(events_.log, (Log{"over normal", "press highlight 10,5"}));
}

TEST_F(FormInputTest, APictureToPointAtAnswersAtOnce) {
  Add(ControlKind::kImage, "Image1", {100, 50, 200, 150});
  input_.Down({150, 70});
  EXPECT_EQ(events_.log, (Log{"press Image1 50,20"}));
  input_.Up({150, 70});
  EXPECT_EQ(events_.log.size(), 1u);
}

TEST_F(FormInputTest, LinesFramesAndPlainLabelsCountAsTheForm) {
  Add(ControlKind::kPicture, "under", {0, 50, 300, 100});
  Add(ControlKind::kFrame, "frame", {0, 50, 300, 100});
  Add(ControlKind::kLabel, "label", {0, 120, 300, 140});
  Add(ControlKind::kLine, "line", {0, 150, 300, 151});
  input_.Move({10, 60});
  input_.Move({10, 130});
  input_.Move({10, 150});
  EXPECT_EQ(events_.log, (Log{"over under", "form", "form"}));
}

TEST_F(FormInputTest, AHiddenOrDisabledControlIsNotUnderThePointer) {
  Add(ControlKind::kPicture, "ok", {10, 50, 110, 90}).visible = false;
  Add(ControlKind::kRadio, "easy", {10, 100, 110, 120}).enabled = false;
  EXPECT_EQ(ControlAt(form_, {20, 60}), -1);
  EXPECT_EQ(ControlAt(form_, {20, 110}), -1);
}

TEST_F(FormInputTest, TheLaterControlLiesOnTop) {
  Add(ControlKind::kPicture, "a", {10, 50, 110, 90});
  Add(ControlKind::kPicture, "b", {10, 50, 110, 90});
  EXPECT_EQ(ControlAt(form_, {20, 60}), 1);
}

TEST_F(FormInputTest, LeavingTheWindowIsOverTheForm) {
  Add(ControlKind::kPicture, "ok", {10, 50, 110, 90});
  input_.Down({20, 60});
  input_.Leave();
  input_.Up({20, 60});
  EXPECT_EQ(events_.log, (Log{"form"}));
}

TEST_F(FormInputTest, TheFormIsMovedByItsTitleBandBesideTheButtons) {
  Add(ControlKind::kPicture, "close", {260, 9, 288, 37});
  Add(ControlKind::kLabel, "title", {18, 9, 200, 37});
  EXPECT_TRUE(IsMoveHandle(form_, {100, 20}));
  EXPECT_FALSE(IsMoveHandle(form_, {270, 20}));
  EXPECT_FALSE(IsMoveHandle(form_, {100, kTitleBand}));
}

TEST_F(FormInputTest, TypedTextGoesToTheFieldInTheCharactersOfContent) {
  Add(ControlKind::kText, "field", {10, 50, 110, 90});
  input_.Type("Zo\xC3\xA9!");
  EXPECT_EQ(form_.controls[0].text, "Zo\xE9!");
  input_.Type("\xE2\x98\x83");
  EXPECT_EQ(form_.controls[0].text, "Zo\xE9!");
  input_.Erase();
  input_.Erase();
  EXPECT_EQ(form_.controls[0].text, "Zo");
}

TEST_F(FormInputTest, TheKeyboardShowsTheFocusAndThePointerHidesIt) {
  input_.Key(FormKey::kTab);
  EXPECT_TRUE(input_.Look().show_focus);
  input_.Down({5, 100});
  EXPECT_FALSE(input_.Look().show_focus);
}

TEST_F(FormInputTest, TheKnobOfAScrollBarFollowsThePointerUntilItIsLetGo) {
  Control& bar = Add(ControlKind::kScroll, "bar", {0, 0, 120, 20});
  bar.maximum = 100;
  input_.Down({60, 10});
  EXPECT_EQ(events_.log, (Log{"set bar 50"}));
  input_.Move({85, 90});  // beside the bar, too
  input_.Move({500, 10});
  EXPECT_EQ(bar.value, 100);
  input_.Up({500, 10});
  input_.Move({20, 10});
  EXPECT_EQ(bar.value, 100) << "it was let go";
}

TEST_F(FormInputTest, TheWheelMovesTheBarOfItsDirection) {
  Add(ControlKind::kScroll, "across", {0, 0, 120, 20}).maximum = 600;
  Add(ControlKind::kScroll, "down", {130, 0, 150, 150}).maximum = 600;
  input_.Wheel(0, 2);
  input_.Wheel(0, -1);
  input_.Wheel(1, 0);
  input_.Wheel(-9, 0);
  EXPECT_EQ(events_.log, (Log{"set down 80", "set down 40", "set across 40", "set across 0"}));
}

TEST_F(FormInputTest, APictureAnswersOnlyWhereItIsSeen) {
  Add(ControlKind::kImage, "photo", {-50, -50, 250, 250}).clip = {20, 20, 100, 100};
  input_.Down({110, 50});
  EXPECT_TRUE(events_.log.empty());
  input_.Down({30, 40});
  EXPECT_EQ(events_.log, (Log{"press photo 80,90"}));
}

TEST_F(FormInputTest, ADroppedFileGoesToTheTextFieldElseToTheForm) {
  input_.Drop("/photos/a.jpg");
  EXPECT_EQ(events_.log, (Log{"drop /photos/a.jpg"}));
  Add(ControlKind::kText, "field", {0, 0, 100, 20});
  input_.Drop("/photos/a.jpg");
  EXPECT_EQ(form_.controls.back().text, "/photos/a.jpg");
}

}  // namespace
}  // namespace quendle
