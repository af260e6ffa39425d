// Cuts a face out of a photograph.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/Gdi.h"

namespace quendle {

inline constexpr Size kFaceSize{32, 32};
// What isn't the child: the game leaves this colour out when it draws.
inline constexpr Color kPersonKey = PackColor(200, 200, 200);

// The smallest box with all points: left and top are the least, right and bottom the greatest
// coordinates. 0 by 0 without points.
Rect BoundingBox(const std::vector<Point>& points);

// Shrinks the top left `from` of `source` to the top left `to` of `target`, pixel by pixel.
void Resize(Gdi& gdi, ContextHandle target, ContextHandle source, Size from, Size to);

// The face's place on one axis, moved by a step: it has 16 bits and stops at their ends.
std::int16_t MovedFace(std::int16_t offset, int step);

// The box around the points (pixels of the photograph) shrunk to the face: inside the outline the
// photograph, outside the key colour. Fewer than three points outline nothing: the face is all key
// colour, and black when their box is empty.
Picture CutFace(Gdi& gdi, ContextHandle photograph, const std::vector<Point>& points);

}  // namespace quendle
