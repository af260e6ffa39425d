#include "personalize/WizardForm.h"

#include <utility>

#include "base/Settings.h"
#include "dialogs/FormLayout.h"
#include "dialogs/StartUpForm.h"
#include "platform/Boxes.h"
#include "platform/SystemServices.h"

namespace quendle {
namespace {

constexpr int kMinimisePicture = 7;
constexpr int kFirstFurtherPicture = 13;
constexpr int kButtonHeight = 52;
constexpr int kButtonWidth = 150;
constexpr int kMargin = 18;
constexpr Rect kTitleButtonSize{0, 0, 28, 28};

}  // namespace

WizardForm::WizardForm(const PersonalizeServices& services, std::string name, Size size, int last)
    : PictureForm(services.forms, std::move(name), size, last),
      personalize_(services),
      last_picture_(last) {}

void WizardForm::Finish() {
  const int bottom = form_.size.height - kMargin;
  const int right = form_.size.width - kMargin;
  AddPicturePair(form_, 1, "back", "Back",
                 {kMargin, bottom - kButtonHeight, kMargin + kButtonWidth, bottom});
  AddPicturePair(form_, 3, "next", "Next",
                 {right - kButtonWidth, bottom - kButtonHeight, right, bottom});
  AddPicturePair(form_, 7, "minimise", "Minimise", kTitleButtonSize);
  AddPicturePair(form_, 9, "maximise", "Maximise", kTitleButtonSize);
  AddPicturePair(form_, 11, "close", "Close", kTitleButtonSize);
  LayoutTitleBar(form_, kMinimisePicture);
  PairButtonPictures(form_, 1, last_picture_);
  LoadBorders(form_);
  Register();
}

void WizardForm::ButtonCommand(int index) {
  if (index >= kFirstFurtherPicture) {
    FurtherButton(index);
  } else if (index >= 11) {
    CloseWindow();
  } else if (index >= 9) {
    services_.system.Beep();
  } else if (index >= 7) {
    Minimise();
  } else if (index >= 5) {
    StageButton();
  } else if (index >= 3) {
    Next();
  } else if (index >= 1) {
    Previous();
  }
}

void WizardForm::CloseWindow() { BackToPrompt(); }

void WizardForm::BackToPrompt() {
  SetShown(false);
  personalize_.prompt.Show();
}

void WizardForm::Tell(const std::string& text) {
  personalize_.boxes.MessageBox(WizardName(), text);
}

bool WizardForm::Ask(const std::string& text) {
  return personalize_.boxes.YesNoBox(WizardName(), text);
}

std::string WizardForm::WizardName() const {
  return "Personalize " + services_.settings.ProductName;
}

}  // namespace quendle
