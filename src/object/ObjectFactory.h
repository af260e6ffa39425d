#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "object/GameObjectInterface.h"

namespace quendle {

struct ObjectWorld;

// Makes the class of a type word.
class ObjectFactory {
 public:
  using Maker = std::function<ObjectRef(ObjectWorld&)>;

  // A type word that is known already gets the new maker.
  void Register(std::string type, Maker maker);
  // An empty object of that class; nothing for an unknown word. Case is ignored.
  ObjectRef Make(std::string_view type, ObjectWorld& world) const;
  std::vector<std::string> TypeWords() const;

 private:
  std::map<std::string, Maker> makers_;  // folded words
};

// Objects inside one another, by their child lists: more are fatal, and told by `quendle verify`.
// Well below WorkDepth::kLimit, so that a message from the deepest one can climb to the top.
inline constexpr int kDeepestNesting = 60;
// What is told of the object or file that stands too deep.
std::string NestedTooDeep(std::string_view what);

// Reads an object file (full path) and loads the object that it names. A missing file or an
// unknown type word is fatal.
ObjectRef CreateGameObject(ObjectWorld& world, const std::string& path, ContextHandle context,
                           std::weak_ptr<MessageTarget> parent);

}  // namespace quendle
