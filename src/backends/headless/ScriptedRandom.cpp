#include "backends/headless/ScriptedRandom.h"

namespace quendle {

double ScriptedRandom::Rnd() {
  if (queued_.empty()) return seeded_.Rnd();
  const double value = queued_.front();
  queued_.pop_front();
  return value;
}

void ScriptedRandom::Randomize(double seed) {
  ++seeds_;
  seeded_.Randomize(seed);
}

}  // namespace quendle
