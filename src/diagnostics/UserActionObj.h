#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace quendle {

class TextStream;

// One recorded press or move of the pointer. In a session file it is a record of seven lines: "B",
// type, name, ticks, x, y, "E"; "mc" and "mm" stand for "mouseclick" and "mousemove".
class UserActionObj {
 public:
  const std::string& ActionType() const { return type_; }
  void SetActionType(std::string type) { type_ = std::move(type); }
  // The first word of the message that plays the action.
  const std::string& ActionName() const { return name_; }
  void SetActionName(std::string name) { name_ = std::move(name); }
  // Timer ticks between the action before this one and this one.
  std::int16_t Ticks() const { return ticks_; }
  void SetTicks(std::int16_t ticks) { ticks_ = ticks; }
  // Pixels of the frame.
  std::int16_t X() const { return x_; }
  void SetX(std::int16_t x) { x_ = x; }
  std::int16_t Y() const { return y_; }
  void SetY(std::int16_t y) { y_ = y; }

  void Save(TextStream& stream) const;
  // The first and the last line of the record may hold anything. A number line that isn't one, or
  // the end of the file in the middle, is fatal.
  void Load(TextStream& stream);

 private:
  std::string type_;
  std::string name_;
  std::int16_t ticks_ = 0;
  std::int16_t x_ = 0;
  std::int16_t y_ = 0;
};

// Whether the word is "mouseclick" or "mousemove", case ignored: what can be recorded and played.
bool IsMouseAction(const std::string& word);

}  // namespace quendle
