#include "object/ObjectFactory.h"

#include <utility>

#include "base/ContentFiles.h"
#include "base/PathTokens.h"
#include "base/Text.h"
#include "base/Watch.h"
#include "media/MediaWorld.h"
#include "object/ObjectFile.h"
#include "object/ObjectWorld.h"

namespace quendle {

void ObjectFactory::Register(std::string type, Maker maker) {
  makers_[FoldCase(type)] = std::move(maker);
}

ObjectRef ObjectFactory::Make(std::string_view type, ObjectWorld& world) const {
  auto maker = makers_.find(FoldCase(type));
  return maker == makers_.end() ? nullptr : maker->second(world);
}

std::vector<std::string> ObjectFactory::TypeWords() const {
  std::vector<std::string> words;
  for (const auto& [word, maker] : makers_) words.push_back(word);
  return words;
}

std::string NestedTooDeep(std::string_view what) {
  return "more than " + std::to_string(kDeepestNesting) +
         " objects inside one another: the content is nested too deep at \"" + std::string(what) +
         "\"";
}

ObjectRef CreateGameObject(ObjectWorld& world, const std::string& path, ContextHandle context,
                           std::weak_ptr<MessageTarget> parent) {
  const ContentFiles& files = world.media.content;
  const std::string name = files.DisplayName(path);
  const DepthGuard guard(world.watch.depth, Work::kObject, name);
  guard.KeepWithin(kDeepestNesting, "objects");
  auto stream = files.OpenTextFileChecked(path, OpenMode::kRead, false);
  ObjectFile file = ReadObjectFile(*stream);
  stream->Close();
  // Read here as well, where a fault can still name its line.
  ParseDirectives(file.directives, file.directives_place);

  ObjectRef object = world.factory.Make(file.type, world);
  if (object == nullptr) {
    throw FatalError(
        "\"" + file.type + "\" is no type word" + DidYouMean(file.type, world.factory.TypeWords()),
        file.type_place);
  }
  const std::string folder = RelativeDirectoryOf(path, files.BaseDirectory());
  LoadArguments arguments;
  arguments.type = file.type;
  arguments.name = file.name;
  arguments.data_file = files.BaseDirectory() + ResolveDirectoryTokens(folder, file.data_file);
  arguments.depth = file.depth;
  arguments.parent = std::move(parent);
  arguments.child_list = ResolveDirectoryTokens(folder, file.child_list);
  arguments.outer = object;
  arguments.directives = file.directives;
  arguments.context = context;
  arguments.object_file = path;
  object->LoadObject(arguments);
  return object;
}

}  // namespace quendle
