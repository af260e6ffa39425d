#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quendle {

// Eight bytes at the front or at the back of a text as one word; missing bytes are 0.
std::uint64_t FirstEightBytes(std::string_view text);
std::uint64_t LastEightBytes(std::string_view text);

// The text that scripts test, folded once so that all patterns of an event compare it quickly.
class ActionText {
 public:
  explicit ActionText(std::string_view text);

  const std::string& Text() const { return text_; }
  const std::string& Folded() const { return folded_; }
  // The first and the last eight folded bytes, missing ones 0.
  std::uint64_t Head() const { return head_; }
  std::uint64_t Tail() const { return tail_; }

  // This text with "not" behind it, made once however many objects ask.
  const ActionText& Not() const;
  // This text with a region's name in front.
  ActionText InRegion(std::string_view region) const;

 private:
  std::string text_;
  std::string folded_;
  std::uint64_t head_ = 0;
  std::uint64_t tail_ = 0;
  mutable std::unique_ptr<ActionText> not_;
};

}  // namespace quendle
