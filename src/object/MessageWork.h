#pragma once

#include <string>

#include "base/WorkDepth.h"
#include "object/GameObject.h"

namespace quendle {

// One message that a specialised class decides itself, before its inner object: counted as a level
// of work, traced, and named in faults while it lives.
class MessageWork {
 public:
  // `object` is the inner object; `sender` may be null. All must outlive this object.
  MessageWork(const GameObject& object, const std::string& message,
              const GameObjectInterface* sender, bool verifying);
  MessageWork(const MessageWork&) = delete;
  MessageWork& operator=(const MessageWork&) = delete;

 private:
  DepthGuard guard_;
};

}  // namespace quendle
