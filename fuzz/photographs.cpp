// The pictures that families bring: any bytes at all.

#include "Fuzz.h"
#include "backends/codecs/PictureDecoder.h"

using namespace quendle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const DecodedPicture decoded = DecodePicture(BytesOf(data, size));
  const Picture& picture = decoded.picture;
  if (!decoded.problem.empty()) return 0;
  const std::int64_t points = std::int64_t{picture.size.width} * picture.size.height;
  Require(points > 0 && points <= kMostPicturePoints, "a photograph has a size within its bounds");
  Require(picture.words.size() == static_cast<std::size_t>(points), "a photograph is whole");
  return 0;
}
