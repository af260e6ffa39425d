#pragma once

#include <cstdint>
#include <deque>

#include "base/SeededRandom.h"

namespace quendle {

// The seeded generator, in front of which a script may put values of its own.
class ScriptedRandom : public RandomSource {
 public:
  explicit ScriptedRandom(std::uint64_t seed) : seeded_(seed) {}

  double Rnd() override;
  void Randomize(double seed) override;

  // A value that is given before the generator's own; from 0 up to but not including 1.
  void Queue(double value) { queued_.push_back(value); }
  // How many times Randomize was called.
  long Seeds() const { return seeds_; }

 private:
  SeededRandom seeded_;
  std::deque<double> queued_;
  long seeds_ = 0;
};

}  // namespace quendle
