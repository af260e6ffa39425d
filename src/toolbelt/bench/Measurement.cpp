#include "toolbelt/bench/Measurement.h"

#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <iostream>
#include <nlohmann/json.hpp>

#include "toolbelt/Json.h"

namespace quendle {
namespace {

constexpr int kBatches = 5;
constexpr std::uint32_t kPolynomial = 0xEDB88320;

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
}

double CpuSeconds() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
}

double WallSeconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double>(now).count();
}

double Median(std::array<double, kBatches> values) {
  std::ranges::sort(values);
  return values[kBatches / 2];
}

double Rounded(double value) { return static_cast<double>(static_cast<long>(value * 1e3)) / 1e3; }

}  // namespace

void Measure(const Measurement& measurement) {
  for (int i = 0; i < measurement.calls / 20; ++i) measurement.work();
  const int calls = measurement.calls / kBatches;
  std::array<double, kBatches> cpu{}, wall{};
  for (int batch = 0; batch < kBatches; ++batch) {
    const double cpu_start = CpuSeconds(), wall_start = WallSeconds();
    for (int i = 0; i < calls; ++i) measurement.work();
    cpu[batch] = (CpuSeconds() - cpu_start) / calls;
    wall[batch] = (WallSeconds() - wall_start) / calls;
  }
  const double scale = measurement.unit.starts_with("us") ? 1e6 : 1e3;
  const Json line = {{"peer", measurement.peer},
                     {"workload", measurement.workload},
                     {"unit", measurement.unit},
                     {"value", Rounded(Median(cpu) * scale)},
                     {"wall", Rounded(Median(wall) * scale)},
                     {"check", std::to_string(measurement.check())}};
  std::cout << line.dump() << std::endl;
}

std::uint32_t CrcOfPixels(const std::uint32_t* pixels, std::size_t count) {
  std::uint32_t crc = ~0U;
  for (std::size_t i = 0; i < count; ++i) {
    for (int shift = 16; shift >= 0; shift -= 8) {
      crc ^= pixels[i] >> shift & 0xFF;
      for (int bit = 0; bit < 8; ++bit) crc = (crc & 1) != 0 ? kPolynomial ^ crc >> 1 : crc >> 1;
    }
  }
  return ~crc;
}

}  // namespace quendle
