// Text without regard to case, in the 8-bit character set of content (Windows-1252).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendle {

// The small letter of an 8-bit character; any other character as it is.
char FoldCase(char c);
std::string FoldCase(std::string_view text);

bool EqualsNoCase(std::string_view a, std::string_view b);

// Position (from 0) of the first occurrence at or behind `from`, case ignored; npos without one.
// An empty needle is found at `from`.
std::size_t FindNoCase(std::string_view haystack, std::string_view needle, std::size_t from = 0);

// True if `haystack` holds `needle` anywhere, case ignored.
bool ContainsNoCase(std::string_view haystack, std::string_view needle);

// Without the blanks at both ends.
std::string_view TrimBlanks(std::string_view text);

// Splits at `delimiter` and drops empty pieces.
std::vector<std::string> SplitTokens(std::string_view text, char delimiter);

// `from` onward, joined with `delimiter`.
std::string JoinTokens(const std::vector<std::string>& tokens, std::size_t from, char delimiter);

// Without the first "tool" and then the first "cursor": "handcursor" gives "hand".
std::string StripToolWords(std::string_view name);

// The first ".wav" becomes ".wma", case ignored. Nothing asks for it: a sound replaces each one.
std::string WavToWma(std::string_view path);

// Text in UTF-8 of 8-bit text, for output that people and tools read.
std::string ToUtf8(std::string_view text);

// The 8-bit text of UTF-8; nothing when a character has no place in the 8-bit set or the bytes
// aren't UTF-8.
std::optional<std::string> FromUtf8(std::string_view utf8);

// The same for texts that only have to be read: what has no place is left out.
std::string FromUtf8LeavingOut(std::string_view utf8);

}  // namespace quendle
