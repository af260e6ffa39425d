#include "toolbelt/PngFile.h"

#include <png.h>

#include <vector>

namespace quendle {
namespace {

constexpr unsigned kLargestSide = 4096;

// The library's picture record, freed however the work ends.
class PngImage {
 public:
  PngImage() { image_.version = PNG_IMAGE_VERSION; }
  ~PngImage() { png_image_free(&image_); }
  PngImage(const PngImage&) = delete;
  PngImage& operator=(const PngImage&) = delete;

  png_image& Get() { return image_; }

  [[noreturn]] void Fail(const std::string& path) const {
    throw PictureError(path + ": " + image_.message);
  }

 private:
  png_image image_{};
};

}  // namespace

SheerPicture ReadPng(const std::string& path) {
  PngImage png;
  png_image& image = png.Get();
  if (png_image_begin_read_from_file(&image, path.c_str()) == 0) png.Fail(path);
  if (image.width > kLargestSide || image.height > kLargestSide) {
    throw PictureError(path + ": " + std::to_string(image.width) + " by " +
                       std::to_string(image.height) + " pixels; at most 4096 by 4096 can be used");
  }
  image.format = PNG_FORMAT_RGBA;
  std::vector<unsigned char> bytes(PNG_IMAGE_SIZE(image));
  if (png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr) == 0) png.Fail(path);
  SheerPicture picture{static_cast<int>(image.width), static_cast<int>(image.height), {}};
  picture.pixels.reserve(bytes.size() / 4);
  for (std::size_t i = 0; i < bytes.size(); i += 4) {
    picture.pixels.push_back(static_cast<std::uint32_t>(bytes[i + 3]) << 24 |
                             static_cast<std::uint32_t>(bytes[i]) << 16 |
                             static_cast<std::uint32_t>(bytes[i + 1]) << 8 | bytes[i + 2]);
  }
  return picture;
}

void WritePng(const std::string& path, int width, int height, const std::uint32_t* pixels) {
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  std::vector<unsigned char> bytes;
  bytes.reserve(count * 3);
  for (std::size_t i = 0; i < count; ++i) {
    bytes.push_back(static_cast<unsigned char>(pixels[i] >> 16));
    bytes.push_back(static_cast<unsigned char>(pixels[i] >> 8));
    bytes.push_back(static_cast<unsigned char>(pixels[i]));
  }
  PngImage png;
  png_image& image = png.Get();
  image.width = static_cast<png_uint_32>(width);
  image.height = static_cast<png_uint_32>(height);
  image.format = PNG_FORMAT_RGB;
  if (png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr) == 0) {
    png.Fail(path);
  }
}

}  // namespace quendle
