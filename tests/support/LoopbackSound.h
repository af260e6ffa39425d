// A sound device that mixes into memory while virtual time passes, and the ruler for what it gave.
#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <vector>

#include "backends/headless/VirtualClock.h"
#include "backends/sound/OpenAlDevice.h"

namespace quendle {

class LoopbackSound {
 public:
  static constexpr int kRate = 44100;
  enum Side { kLeft = 0, kRight = 1 };

  LoopbackSound() : device(OpenAlDevice::OpenLoopback(kRate)) {
    if (device == nullptr) throw std::runtime_error("no loopback device");
  }

  // Lets time pass in steps as long as those of a mixer; what is mixed is appended.
  void Pass(int milliseconds) {
    constexpr int kStep = 10;
    for (int passed = 0; passed < milliseconds; passed += kStep) {
      const std::vector<float> piece = device->Render(kRate * kStep / 1000);
      mixed.insert(mixed.end(), piece.begin(), piece.end());
      clock.AdvanceTo(clock.Monotonic() + Milliseconds(kStep));
    }
  }

  // The level between two moments in dB, where 0 is a full square wave; -200 for nothing at all.
  double Level(double from, double until, Side side = kLeft) const {
    double sum = 0;
    const std::size_t first = Frame(from), last = Frame(until);
    for (std::size_t i = first; i < last; ++i) {
      sum += static_cast<double>(mixed[2 * i + side]) * mixed[2 * i + side];
    }
    const double power = sum / static_cast<double>(last - first);
    return power > 1e-20 ? 10 * std::log10(power) : -200;
  }

  // How strong that frequency is between two moments, in the same dB.
  double LevelOf(double frequency, double from, double until) const {
    double re = 0, im = 0;
    const std::size_t first = Frame(from), last = Frame(until);
    for (std::size_t i = first; i < last; ++i) {
      const double phase = 2 * M_PI * frequency * static_cast<double>(i) / kRate;
      re += mixed[2 * i] * std::cos(phase);
      im += mixed[2 * i] * std::sin(phase);
    }
    const double amplitude = 2 * std::hypot(re, im) / static_cast<double>(last - first);
    return amplitude > 1e-10 ? 20 * std::log10(amplitude) - 3.0103 : -200;
  }

  // Stretches in which the sound is louder than about -46 dB: start and end in seconds. Shorter
  // gaps than 5 ms don't part them.
  struct Stretch {
    double start;
    double end;
  };
  std::vector<Stretch> Stretches() const {
    std::vector<Stretch> found;
    for (std::size_t i = 0; i < mixed.size() / 2; ++i) {
      if (std::max(std::abs(mixed[2 * i]), std::abs(mixed[2 * i + 1])) < 0.005F) continue;
      const double now = static_cast<double>(i) / kRate;
      if (found.empty() || now - found.back().end > 0.005) found.push_back({now, now});
      found.back().end = now;
    }
    return found;
  }

  std::shared_ptr<OpenAlDevice> device;
  VirtualClock clock;
  std::vector<float> mixed;  // left and right beside each other

 private:
  std::size_t Frame(double seconds) const {
    return std::min(static_cast<std::size_t>(seconds * kRate), mixed.size() / 2);
  }
};

}  // namespace quendle
