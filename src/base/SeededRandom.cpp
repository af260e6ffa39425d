#include "base/SeededRandom.h"

#include <bit>

namespace quendle {
namespace {

constexpr std::uint64_t kStep = 0x9E3779B97F4A7C15;

std::uint64_t Mix(std::uint64_t value) {
  value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9;
  value = (value ^ value >> 27) * 0x94D049BB133111EB;
  return value ^ value >> 31;
}

}  // namespace

double SeededRandom::Rnd() { return static_cast<double>(Next() >> 11) * 0x1.0p-53; }

void SeededRandom::Randomize(double seed) {
  state_ = Mix(Next() ^ std::bit_cast<std::uint64_t>(seed));
}

std::uint64_t SeededRandom::Next() {
  state_ += kStep;
  return Mix(state_);
}

}  // namespace quendle
