#include "backends/codecs/PictureDecoderLoader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "backends/codecs/PictureDecoder.h"

namespace quendle {
namespace {

constexpr std::uintmax_t kLargestFile = 200'000'000;

std::optional<std::string> ReadWholeFile(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return std::nullopt;
  std::ifstream stream(path, std::ios::binary);
  std::string bytes(std::min(size, kLargestFile + 1), '\0');
  if (!stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
  return bytes;
}

}  // namespace

LoadedPicture PictureDecoderLoader::LoadPicture(const std::string& native_path,
                                                PictureLimit limit) {
  const std::optional<std::string> bytes = ReadWholeFile(native_path);
  if (!bytes) return {nullptr, "This file can't be opened. Please choose another one."};
  if (bytes->size() > kLargestFile) {
    return {nullptr, "This file is too large for a photograph. Please choose another one."};
  }
  try {
    DecodedPicture decoded = DecodePicture(*bytes, limit);
    if (!decoded.problem.empty()) return {nullptr, decoded.problem};
    return {std::make_shared<const Picture>(std::move(decoded.picture)), {}};
  } catch (const std::bad_alloc&) {
    return {nullptr,
            "There is not enough memory for this photograph. Please choose a smaller one."};
  }
}

}  // namespace quendle
