#include "object/MessageWork.h"

#include "base/Watch.h"

namespace quendle {

MessageWork::MessageWork(const GameObject& object, const std::string& message,
                         const GameObjectInterface* sender, bool verifying)
    : guard_(object.GetWatch().depth, Work::kMessage, message, &object) {
  object.GetWatch().Trace(TraceKind::kMessage, object.ObjectName(),
                          sender != nullptr ? sender->ObjectName() : std::string_view(), message,
                          verifying);
}

}  // namespace quendle
