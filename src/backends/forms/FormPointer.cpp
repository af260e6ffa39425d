#include "backends/forms/FormPointer.h"

#include "backends/forms/FormPainter.h"

namespace quendle {
namespace {

bool Answers(const Control& control) {
  if (!control.visible || !control.enabled) return false;
  switch (control.kind) {
    case ControlKind::kLine:
    case ControlKind::kFrame:
      return false;
    case ControlKind::kLabel:
      return control.link;
    default:
      return true;
  }
}

bool IsSeenAt(const Control& control, Point at) {
  return control.area.Holds(at) && (control.clip == Rect{} || control.clip.Holds(at));
}

}  // namespace

int ControlAt(const Form& form, Point at) {
  for (auto i = static_cast<int>(form.controls.size()) - 1; i >= 0; --i) {
    const Control& control = form.controls[static_cast<std::size_t>(i)];
    if (Answers(control) && IsSeenAt(control, at)) return i;
  }
  return -1;
}

bool IsMoveHandle(const Form& form, Point at) {
  return at.y >= 0 && at.y < kTitleBand && ControlAt(form, at) < 0;
}

}  // namespace quendle
