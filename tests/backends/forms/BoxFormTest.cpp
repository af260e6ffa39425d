#include "backends/forms/BoxForm.h"

#include <gtest/gtest.h>

#include "support/BlockFonts.h"

namespace quendle {
namespace {

class BoxFormTest : public ::testing::Test {
 protected:
  BoxForm Question() { return BoxForm({"Wumbly", "Go on?", {"yes", "no"}, 1, false}, text_); }
  BoxForm Input() { return BoxForm({"Wumbly", "Name?", {"ok", "cancel"}, 1, true}, text_); }

  BlockFonts fonts_;
  TextPainter text_{fonts_};
};

TEST_F(BoxFormTest, EnterIsTheFirstButton) {
  BoxForm box = Question();
  EXPECT_FALSE(box.Answer());
  box.Key(FormKey::kEnter);
  EXPECT_EQ(box.Answer(), 0);
}

TEST_F(BoxFormTest, EscapeAndClosingAreTheLastButton) {
  BoxForm box = Question();
  box.Key(FormKey::kEscape);
  EXPECT_EQ(box.Answer(), 1);
  BoxForm closed = Question();
  closed.QueryClose();
  EXPECT_EQ(closed.Answer(), 1);
}

TEST_F(BoxFormTest, AClosedBoxIsToldFromOneThatWasAnswered) {
  BoxForm box = Input();
  box.Key(FormKey::kEscape);
  EXPECT_FALSE(box.Closed());
  BoxForm closed = Input();
  closed.QueryClose();
  EXPECT_TRUE(closed.Closed());
}

TEST_F(BoxFormTest, TabGoesRoundTheButtons) {
  BoxForm box = Question();
  box.Key(FormKey::kTab);
  box.Key(FormKey::kTab);
  box.Key(FormKey::kBackTab);
  box.Key(FormKey::kSpace);
  EXPECT_EQ(box.Answer(), 1);
}

TEST_F(BoxFormTest, APressAnswersWithItsButton) {
  BoxForm box = Question();
  for (Control& control : box.Record().controls) {
    if (control.picture == "no") box.Press(control, {1, 1});
  }
  EXPECT_EQ(box.Answer(), 1);
}

TEST_F(BoxFormTest, TheButtonUnderThePointerIsHighlighted) {
  BoxForm box = Question();
  for (Control& control : box.Record().controls) {
    if (control.picture != "no") continue;
    box.PointerOver(control);
    EXPECT_EQ(control.picture, "no-highlight");
    box.PointerOverForm();
    EXPECT_EQ(control.picture, "no");
  }
}

TEST_F(BoxFormTest, ABlankBelongsToTheTypedText) {
  BoxForm box = Input();
  box.Key(FormKey::kSpace);
  EXPECT_FALSE(box.Answer());
  box.Record().Find("field")->text = "Anna";
  EXPECT_EQ(box.Typed(), "Anna");
}

TEST_F(BoxFormTest, EvenALongTextFitsTheFrame) {
  std::string text;
  for (int i = 0; i < 400; ++i) text += "a long text that goes on ";
  BoxForm box({"Wumbly", text, {"ok"}, 0, false}, text_);
  EXPECT_LE(box.Record().size.width, kFrameWidth);
  EXPECT_LE(box.Record().size.height, kFrameHeight);
}

TEST_F(BoxFormTest, ControlsStayInsideTheForm) {
  for (BoxForm box : {Question(), Input()}) {
    for (const Control& control : box.Record().controls) {
      EXPECT_GE(control.area.left, 0);
      EXPECT_LE(control.area.right, box.Record().size.width);
      EXPECT_LE(control.area.bottom, box.Record().size.height);
    }
  }
}

}  // namespace
}  // namespace quendle
