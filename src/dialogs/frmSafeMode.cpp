#include "dialogs/frmSafeMode.h"

#include "base/ContentFiles.h"
#include "base/PlayerFiles.h"
#include "base/Settings.h"
#include "dialogs/FormLayout.h"

namespace quendle {

frmSafeMode::frmSafeMode(FormServices services, StartUpForm& prompt)
    : DialogForm(services, prompt, "frmSafeMode", {480, 310}) {
  form_.caption = services_.settings.ProductName;
  AddLabel(form_, "Label1",
           "If the game freezed the last time you played, please select \"Safe Mode\" and click "
           "\"Ok\"",
           {0, 0, 0, 84});
  AddFrame(form_, "Frame1", "Game Mode", {20, 108, 460, 222});
  AddRadio(form_, "Frame1", "optNormal", "Normal Mode", {40, 136, 440, 172});
  AddRadio(form_, "Frame1", "optSafe", "Safe Mode", {40, 176, 440, 212});
  SetRadio(form_, "optNormal");
  Finish();
  // The text is too long for the title bar.
  form_.Find("Label1")->area = {24, 52, 456, 104};
}

void frmSafeMode::Ok() {
  if (IsSet(form_, "optSafe")) {
    services_.settings.SafeMode = true;
    const ContentFiles& files = services_.files;
    files.WriteOneLine(PlayerPath(files, kGameModeFile), "Safe");
  }
  BackToPrompt();
}

}  // namespace quendle
