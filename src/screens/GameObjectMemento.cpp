#include "screens/GameObjectMemento.h"

#include <utility>

#include "base/TextStream.h"
#include "base/WorkDepth.h"

namespace quendle {
namespace {

bool ReadBoolean(TextStream& stream) {
  std::string line = stream.ReadLine("\"True\" or \"False\"");
  if (EqualsNoCase(line, "true")) return true;
  if (EqualsNoCase(line, "false")) return false;
  throw FatalError("\"" + line + "\" is neither \"True\" nor \"False\"", stream.Place());
}

}  // namespace

void GameObjectMemento::LoadFromFile(TextStream& stream, WorkDepth& depth) {
  DepthGuard guard(depth, Work::kLoad, "a record of the saved game");
  object_name_ = stream.ReadLine("the name of a saved object");
  current_state_ = stream.ReadLine("the state of a saved object");
  xpos_ = ReadInt16(stream, "x of a saved object");
  ypos_ = ReadInt16(stream, "y of a saved object");
  visible_ = ReadBoolean(stream);
  while (!EqualsNoCase(stream.ReadLine("\"begin\" or \"end\" of a saved object"), "end")) {
    auto child = std::make_shared<GameObjectMemento>();
    child->LoadFromFile(stream, depth);
    std::string name = child->ObjectName();
    if (children_.Find(name) != nullptr) {
      throw FatalError("two saved objects named \"" + name + "\" in \"" + object_name_ + "\"",
                       stream.Place());
    }
    children_.Add(std::move(child), std::move(name));
  }
}

void GameObjectMemento::SaveToFile(TextStream& stream, WorkDepth& depth) const {
  DepthGuard guard(depth, Work::kTreeWalk, object_name_);
  stream.WriteLine("begin");
  stream.WriteLine(object_name_);
  stream.WriteLine(current_state_);
  stream.WriteLine(std::to_string(xpos_));
  stream.WriteLine(std::to_string(ypos_));
  stream.WriteLine(visible_ ? "True" : "False");
  for (const auto& entry : children_) entry.value->SaveToFile(stream, depth);
  stream.WriteLine("end");
}

}  // namespace quendle
