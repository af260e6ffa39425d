#pragma once

#include "dialogs/DialogForm.h"

namespace quendle {

// The question after a run that did not end in order. Closing it is OK: there is no way past it.
class frmSafeMode : public DialogForm {
 public:
  frmSafeMode(FormServices services, StartUpForm& prompt);

 protected:
  void Ok() override;
  void CloseWindow() override { Ok(); }
};

}  // namespace quendle
