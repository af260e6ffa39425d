#include "logic/MenuObject.h"

#include "logic/MenuVerbs.h"
#include "object/MessageWork.h"

namespace quendle {

void MenuObject::AddChildObject(ObjectRef) {}

void MenuObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                               bool verifying, bool& result) {
  switch (MenuVerbOf(message)) {
    case MenuVerb::kScore: {
      const MessageWork work(Inner(), message, sender, verifying);
      return Inner().NotifyChild(message, "scoring");
    }
    case MenuVerb::kInner:
      return Inner().HandleMessage(message, sender, verifying, result);
  }
}

}  // namespace quendle
