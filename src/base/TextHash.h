#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quendle {

// A hash of bytes that is the same on every machine: FNV-1a, 64 bits. It tells changes apart, it
// doesn't keep secrets.
class TextHash {
 public:
  void Add(std::string_view bytes) {
    for (const char byte : bytes) {
      value_ = (value_ ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
    }
  }
  // 16 hexadecimal digits.
  std::string Digits() const {
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4) digits += "0123456789abcdef"[value_ >> shift & 15];
    return digits;
  }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325;
};

}  // namespace quendle
