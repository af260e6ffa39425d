#pragma once

#include <string_view>

#include "backends/desktop/FormPainter.h"
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
  void Key(FormKey key);
  // Typed text (UTF-8) goes to the text field, if the form has one.
  void Type(std::string_view text);
  void Erase();
  void Close() { events_.QueryClose(); }
  // Forgets pointer and push: the form left the screen.
  void Reset() { look_ = {}; }

 private:
  Control* ControlNumber(int position);
  Control* TextField();
  void PressAt(int position, Point at);

  Form& form_;
  FormEvents& events_;
  FormLook look_;
  Rect pushed_;
};

}  // namespace quendle
