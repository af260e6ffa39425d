#pragma once

#include <functional>
#include <string>
#include <vector>

#include "dialogs/FormServices.h"
#include "platform/Form.h"

namespace quendle {

// A button: a pair of elements of Picture1, the odd `index` at rest and the next one highlighted.
struct FormButton {
  int index;
  std::string art;   // names the picture
  std::string word;  // tells what the button does
  Rect area;         // at rest; pixels of the form
  std::function<void()> action;
};

// A form of the shared look: bevel, picture buttons with highlights, links, radio groups, checks,
// and the keyboard. The classes below it give the buttons, each with what it does.
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
  // An empty form, not yet known to the host.
  PictureForm(FormServices services, std::string name, Size size);

  // Adds buttons. None may be added once the form is known to the host.
  void AddButtons(const std::vector<FormButton>& buttons);
  // Adds the three of the title bar, from element `minimise` on: minimise, maximise, which only
  // beeps since no form can be maximised, and close.
  void AddTitleButtons(int minimise, std::function<void()> close);
  // The last element of Picture1.
  int LastPicture() const;

  // Makes the finished form known to the host.
  void Register();

  // Highlights the button of an odd index; 0 or less clears all highlights; an even index belongs
  // to a picture that is highlighted already and is ignored.
  void HighlightButton(int index);

  // What a press on an element of Picture1 does: the action of the last button that doesn't lie
  // behind `index`, so that an even element acts like its odd partner. Below the first, nothing.
  void ButtonCommand(int index);

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

  std::vector<FormButton> buttons_;  // by index
  bool registered_ = false;
};

}  // namespace quendle
