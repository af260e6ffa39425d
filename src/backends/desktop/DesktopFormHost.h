#pragma once

#include <memory>

#include "backends/desktop/DesktopEventLoop.h"
#include "backends/desktop/FormWindow.h"
#include "backends/forms/FormList.h"
#include "platform/FormHost.h"

namespace quendle {

// Shows the form that is visible and enabled in the one window that all forms share.
class DesktopFormHost : public FormHost {
 public:
  // Both outlive the host.
  DesktopFormHost(DesktopEventLoop& loop, FormPainter& painter);

  void Add(Form& form, FormEvents& events) override;
  void Remove(Form& form) override;
  // A form that can't be shown for lack of a display is fatal.
  void Update(Form& form) override;

  // Follows the records now, and not at the end of the event.
  void ShowFormInView();
  void Flash() { window_->Flash(); }

 private:
  // Follows the records at the end of an event, when one form is hidden and the next one shown:
  // so that the window goes from the one to the other without closing.
  class Switch : public SdlEventTarget {
   public:
    explicit Switch(DesktopFormHost& host) : host_(host) {}
    std::uint32_t WindowId() const override { return 0; }
    void HandleInput(const SDL_Event&) override {}
    void HandleUpkeep(const SDL_Event&) override {}
    void Settle() override { host_.ShowFormInView(); }
    void HandleQuit() override {}

   private:
    DesktopFormHost& host_;
  };

  std::shared_ptr<FormWindow> window_;
  std::shared_ptr<Switch> switch_;
  FormList forms_;
};

}  // namespace quendle
