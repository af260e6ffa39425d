#include "dialogs/DialogForm.h"

#include <utility>

#include "dialogs/FormLayout.h"
#include "dialogs/StartUpForm.h"

namespace quendle {
namespace {

constexpr int kMinimisePicture = 3;
constexpr Rect kOkSize{0, 0, 140, 52};

}  // namespace

DialogForm::DialogForm(FormServices services, StartUpForm& prompt, std::string name, Size size)
    : PictureForm(services, std::move(name), size), prompt_(prompt) {}

void DialogForm::Finish() {
  AddButtons({{1, "ok", "Ok", kOkSize, [this] { Ok(); }}});
  AddTitleButtons(kMinimisePicture, [this] { CloseWindow(); });
  LayoutTitleBar(form_, kMinimisePicture);
  ArrangeButtons(form_, LastPicture());
  LoadBorders(form_);
  Register();
}

void DialogForm::QueryClose() { CloseWindow(); }

void DialogForm::EndProgram() { prompt_.Unload(); }

void DialogForm::CloseWindow() { BackToPrompt(); }

void DialogForm::BackToPrompt() {
  SetShown(false);
  prompt_.Show();
}

}  // namespace quendle
