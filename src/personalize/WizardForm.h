#pragma once

#include <string>

#include "dialogs/PictureForm.h"
#include "personalize/PersonalizeServices.h"

namespace quendle {

// A stage of the wizard that puts a photograph into the game. Elements of Picture1, in pairs:
// Previous, Next, a button of the stage's own, minimise, beep, close, and further ones.
class WizardForm : public PictureForm {
 public:
  void Show() { SetShown(true); }
  void QueryClose() override { CloseWindow(); }

 protected:
  // `last` is the last element of Picture1.
  WizardForm(const PersonalizeServices& services, std::string name, Size size, int last);

  // Adds Previous, Next and the title buttons, the bevel and the title, and makes the form known.
  void Finish();

  void ButtonCommand(int index) override;
  // Enter goes on.
  int DefaultButton() const override { return 3; }

  virtual void Previous() = 0;
  virtual void Next() = 0;
  // Elements 5 and 6.
  virtual void StageButton() = 0;
  // The elements behind the close button; `index` is 13 or more.
  virtual void FurtherButton(int index) = 0;

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

 private:
  int last_picture_;
};

}  // namespace quendle
