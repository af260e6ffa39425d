#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FormHost.h"

namespace quendle {

// Forms without a screen: keeps their records and hands on the events of a script or a test.
//
// The events go to the form in view; a minimised form is brought back first, as a player would
// have to. Each event gives false, and does nothing, when there is no form in view or the control
// can't be reached. What the form's logic throws passes through.
class HeadlessFormHost : public FormHost {
 public:
  void Add(Form& form, FormEvents& events) override;
  void Remove(Form& form) override;
  void Update(Form& form) override;

  // The form that is visible and enabled, and among several the one shown last; nothing without.
  Form* InView() const;
  // Every form known, in the order in which they were made known.
  std::vector<Form*> Forms() const;

  bool OverForm();
  bool Over(std::string_view control, int index = 0);
  // `at` is in pixels of the control.
  bool Press(std::string_view control, int index = 0, Point at = {});
  // Sets a radio (1 only), a check (0 or 1) or a scroll bar (0 to its maximum).
  bool Set(std::string_view control, int index, int value);
  bool Key(FormKey key);
  bool Drop(const std::string& native_path);
  bool Close();
  // The system wants the program to end while the form in view stands.
  bool EndProgram();

 private:
  struct Entry {
    Form* form = nullptr;
    FormEvents* events = nullptr;
    long shown = 0;  // order of showing, 0 while out of view
  };
  const Entry* Front() const;
  // The front form, brought back from the icon.
  const Entry* Reach();

  std::vector<Entry> entries_;
  long shows_ = 0;
};

}  // namespace quendle
