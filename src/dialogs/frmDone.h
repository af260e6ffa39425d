#pragma once

#include "dialogs/DialogForm.h"

namespace quendle {

// The last stage of the wizard: OK takes the child's pictures into the game, closing leaves the
// setting as it was.
class frmDone : public DialogForm {
 public:
  frmDone(FormServices services, StartUpForm& prompt);

 protected:
  void Ok() override;
};

}  // namespace quendle
