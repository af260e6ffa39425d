#include "backends/forms/ScrollBar.h"

#include <algorithm>
#include <cmath>

namespace quendle {
namespace {

// The way of the knob's middle along the bar.
double WayLength(const Control& bar) {
  const double length = IsLying(bar) ? bar.area.Width() : bar.area.Height();
  return std::max(length - 2 * KnobRadius(bar), 1.0);
}

}  // namespace

bool IsLying(const Control& bar) { return bar.area.Width() >= bar.area.Height(); }

double KnobRadius(const Control& bar) {
  return (IsLying(bar) ? bar.area.Height() : bar.area.Width()) / 2.0;
}

Vec KnobCentre(const Control& bar) {
  const double part = bar.maximum > 0 ? static_cast<double>(bar.value) / bar.maximum : 0;
  const double radius = KnobRadius(bar);
  const double at = radius + WayLength(bar) * std::clamp(part, 0.0, 1.0);
  return {bar.area.left + (IsLying(bar) ? at : radius),
          bar.area.top + (IsLying(bar) ? radius : at)};
}

int ScrollValueAt(const Control& bar, Point at) {
  const double along = IsLying(bar) ? at.x - bar.area.left : at.y - bar.area.top;
  const double part = (along - KnobRadius(bar)) / WayLength(bar);
  return static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * bar.maximum));
}

}  // namespace quendle
