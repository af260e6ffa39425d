#include "dialogs/frmDone.h"

#include "base/Settings.h"
#include "dialogs/FormLayout.h"

namespace quendle {

frmDone::frmDone(FormServices services, StartUpForm& prompt)
    : DialogForm(services, prompt, "frmDone", {480, 280}) {
  form_.caption = "Thank You!";
  AddLabel(form_, "Label1", "Stage 4 of 4", {0, 0, 0, 28}).font_size = kTitleFontSize;
  AddLabel(form_, "Label4", "You are done!", {24, 60, 456, 92}).font_size = kTitleFontSize;
  AddLabel(form_, "Label3",
           "Remember, you can always turn off the photo-personalization feature in the \"Game "
           "Options\" menu. ",
           {24, 104, 456, 170});
  Finish();
}

void frmDone::Ok() {
  services_.settings.PersonalizeOn = true;
  BackToPrompt();
}

}  // namespace quendle
