#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/KeyedList.h"

namespace quendle {

class TextStream;
class WorkDepth;

// What play can change of one object, and of the objects in it: state, position, visibility.
class GameObjectMemento {
 public:
  using Ref = std::shared_ptr<GameObjectMemento>;
  using List = KeyedList<Ref>;

  List& Children() { return children_; }
  const List& Children() const { return children_; }
  const std::string& CurrentState() const { return current_state_; }
  void SetCurrentState(std::string state) { current_state_ = std::move(state); }
  std::int16_t xpos() const { return xpos_; }
  void Setxpos(std::int16_t x) { xpos_ = x; }
  std::int16_t ypos() const { return ypos_; }
  void Setypos(std::int16_t y) { ypos_ = y; }
  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { visible_ = visible; }
  const std::string& ObjectName() const { return object_name_; }
  void SetObjectName(std::string name) { object_name_ = std::move(name); }

  // Reads a record whose first line the caller has read. A wrong line, or two children of one
  // name, is fatal.
  void LoadFromFile(TextStream& stream, WorkDepth& depth);
  // Writes the record with all records inside it.
  void SaveToFile(TextStream& stream, WorkDepth& depth) const;

 private:
  std::string object_name_;
  std::string current_state_;
  std::int16_t xpos_ = 0;
  std::int16_t ypos_ = 0;
  bool visible_ = false;
  List children_{"saved object"};
};

}  // namespace quendle
