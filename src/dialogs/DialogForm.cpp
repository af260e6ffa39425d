#include "dialogs/DialogForm.h"

#include <utility>

#include "dialogs/FormLayout.h"
#include "dialogs/StartUpForm.h"
#include "platform/SystemServices.h"

namespace quendle {
namespace {

constexpr int kLastPicture = 8;
constexpr int kMinimisePicture = 3;
constexpr Rect kOkSize{0, 0, 140, 52};
constexpr Rect kTitleButtonSize{0, 0, 28, 28};

}  // namespace

DialogForm::DialogForm(FormServices services, StartUpForm& prompt, std::string name, Size size)
    : PictureForm(services, std::move(name), size, kLastPicture), prompt_(prompt) {}

void DialogForm::Finish() {
  AddPicturePair(form_, 1, "ok", "Ok", kOkSize);
  AddPicturePair(form_, 3, "minimise", "Minimise", kTitleButtonSize);
  AddPicturePair(form_, 5, "maximise", "Maximise", kTitleButtonSize);
  AddPicturePair(form_, 7, "close", "Close", kTitleButtonSize);
  LayoutTitleBar(form_, kMinimisePicture);
  ArrangeButtons(form_, kLastPicture);
  LoadBorders(form_);
  Register();
}

void DialogForm::QueryClose() { CloseWindow(); }

void DialogForm::ButtonCommand(int index) {
  if (index >= 7) {
    CloseWindow();
  } else if (index >= 5) {
    services_.system.Beep();
  } else if (index >= 3) {
    Minimise();
  } else if (index >= 1) {
    Ok();
  }
}

void DialogForm::CloseWindow() { BackToPrompt(); }

void DialogForm::BackToPrompt() {
  SetShown(false);
  prompt_.Show();
}

}  // namespace quendle
