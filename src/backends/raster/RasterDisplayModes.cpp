#include "backends/raster/RasterDisplayModes.h"

#include "platform/Geometry.h"

namespace quendle {
namespace {

constexpr long kDone = 0;
constexpr long kBadMode = -2;

bool CanBeHad(int width, int height, int depth) {
  return width == kFrameWidth && height == kFrameHeight && (depth == 16 || depth == 32);
}

}  // namespace

long RasterDisplayModes::Test(int width, int height, int depth) {
  if (faults_.Fails("TestMode")) return kBadMode;
  return CanBeHad(width, height, depth) ? kDone : kBadMode;
}

long RasterDisplayModes::Set(int width, int height, int depth) {
  if (faults_.Fails("SetMode") || !CanBeHad(width, height, depth)) return kBadMode;
  depth_ = depth;
  return kDone;
}

}  // namespace quendle
