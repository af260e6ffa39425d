#include "backends/forms/FormInput.h"

#include <algorithm>
#include <string>

#include "backends/forms/FormPointer.h"
#include "backends/forms/ScrollBar.h"
#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::size_t kLongestText = 1000;

constexpr int kWheelStep = 40;  // of a scroll bar's value, for one notch

bool AnswersAtOnce(const Control& control) { return control.kind == ControlKind::kImage; }

}  // namespace

Control* FormInput::ControlNumber(int position) {
  if (position < 0 || position >= static_cast<int>(form_.controls.size())) return nullptr;
  return &form_.controls[static_cast<std::size_t>(position)];
}

Control* FormInput::TextField() {
  auto found =
      std::find_if(form_.controls.begin(), form_.controls.end(), [](const Control& control) {
        return control.kind == ControlKind::kText && control.visible && control.enabled;
      });
  return found == form_.controls.end() ? nullptr : &*found;
}

void FormInput::Move(Point at) {
  if (ScrollTo(dragged_, at)) return;
  look_.over = ControlAt(form_, at);
  if (Control* control = ControlNumber(look_.over)) {
    events_.PointerOver(*control);
    // The highlighted twin of a button may have come under the pointer.
    look_.over = ControlAt(form_, at);
  } else {
    events_.PointerOverForm();
  }
  if (look_.pressed >= 0) look_.pressed = pushed_.Holds(at) ? look_.over : -1;
}

void FormInput::Leave() {
  look_.over = -1;
  look_.pressed = -1;
  events_.PointerOverForm();
}

void FormInput::Down(Point at) {
  look_.show_focus = false;
  look_.over = ControlAt(form_, at);
  Control* control = ControlNumber(look_.over);
  if (control == nullptr) return;
  if (ScrollTo(look_.over, at)) {
    dragged_ = look_.over;
    return;
  }
  if (AnswersAtOnce(*control)) {
    PressAt(look_.over, at);
    return;
  }
  look_.pressed = look_.over;
  pushed_ = control->area;
}

void FormInput::Up(Point at) {
  dragged_ = -1;
  if (look_.pressed < 0) return;
  look_.pressed = -1;
  if (pushed_.Holds(at)) PressAt(ControlAt(form_, at), at);
}

void FormInput::Wheel(int right, int down) {
  WheelOne(true, right);
  WheelOne(false, down);
}

void FormInput::Key(FormKey key) {
  look_.show_focus = true;
  events_.Key(key);
}

void FormInput::Type(std::string_view text) {
  Control* field = TextField();
  if (field == nullptr) return;
  std::string typed = FromUtf8LeavingOut(text);
  if (field->text.size() + typed.size() <= kLongestText) field->text += typed;
}

void FormInput::Erase() {
  Control* field = TextField();
  if (field != nullptr && !field->text.empty()) field->text.pop_back();
}

void FormInput::Drop(const std::string& native_path) {
  if (TextField() != nullptr) {
    Type(native_path);
  } else if (events_.TakesDrops()) {
    events_.Drop(native_path);
  }
}

// Moves the knob of a scroll bar under the pointer; false for any other control.
bool FormInput::ScrollTo(int position, Point at) {
  Control* bar = ControlNumber(position);
  if (bar == nullptr || bar->kind != ControlKind::kScroll) return false;
  events_.Set(*bar, ScrollValueAt(*bar, at));
  return true;
}

void FormInput::WheelOne(bool lying, int notches) {
  auto found =
      std::find_if(form_.controls.begin(), form_.controls.end(), [lying](const Control& control) {
        return control.kind == ControlKind::kScroll && control.visible && control.enabled &&
               IsLying(control) == lying;
      });
  if (notches == 0 || found == form_.controls.end()) return;
  events_.Set(*found,
              std::clamp(found->value + notches * std::min(kWheelStep, 1 + found->maximum / 8), 0,
                         found->maximum));
}

void FormInput::PressAt(int position, Point at) {
  Control* control = ControlNumber(position);
  if (control == nullptr) return;
  Point inside{at.x - control->area.left, at.y - control->area.top};
  events_.Press(*control, inside);
}

}  // namespace quendle
