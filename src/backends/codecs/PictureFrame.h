#pragma once

#include "platform/Picture.h"
#include "platform/PictureLoader.h"

struct AVFrame;

namespace quendle {

// The pixels of a decoded frame of any format with whole components, on white where it is
// transparent, shrunk to the limit; empty for a format of another kind.
Picture PictureOfFrame(const AVFrame& frame, PictureLimit limit);

// Turns and mirrors a picture so that it stands upright. `orientation` is the number by which
// cameras tell how they were held, 1 to 8; any other leaves it as it is.
Picture Upright(Picture picture, int orientation);

}  // namespace quendle
