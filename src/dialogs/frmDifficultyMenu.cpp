#include "dialogs/frmDifficultyMenu.h"

#include "base/ContentFiles.h"
#include "base/PlayerFiles.h"
#include "base/Settings.h"
#include "dialogs/DifficultyRadios.h"
#include "dialogs/FormLayout.h"
#include "dialogs/StartUpForm.h"

namespace quendle {

frmDifficultyMenu::frmDifficultyMenu(FormServices services, StartUpForm& prompt)
    : DialogForm(services, prompt, "frmDifficultyMenu", {420, 300}) {
  form_.caption = "Options Menu -- " + services_.settings.ProductName;
  AddLabel(form_, "Label1", "Select Child's Age...", {0, 0, 0, 28}).font_size = kTitleFontSize;
  AddFrame(form_, "Frame1", "Age Group", {20, 56, 400, 212});
  AddRadio(form_, "Frame1", "optEasy", "3 - 4 Years Old", {40, 84, 380, 120});
  AddRadio(form_, "Frame1", "optMedium", "5 - 7 Years Old", {40, 124, 380, 160});
  AddRadio(form_, "Frame1", "optHard", "8+ Years Old", {40, 164, 380, 200});
  SyncControls();
  Finish();
}

void frmDifficultyMenu::SyncControls() {
  ShowDifficulty(form_, services_.settings.DifficultyLevel);
  Changed();
}

void frmDifficultyMenu::Ok() {
  services_.settings.DifficultyLevel = ChosenDifficulty(form_);
  const ContentFiles& files = services_.files;
  files.WriteOneLine(PlayerPath(files, kDialogModeFile), "On");
  SetShown(false);
  prompt_.btnNormal_Click();
}

}  // namespace quendle
