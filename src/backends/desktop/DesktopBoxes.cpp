#include "backends/desktop/DesktopBoxes.h"

#include <SDL.h>

#include <cstdio>

#include "backends/desktop/FormWindow.h"

#include "base/Text.h"

namespace quendle {
namespace {

// What stood over the frame before comes back when a box goes, by whatever way.
class Overlay {
 public:
  Overlay(DesktopWindow& window, FormInput& input) : window_(window), before_(window.Overlay()) {
    window_.SetOverlay(&input);
  }
  ~Overlay() { window_.SetOverlay(before_); }
  Overlay(const Overlay&) = delete;
  Overlay& operator=(const Overlay&) = delete;

 private:
  DesktopWindow& window_;
  FormInput* before_;
};

}  // namespace

void DesktopBoxes::MessageBox(const std::string& title, const std::string& text) {
  BoxForm box({title, text, {"ok"}, 0, false}, text_);
  Ask(box);
}

bool DesktopBoxes::YesNoBox(const std::string& title, const std::string& text) {
  BoxForm box({title, text, {"yes", "no"}, 1, false}, text_);
  return Ask(box) == 0;
}

std::string DesktopBoxes::InputBox(const std::string& title, const std::string& prompt) {
  return AskForText(title, prompt);
}

std::string DesktopBoxes::ChooseFile(const std::string& title) {
  return AskForText(title, "Type where the file is, or drop it here.");
}

std::string DesktopBoxes::AskForText(const std::string& title, const std::string& prompt) {
  BoxForm box({title, prompt, {"ok", "cancel"}, 1, true}, text_);
  return Ask(box) == 0 ? box.Typed() : "";
}

int DesktopBoxes::Ask(BoxForm& box) {
  FormInput input(box.Record(), box);
  // The character of the key that brought the box up isn't meant for it.
  SDL_FlushEvent(SDL_TEXTINPUT);
  if (window_.IsOpen()) {
    AskOverFrame(box, input);
  } else if (!text_.HasFont() || !AskInOwnWindow(box, input)) {
    const BoxForm::Plan& asked = box.Asked();
    return ShowSystemBox(asked.title, asked.text, asked.buttons);
  }
  return *box.Answer();
}

void DesktopBoxes::AskOverFrame(BoxForm& box, FormInput& input) {
  Overlay overlay(window_, input);
  DesktopEventLoop::Modal modal(loop_, window_);
  loop_.Run([&] { return box.Answer().has_value(); });
}

bool DesktopBoxes::AskInOwnWindow(BoxForm& box, FormInput& input) {
  auto own = std::make_shared<FormWindow>(painter_);
  if (!own->Show(&input)) return false;
  loop_.Add(own);
  DesktopEventLoop::Modal modal(loop_, *own);
  loop_.Run([&] { return box.Answer().has_value(); });
  return true;
}

int ShowSystemBox(const std::string& title, const std::string& text,
                  const std::vector<std::string>& buttons) {
  std::vector<SDL_MessageBoxButtonData> choices;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    Uint32 flags = 0;
    if (i == 0) flags |= SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT;
    if (i + 1 == buttons.size()) flags |= SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT;
    choices.push_back({flags, static_cast<int>(i), buttons[i].c_str()});
  }
  std::string title_text = ToUtf8(title);
  std::string body = ToUtf8(text);
  SDL_MessageBoxData data{SDL_MESSAGEBOX_INFORMATION,
                          nullptr,
                          title_text.c_str(),
                          body.c_str(),
                          static_cast<int>(choices.size()),
                          choices.data(),
                          nullptr};
  int pressed = static_cast<int>(buttons.size()) - 1;
  if (SDL_ShowMessageBox(&data, &pressed) != 0) {
    std::fprintf(stderr, "%s: %s\n", title_text.c_str(), body.c_str());
    return static_cast<int>(buttons.size()) - 1;
  }
  return pressed < 0 ? static_cast<int>(buttons.size()) - 1 : pressed;
}

}  // namespace quendle
