#include "dialogs/frmOptionsMenu.h"

#include "base/ContentFiles.h"
#include "base/PlayerFiles.h"
#include "base/Settings.h"
#include "dialogs/DifficultyRadios.h"
#include "dialogs/FormLayout.h"

namespace quendle {

frmOptionsMenu::frmOptionsMenu(FormServices services, StartUpForm& prompt)
    : DialogForm(services, prompt, "frmOptionsMenu", {560, 440}) {
  form_.caption = "Options Menu -- " + services_.settings.ProductName;
  AddLabel(form_, "Label1", "Game Options...", {0, 0, 0, 28}).font_size = kTitleFontSize;

  AddFrame(form_, "Frame1", "Difficulty Level", {20, 52, 270, 182});
  AddRadio(form_, "Frame1", "optEasy", "Easy", {36, 78, 260, 108});
  AddRadio(form_, "Frame1", "optMedium", "Normal", {36, 110, 260, 140});
  AddRadio(form_, "Frame1", "optHard", "Hard", {36, 142, 260, 172});

  AddFrame(form_, "Frame2", "Your Child's Photo in the Game", {290, 52, 540, 182});
  AddRadio(form_, "Frame2", "optOn", "On", {306, 78, 530, 108});
  AddRadio(form_, "Frame2", "optOff", "Off", {306, 110, 530, 140});

  AddFrame(form_, "Frame3", "Graphics Mode", {20, 192, 270, 292});
  AddRadio(form_, "Frame3", "opt16Bit", "16-bit", {36, 218, 260, 248});
  AddRadio(form_, "Frame3", "opt32Bit", "32-bit", {36, 250, 260, 280});

  AddFrame(form_, "Frame4", "Reset Game", {290, 192, 540, 292});
  AddCheck(form_, "chkResetGame", "Yes, I Want To Cure All The Animals Again",
           {306, 220, 530, 280});

  AddLink(form_, "Label2", services_.settings.WebAddress, {24, 302, 536, 328});
  AddLink(form_, "Label3", services_.settings.SupportAddress, {24, 332, 536, 358});
  SyncControls();
  Finish();
}

void frmOptionsMenu::SyncControls() {
  const Settings& settings = services_.settings;
  SetRadio(form_, settings.GraphicsMode == 16 ? "opt16Bit" : "opt32Bit");
  ShowDifficulty(form_, settings.DifficultyLevel);
  SetRadio(form_, settings.PersonalizeOn ? "optOn" : "optOff");
  form_.Find("chkResetGame")->value = 0;
  Changed();
}

void frmOptionsMenu::Ok() {
  SaveOptions();
  BackToPrompt();
}

void frmOptionsMenu::SaveOptions() {
  Settings& settings = services_.settings;
  settings.GraphicsMode = IsSet(form_, "opt16Bit") ? 16 : 32;
  settings.PersonalizeOn = IsSet(form_, "optOn");
  settings.DifficultyLevel = ChosenDifficulty(form_);
  if (IsSet(form_, "chkResetGame")) DeleteSavedGame(services_.files);
}

}  // namespace quendle
