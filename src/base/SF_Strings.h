// String operations on the first occurrence of a needle, case ignored. None of them fails: an
// empty or missing needle gives back the input, which is what makes crude parsing safe on any text.
#pragma once

#include <string>
#include <string_view>

namespace quendle {

// True if the text is empty. Nothing asks for it.
bool SF_isNothing(std::string_view text);

// Position (from 1) of the last occurrence of the needle, or 0. Nothing asks for it.
int SF_InstrRev(std::string_view haystack, std::string_view needle);

// The haystack with the first occurrence of the needle taken out.
std::string SF_remove(std::string_view haystack, std::string_view needle);

// The haystack with the first occurrence of the needle replaced. Nothing happens when the two
// needles are equal, case ignored.
std::string SF_replace(std::string_view haystack, std::string_view needle,
                       std::string_view new_needle);

// What stands before the first occurrence.
std::string SF_splitLeft(std::string_view haystack, std::string_view needle);

// What stands behind the first occurrence. Nothing asks for it.
std::string SF_splitRight(std::string_view haystack, std::string_view needle);

}  // namespace quendle
