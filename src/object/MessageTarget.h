#pragma once

#include <string>

namespace quendle {

class GameObjectInterface;

// What takes messages: an object, or the game's rules at the top of the tree. What a parent is.
class MessageTarget {
 public:
  virtual ~MessageTarget() = default;
  // Carries out a message or passes it on. `sender` may be null and lives during the call.
  // Verifying, only `result` answers, and a verb that has no answer leaves it as it is: the caller
  // sets it first.
  virtual void HandleMessage(const std::string& message, GameObjectInterface* sender,
                             bool verifying, bool& result) = 0;

  // A message that is carried out, with the answer dropped.
  void Send(const std::string& message, GameObjectInterface* sender = nullptr) {
    bool unused = false;
    HandleMessage(message, sender, false, unused);
  }
};

}  // namespace quendle
