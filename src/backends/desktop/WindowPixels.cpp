#include "backends/desktop/WindowPixels.h"

#include <SDL.h>

#include <memory>

#include "backends/forms/IconArt.h"

namespace quendle {
namespace {

struct FreeSurface {
  void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};

// A surface over the canvas's own pixels, null when there is no memory for it.
std::unique_ptr<SDL_Surface, FreeSurface> SurfaceOver(std::vector<std::uint32_t>& pixels, Size size,
                                                      Uint32 format) {
  return std::unique_ptr<SDL_Surface, FreeSurface>(SDL_CreateRGBSurfaceWithFormatFrom(
      pixels.data(), size.width, size.height, 32, size.width * 4, format));
}

}  // namespace

void ShowInWindow(SDL_Window* window, const Canvas& picture) {
  SDL_Surface* seen = SDL_GetWindowSurface(window);
  if (seen == nullptr) return;
  std::vector<std::uint32_t> pixels = picture.Pixels();
  const auto surface = SurfaceOver(pixels, picture.PixelSize(), SDL_PIXELFORMAT_RGB888);
  if (surface == nullptr) return;
  SDL_BlitSurface(surface.get(), nullptr, seen, nullptr);
  SDL_UpdateWindowSurface(window);
}

void SetIcon(SDL_Window* window) {
  const Canvas picture = GameIcon();
  std::vector<std::uint32_t> pixels = picture.Pixels();
  const auto icon = SurfaceOver(pixels, picture.PixelSize(), SDL_PIXELFORMAT_ARGB8888);
  if (icon != nullptr) SDL_SetWindowIcon(window, icon.get());
}

}  // namespace quendle
