#include "toolbelt/Utf8.h"

#include <map>

#include "base/Text.h"

namespace quendle {
namespace {

constexpr int kFirstForeign = 0x80;

// Length of the character that begins with this byte; 0 for a byte that begins none.
std::size_t LengthOf(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return 0;
}

std::map<std::string, char, std::less<>> ForeignCharacters() {
  std::map<std::string, char, std::less<>> characters;
  for (int code = kFirstForeign; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    characters.emplace(ToUtf8({&byte, 1}), byte);
  }
  return characters;
}

}  // namespace

std::optional<std::string> FromUtf8(std::string_view utf8) {
  std::map<std::string, char, std::less<>> foreign;
  std::string text;
  for (std::size_t at = 0; at < utf8.size();) {
    const std::size_t length = LengthOf(static_cast<unsigned char>(utf8[at]));
    if (length == 0) return std::nullopt;
    if (length == 1) {
      text += utf8[at];
    } else {
      if (foreign.empty()) foreign = ForeignCharacters();
      const auto found = foreign.find(utf8.substr(at, length));
      if (found == foreign.end()) return std::nullopt;
      text += found->second;
    }
    at += length;
  }
  return text;
}

}  // namespace quendle
