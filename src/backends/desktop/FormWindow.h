#pragma once

#include <cstdint>
#include <memory>

#include "backends/desktop/SdlEventTarget.h"
#include "backends/desktop/SdlInput.h"
#include "backends/forms/FormInput.h"
#include "backends/forms/FormPainter.h"

struct SDL_Window;

namespace quendle {

// A borderless window that shows one form at a time. It stands in the middle of the display and
// keeps its place while the player has moved it.
class FormWindow : public SdlEventTarget {
 public:
  // `painter` outlives the window. It stays in front of the window with the number `behind`, if
  // there is one.
  explicit FormWindow(FormPainter& painter, std::uint32_t behind = 0)
      : painter_(painter), behind_(behind) {}
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  // Shows the form of `input`, or closes the window for a null one. `input` outlives its showing.
  // False when no window can be had.
  bool Show(FormInput* input);
  FormInput* Shown() { return input_; }
  // The record changed: paints again, minimises if the record says so.
  void Refresh();
  void Flash();

  std::uint32_t WindowId() const override;
  void HandleInput(const SDL_Event& event) override;
  void HandleUpkeep(const SDL_Event& event) override;
  void Settle() override;
  void HandleQuit() override;
  bool TakesDrops() const override { return input_ != nullptr && input_->TakesDrops(); }

 private:
  struct DestroyWindow {
    void operator()(SDL_Window* window) const;
  };
  bool Open();
  void Fit(Size size, Point corner);
  void Paint();
  FormPlace Place() const;

  FormPainter& painter_;
  std::uint32_t behind_;
  std::unique_ptr<SDL_Window, DestroyWindow> window_;
  FormInput* input_ = nullptr;
  double scale_ = 1;
  bool dirty_ = false;
  bool minimised_ = false;
};

}  // namespace quendle
