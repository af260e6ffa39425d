#include "backends/desktop/SdlLibrary.h"

#include <SDL.h>

namespace quendle {

SdlLibrary::SdlLibrary() {
  SDL_SetMainReady();
  // Closing a form's window is a matter of the form, not the end of the program.
  SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
  SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
  // The first press on a window that had no focus is meant for what lies under the pointer.
  SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
  // A touch arrives as mouse events once, not twice.
  SDL_SetHint(SDL_HINT_TOUCH_MOUSE_EVENTS, "1");
  has_video_ = SDL_Init(SDL_INIT_VIDEO) == 0;
}

SdlLibrary::~SdlLibrary() { SDL_Quit(); }

const char* SdlLibrary::Problem() const { return has_video_ ? "" : SDL_GetError(); }

}  // namespace quendle
