#include "backends/forms/BoxForm.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "backends/forms/BoxParts.h"
#include "backends/forms/FormPainter.h"

namespace quendle {
namespace {

constexpr int kWidth = 520;
constexpr int kLargestHeight = 580;
constexpr int kTextLeft = 148;
constexpr int kTextTop = 64;
constexpr int kTextWidth = kWidth - kTextLeft - 28;
constexpr int kFaceSize = 104;
constexpr int kFieldHeight = 40;
constexpr int kButtonWidth = 140;
constexpr int kButtonHeight = 60;
constexpr int kGap = 18;
constexpr int kFontPoints = 14;
constexpr int kSmallFontPoints = 10;

int TextHeight(TextPainter& text, const std::string& words, int points) {
  TextStyle style{LetterSize(points), false, false, {}};
  auto lines = text.Wrap(words, style, kTextWidth, 1).size();
  return static_cast<int>(std::ceil(static_cast<double>(lines) * text.LineHeight(style, 1)));
}

}  // namespace

BoxForm::BoxForm(Plan plan, TextPainter& text) : plan_(std::move(plan)) {
  form_.name = "Box";
  form_.caption = plan_.title;
  form_.visible = true;
  form_.enabled = true;
  LayOut(text);
}

void BoxForm::LayOut(TextPainter& text) {
  int below = (plan_.input ? kFieldHeight + kGap : 0) + kButtonHeight + 2 * kGap;
  int points = kFontPoints;
  int height = TextHeight(text, plan_.text, points);
  while (points > kSmallFontPoints && kTextTop + height + below > kLargestHeight) {
    height = TextHeight(text, plan_.text, --points);
  }
  height = std::clamp(height, kFaceSize, kLargestHeight - kTextTop - below);
  Control& face = AddControl(form_, ControlKind::kImage, "face",
                             {24, kTextTop, 24 + kFaceSize, kTextTop + kFaceSize});
  face.picture = "puppy";
  face.enabled = false;
  Control& label = AddControl(form_, ControlKind::kLabel, "text",
                              {kTextLeft, kTextTop, kTextLeft + kTextWidth, kTextTop + height});
  label.text = plan_.text;
  label.font_size = points;
  int y = kTextTop + height + kGap;
  if (plan_.input) {
    Control& field = AddControl(form_, ControlKind::kText, "field",
                                {kTextLeft, y, kWidth - 28, y + kFieldHeight});
    field.font_size = kFontPoints;
    y += kFieldHeight + kGap;
  }
  form_.size = {kWidth, y + kButtonHeight + kGap};
  AddButtons();
  AddBevel(form_);
}

void BoxForm::AddButtons() {
  first_button_ = static_cast<int>(form_.controls.size());
  auto count = static_cast<int>(plan_.buttons.size());
  int x = (kWidth - count * kButtonWidth - (count - 1) * kGap) / 2;
  int top = form_.size.height - kGap - kButtonHeight;
  for (const std::string& art : plan_.buttons) {
    Control& button = AddControl(form_, ControlKind::kPicture, "button",
                                 {x, top, x + kButtonWidth, top + kButtonHeight});
    button.picture = art;
    x += kButtonWidth + kGap;
  }
  form_.focus = first_button_;
}

std::string BoxForm::Typed() {
  Control* field = form_.Find("field");
  return field == nullptr ? "" : field->text;
}

Control& BoxForm::Button(int number) {
  return form_.controls[static_cast<std::size_t>(first_button_ + number)];
}

void BoxForm::Highlight(int button) {
  for (int i = 0; i < static_cast<int>(plan_.buttons.size()); ++i) {
    Button(i).picture =
        plan_.buttons[static_cast<std::size_t>(i)] + (i == button ? "-highlight" : "");
  }
}

void BoxForm::PointerOver(Control& control) {
  Highlight(static_cast<int>(&control - form_.controls.data()) - first_button_);
}

void BoxForm::Press(Control& control, Point) {
  if (control.kind == ControlKind::kPicture) {
    answer_ = static_cast<int>(&control - form_.controls.data()) - first_button_;
  }
}

void BoxForm::Key(FormKey key) {
  switch (key) {
    case FormKey::kEscape:
      answer_ = plan_.escape;
      break;
    case FormKey::kSpace:
      // A blank belongs to the text that is typed.
      if (!plan_.input) answer_ = form_.focus - first_button_;
      break;
    case FormKey::kEnter:
      answer_ = form_.focus - first_button_;
      break;
    case FormKey::kBackTab:
    case FormKey::kLeft:
    case FormKey::kUp:
      MoveFocus(-1);
      break;
    default:
      MoveFocus(1);
      break;
  }
}

void BoxForm::MoveFocus(int step) {
  auto count = static_cast<int>(plan_.buttons.size());
  form_.focus = first_button_ + (form_.focus - first_button_ + step + count) % count;
}

}  // namespace quendle
