#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "backends/forms/Canvas.h"
#include "backends/forms/FrameLayer.h"
#include "backends/forms/FrameScaling.h"

struct SDL_Renderer;
struct SDL_Texture;
struct SDL_Window;

namespace quendle {

// Draws the frame, scaled, and what lies over it into a window.
class FrameRenderer {
 public:
  // With the graphics device where there is a real one, else in software. Without either:
  // FatalError.
  explicit FrameRenderer(SDL_Window* window);
  ~FrameRenderer();
  FrameRenderer(const FrameRenderer&) = delete;
  FrameRenderer& operator=(const FrameRenderer&) = delete;

  // Takes a new frame: 800 * 600 words 0x00RRGGBB.
  void Upload(const std::uint32_t* frame);
  // A picture that stands centred over the frame, unscaled; nothing removes it.
  void SetOverlay(const Canvas* picture);
  // What lies over the frame and below that picture, a slot for each layer.
  void SetLayer(std::size_t slot, const LayerContents& contents);
  // Draws everything and shows it.
  void Draw(ScaleMode mode);
  // The device lost its pictures: they are made again. The caller uploads the frame anew, and sets
  // the layers and the overlay.
  void MakePicturesAnew();
  Size OutputSize() const;
  // The drawing backend, such as "opengl" or "software".
  std::string Name() const;

 private:
  struct DestroyRenderer {
    void operator()(SDL_Renderer* renderer) const;
  };
  struct DestroyTexture {
    void operator()(SDL_Texture* texture) const;
  };
  using Texture = std::unique_ptr<SDL_Texture, DestroyTexture>;

  struct Layer {
    struct Laid {
      Texture texture;
      Rect place;
    };
    std::vector<Laid> pictures;
    std::vector<LayerOutline> outlines;
  };

  void DrawFrame(ScaleMode mode);
  void DrawLayer(const Layer& layer);
  SDL_Texture* Enlarged(int factor);

  std::unique_ptr<SDL_Renderer, DestroyRenderer> renderer_;
  Texture frame_;
  Texture enlarged_;
  int enlarged_factor_ = 0;
  bool enlarged_is_new_ = false;
  std::vector<Layer> layers_;
  Texture overlay_;
  Size overlay_size_;
};

}  // namespace quendle
