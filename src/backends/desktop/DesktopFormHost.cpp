#include "backends/desktop/DesktopFormHost.h"

#include <SDL.h>

#include <string>

#include "base/FatalError.h"

namespace quendle {

DesktopFormHost::DesktopFormHost(DesktopEventLoop& loop, FormPainter& painter)
    : window_(std::make_shared<FormWindow>(painter)), switch_(std::make_shared<Switch>(*this)) {
  loop.Add(switch_);
  loop.Add(window_);
}

void DesktopFormHost::Add(Form& form, FormEvents& events) { forms_.Add(form, events); }

void DesktopFormHost::Remove(Form& form) {
  if (window_->Shown() != nullptr && &window_->Shown()->Record() == &form) window_->Show(nullptr);
  forms_.Remove(form);
}

void DesktopFormHost::Update(Form& form) {
  FormInput* shown = window_->Shown();
  if (shown != nullptr && &shown->Record() == &form && form.visible) window_->Refresh();
}

void DesktopFormHost::ShowFormInView() {
  if (!window_->Show(forms_.InView())) {
    throw FatalError(std::string("no window can be opened: ") + SDL_GetError());
  }
}

}  // namespace quendle
