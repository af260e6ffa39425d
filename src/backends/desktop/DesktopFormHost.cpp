#include "backends/desktop/DesktopFormHost.h"

#include <SDL.h>

#include <algorithm>

#include "base/FatalError.h"

namespace quendle {

DesktopFormHost::DesktopFormHost(DesktopEventLoop& loop, FormPainter& painter)
    : window_(std::make_shared<FormWindow>(painter)), switch_(std::make_shared<Switch>(*this)) {
  loop.Add(switch_);
  loop.Add(window_);
}

void DesktopFormHost::Add(Form& form, FormEvents& events) {
  forms_.push_back(std::make_unique<FormInput>(form, events));
}

void DesktopFormHost::Remove(Form& form) {
  if (window_->Shown() != nullptr && &window_->Shown()->Record() == &form) window_->Show(nullptr);
  std::erase_if(forms_, [&](const auto& input) { return &input->Record() == &form; });
}

void DesktopFormHost::Update(Form& form) {
  FormInput* shown = window_->Shown();
  if (shown != nullptr && &shown->Record() == &form && form.visible) window_->Refresh();
}

void DesktopFormHost::ShowFormInView() {
  if (!window_->Show(FormInView())) {
    throw FatalError(std::string("no window can be opened: ") + SDL_GetError());
  }
}

FormInput* DesktopFormHost::FormInView() {
  auto found = std::ranges::find_if(
      forms_, [](const auto& input) { return input->Record().visible && input->Record().enabled; });
  return found == forms_.end() ? nullptr : found->get();
}

}  // namespace quendle
