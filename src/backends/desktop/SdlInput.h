// The media library's events in the game's terms.
#pragma once

#include <optional>

#include "backends/forms/FormInput.h"
#include "backends/forms/FormPlace.h"
#include "backends/forms/FrameLayer.h"
#include "platform/Form.h"

union SDL_Event;
struct SDL_Keysym;

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

// Hands a key, text or pointer event to the form that stands at `place`.
void SendToForm(const SDL_Event& event, FormInput& input, const FormPlace& place);

}  // namespace quendle
