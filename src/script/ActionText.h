#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quendle {

class ActionTable;

// Eight bytes at the front or at the back of a text as one word; missing bytes are 0.
std::uint64_t FirstEightBytes(std::string_view text);
std::uint64_t LastEightBytes(std::string_view text);

// The text that scripts test, folded once so that all patterns of an event compare it quickly.
// Texts of a table are made once for ever: two of them with the same text are the same object.
class ActionText {
 public:
  explicit ActionText(std::string_view text) : ActionText(text, nullptr) {}
  ActionText(const ActionText&) = delete;
  ActionText& operator=(const ActionText&) = delete;

  const std::string& Text() const { return text_; }
  const std::string& Folded() const { return folded_; }
  // The first and the last eight folded bytes, missing ones 0.
  std::uint64_t Head() const { return edges_[0]; }
  std::uint64_t Tail() const { return edges_[1]; }
  // The tail for 1, the head for 0.
  std::uint64_t Edge(std::size_t end) const { return edges_[end]; }
  // True if it belongs to a table, so that its address stands for its text.
  bool IsInterned() const { return table_ != nullptr; }

  // This text with "not" behind it, made once however many objects ask.
  const ActionText& Not() const { return not_ != nullptr ? *not_ : MakeNot(); }
  // This text with a region's name in front. Valid as long as this text, or until the next call
  // for a text without a table.
  const ActionText& InRegion(std::string_view region) const;

 private:
  friend class ActionTable;
  ActionText(std::string_view text, ActionTable* table);
  const ActionText& MakeNot() const;

  std::array<std::uint64_t, 2> edges_;
  mutable const ActionText* not_ = nullptr;
  ActionTable* table_;
  std::string text_;
  std::string folded_;
  // Relatives of a text without a table.
  mutable std::unique_ptr<ActionText> own_not_;
  mutable std::unique_ptr<ActionText> own_region_;
};

}  // namespace quendle
