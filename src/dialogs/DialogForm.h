#pragma once

#include "dialogs/PictureForm.h"

namespace quendle {

class StartUpForm;

// A dialog that takes the place of the start-up form until it closes: OK, minimise, beep, close.
// It is made on first use, is hidden and never destroyed before the run ends.
class DialogForm : public PictureForm {
 public:
  // Puts the dialog on screen; the caller hides the start-up form.
  void Show() { SetShown(true); }

  void QueryClose() override;
  void EndProgram() override;

 protected:
  // `prompt` outlives the dialog.
  DialogForm(FormServices services, StartUpForm& prompt, std::string name, Size size);

  // Adds the buttons and the bevel, lays out the title label and makes the dialog known.
  void Finish();

  virtual void Ok() = 0;
  // The close button: hides the dialog and shows the start-up form.
  virtual void CloseWindow();
  void BackToPrompt();

  StartUpForm& prompt_;
};

}  // namespace quendle
