#pragma once

#include <string>
#include <string_view>

#include "backends/forms/FormPainter.h"
#include "platform/Form.h"

namespace quendle {

// Turns pointer and keyboard into the events of one form, and keeps its look. Positions are pixels
// of the form. A button is pressed by letting go where it was pushed; pictures to point at and
// scroll bars answer at once.
class FormInput {
 public:
  // Both outlive this object.
  FormInput(Form& form, FormEvents& events) : form_(form), events_(events) {}

  Form& Record() { return form_; }
  const FormLook& Look() const { return look_; }

  void Move(Point at);
  void Leave();
  void Down(Point at);
  void Up(Point at);
  // The wheel: positive goes on to the right or down, in notches.
  void Wheel(int right, int down);
  void Key(FormKey key);
  // Typed text (UTF-8) goes to the text field, if the form has one.
  void Type(std::string_view text);
  void Erase();
  bool TakesDrops() { return TextField() != nullptr || events_.TakesDrops(); }
  // A dropped file (UTF-8 path): to the text field, else to the form.
  void Drop(const std::string& native_path);
  void Close() { events_.QueryClose(); }
  // Forgets pointer and push: the form left the screen.
  void Reset() {
    look_ = {};
    dragged_ = -1;
  }

 private:
  Control* ControlNumber(int position);
  Control* TextField();
  bool ScrollTo(int position, Point at);
  void WheelOne(bool lying, int notches);
  void PressAt(int position, Point at);

  Form& form_;
  FormEvents& events_;
  FormLook look_;
  Rect pushed_;
  int dragged_ = -1;  // position of the scroll bar whose knob is held, or -1
};

}  // namespace quendle
