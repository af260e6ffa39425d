#include "backends/desktop/SdlInput.h"

#include <SDL.h>

namespace quendle {

std::optional<FormKey> FormKeyOf(const SDL_Keysym& key) {
  switch (key.sym) {
    case SDLK_TAB:
      return (key.mod & KMOD_SHIFT) != 0 ? FormKey::kBackTab : FormKey::kTab;
    case SDLK_UP:
      return FormKey::kUp;
    case SDLK_DOWN:
      return FormKey::kDown;
    case SDLK_LEFT:
      return FormKey::kLeft;
    case SDLK_RIGHT:
      return FormKey::kRight;
    case SDLK_SPACE:
      return FormKey::kSpace;
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
      return FormKey::kEnter;
    case SDLK_ESCAPE:
      return FormKey::kEscape;
    default:
      return std::nullopt;
  }
}

std::optional<FunctionKey> FunctionKeyOf(const SDL_Keysym& key) {
  switch (key.sym) {
    case SDLK_F2:
      return FunctionKey::kF2;
    case SDLK_F12:
      return FunctionKey::kF12;
    default:
      return std::nullopt;
  }
}

int ButtonNumber(int button) {
  switch (button) {
    case SDL_BUTTON_LEFT:
      return 1;
    case SDL_BUTTON_RIGHT:
      return 2;
    case SDL_BUTTON_MIDDLE:
      return 4;
    default:
      return 0;
  }
}

int ButtonBits(unsigned state) {
  int bits = 0;
  for (int button : {SDL_BUTTON_LEFT, SDL_BUTTON_RIGHT, SDL_BUTTON_MIDDLE}) {
    if ((state & static_cast<unsigned>(SDL_BUTTON(button))) != 0) bits |= ButtonNumber(button);
  }
  return bits;
}

int ShiftBits() {
  SDL_Keymod mod = SDL_GetModState();
  return ((mod & KMOD_SHIFT) != 0 ? 1 : 0) | ((mod & KMOD_CTRL) != 0 ? 2 : 0) |
         ((mod & KMOD_ALT) != 0 ? 4 : 0);
}

void SendToForm(const SDL_Event& event, FormInput& input, const FormPlace& place) {
  switch (event.type) {
    case SDL_MOUSEMOTION:
      input.Move(place.ToForm(event.motion.x, event.motion.y));
      break;
    case SDL_MOUSEBUTTONDOWN:
      if (event.button.button == SDL_BUTTON_LEFT) {
        input.Down(place.ToForm(event.button.x, event.button.y));
      }
      break;
    case SDL_MOUSEBUTTONUP:
      if (event.button.button == SDL_BUTTON_LEFT) {
        input.Up(place.ToForm(event.button.x, event.button.y));
      }
      break;
    case SDL_KEYDOWN:
      if (auto key = FormKeyOf(event.key.keysym)) {
        input.Key(*key);
      } else if (event.key.keysym.sym == SDLK_BACKSPACE) {
        input.Erase();
      }
      break;
    case SDL_TEXTINPUT:
      input.Type(event.text.text);
      break;
    case SDL_DROPFILE:
      input.Drop(event.drop.file);
      break;
    case SDL_MOUSEWHEEL:
      input.Wheel(event.wheel.x, -event.wheel.y);
      break;
    case SDL_WINDOWEVENT:
      if (event.window.event == SDL_WINDOWEVENT_LEAVE) input.Leave();
      if (event.window.event == SDL_WINDOWEVENT_CLOSE) input.Close();
      break;
    default:
      break;
  }
}

}  // namespace quendle
