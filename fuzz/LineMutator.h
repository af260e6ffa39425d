// Mutations of a text that know its grammar: whole lines come, go, move and are told anew.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <span>
#include <string>
#include <string_view>

namespace quendle {

using FuzzRandom = std::minstd_rand;

// A number from 0 up to but not including `end`.
inline std::size_t Below(FuzzRandom& random, std::size_t end) { return random() % end; }

inline std::string_view OneOf(FuzzRandom& random, std::span<const std::string_view> words) {
  return words[Below(random, words.size())];
}

// `data` with one mutation of its lines, of at most `most` bytes. `make` tells a new line, or
// several; some mutations are left to libFuzzer, so that any bytes can come.
std::size_t MutateLines(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed,
                        const std::function<std::string(FuzzRandom&)>& make);

}  // namespace quendle

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed);
