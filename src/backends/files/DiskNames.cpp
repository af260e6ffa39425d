#include "backends/files/DiskNames.h"

#include <map>

#include "base/Text.h"

namespace quendle {
namespace {

// UTF-8 sequences of the 128 upper characters.
std::map<std::string, char, std::less<>> UpperCharacters() {
  std::map<std::string, char, std::less<>> characters;
  for (int code = 0x80; code < 0x100; ++code) {
    char c = static_cast<char>(code);
    characters.emplace(ToUtf8(std::string_view(&c, 1)), c);
  }
  return characters;
}

bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

}  // namespace

std::string ContentName(std::string_view disk_name) {
  bool plain = true;
  for (char c : disk_name) plain = plain && IsAscii(c);
  if (plain) return std::string(disk_name);
  const auto upper = UpperCharacters();
  std::string name;
  for (std::size_t i = 0; i < disk_name.size();) {
    if (IsAscii(disk_name[i])) {
      name += disk_name[i++];
      continue;
    }
    auto found = upper.find(disk_name.substr(i, 2));
    if (found == upper.end()) found = upper.find(disk_name.substr(i, 3));
    if (found == upper.end()) return std::string(disk_name);
    name += found->second;
    i += found->first.size();
  }
  return name;
}

}  // namespace quendle
