// Sound files for tests, made of numbers.
#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <vector>

namespace quendle {

using Samples = std::vector<std::int16_t>;

// A sine of one channel; `level` 1.0 reaches the largest sample.
inline Samples Tone(double seconds, int rate, double frequency = 440, double level = 0.5) {
  Samples samples(static_cast<std::size_t>(std::lround(seconds * rate)));
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double phase = 2 * std::numbers::pi * frequency * static_cast<double>(i) / rate;
    samples[i] = static_cast<std::int16_t>(std::lround(std::sin(phase) * level * 32767));
  }
  return samples;
}

inline void AppendNumber(std::string& bytes, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i));
}

// A wave file around raw sample bytes.
inline std::string WaveOf(const std::string& data, int rate, int channels, int bits,
                          int format = 1) {
  const int frame = channels * bits / 8;
  std::string bytes = "RIFF";
  AppendNumber(bytes, static_cast<std::uint32_t>(36 + data.size()), 4);
  bytes += "WAVEfmt ";
  AppendNumber(bytes, 16, 4);
  AppendNumber(bytes, static_cast<std::uint32_t>(format), 2);
  AppendNumber(bytes, static_cast<std::uint32_t>(channels), 2);
  AppendNumber(bytes, static_cast<std::uint32_t>(rate), 4);
  AppendNumber(bytes, static_cast<std::uint32_t>(rate * frame), 4);
  AppendNumber(bytes, static_cast<std::uint32_t>(frame), 2);
  AppendNumber(bytes, static_cast<std::uint32_t>(bits), 2);
  bytes += "data";
  AppendNumber(bytes, static_cast<std::uint32_t>(data.size()), 4);
  return bytes + data;
}

// A wave file of 16-bit samples.
inline std::string WaveFile(const Samples& samples, int rate, int channels = 1) {
  std::string data;
  for (std::int16_t sample : samples) AppendNumber(data, static_cast<std::uint16_t>(sample), 2);
  return WaveOf(data, rate, channels, 16);
}

// A wave file that lasts so long, at a rate that makes whole milliseconds exact.
inline std::string ToneFile(double seconds, double frequency = 440, double level = 0.5) {
  constexpr int kRate = 8000;
  return WaveFile(Tone(seconds, kRate, frequency, level), kRate);
}

}  // namespace quendle
