#include "backends/forms/FormPainter.h"

#include <algorithm>
#include <cmath>

#include "backends/forms/ButtonArt.h"
#include "backends/forms/IconArt.h"
#include "backends/forms/Palette.h"
#include "backends/forms/PicturePainter.h"
#include "backends/forms/ScrollBar.h"

namespace quendle {
namespace {

using namespace palette;

constexpr double kBevel = 4;      // the lines around a form
constexpr double kMarkSize = 22;  // of a radio button or check box

Rgba FromColor(Color color) {
  return {static_cast<std::uint8_t>(color & 255), static_cast<std::uint8_t>(color >> 8 & 255),
          static_cast<std::uint8_t>(color >> 16 & 255), 255};
}

// Letters without a colour of their own take the warm dark brown.
Rgba LetterColor(const Control& control) {
  if (!control.enabled) return Hex(0xA89580);
  return control.color == 0 ? kOutline : FromColor(control.color);
}

Path Around(const Rect& area, double by, double radius) {
  return Path::RoundRect(area.left - by, area.top - by, area.Width() + 2 * by,
                         area.Height() + 2 * by, radius);
}

bool TitleIsLabelled(const Form& form) {
  return std::any_of(form.controls.begin(), form.controls.end(), [](const Control& control) {
    return control.kind == ControlKind::kLabel && control.visible && !control.text.empty() &&
           control.area.top < kTitleBand;
  });
}

}  // namespace

double LetterSize(int points) { return points * 96.0 / 72.0; }

Canvas FormPainter::Paint(const Form& form, double scale, const FormLook& look) {
  Canvas canvas({static_cast<int>(std::lround(form.size.width * scale)),
                 static_cast<int>(std::lround(form.size.height * scale))},
                scale);
  PaintGround(canvas, form);
  // Frames are grounds for what stands in them, wherever they come in the list.
  for (const Control& control : form.controls) {
    if (control.visible && control.kind == ControlKind::kFrame) PaintFrame(canvas, control);
  }
  for (std::size_t i = 0; i < form.controls.size(); ++i) {
    const Control& control = form.controls[i];
    auto position = static_cast<int>(i);
    if (control.visible) {
      PaintControl(canvas, control, position == look.pressed, position == look.over);
    }
  }
  if (look.show_focus && form.focus >= 0 && form.focus < static_cast<int>(form.controls.size())) {
    const Control& control = form.controls[static_cast<std::size_t>(form.focus)];
    if (control.visible) PaintFocus(canvas, control);
  }
  return canvas;
}

void FormPainter::PaintGround(Canvas& canvas, const Form& form) {
  double width = form.size.width;
  double height = form.size.height;
  canvas.Clear(kCream);
  canvas.FillShaded(Path::Polygon({{0, 0}, {width, 0}, {width, height}, {0, height}}), kCream,
                    kCreamDeep, kTitleBand, height);
  // Along the bottom, where no text stands.
  const double paws[][4] = {
      {44, -34, 26, -24}, {92, -18, 17, -8}, {-46, -38, 36, 24}, {-104, -20, 20, 10}};
  for (const auto& [x, y, radius, turn] : paws) {
    Vec centre{x < 0 ? width + x : x, height + y};
    DrawPaw(canvas, centre, radius, turn, Hex(0xF3CF9C, 110));
  }
  canvas.FillShaded(Path::Polygon({{0, 0}, {width, 0}, {width, kTitleBand}, {0, kTitleBand}}),
                    kPeach, Hex(0xFFBE85), 0, kTitleBand);
  canvas.FillRect(0, kTitleBand, width, 2, Hex(0xE39A5A));
  if (!TitleIsLabelled(form)) {
    DrawPaw(canvas, {24, kTitleBand / 2.0 + 1}, 12, 0, kOutline);
    TextStyle style{18, true, false, kOutline};
    text_.Draw(canvas, form.caption, style, 44,
               (kTitleBand - text_.LineHeight(style, canvas.Scale())) / 2 + 1);
  }
}

void FormPainter::PaintControl(Canvas& canvas, const Control& control, bool pressed, bool over) {
  switch (control.kind) {
    case ControlKind::kPicture:
      PaintPicture(canvas, control, pressed);
      break;
    case ControlKind::kLabel:
      PaintLabel(canvas, control);
      break;
    case ControlKind::kRadio:
    case ControlKind::kCheck:
      PaintChoice(canvas, control, pressed, over);
      break;
    case ControlKind::kLine:
      PaintLine(canvas, control);
      break;
    case ControlKind::kScroll:
      PaintScroll(canvas, control);
      break;
    case ControlKind::kText:
      PaintField(canvas, control);
      break;
    case ControlKind::kImage:
      PaintImage(canvas, control);
      break;
    case ControlKind::kFrame:
      break;
  }
}

void FormPainter::PaintPicture(Canvas& canvas, const Control& control, bool pressed) {
  bool highlighted = false;
  std::string name = ArtName(control.picture, highlighted);
  DrawButton(canvas, text_, name, control.text, control.area, {highlighted, pressed});
}

void FormPainter::PaintImage(Canvas& canvas, const Control& control) {
  const Rect& area = control.area;
  if (control.image != nullptr) {
    const bool clipped = control.clip != Rect{};
    if (clipped) canvas.SetClip(control.clip);
    DrawPicture(canvas, *control.image, area);
    canvas.LiftClip();
    const Rect& rim = clipped ? control.clip : area;
    canvas.Stroke(Around(rim, 1, 3), 2, kOutline);
    return;
  }
  const Vec centre{(area.left + area.right) / 2.0, (area.top + area.bottom) / 2.0};
  if (control.picture == "puppy") {
    canvas.Fill(Path::Ellipse(centre, area.Width() / 2.0, area.Width() / 2.0), kPeach);
    DrawPuppy(canvas, centre, area.Width() * 0.42, false);
  } else if (control.picture == "folder") {
    DrawFolder(canvas, centre, std::min(area.Width(), area.Height()) * 0.46);
  } else {
    canvas.Fill(Around(area, 0, 6), kPaper);
    canvas.Stroke(Around(area, 0, 6), 2, kOutline);
  }
}

// A stroke has a pale rim, so that it is seen on any photograph, and a dot at its end; one without
// length is the dot alone.
void FormPainter::PaintLine(Canvas& canvas, const Control& control) {
  const Rect& area = control.area;
  if (control.thickness == 0) {
    canvas.FillRect(area.left, area.top, std::max(area.Width(), 1), std::max(area.Height(), 1),
                    FromColor(control.color));
    return;
  }
  if (control.clip != Rect{}) canvas.SetClip(control.clip);
  const double width = control.thickness;
  // The middle of the pixels it leads to.
  const Vec from{area.left + 0.5, area.top + 0.5};
  const Vec to{area.right + 0.5, area.bottom + 0.5};
  const Path line = Path().MoveTo(from.x, from.y).LineTo(to.x, to.y);
  canvas.Stroke(line, width + 2, kWhite);
  canvas.Stroke(line, width, FromColor(control.color));
  for (const Vec& end : {from, to}) {
    canvas.Fill(Path::Ellipse(end, width + 1.5, width + 1.5), kWhite);
    canvas.Fill(Path::Ellipse(end, width, width), FromColor(control.color));
  }
  canvas.LiftClip();
}

void FormPainter::PaintLabel(Canvas& canvas, const Control& control) {
  TextStyle style{LetterSize(control.font_size), control.area.top < kTitleBand, false,
                  LetterColor(control)};
  style.underline = control.link && control.hover;
  if (control.link && control.color == 0) style.color = Hex(0x1B5FA8);
  if (control.hover) style.color = Hex(0xC2410C);
  double line = text_.LineHeight(style, canvas.Scale());
  double y = control.area.top;
  bool is_title = control.area.top < kTitleBand && control.area.Height() < 2 * line;
  if (is_title) {
    y = (kTitleBand + kBevel - line) / 2;
  } else if (control.area.Height() < 2 * line)
    y += (control.area.Height() - line) / 2;
  for (const std::string& part :
       text_.Wrap(control.text, style, control.area.Width(), canvas.Scale())) {
    text_.Draw(canvas, part, style, control.area.left, y);
    y += line;
  }
}

void FormPainter::PaintChoice(Canvas& canvas, const Control& control, bool pressed, bool over) {
  double middle = (control.area.top + control.area.bottom) / 2.0;
  double size = std::min<double>(kMarkSize, control.area.Height());
  Vec centre{control.area.left + size / 2 + 2, middle};
  if (over && control.enabled) canvas.Fill(Around(control.area, 2, 10), Hex(0xFFD23F, 90));
  bool round = control.kind == ControlKind::kRadio;
  double half = size / 2 - 1;
  Path mark = round ? Path::Ellipse(centre, half, half)
                    : Path::RoundRect(centre.x - half, middle - half, 2 * half, 2 * half, 5);
  canvas.Fill(mark, pressed ? kCreamDeep : kPaper);
  canvas.Stroke(mark, 2.4, control.enabled ? kOutline : Hex(0xA89580));
  if (control.value != 0 && round) {
    canvas.Fill(Path::Ellipse(centre, half * 0.56, half * 0.56), kOrangeDeep);
  } else if (control.value != 0) {
    DrawTick(canvas, centre, half * 0.8, kLeafDeep);
  }
  TextStyle style{LetterSize(control.font_size), control.value != 0 && round, false,
                  LetterColor(control)};
  double left = control.area.left + size + 10;
  double line = text_.LineHeight(style, canvas.Scale());
  auto lines = text_.Wrap(control.text, style, control.area.right - left, canvas.Scale());
  double y = middle - line * static_cast<double>(lines.size()) / 2;
  for (const std::string& part : lines) {
    text_.Draw(canvas, part, style, left, y);
    y += line;
  }
}

void FormPainter::PaintFrame(Canvas& canvas, const Control& control) {
  TextStyle style{LetterSize(control.font_size), true, false, LetterColor(control)};
  double room = control.area.Width() - 30;
  double width = text_.WidthOf(control.text, style, canvas.Scale());
  if (width > room) {
    style.size = std::floor(style.size * room / width);
    width = text_.WidthOf(control.text, style, canvas.Scale());
  }
  double line = text_.LineHeight(style, canvas.Scale());
  double top = control.area.top + line / 2;
  Path box = Path::RoundRect(control.area.left + 1, top, control.area.Width() - 2,
                             control.area.bottom - top - 1, 12);
  canvas.Fill(box, Hex(0xFFFCF5, 215));
  canvas.Stroke(box, 2, Hex(0xE3A35F));
  if (control.text.empty()) return;
  Path sign = Path::RoundRect(control.area.left + 8, control.area.top - 1, width + 14, line + 2, 9);
  canvas.Fill(sign, kPeach);
  canvas.Stroke(sign, 2, Hex(0xE3A35F));
  text_.Draw(canvas, control.text, style, control.area.left + 15, control.area.top);
}

void FormPainter::PaintScroll(Canvas& canvas, const Control& control) {
  const double radius = KnobRadius(control);
  canvas.Fill(Around(control.area, 0, radius), kPaper);
  canvas.Stroke(Around(control.area, -1, radius), 2, kOutline);
  const Path knob = Path::Ellipse(KnobCentre(control), radius - 1, radius - 1);
  canvas.Fill(knob, kOrange);
  canvas.Stroke(knob, 2, kOutline);
}

void FormPainter::PaintField(Canvas& canvas, const Control& control) {
  canvas.Fill(Around(control.area, 0, 8), kPaper);
  canvas.Stroke(Around(control.area, 0, 8), 2.4, kOutline);
  TextStyle style{LetterSize(control.font_size), false, false, LetterColor(control)};
  double room = control.area.Width() - 20;
  // The end of a long text is what is being typed.
  std::string_view seen = control.text;
  while (!seen.empty() && text_.WidthOf(seen, style, canvas.Scale()) > room) seen.remove_prefix(1);
  double line = text_.LineHeight(style, canvas.Scale());
  double y = (control.area.top + control.area.bottom - line) / 2;
  text_.Draw(canvas, seen, style, control.area.left + 10, y);
  double end = control.area.left + 11 + text_.WidthOf(seen, style, canvas.Scale());
  canvas.FillRect(end, y + 1, 2, line - 2, kOrangeDeep);
}

void FormPainter::PaintFocus(Canvas& canvas, const Control& control) {
  double out = control.kind == ControlKind::kPicture ? -1 : 3;
  canvas.Stroke(Around(control.area, out, 12), 2.5, Hex(0x2C6FBB));
}

}  // namespace quendle
