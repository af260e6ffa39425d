#include "logic/MenuObject.h"

#include "object/MessageWork.h"

namespace quendle {

void MenuObject::AddChildObject(ObjectRef) {}

void MenuObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                               bool verifying, bool& result) {
  if (ContainsNoCase(message, "scorevalue")) {
    const MessageWork work(Inner(), message, sender, verifying);
    Inner().NotifyChild(message, "scoring");
  } else {
    Inner().HandleMessage(message, sender, verifying, result);
  }
}

}  // namespace quendle
