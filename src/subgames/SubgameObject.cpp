#include "subgames/SubgameObject.h"

#include "object/MessageWork.h"
#include "subgames/FrameVerbs.h"

namespace quendle {

void SubgameObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                                  bool verifying, bool& result) {
  const FrameVerb verb = FrameVerbOf(message);
  if (verb == FrameVerb::kInner) {
    Inner().HandleMessage(message, sender, verifying, result);
    return;
  }
  const MessageWork work(Inner(), message, sender, verifying);
  if (verb == FrameVerb::kClimb) {
    Inner().NotifyParent(message, verifying, result);
  } else if (!verifying) {
    Inner().NotifyChild(message, "menu");
  }
}

}  // namespace quendle
