#pragma once

namespace quendle {

class RandomSource {
 public:
  virtual ~RandomSource() = default;
  // A number from 0 up to but not including 1.
  virtual double Rnd() = 0;
  // Stirs the generator with a value such as the time of day. It never resets the generator to a
  // function of that value alone: seeding twice within one clock tick still gives new numbers.
  virtual void Randomize(double seed) = 0;
};

}  // namespace quendle
