#include "backends/desktop/SdlLibrary.h"

#include <SDL.h>

#include <string_view>

namespace quendle {
namespace {

// Without a display the library falls back to drivers that nobody can see. They serve whoever asks
// for one by name; a player would only see a program that hangs.
bool IsSeen(std::string_view driver) {
  bool unseen = driver == "offscreen" || driver == "dummy" || driver == "evdev";
  return !unseen || SDL_getenv("SDL_VIDEODRIVER") != nullptr;
}

}  // namespace

SdlLibrary::SdlLibrary() {
  SDL_SetMainReady();
  // Closing a form's window is a matter of the form, not the end of the program.
  SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
  SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
  // The first press on a window that had no focus is meant for what lies under the pointer.
  SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
  // Forms and the software path put their pixels on the screen themselves: going through the
  // graphics device would load its whole driver for nothing.
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  // A touch arrives as mouse events once, not twice.
  SDL_SetHint(SDL_HINT_TOUCH_MOUSE_EVENTS, "1");
  if (SDL_Init(SDL_INIT_VIDEO) != 0) {
    problem_ = SDL_GetError();
  } else if (!IsSeen(SDL_GetCurrentVideoDriver())) {
    problem_ = "neither X11 nor Wayland answers";
  }
  // Files may be dropped where a form asks for one, text nowhere.
  SDL_EventState(SDL_DROPTEXT, SDL_DISABLE);
  SDL_EventState(SDL_DROPFILE, SDL_DISABLE);
}

SdlLibrary::~SdlLibrary() { SDL_Quit(); }

}  // namespace quendle
