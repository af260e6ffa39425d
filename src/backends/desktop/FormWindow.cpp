#include "backends/desktop/FormWindow.h"

#include <SDL.h>

#include <algorithm>
#include <cmath>

#include "backends/desktop/WindowPixels.h"
#include "backends/forms/FormPointer.h"
#include "base/Text.h"

namespace quendle {
namespace {

// Asked by the window system, perhaps in the middle of an event of its own: reads the record only.
SDL_HitTestResult HitTest(SDL_Window* window, const SDL_Point* at, void* data) {
  auto* form_window = static_cast<FormWindow*>(data);
  FormInput* input = form_window->Shown();
  if (input == nullptr) return SDL_HITTEST_NORMAL;
  int width = 1;
  SDL_GetWindowSize(window, &width, nullptr);
  const Form& form = input->Record();
  FormPlace place{0, 0, static_cast<double>(width) / std::max(form.size.width, 1)};
  return IsMoveHandle(form, place.ToForm(at->x, at->y)) ? SDL_HITTEST_DRAGGABLE
                                                        : SDL_HITTEST_NORMAL;
}

}  // namespace

void FormWindow::DestroyWindow::operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }

FormWindow::~FormWindow() = default;

bool FormWindow::Show(FormInput* input) {
  if (input == input_) {
    Refresh();
    return true;
  }
  if (input_ != nullptr) input_->Reset();
  input_ = input;
  if (input_ == nullptr) {
    window_.reset();
    return true;
  }
  if (!Open()) {
    input_ = nullptr;
    return false;
  }
  minimised_ = false;
  Paint();
  SDL_ShowWindow(window_.get());
  SDL_RaiseWindow(window_.get());
  SDL_ShowCursor(SDL_ENABLE);
  Refresh();
  return true;
}

void FormWindow::Refresh() {
  if (input_ == nullptr) return;
  dirty_ = true;
  bool wanted = input_->Record().window_state == WindowState::kMinimised;
  if (wanted && !minimised_) SDL_MinimizeWindow(window_.get());
  if (!wanted && minimised_) SDL_RestoreWindow(window_.get());
  minimised_ = wanted;
}

void FormWindow::Flash() {
  if (window_ != nullptr) SDL_FlashWindow(window_.get(), SDL_FLASH_BRIEFLY);
}

std::uint32_t FormWindow::WindowId() const {
  return window_ == nullptr ? 0 : SDL_GetWindowID(window_.get());
}

void FormWindow::HandleInput(const SDL_Event& event) {
  if (input_ == nullptr) return;
  dirty_ = true;
  SendToForm(event, *input_, Place());
}

void FormWindow::HandleUpkeep(const SDL_Event& event) {
  dirty_ = true;
  if (event.type != SDL_WINDOWEVENT || input_ == nullptr) return;
  if (event.window.event == SDL_WINDOWEVENT_RESTORED ||
      event.window.event == SDL_WINDOWEVENT_MAXIMIZED) {
    minimised_ = false;
    input_->Record().window_state = WindowState::kNormal;
  }
}

void FormWindow::Settle() {
  if (dirty_ && input_ != nullptr && !minimised_) Paint();
}

void FormWindow::HandleQuit() {
  if (input_ != nullptr) input_->Close();
}

// The window for the form: a new one in the middle of the display, or the one before, fitted.
bool FormWindow::Open() {
  const Form& form = input_->Record();
  int number = window_ == nullptr ? 0 : std::max(SDL_GetWindowDisplayIndex(window_.get()), 0);
  SDL_Rect display{0, 0, 1024, 768};
  SDL_GetDisplayUsableBounds(number, &display);
  scale_ = ScaleOnDisplay(form.size, {display.w, display.h});
  Size size{static_cast<int>(std::lround(form.size.width * scale_)),
            static_cast<int>(std::lround(form.size.height * scale_))};
  if (window_ != nullptr) {
    Fit(size, {display.x, display.y});
  } else {
    // Window systems keep the first place of a window, so it is right from the start.
    window_.reset(SDL_CreateWindow("", display.x + (display.w - size.width) / 2,
                                   display.y + (display.h - size.height) / 2, size.width,
                                   size.height, SDL_WINDOW_HIDDEN | SDL_WINDOW_BORDERLESS));
    if (window_ == nullptr) return false;
    SDL_SetWindowHitTest(window_.get(), HitTest, this);
    SetIcon(window_.get());
    if (SDL_Window* behind = SDL_GetWindowFromID(behind_)) {
      SDL_SetWindowModalFor(window_.get(), behind);
    }
  }
  SDL_SetWindowTitle(window_.get(), ToUtf8(form.caption).c_str());
  return true;
}

// The next form takes the middle of the one before, wherever the player has moved that.
void FormWindow::Fit(Size size, Point corner) {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  SDL_GetWindowPosition(window_.get(), &x, &y);
  SDL_GetWindowSize(window_.get(), &width, &height);
  SDL_SetWindowSize(window_.get(), size.width, size.height);
  SDL_SetWindowPosition(window_.get(), std::max(corner.x, x + (width - size.width) / 2),
                        std::max(corner.y, y + (height - size.height) / 2));
}

void FormWindow::Paint() {
  dirty_ = false;
  ShowInWindow(window_.get(), painter_.Paint(input_->Record(), scale_, input_->Look()));
}

FormPlace FormWindow::Place() const { return {0, 0, scale_}; }

}  // namespace quendle
