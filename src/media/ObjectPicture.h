#pragma once

#include <memory>
#include <optional>
#include <string>

#include "media/BitmapObject.h"
#include "media/MediaWorld.h"
#include "media/MemoryBitmap.h"
#include "media/PlacedFrame.h"
#include "platform/DirectDraw.h"
#include "platform/Gdi.h"

namespace quendle {

// The one picture of an object, in the form that the drawing path needs: a surface in the
// DirectDraw path, a memory context in the window path. Frames are rectangles of it.
class ObjectPicture {
 public:
  // `world` must outlive the picture. `drawing_surface` is the game window's context, with which
  // memory contexts are made compatible.
  ObjectPicture(MediaWorld& world, ContextHandle drawing_surface)
      : world_(world), drawing_surface_(drawing_surface) {}
  ~ObjectPicture() { Release(); }
  ObjectPicture(const ObjectPicture&) = delete;
  ObjectPicture& operator=(const ObjectPicture&) = delete;

  // Sets PictureName and loads the picture: a path relative to the base directory, a name of the
  // picture registry behind "globalpicture_", or "nothing". DirectDraw path: a picture that is
  // missing or damaged is fatal. Window path: it is logged and draws nothing.
  void LoadPicture(const std::string& name);

  // DirectDraw path: brings the picture onto its surface again. With `restore` the lost surface is
  // kept, else a new one is made. A failure starts over with a new surface, a few times, and is
  // fatal then. A surface made while starting over has no colour key.
  void LoadSurfacePicture(bool restore);

  // Frees the surface, the context and the bitmap. Never fails.
  void Release();

  const std::string& PictureName() const { return name_; }
  // True unless the name is empty or "nothing".
  bool HasName() const;
  // True if a point can be on the picture: a surface, or in the window path a context.
  bool Exists() const;

  ContextHandle DrawingSurface() const { return drawing_surface_; }
  // The memory context with the picture selected; 0 in the DirectDraw path.
  ContextHandle PictureHandle() const { return loaded_ ? loaded_->Context() : 0; }
  // The loaded bitmap; 0 in the DirectDraw path.
  BitmapHandle picture() const { return loaded_ ? loaded_->Bitmap() : 0; }
  const SurfaceRef& DirectDrawingSurface() const { return surface_; }

  // The pixel that hit tests see: kInvalidColor in the DirectDraw path and outside the picture.
  Color PixelAt(int x, int y) const;

  // A copy of a rectangle of the picture. Reads PictureHandle: empty pixels in the DirectDraw path.
  std::unique_ptr<BitmapObject> CopyRectangle(int x, int y, int width, int height) const;

  // Draws one frame of the picture into a context, without the key colour. False when nothing
  // could be drawn.
  bool DrawFrameWindow(ContextHandle destination, const PlacedFrame& frame) const;

  // Draws one frame of the picture onto a surface, cut at the edges of the frame, without the key
  // colour. A lost surface is loaded again and reported; the frame is not drawn then.
  DrawStatus DrawFrameDirectX(Surface& destination, const PlacedFrame& frame);

 private:
  std::string FullPath() const;
  void LoadContextPicture();
  bool TryLoadSurface(bool restore);
  bool CopyBitmapToSurface(Size size);
  void RestoreLostSurface();

  MediaWorld& world_;
  ContextHandle drawing_surface_;
  std::string name_;
  std::optional<MemoryBitmap> loaded_;
  SurfaceRef surface_;
  bool owns_surface_ = false;  // false for a surface of the picture registry
};

}  // namespace quendle
