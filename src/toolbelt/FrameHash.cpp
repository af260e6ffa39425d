#include "toolbelt/FrameHash.h"

namespace quendle {
namespace {

constexpr std::uint64_t kBasis = 0xCBF29CE484222325;
constexpr std::uint64_t kPrime = 0x100000001B3;
constexpr int kDigits = 16;

std::uint64_t Mix(std::uint64_t hash, std::uint32_t byte) {
  return (hash ^ (byte & 0xFF)) * kPrime;
}

}  // namespace

std::string HashOfFrame(int width, int height, const std::uint32_t* pixels) {
  std::uint64_t hash = kBasis;
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  for (std::size_t i = 0; i < count; ++i) {
    hash = Mix(Mix(Mix(hash, pixels[i] >> 16), pixels[i] >> 8), pixels[i]);
  }
  std::string digits;
  for (int shift = (kDigits - 1) * 4; shift >= 0; shift -= 4) {
    digits += "0123456789abcdef"[hash >> shift & 15];
  }
  return digits;
}

}  // namespace quendle
