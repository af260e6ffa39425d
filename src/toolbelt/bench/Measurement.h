#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace quendle {

// A measurement of one piece of work, printed as a line of JSON: CPU and wall time a call (the
// median of five batches), and a check that it was the work that was meant.
struct Measurement {
  std::string peer;      // what is measured
  std::string workload;  // such as "W1"
  std::string unit;      // "us/..." or "ms"
  int calls = 0;         // beside a twentieth of them to warm up
  std::function<void()> work;
  std::function<std::uint32_t()> check;  // of what the calls left
};

// Runs it and prints its line.
void Measure(const Measurement& measurement);

// CRC-32 over the red, green and blue bytes of words 0x00RRGGBB.
std::uint32_t CrcOfPixels(const std::uint32_t* pixels, std::size_t count);

}  // namespace quendle
