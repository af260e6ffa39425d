#include "backends/desktop/FrameRenderer.h"

#include <SDL.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/FatalError.h"

namespace quendle {
namespace {

// A graphics device that the processor plays costs four times the time and three times the memory
// of drawing in software straight away.
bool IsEmulated(SDL_Renderer* renderer) {
  SDL_RendererInfo info;
  if (SDL_GetRendererInfo(renderer, &info) != 0) return false;
  if (!std::string_view(info.name).starts_with("opengl")) return false;
  using GetString = const unsigned char* (*)(unsigned);
  auto get_string = reinterpret_cast<GetString>(SDL_GL_GetProcAddress("glGetString"));
  constexpr unsigned kRendererName = 0x1F01;
  const unsigned char* bytes = get_string == nullptr ? nullptr : get_string(kRendererName);
  if (bytes == nullptr) return false;
  std::string_view name(reinterpret_cast<const char*>(bytes));
  return name.find("llvmpipe") != name.npos || name.find("softpipe") != name.npos ||
         name.find("Software Rasterizer") != name.npos;
}

// True where the system shows a graphics device; without one even asking the driver would load an
// emulation of 60 MB.
bool DeviceIsThere() {
  std::error_code error;
  return std::filesystem::exists("/dev/dri", error) ||
         std::filesystem::exists("/dev/nvidiactl", error) ||
         std::filesystem::exists("/dev/dxg", error);
}

// Asked of a window nobody sees, so that the game's own never carries a driver it doesn't need.
bool DeviceServes() {
  if (SDL_getenv("SDL_RENDER_DRIVER") != nullptr) return true;
  if (!DeviceIsThere()) return false;
  SDL_Window* window = SDL_CreateWindow("", 0, 0, 16, 16, SDL_WINDOW_HIDDEN);
  if (window == nullptr) return false;
  SDL_Renderer* renderer = SDL_CreateRenderer(window, -1, SDL_RENDERER_ACCELERATED);
  bool serves = renderer != nullptr && !IsEmulated(renderer);
  if (renderer != nullptr) SDL_DestroyRenderer(renderer);
  SDL_DestroyWindow(window);
  return serves;
}

SDL_Rect ToSdl(const Rect& rect) { return {rect.left, rect.top, rect.Width(), rect.Height()}; }

}  // namespace

void FrameRenderer::DestroyRenderer::operator()(SDL_Renderer* renderer) const {
  SDL_DestroyRenderer(renderer);
}

void FrameRenderer::DestroyTexture::operator()(SDL_Texture* texture) const {
  SDL_DestroyTexture(texture);
}

FrameRenderer::FrameRenderer(SDL_Window* window) {
  if (DeviceServes()) {
    // Without waiting for the display's beat: a hidden window would keep the timers waiting.
    renderer_.reset(SDL_CreateRenderer(window, -1, SDL_RENDERER_ACCELERATED));
  }
  if (renderer_ == nullptr) {
    renderer_.reset(SDL_CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE));
  }
  if (renderer_ == nullptr) {
    throw FatalError(std::string("nothing can be drawn in the window: ") + SDL_GetError());
  }
  MakePicturesAnew();
}

// Pictures go before the renderer that they belong to.
FrameRenderer::~FrameRenderer() {
  layers_.clear();
  overlay_.reset();
  enlarged_.reset();
  frame_.reset();
}

void FrameRenderer::MakePicturesAnew() {
  layers_.clear();
  overlay_.reset();
  enlarged_.reset();
  enlarged_factor_ = 0;
  frame_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_RGB888,
                                 SDL_TEXTUREACCESS_STREAMING, kFrameWidth, kFrameHeight));
  if (frame_ == nullptr) {
    throw FatalError(std::string("the frame has no room in graphics memory: ") + SDL_GetError());
  }
}

void FrameRenderer::Upload(const std::uint32_t* frame) {
  SDL_UpdateTexture(frame_.get(), nullptr, frame, kFrameWidth * 4);
  enlarged_is_new_ = false;
}

void FrameRenderer::SetOverlay(const Canvas* picture) {
  overlay_.reset();
  if (picture == nullptr) return;
  overlay_size_ = picture->PixelSize();
  overlay_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_RGB888,
                                   SDL_TEXTUREACCESS_STATIC, overlay_size_.width,
                                   overlay_size_.height));
  if (overlay_ == nullptr) return;
  SDL_UpdateTexture(overlay_.get(), nullptr, picture->Pixels().data(), overlay_size_.width * 4);
}

void FrameRenderer::SetLayer(std::size_t slot, const LayerContents& contents) {
  if (layers_.size() <= slot) layers_.resize(slot + 1);
  Layer& layer = layers_[slot];
  layer.pictures.clear();
  for (const LayerPicture& picture : contents.pictures) {
    const Size size = picture.canvas.PixelSize();
    Texture texture(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_RGB888,
                                      SDL_TEXTUREACCESS_STATIC, size.width, size.height));
    if (texture == nullptr) continue;
    SDL_UpdateTexture(texture.get(), nullptr, picture.canvas.Pixels().data(), size.width * 4);
    if (picture.opacity < 255) {
      SDL_SetTextureBlendMode(texture.get(), SDL_BLENDMODE_BLEND);
      SDL_SetTextureAlphaMod(texture.get(), static_cast<Uint8>(picture.opacity));
    }
    layer.pictures.push_back(
        {std::move(texture),
         {picture.at.x, picture.at.y, picture.at.x + size.width, picture.at.y + size.height}});
  }
  layer.outlines = contents.outlines;
}

void FrameRenderer::DrawLayer(const Layer& layer) {
  for (const LayerOutline& outline : layer.outlines) {
    const Rgba& color = outline.color;
    SDL_SetRenderDrawColor(renderer_.get(), color.r, color.g, color.b, 255);
    for (int inset = 0; inset < outline.width; ++inset) {
      SDL_Rect line = ToSdl(outline.area);
      line = {line.x + inset, line.y + inset, line.w - 2 * inset, line.h - 2 * inset};
      if (line.w > 0 && line.h > 0) SDL_RenderDrawRect(renderer_.get(), &line);
    }
  }
  for (const Layer::Laid& picture : layer.pictures) {
    const SDL_Rect place = ToSdl(picture.place);
    SDL_RenderCopy(renderer_.get(), picture.texture.get(), nullptr, &place);
  }
}

void FrameRenderer::Draw(ScaleMode mode) {
  SDL_SetRenderDrawColor(renderer_.get(), 0, 0, 0, 255);
  SDL_RenderClear(renderer_.get());
  DrawFrame(mode);
  for (const Layer& layer : layers_) DrawLayer(layer);
  if (overlay_ != nullptr) {
    Size output = OutputSize();
    SDL_SetRenderDrawBlendMode(renderer_.get(), SDL_BLENDMODE_BLEND);
    SDL_SetRenderDrawColor(renderer_.get(), 50, 30, 15, 110);
    SDL_RenderFillRect(renderer_.get(), nullptr);
    SDL_Rect place{(output.width - overlay_size_.width) / 2,
                   (output.height - overlay_size_.height) / 2, overlay_size_.width,
                   overlay_size_.height};
    SDL_RenderCopy(renderer_.get(), overlay_.get(), nullptr, &place);
  }
  SDL_RenderPresent(renderer_.get());
}

void FrameRenderer::DrawFrame(ScaleMode mode) {
  Rect area = FrameArea(OutputSize(), mode);
  SDL_Rect place = ToSdl(area);
  bool exact = area.Width() % kFrameWidth == 0 && area.Height() % kFrameHeight == 0 &&
               area.Width() / kFrameWidth == area.Height() / kFrameHeight;
  SDL_Texture* source = frame_.get();
  if (mode == ScaleMode::kSharp && !exact && SharpFactor(area) > 1) {
    if (SDL_Texture* enlarged = Enlarged(SharpFactor(area))) source = enlarged;
  } else {
    // Eight megabytes and more that a window of the frame's own size has no use for.
    enlarged_.reset();
    enlarged_factor_ = 0;
  }
  SDL_SetTextureScaleMode(source, exact ? SDL_ScaleModeNearest : SDL_ScaleModeLinear);
  SDL_RenderCopy(renderer_.get(), source, nullptr, &place);
}

// The frame enlarged in whole steps; null when the device can't hold it.
SDL_Texture* FrameRenderer::Enlarged(int factor) {
  if (enlarged_factor_ != factor) {
    enlarged_factor_ = factor;
    enlarged_is_new_ = false;
    enlarged_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_RGB888,
                                      SDL_TEXTUREACCESS_TARGET, kFrameWidth * factor,
                                      kFrameHeight * factor));
  }
  if (enlarged_ == nullptr) return nullptr;
  if (!enlarged_is_new_) {
    if (SDL_SetRenderTarget(renderer_.get(), enlarged_.get()) != 0) return nullptr;
    SDL_SetTextureScaleMode(frame_.get(), SDL_ScaleModeNearest);
    SDL_RenderCopy(renderer_.get(), frame_.get(), nullptr, nullptr);
    SDL_SetRenderTarget(renderer_.get(), nullptr);
    enlarged_is_new_ = true;
  }
  return enlarged_.get();
}

Size FrameRenderer::OutputSize() const {
  Size size;
  SDL_GetRendererOutputSize(renderer_.get(), &size.width, &size.height);
  return size;
}

std::string FrameRenderer::Name() const {
  SDL_RendererInfo info;
  return SDL_GetRendererInfo(renderer_.get(), &info) == 0 ? info.name : "none";
}

}  // namespace quendle
