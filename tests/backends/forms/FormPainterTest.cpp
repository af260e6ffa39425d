#include "backends/forms/FormPainter.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "backends/forms/ButtonArt.h"
#include "backends/forms/Palette.h"
#include "support/BlockFonts.h"

namespace quendle {
namespace {

class FormPainterTest : public ::testing::Test {
 protected:
  FormPainterTest() {
    form_.size = {300, 200};
    form_.caption = "Wumbly";
  }

  Control& Add(ControlKind kind, const Rect& area) {
    Control& control = form_.controls.emplace_back();
    control.kind = kind;
    control.area = area;
    return control;
  }
  std::vector<std::uint32_t> Pixels(const FormLook& look = {}) {
    return painter_.Paint(form_, 1, look).Pixels();
  }

  BlockFonts fonts_;
  TextPainter text_{fonts_};
  FormPainter painter_{text_};
  Form form_;
};

TEST_F(FormPainterTest, ThePictureIsTheFormTimesTheScale) {
  EXPECT_EQ(painter_.Paint(form_, 1, {}).PixelSize(), (Size{300, 200}));
  EXPECT_EQ(painter_.Paint(form_, 3, {}).PixelSize(), (Size{900, 600}));
}

TEST_F(FormPainterTest, ALineIsItsColourOnExactlyItsPixels) {
  Add(ControlKind::kLine, {0, 100, 300, 101}).color = PackColor(0x12, 0x34, 0x56);
  Canvas canvas = painter_.Paint(form_, 1, {});
  EXPECT_EQ(canvas.At(150, 100), Hex(0x123456));
  EXPECT_NE(canvas.At(150, 99), Hex(0x123456));
  EXPECT_NE(canvas.At(150, 101), Hex(0x123456));
}

TEST_F(FormPainterTest, AHiddenControlIsNotPainted) {
  auto empty = Pixels();
  Control& button = Add(ControlKind::kPicture, {20, 60, 280, 140});
  button.picture = "play";
  button.visible = false;
  EXPECT_EQ(Pixels(), empty);
  button.visible = true;
  EXPECT_NE(Pixels(), empty);
}

TEST_F(FormPainterTest, AButtonLooksDifferentAtRestHighlightedAndPressed) {
  Control& button = Add(ControlKind::kPicture, {20, 60, 280, 140});
  for (const char* art : {"play", "personalize", "options", "link", "ok", "minimise", "maximise",
                          "close", "yes", "no", "cancel", "something-new"}) {
    button.picture = art;
    auto rest = Pixels();
    auto pressed = Pixels({0, 0, false});
    button.picture = std::string(art) + "-highlight";
    auto highlighted = Pixels();
    EXPECT_NE(rest, highlighted) << art;
    EXPECT_NE(rest, pressed) << art;
  }
}

TEST_F(FormPainterTest, AButtonStaysInsideItsArea) {
  auto empty = Pixels();
  for (const char* art : {"play", "play-highlight", "ok-highlight", "close-highlight"}) {
    Rect area{60, 70, 240, 150};
    Control& button = Add(ControlKind::kPicture, area);
    button.picture = art;
    auto painted = Pixels();
    for (int y = 0; y < 200; ++y) {
      for (int x = 0; x < 300; ++x) {
        auto at = static_cast<std::size_t>(y) * 300 + x;
        if (!area.Holds({x, y})) {
          ASSERT_EQ(painted[at], empty[at]) << art << " " << x << "," << y;
        }
      }
    }
    form_.controls.clear();
  }
}

TEST_F(FormPainterTest, ASetChoiceIsSeen) {
  for (ControlKind kind : {ControlKind::kRadio, ControlKind::kCheck}) {
    Control& choice = Add(kind, {20, 60, 280, 90});
    choice.text = "Easy";
    auto clear = Pixels();
    choice.value = 1;
    EXPECT_NE(Pixels(), clear);
    form_.controls.clear();
  }
}

TEST_F(FormPainterTest, ALinkUnderThePointerIsSeen) {
  Control& link = Add(ControlKind::kLabel, {20, 60, 280, 90});
  link.text = "www";
  link.link = true;
  auto rest = Pixels();
  link.hover = true;
  EXPECT_NE(Pixels(), rest);
}

TEST_F(FormPainterTest, TheFocusIsMarkedOnlyWhileTheKeyboardIsInUse) {
  Add(ControlKind::kRadio, {20, 60, 280, 90}).text = "Easy";
  form_.focus = 0;
  auto pointer = Pixels({-1, -1, false});
  auto keyboard = Pixels({-1, -1, true});
  EXPECT_NE(pointer, keyboard);
  form_.focus = -1;
  EXPECT_EQ(Pixels({-1, -1, true}), pointer);
  form_.focus = 99;
  EXPECT_EQ(Pixels({-1, -1, true}), pointer);
}

TEST_F(FormPainterTest, TheCaptionGivesWayToALabelInTheTitleBand) {
  Control& title = Add(ControlKind::kLabel, {18, 13, 200, 41});
  title.text = "Game Options...";
  auto labelled = Pixels();
  form_.caption = "Another caption";
  EXPECT_EQ(Pixels(), labelled);
  title.visible = false;
  EXPECT_NE(Pixels(), labelled);
}

TEST_F(FormPainterTest, TextIsWrappedAtBlanksAndKeepsItsLines) {
  TextStyle style{16, false, false, palette::kOutline};
  std::vector<std::string> expected = {"one", "", "two three"};
  EXPECT_EQ(text_.Wrap("one\r\n\r\ntwo three", style, 1000, 1), expected);
  double width = text_.WidthOf("two three", style, 1) - 1;
  expected = {"two", "three"};
  EXPECT_EQ(text_.Wrap("two three", style, width, 1), expected);
}

TEST_F(FormPainterTest, WithoutAFontAFormIsPaintedWithoutLetters) {
  BlockFonts none;
  none.has_font = false;
  TextPainter mute(none);
  FormPainter painter(mute);
  Add(ControlKind::kLabel, {20, 60, 280, 90}).text = "Hello";
  EXPECT_FALSE(mute.HasFont());
  EXPECT_EQ(painter.Paint(form_, 1, {}).PixelSize(), (Size{300, 200}));
}

TEST(ButtonArt, TheEndingOfAPictureTellsTheHighlight) {
  bool highlighted = false;
  EXPECT_EQ(ArtName("Ok-highlight", highlighted), "ok");
  EXPECT_TRUE(highlighted);
  EXPECT_EQ(ArtName("ok", highlighted), "ok");
  EXPECT_FALSE(highlighted);
}

}  // namespace
}  // namespace quendle
