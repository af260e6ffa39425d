#include "backends/desktop/FormInput.h"

#include <algorithm>
#include <string>

#include "backends/desktop/FormPointer.h"

namespace quendle {
namespace {

constexpr std::size_t kLongestText = 1000;

bool AnswersAtOnce(const Control& control) {
  return control.kind == ControlKind::kImage || control.kind == ControlKind::kScroll;
}

// The 8-bit character of typed text; characters that content can't hold are left out.
std::string FromUtf8(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto lead = static_cast<unsigned char>(text[i]);
    if (lead < 0x80) {
      bytes += text[i];
    } else if ((lead == 0xC2 || lead == 0xC3) && i + 1 < text.size()) {
      auto next = static_cast<unsigned char>(text[++i]);
      bytes += static_cast<char>((lead & 3) << 6 | (next & 0x3F));
    }
  }
  return bytes;
}

}  // namespace

Control* FormInput::ControlNumber(int position) {
  if (position < 0 || position >= static_cast<int>(form_.controls.size())) return nullptr;
  return &form_.controls[static_cast<std::size_t>(position)];
}

Control* FormInput::TextField() {
  auto found = std::ranges::find_if(form_.controls, [](const Control& control) {
    return control.kind == ControlKind::kText && control.visible && control.enabled;
  });
  return found == form_.controls.end() ? nullptr : &*found;
}

void FormInput::Move(Point at) {
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
  if (AnswersAtOnce(*control)) {
    PressAt(look_.over, at);
    return;
  }
  look_.pressed = look_.over;
  pushed_ = control->area;
}

void FormInput::Up(Point at) {
  if (look_.pressed < 0) return;
  look_.pressed = -1;
  if (pushed_.Holds(at)) PressAt(ControlAt(form_, at), at);
}

void FormInput::Key(FormKey key) {
  look_.show_focus = true;
  events_.Key(key);
}

void FormInput::Type(std::string_view text) {
  Control* field = TextField();
  if (field == nullptr) return;
  std::string typed = FromUtf8(text);
  if (field->text.size() + typed.size() <= kLongestText) field->text += typed;
}

void FormInput::Erase() {
  Control* field = TextField();
  if (field != nullptr && !field->text.empty()) field->text.pop_back();
}

void FormInput::PressAt(int position, Point at) {
  Control* control = ControlNumber(position);
  if (control == nullptr) return;
  Point inside{at.x - control->area.left, at.y - control->area.top};
  events_.Press(*control, inside);
}

}  // namespace quendle
