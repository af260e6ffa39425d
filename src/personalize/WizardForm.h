#pragma once

#include <string>

#include "dialogs/PictureForm.h"
#include "personalize/PersonalizeServices.h"

namespace quendle {

// A stage of the wizard that puts a photograph into the game. It has the buttons Previous (element
// 1 of Picture1), Next (3), minimise (7), beep (9) and close (11), and others of the stage's own.
class WizardForm : public PictureForm {
 public:
  void Show() { SetShown(true); }
  void QueryClose() override { CloseWindow(); }
  void EndProgram() override;

 protected:
  WizardForm(const PersonalizeServices& services, std::string name, Size size);

  // Adds Previous, Next and the title buttons, the bevel and the title, and makes the form known.
  void Finish();

  // Enter goes on.
  int DefaultButton() const override { return 3; }

  virtual void Previous() = 0;
  virtual void Next() = 0;

  virtual void CloseWindow();
  // Hides this stage and shows the start-up form.
  void BackToPrompt();
  // A message under the wizard's name.
  void Tell(const std::string& text);
  // A question under the wizard's name; true for Yes.
  bool Ask(const std::string& text);
  // "Personalize " and the product name.
  std::string WizardName() const;

  PersonalizeServices personalize_;
};

}  // namespace quendle
