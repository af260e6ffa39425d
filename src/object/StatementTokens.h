// The tokens that the second word of a statement may hold.
#pragma once

#include <string>
#include <string_view>

namespace quendle {

// What tokens stand for in one object at one moment.
struct TokenValues {
  std::string_view object_name;
  std::string_view object_type;
  std::string_view region;  // hit last, or empty
  std::string state;        // the current one
};

// The word with its tokens replaced, each at its first occurrence. A number that "<incrementstate>"
// can't count up is fatal.
std::string SubstituteTokens(std::string word, const TokenValues& values);

// The state without the first "-highlight" and then without the first "highlight".
std::string RootStateOf(std::string_view state);

// "default" gives "better1", "better2" and "better2-highlight" give "better3", any other state
// itself.
std::string IncrementedState(const std::string& state);

}  // namespace quendle
