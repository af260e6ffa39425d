#include "backends/forms/FormPlace.h"

#include <algorithm>
#include <cmath>

namespace quendle {
namespace {

// A display must be this much larger than one step before forms grow by another.
constexpr Size kStep{900, 680};

double Fitting(Size form, Size room) {
  return std::min(static_cast<double>(room.width) / std::max(form.width, 1),
                  static_cast<double>(room.height) / std::max(form.height, 1));
}

}  // namespace

Point FormPlace::ToForm(int x, int y) const {
  return {static_cast<int>(std::floor((x + 0.5 - left) / scale)),
          static_cast<int>(std::floor((y + 0.5 - top) / scale))};
}

double ScaleOnDisplay(Size form, Size display) {
  const double whole =
      std::max(1, std::min(display.width / kStep.width, display.height / kStep.height));
  return std::min(whole, Fitting(form, display));
}

double ScaleOverFrame(Size form, Size output, const Rect& frame) {
  return std::min(static_cast<double>(frame.Width()) / kFrameWidth, Fitting(form, output));
}

FormPlace PlaceOverFrame(Size form, Size output, const Rect& frame, Size window) {
  const double unit = static_cast<double>(output.width) / std::max(window.width, 1);
  const double scale = ScaleOverFrame(form, output, frame);
  return {(output.width - form.width * scale) / 2 / unit,
          (output.height - form.height * scale) / 2 / unit, scale / unit};
}

}  // namespace quendle
