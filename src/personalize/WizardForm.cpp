#include "personalize/WizardForm.h"

#include <utility>

#include "base/Settings.h"
#include "dialogs/FormLayout.h"
#include "dialogs/StartUpForm.h"
#include "platform/Boxes.h"

namespace quendle {
namespace {

constexpr int kMinimisePicture = 7;
constexpr int kButtonHeight = 52;
constexpr int kButtonWidth = 150;
constexpr int kMargin = 18;

}  // namespace

WizardForm::WizardForm(const PersonalizeServices& services, std::string name, Size size)
    : PictureForm(services.forms, std::move(name), size), personalize_(services) {}

void WizardForm::Finish() {
  const int bottom = form_.size.height - kMargin;
  const int right = form_.size.width - kMargin;
  const int top = bottom - kButtonHeight;
  AddButtons({
      {1, "back", "Back", {kMargin, top, kMargin + kButtonWidth, bottom}, [this] { Previous(); }},
      {3, "next", "Next", {right - kButtonWidth, top, right, bottom}, [this] { Next(); }},
  });
  AddTitleButtons(kMinimisePicture, [this] { CloseWindow(); });
  LayoutTitleBar(form_, kMinimisePicture);
  PairButtonPictures(form_, 1, LastPicture());
  LoadBorders(form_);
  Register();
}

void WizardForm::EndProgram() { personalize_.prompt.Unload(); }

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
