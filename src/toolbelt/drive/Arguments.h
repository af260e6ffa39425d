#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quendle {

// A command that can't be carried out; the session goes on.
class CommandRefused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The words behind a command, taken one by one. Whatever is missing, too much or no number refuses
// the command and names its usage.
class Arguments {
 public:
  Arguments(std::string_view text, std::string_view usage) : rest_(text), usage_(usage) {}

  bool Empty() const;
  std::string Word();
  double Number();
  // A whole number between the two bounds.
  long Whole(long lowest, long highest);
  std::int16_t Coordinate();
  // The rest of the line, at least one character.
  std::string Rest();
  // Refuses the command when words are left.
  void End() const;
  [[noreturn]] void Refuse(const std::string& reason) const;

 private:
  std::string_view rest_;
  std::string_view usage_;
};

}  // namespace quendle
