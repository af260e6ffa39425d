#include "dialogs/FormLayout.h"

#include "base/FatalError.h"

namespace quendle {
namespace {

constexpr int kRings = 4;
constexpr int kTitleTop = 9;
constexpr int kTitleButtonStep = 32;
constexpr int kTitleButtonsWidth = 105;
constexpr int kTitleLeft = 18;
constexpr int kTitleGap = 8;
constexpr int kBottomMargin = 16;

constexpr Color Grey(int level) { return PackColor(level, level, level); }

void SetLine(Form& form, int element, const Rect& area, Color color) {
  Control& line = *form.Find("lines", element);
  line.area = area;
  line.color = color;
  line.visible = true;
}

Control& ButtonPicture(Form& form, int index) {
  if (Control* picture = form.Find("Picture1", index)) return *picture;
  throw FatalError("the form " + form.name + " has no picture " + std::to_string(index));
}

void MoveTo(Control& control, int left, int top) {
  control.area = {left, top, left + control.area.Width(), top + control.area.Height()};
}

Control& Add(Form& form, ControlKind kind, const std::string& name, const std::string& text,
             const Rect& area) {
  Control& control = form.controls.emplace_back();
  control.name = name;
  control.kind = kind;
  control.text = text;
  control.area = area;
  control.color = kTextColor;
  control.font_size = kTextFontSize;
  return control;
}

}  // namespace

void LoadBorders(Form& form) {
  for (int element = 1; element <= 4 * kRings; ++element) {
    Add(form, ControlKind::kLine, "lines", "", {}).index = element;
  }
  const auto [width, height] = form.size;
  for (int i = 0; i < kRings; ++i) {
    const bool innermost = i == kRings - 1;
    const Color light = Grey(innermost ? 0xE0 : 0xC0);
    const Color dark = Grey(innermost ? 0x80 : 0x40);
    SetLine(form, i + 1, {i, i, width - i, i + 1}, light);
    SetLine(form, i + 5, {i, height - 1 - i, width - i, height - i}, dark);
    SetLine(form, i + 9, {width - 1 - i, i, width - i, height - i}, dark);
    SetLine(form, i + 13, {i, i, i + 1, height - i}, light);
  }
}

void AddPicturePair(Form& form, int index, const std::string& art, const std::string& word,
                    const Rect& area) {
  for (int element : {index, index + 1}) {
    const bool highlight = element > index;
    Control& picture = Add(form, ControlKind::kPicture, "Picture1", word, area);
    picture.index = element;
    picture.picture = highlight ? art + "-highlight" : art;
    picture.visible = !highlight;
  }
}

void PairButtonPictures(Form& form, int lower, int upper) {
  for (int index = lower; index <= upper; ++index) {
    if (index % 2 != 0) continue;
    const Rect& partner = ButtonPicture(form, index - 1).area;
    MoveTo(ButtonPicture(form, index), partner.left + 1, partner.top + 1);
  }
}

void PositionTitleButtons(Form& form, int minimise) {
  for (int place = 0; place < 3; ++place) {
    const int left = form.size.width - kTitleButtonsWidth + place * kTitleButtonStep;
    MoveTo(ButtonPicture(form, minimise + 2 * place), left, kTitleTop);
  }
}

void LayoutTitleBar(Form& form, int minimise) {
  PositionTitleButtons(form, minimise);
  Control* title = form.Find("Label1");
  if (title == nullptr) return;
  MoveTo(*title, kTitleLeft, kTitleTop + 4);
  title->area.right = form.size.width - kTitleButtonsWidth - kTitleGap;
}

void ArrangeButtons(Form& form, int last) {
  Control& ok = ButtonPicture(form, 1);
  MoveTo(ok, (form.size.width - ok.area.Width()) / 2,
         form.size.height - kBottomMargin - ok.area.Height());
  PairButtonPictures(form, 1, last);
}

bool ShowHighlight(Form& form, int index, int last) {
  bool changed = false;
  for (Control& control : form.controls) {
    if (control.kind != ControlKind::kPicture || control.index < 1 || control.index > last) {
      continue;
    }
    const bool odd = control.index % 2 != 0;
    const bool in_pair = index > 0 && (control.index == index || control.index == index + 1);
    const bool visible = odd != in_pair;
    changed = changed || control.visible != visible;
    control.visible = visible;
  }
  return changed;
}

Control& AddLabel(Form& form, const std::string& name, const std::string& text, const Rect& area) {
  return Add(form, ControlKind::kLabel, name, text, area);
}

Control& AddLink(Form& form, const std::string& name, const std::string& text, const Rect& area) {
  Control& label = AddLabel(form, name, text, area);
  label.link = true;
  label.color = kLinkColor;
  return label;
}

Control& AddFrame(Form& form, const std::string& name, const std::string& text, const Rect& area) {
  return Add(form, ControlKind::kFrame, name, text, area);
}

Control& AddRadio(Form& form, const std::string& group, const std::string& name,
                  const std::string& text, const Rect& area) {
  Control& radio = Add(form, ControlKind::kRadio, name, text, area);
  radio.group = group;
  return radio;
}

Control& AddCheck(Form& form, const std::string& name, const std::string& text, const Rect& area) {
  return Add(form, ControlKind::kCheck, name, text, area);
}

Control& AddImage(Form& form, const std::string& name, int index, const Rect& area) {
  Control& image = Add(form, ControlKind::kImage, name, "", area);
  image.index = index;
  return image;
}

Control& AddScroll(Form& form, const std::string& name, const Rect& area) {
  return Add(form, ControlKind::kScroll, name, "", area);
}

void SetRadio(Form& form, Control& radio) {
  for (Control& other : form.controls) {
    if (other.kind == ControlKind::kRadio && other.group == radio.group) other.value = 0;
  }
  radio.value = 1;
}

void SetRadio(Form& form, const std::string& name) { SetRadio(form, *form.Find(name)); }

bool IsSet(Form& form, const std::string& name) { return form.Find(name)->value != 0; }

}  // namespace quendle
