#include "personalize/FaceCut.h"

#include <algorithm>
#include <limits>

#include "media/MemoryBitmap.h"
#include "personalize/FaceFilter.h"

namespace quendle {
namespace {

constexpr Point kOrigin{0, 0};
constexpr Color kBlack = PackColor(0, 0, 0);
constexpr Color kWhite = PackColor(255, 255, 255);

// A region for the time of the cut.
class ScratchRegion {
 public:
  ScratchRegion(Gdi& gdi, RegionHandle region) : gdi_(gdi), region_(region) {}
  ~ScratchRegion() { gdi_.DeleteRegion(region_); }
  ScratchRegion(const ScratchRegion&) = delete;
  ScratchRegion& operator=(const ScratchRegion&) = delete;
  RegionHandle Handle() const { return region_; }

 private:
  Gdi& gdi_;
  RegionHandle region_;
};

}  // namespace

Rect BoundingBox(const std::vector<Point>& points) {
  if (points.empty()) return {};
  Rect box{points[0].x, points[0].y, points[0].x, points[0].y};
  for (const Point& point : points) {
    box = {std::min(box.left, point.x), std::min(box.top, point.y), std::max(box.right, point.x),
           std::max(box.bottom, point.y)};
  }
  return box;
}

std::int16_t MovedFace(std::int16_t offset, int step) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(std::clamp<int>(offset + step, Limits::min(), Limits::max()));
}

void Resize(Gdi& gdi, ContextHandle target, ContextHandle source, Size from, Size to) {
  const auto read = [&](Point at) { return gdi.GetPixel(source, at); };
  for (int i = 0; i < to.width; ++i) {
    for (int j = 0; j < to.height; ++j) {
      gdi.SetPixel(target, {i, j}, face::ResizedPixel(read, from, to, {i, j}));
    }
  }
}

Picture CutFace(Gdi& gdi, ContextHandle photograph, const std::vector<Point>& points) {
  const Rect box = BoundingBox(points);
  const Size size{box.Width(), box.Height()};
  // First a mask, in the end the face on grey.
  const MemoryBitmap work(gdi, size);
  // Grey with a black hole in the shape of the face.
  const MemoryBitmap frame(gdi, size);
  const ScratchRegion whole(gdi, gdi.CreateRectRgn({0, 0, size.width, size.height}));
  gdi.FillRgn(work.Context(), whole.Handle(), kBlack);
  gdi.FillRgn(frame.Context(), whole.Handle(), kPersonKey);
  std::vector<Point> corners = points;
  for (Point& corner : corners) corner = {corner.x - box.left, corner.y - box.top};
  const ScratchRegion outline(gdi, gdi.CreatePolygonRgn(corners));
  gdi.FillRgn(work.Context(), outline.Handle(), kWhite);
  gdi.FillRgn(frame.Context(), outline.Handle(), kBlack);
  gdi.BitBlt(work.Context(), kOrigin, size, photograph, {box.left, box.top}, RasterOp::kAnd);
  gdi.BitBlt(work.Context(), kOrigin, size, frame.Context(), kOrigin, RasterOp::kPaint);
  const MemoryBitmap result(gdi, kFaceSize);
  Resize(gdi, result.Context(), work.Context(), size, kFaceSize);
  return result.Read();
}

}  // namespace quendle
