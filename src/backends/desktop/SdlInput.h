// The media library's events in the game's terms.
#pragma once

#include <optional>

#include "backends/forms/FormInput.h"
#include "backends/forms/FrameLayer.h"
#include "platform/Form.h"
#include "platform/Geometry.h"

union SDL_Event;
struct SDL_Keysym;
struct SDL_Window;

namespace quendle {

// The key of a form; nothing for any other.
std::optional<FormKey> FormKeyOf(const SDL_Keysym& key);

// The key of the layers over the frame; nothing for any other.
std::optional<FunctionKey> FunctionKeyOf(const SDL_Keysym& key);

// Button numbers of the game: left 1, right 2, middle 4; other buttons 0.
int ButtonNumber(int button);
// The same bits for the buttons held down.
int ButtonBits(unsigned state);
// Shift 1, Ctrl 2, Alt 4.
int ShiftBits();

// Hands a key, text or pointer event to a form. `to_form` gives the form's pixel for a window
// position, as SIZE times scale behind an origin.
struct FormPlace {
  double left = 0;
  double top = 0;
  double scale = 1;  // window units a form pixel
  Point ToForm(int x, int y) const;
};
void SendToForm(const SDL_Event& event, FormInput& input, const FormPlace& place);

// Gives a window the game's own icon.
void SetIcon(SDL_Window* window);

}  // namespace quendle
