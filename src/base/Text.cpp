#include "base/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/SF_Strings.h"

namespace quendle {
namespace {

constexpr std::array<unsigned char, 256> MakeFoldTable() {
  std::array<unsigned char, 256> table{};
  for (int i = 0; i < 256; ++i) table[i] = static_cast<unsigned char>(i);
  for (int i = 'A'; i <= 'Z'; ++i) table[i] = static_cast<unsigned char>(i + 32);
  for (int i = 0xC0; i <= 0xDE; ++i) {
    if (i != 0xD7) table[i] = static_cast<unsigned char>(i + 32);
  }
  table[0x8A] = 0x9A;
  table[0x8C] = 0x9C;
  table[0x8E] = 0x9E;
  table[0x9F] = 0xFF;
  return table;
}

constexpr std::array<unsigned char, 256> kFold = MakeFoldTable();

// Unicode code points of the characters 0x80 to 0x9F; the unused ones stand for themselves.
constexpr std::array<unsigned, 32> kHighControls = {
    0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
    0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

constexpr char32_t kNoCharacter = 0xFFFFFFFF;

// A character of UTF-8, or kNoCharacter, and how many bytes it takes.
struct Utf8Character {
  char32_t code = kNoCharacter;
  std::size_t size = 1;
};

std::size_t SizeBehindLead(unsigned char lead) {
  if (lead < 0xC2 || lead > 0xF4) return 1;
  return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// The character at the front of a text that isn't empty. One of four bytes has no place in 8-bit
// text, whichever it is.
Utf8Character FrontOf(std::string_view utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  if (lead < 0x80) return {lead, 1};
  const std::size_t size = SizeBehindLead(lead);
  char32_t code = lead & (0x7FU >> size);
  for (std::size_t i = 1; i < size; ++i) {
    const unsigned char next = i < utf8.size() ? static_cast<unsigned char>(utf8[i]) : 0;
    if ((next & 0xC0) != 0x80) return {kNoCharacter, i};
    code = code << 6 | (next & 0x3FU);
  }
  const bool known = size == 2 || (size == 3 && code >= 0x800);
  return {known ? code : kNoCharacter, size};
}

std::optional<char> ByteOf(char32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
  const auto found = std::find(kHighControls.begin(), kHighControls.end(), code);
  if (found == kHighControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - kHighControls.begin()));
}

unsigned char Fold(char c) { return kFold[static_cast<unsigned char>(c)]; }

bool SameFolded(char a, char b) { return Fold(a) == Fold(b); }

}  // namespace

char FoldCase(char c) { return static_cast<char>(Fold(c)); }

std::string FoldCase(std::string_view text) {
  std::string folded(text);
  for (char& c : folded) c = FoldCase(c);
  return folded;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), SameFolded);
}

std::size_t FindNoCase(std::string_view haystack, std::string_view needle, std::size_t from) {
  if (from > haystack.size()) return std::string_view::npos;
  auto found = std::search(haystack.begin() + static_cast<std::ptrdiff_t>(from), haystack.end(),
                           needle.begin(), needle.end(), SameFolded);
  if (found == haystack.end() && !needle.empty()) return std::string_view::npos;
  return static_cast<std::size_t>(found - haystack.begin());
}

bool ContainsNoCase(std::string_view haystack, std::string_view needle) {
  return FindNoCase(haystack, needle) != std::string_view::npos;
}

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::vector<std::string> SplitTokens(std::string_view text, char delimiter) {
  std::vector<std::string> tokens;
  for (std::size_t begin = 0; begin <= text.size();) {
    std::size_t end = std::min(text.find(delimiter, begin), text.size());
    if (end > begin) tokens.emplace_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return tokens;
}

std::string JoinTokens(const std::vector<std::string>& tokens, std::size_t from, char delimiter) {
  std::string joined;
  for (std::size_t i = from; i < tokens.size(); ++i) {
    if (i > from) joined += delimiter;
    joined += tokens[i];
  }
  return joined;
}

std::string StripToolWords(std::string_view name) {
  return SF_remove(SF_remove(name, "tool"), "cursor");
}

std::string WavToWma(std::string_view path) { return SF_replace(path, ".wav", ".wma"); }

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  for (char c : text) {
    unsigned code = static_cast<unsigned char>(c);
    if (code >= 0x80 && code < 0xA0) code = kHighControls[code - 0x80];
    if (code < 0x80) {
      utf8 += static_cast<char>(code);
    } else if (code < 0x800) {
      utf8 += static_cast<char>(0xC0 | code >> 6);
      utf8 += static_cast<char>(0x80 | (code & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | code >> 12);
      utf8 += static_cast<char>(0x80 | (code >> 6 & 0x3F));
      utf8 += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  return utf8;
}

std::optional<std::string> FromUtf8(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    const Utf8Character character = FrontOf(utf8);
    const std::optional<char> byte = ByteOf(character.code);
    if (!byte) return std::nullopt;
    text += *byte;
    utf8.remove_prefix(character.size);
  }
  return text;
}

std::string FromUtf8LeavingOut(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    const Utf8Character character = FrontOf(utf8);
    if (const std::optional<char> byte = ByteOf(character.code)) text += *byte;
    utf8.remove_prefix(character.size);
  }
  return text;
}

}  // namespace quendle
