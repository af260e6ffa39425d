#include "subgames/SubgameObject.h"

#include "base/Text.h"
#include "object/MessageWork.h"

namespace quendle {

void SubgameObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                                  bool verifying, bool& result) {
  if (ContainsNoCase(message, "scorevalue")) {
    const MessageWork work(Inner(), message, sender, verifying);
    if (!verifying) Inner().NotifyChild(message, "menu");
  } else if (ContainsNoCase(message, "done") || ContainsNoCase(message, "won") ||
             ContainsNoCase(message, "lost")) {
    const MessageWork work(Inner(), message, sender, verifying);
    Inner().NotifyParent(message, verifying, result);
  } else {
    Inner().HandleMessage(message, sender, verifying, result);
  }
}

}  // namespace quendle
