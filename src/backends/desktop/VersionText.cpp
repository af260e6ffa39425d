#include "backends/desktop/VersionText.h"

#include <SDL.h>
#include <SDL_ttf.h>

#include <memory>

#include "backends/codecs/SoundDecoder.h"
#include "backends/desktop/FontFinder.h"
#include "backends/desktop/FrameRenderer.h"
#include "backends/desktop/SdlLibrary.h"
#include "backends/sound/OpenAlDevice.h"
#include "base/FatalError.h"

namespace quendle {
namespace {

std::string NumberOf(const SDL_version& version) {
  return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
         std::to_string(version.patch);
}

std::string DrawingBackend() {
  SdlLibrary library;
  if (!library.HasVideo()) return "none: " + library.Problem();
  struct Destroy {
    void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
  };
  std::unique_ptr<SDL_Window, Destroy> window(
      SDL_CreateWindow("", 0, 0, 64, 64, SDL_WINDOW_HIDDEN));
  if (window == nullptr) return std::string("none: ") + SDL_GetError();
  try {
    FrameRenderer renderer(window.get());
    return renderer.Name() + " on " + SDL_GetCurrentVideoDriver();
  } catch (const FatalError& error) {
    return std::string("none: ") + error.what();
  }
}

std::string WriteFolder(const GameFolders& folders) {
  if (!folders.user.empty()) return folders.user;
  std::string own = folders.fallback.empty() ? "nowhere" : folders.fallback;
  return folders.content.empty() ? own : "the content, or if it can't be written " + own;
}

}  // namespace

std::string VersionText(const std::string& program, const std::string& build,
                        const GameFolders& folders) {
  SDL_version sdl;
  SDL_GetVersion(&sdl);
  FontFinder fonts(FontFinder::SystemFolders());
  std::string text = program + " " + build + "\n";
  text += "libraries: SDL " + NumberOf(sdl) + ", SDL_ttf " + NumberOf(*TTF_Linked_Version()) +
          ", " + OpenAlDevice::Library() + ", " + SoundDecoder::Library() + "\n";
  text += "drawing:   " + DrawingBackend() + "\n";
  text += "font:      " + (fonts.Regular().empty() ? "none" : fonts.Regular().string()) + "\n";
  if (!folders.content.empty()) {
    text += "content:   " + folders.content + "\n";
  } else {
    text += "content:   not found in\n";
    for (const std::string& folder : folders.searched) text += "             " + folder + "\n";
  }
  return text + "writes to: " + WriteFolder(folders) + "\n";
}

}  // namespace quendle
