#pragma once

#include <cstdint>

#include "platform/RandomSource.h"

namespace quendle {

// Our own generator (a 64-bit mix of a counter), the same on every platform and library.
class SeededRandom : public RandomSource {
 public:
  explicit SeededRandom(std::uint64_t seed) : state_(seed) {}
  double Rnd() override;
  void Randomize(double seed) override;

 private:
  std::uint64_t Next();
  std::uint64_t state_;
};

}  // namespace quendle
