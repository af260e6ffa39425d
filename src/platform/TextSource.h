#pragma once

#include <cstdint>
#include <string>

namespace quendle {

// A text of many lines (8-bit text) that a window shows and that goes on changing.
class TextSource {
 public:
  virtual ~TextSource() = default;
  virtual const std::string& Caption() const = 0;
  virtual const std::string& Text() const = 0;
  // Grows whenever the text changes.
  virtual std::uint64_t Changes() const = 0;
};

}  // namespace quendle
