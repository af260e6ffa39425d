#pragma once

#include "dialogs/DialogForm.h"

namespace quendle {

// The game options. OK stores them in the settings; the start-up form writes them to their files.
class frmOptionsMenu : public DialogForm {
 public:
  frmOptionsMenu(FormServices services, StartUpForm& prompt);

  // Sets the radio buttons from the settings and clears the reset, which is a wish and no setting.
  void SyncControls();

 protected:
  void Ok() override;

 private:
  void SaveOptions();
};

}  // namespace quendle
