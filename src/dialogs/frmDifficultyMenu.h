#pragma once

#include "dialogs/DialogForm.h"

namespace quendle {

// The question for the child's age, asked at the first Play. Only OK answers it: a dialog that is
// closed comes again at the next Play.
class frmDifficultyMenu : public DialogForm {
 public:
  frmDifficultyMenu(FormServices services, StartUpForm& prompt);

  // Sets the radio buttons from the settings.
  void SyncControls();

 protected:
  void Ok() override;
};

}  // namespace quendle
