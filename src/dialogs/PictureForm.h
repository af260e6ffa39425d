#pragma once

#include <string>

#include "dialogs/FormServices.h"
#include "platform/Form.h"

namespace quendle {

// A form of the shared look: bevel, picture buttons with highlights, links, radio groups, checks,
// and the keyboard. What its buttons do is told by the classes below it.
//
// Keys: Tab walks the controls, arrows move inside a radio group and walk elsewhere, Space presses
// what has the focus, Enter presses a button or link that has the focus and else the default
// button, Esc closes. Arrows move a scroll bar that has the focus.
class PictureForm : public FormEvents {
 public:
  ~PictureForm() override;
  PictureForm(const PictureForm&) = delete;
  PictureForm& operator=(const PictureForm&) = delete;

  Form& Record() { return form_; }

  // Shows or hides the form: visible and enabled go together. It begins without highlight, hover
  // look and focus.
  void SetShown(bool shown);

  void PointerOverForm() override;
  void PointerOver(Control& control) override;
  void Press(Control& control, Point at) override;
  void Set(Control& control, int value) override;
  void Key(FormKey key) override;

 protected:
  // An empty form, not yet known to the host. `last` is its last element of Picture1.
  PictureForm(FormServices services, std::string name, Size size, int last);

  // Makes the finished form known to the host.
  void Register();

  // Highlights the button of an odd index; 0 or less clears all highlights; an even index belongs
  // to a picture that is highlighted already and is ignored.
  void HighlightButton(int index);

  // What a press on an element of Picture1 does.
  virtual void ButtonCommand(int index) = 0;

  // The element that Enter presses when nothing else has the focus.
  virtual int DefaultButton() const { return 1; }

  void Minimise();
  void Changed();

  FormServices services_;
  Form form_;

 private:
  void ClearHover();
  void ShowHover(Control& link);
  void OpenLink(const Control& link);
  void Choose(Control& radio);
  void WalkFocus(int step);
  void MoveByArrow(int step);
  void PressFocused();
  void PressEnter();

  int last_;
  bool registered_ = false;
};

}  // namespace quendle
