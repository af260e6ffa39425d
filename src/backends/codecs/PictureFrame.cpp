#include "backends/codecs/PictureFrame.h"

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

#include "backends/codecs/PictureShrinker.h"

namespace quendle {
namespace {

constexpr int kMostComponents = 4;

// One row of each component, as 8-bit values.
struct FrameRow {
  std::array<std::vector<std::uint16_t>, kMostComponents> components;
};

// What of a pixel format this file needs, worked out once a frame.
class FrameReader {
 public:
  FrameReader(const AVFrame& frame, const AVPixFmtDescriptor& format)
      : frame_(frame),
        format_(format),
        count_(format.nb_components),
        palette_((format.flags & AV_PIX_FMT_FLAG_PAL) != 0),
        colors_are_rgb_((format.flags & AV_PIX_FMT_FLAG_RGB) != 0),
        has_alpha_((format.flags & AV_PIX_FMT_FLAG_ALPHA) != 0),
        limited_range_(frame.color_range == AVCOL_RANGE_MPEG) {
    for (auto& component : row_.components) component.resize(Columns());
    // A frame has room for more planes than any picture has.
    std::copy_n(frame.data, planes_.size(), planes_.begin());
    std::copy_n(frame.linesize, strides_.size(), strides_.begin());
  }

  void ReadRow(int y) {
    for (int c = 0; c < count_; ++c) {
      std::vector<std::uint16_t>& values = row_.components[static_cast<std::size_t>(c)];
      av_read_image_line(values.data(), planes_.data(), strides_.data(), &format_, 0,
                         y >> RowShift(c), c, ComponentWidth(c), 0);
      const int depth = format_.comp[c].depth;
      const int most = (1 << depth) - 1;
      if (depth == 8 || palette_) continue;
      for (std::uint16_t& value : values) {
        value = static_cast<std::uint16_t>((value * 255 + most / 2) / most);
      }
    }
  }

  std::uint32_t Word(int x) const {
    if (palette_) return PaletteWord(Value(0, x));
    int red = Value(0, x);
    int green = red;
    int blue = red;
    if (colors_are_rgb_) {
      green = Value(1, x);
      blue = Value(2, x);
    } else if (count_ >= 3) {
      const int luma = limited_range_ ? ((red - 16) * 255 + 109) / 219 : red;
      const int cb = Value(1, x) - 128;
      const int cr = Value(2, x) - 128;
      // The colours of JPEG files, in parts of 65536.
      red = luma + ((91881 * cr + 32768) >> 16);
      green = luma + ((-22554 * cb - 46802 * cr + 32768) >> 16);
      blue = luma + ((116130 * cb + 32768) >> 16);
    }
    const int alpha = has_alpha_ ? Value(count_ - 1, x) : 255;
    return Blend(red, alpha) << 16 | Blend(green, alpha) << 8 | Blend(blue, alpha);
  }

 private:
  std::size_t Columns() const { return static_cast<std::size_t>(frame_.width); }
  // Only the two colour planes between brightness and transparency are coarser.
  bool IsCoarse(int component) const {
    return !colors_are_rgb_ && (component == 1 || component == 2) && count_ >= 3;
  }
  int RowShift(int component) const { return IsCoarse(component) ? format_.log2_chroma_h : 0; }
  int ColumnShift(int component) const { return IsCoarse(component) ? format_.log2_chroma_w : 0; }
  int ComponentWidth(int component) const { return -((-frame_.width) >> ColumnShift(component)); }
  int Value(int component, int x) const {
    return row_.components[static_cast<std::size_t>(component)]
                          [static_cast<std::size_t>(x >> ColumnShift(component))];
  }
  // A palette is the frame's second plane: words of alpha, red, green and blue, alpha highest.
  std::uint32_t PaletteWord(int index) const {
    std::uint32_t entry = 0;
    std::memcpy(&entry, planes_[1] + index * sizeof(entry), sizeof(entry));
    const auto channel = [entry](int shift) { return static_cast<int>(entry >> shift & 255); };
    const int alpha = channel(24);
    return Blend(channel(16), alpha) << 16 | Blend(channel(8), alpha) << 8 |
           Blend(channel(0), alpha);
  }
  static std::uint32_t Blend(int value, int alpha) {
    const int whole = std::clamp(value, 0, 255);
    return static_cast<std::uint32_t>((whole * alpha + 255 * (255 - alpha) + 127) / 255);
  }

  const AVFrame& frame_;
  const AVPixFmtDescriptor& format_;
  int count_;
  bool palette_;
  bool colors_are_rgb_;
  bool has_alpha_;
  bool limited_range_;
  FrameRow row_;
  std::array<const std::uint8_t*, 4> planes_{};
  std::array<int, 4> strides_{};
};

bool IsReadable(const AVPixFmtDescriptor& format) {
  constexpr std::uint64_t kOtherKinds =
      AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_BAYER | AV_PIX_FMT_FLAG_FLOAT;
  return (format.flags & kOtherKinds) == 0 && format.nb_components >= 1 &&
         format.nb_components <= kMostComponents;
}

}  // namespace

Picture PictureOfFrame(const AVFrame& frame, PictureLimit limit) {
  const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
  if (format == nullptr || !IsReadable(*format)) return {};
  PictureShrinker shrinker({frame.width, frame.height}, limit);
  FrameReader reader(frame, *format);
  std::vector<std::uint32_t> row(static_cast<std::size_t>(frame.width));
  for (int y = 0; y < frame.height; ++y) {
    reader.ReadRow(y);
    for (int x = 0; x < frame.width; ++x) row[static_cast<std::size_t>(x)] = reader.Word(x);
    shrinker.AddRow(row);
  }
  return shrinker.Take();
}

Picture Upright(Picture picture, int orientation) {
  if (orientation < 2 || orientation > 8) return picture;
  const auto [width, height] = picture.size;
  const bool lying = orientation >= 5;
  Picture upright{lying ? Size{height, width} : picture.size, {}};
  upright.words.reserve(picture.words.size());
  // Where in the stored picture a point of the upright one is found.
  const bool from_right =
      orientation == 2 || orientation == 3 || orientation == 7 || orientation == 8;
  const bool from_below =
      orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
  for (int y = 0; y < upright.size.height; ++y) {
    for (int x = 0; x < upright.size.width; ++x) {
      const int column = lying ? y : x;
      const int row = lying ? x : y;
      upright.words.push_back(picture.At(from_right ? width - 1 - column : column,
                                         from_below ? height - 1 - row : row));
    }
  }
  return upright;
}

}  // namespace quendle
