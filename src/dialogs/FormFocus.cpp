#include "dialogs/FormFocus.h"

#include <algorithm>

namespace quendle {
namespace {

bool SameGroup(const Control& a, const Control& b) {
  return a.kind == ControlKind::kRadio && b.kind == ControlKind::kRadio && a.group == b.group;
}

// A group is entered at its set button; at the first one when none is set.
bool IsEntryOfGroup(const Form& form, const Control& radio) {
  if (radio.value != 0) return true;
  for (const Control& other : form.controls) {
    if (!SameGroup(other, radio)) continue;
    if (other.value != 0) return false;
  }
  auto first = std::find_if(form.controls.begin(), form.controls.end(),
                            [&](const Control& other) { return SameGroup(other, radio); });
  return &*first == &radio;
}

bool IsStop(const Form& form, const Control& control) {
  if (!control.visible || !control.enabled) return false;
  switch (control.kind) {
    case ControlKind::kPicture:
    case ControlKind::kCheck:
    case ControlKind::kScroll:
      return true;
    case ControlKind::kLabel:
      return control.link;
    case ControlKind::kRadio:
      return IsEntryOfGroup(form, control);
    default:
      return false;
  }
}

int Wrap(int position, int count) { return (position % count + count) % count; }

}  // namespace

void MoveFocus(Form& form, int step) {
  const int count = static_cast<int>(form.controls.size());
  int position = form.focus < 0 && step < 0 ? 0 : form.focus;
  for (int tried = 0; tried < count; ++tried) {
    position = Wrap(position + step, count);
    if (IsStop(form, form.controls[position])) {
      form.focus = position;
      return;
    }
  }
}

Control& NeighbourInGroup(Form& form, const Control& radio, int step) {
  const int count = static_cast<int>(form.controls.size());
  int position = static_cast<int>(&radio - form.controls.data());
  do {
    position = Wrap(position + step, count);
  } while (!SameGroup(form.controls[position], radio));
  return form.controls[position];
}

void FocusOn(Form& form, const Control& control) {
  form.focus = static_cast<int>(&control - form.controls.data());
}

Control* Focused(Form& form) {
  const bool inside = form.focus >= 0 && form.focus < static_cast<int>(form.controls.size());
  return inside ? &form.controls[form.focus] : nullptr;
}

void FollowVisiblePicture(Form& form) {
  const Control* focused = Focused(form);
  if (focused == nullptr || focused->kind != ControlKind::kPicture || focused->visible) return;
  const int twin = focused->index % 2 != 0 ? focused->index + 1 : focused->index - 1;
  if (const Control* seen = form.Find(focused->name, twin)) FocusOn(form, *seen);
}

}  // namespace quendle
