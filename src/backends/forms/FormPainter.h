#pragma once

#include <vector>

#include "backends/forms/Canvas.h"
#include "backends/forms/TextPainter.h"
#include "platform/Form.h"

namespace quendle {

// Height of the band along the top edge by which a form is moved.
inline constexpr int kTitleBand = 40;

// What a host knows of a form beside its record.
struct FormLook {
  int pressed = -1;         // position of the control held down, or -1
  int over = -1;            // position of the control under the pointer, or -1
  bool show_focus = false;  // the keyboard is in use: the focus is marked
};

// Paints forms. Needs no window: the picture can be shown, saved or looked at by a test.
class FormPainter {
 public:
  explicit FormPainter(TextPainter& text) : text_(text) {}

  // The whole form at `scale` pixels to a form pixel.
  Canvas Paint(const Form& form, double scale, const FormLook& look);

 private:
  void PaintGround(Canvas& canvas, const Form& form);
  void PaintControl(Canvas& canvas, const Control& control, bool pressed, bool over);
  void PaintPicture(Canvas& canvas, const Control& control, bool pressed);
  void PaintLabel(Canvas& canvas, const Control& control);
  void PaintChoice(Canvas& canvas, const Control& control, bool pressed, bool over);
  void PaintImage(Canvas& canvas, const Control& control);
  void PaintLine(Canvas& canvas, const Control& control);
  void PaintFrame(Canvas& canvas, const Control& control);
  void PaintScroll(Canvas& canvas, const Control& control);
  void PaintField(Canvas& canvas, const Control& control);
  void PaintFocus(Canvas& canvas, const Control& control);

  TextPainter& text_;
};

// Size of letters in form units for a size in points.
double LetterSize(int points);

}  // namespace quendle
