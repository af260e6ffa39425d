#pragma once

#include "backends/forms/Canvas.h"

struct SDL_Window;

namespace quendle {

// Shows the picture in the window, from its left top corner on; the library's graphics device takes
// no part in it.
void ShowInWindow(SDL_Window* window, const Canvas& picture);

// Gives a window the game's own icon.
void SetIcon(SDL_Window* window);

}  // namespace quendle
