#include "subgames/CellObject.h"

#include <optional>

#include "base/ContentFiles.h"
#include "base/PathTokens.h"
#include "base/Text.h"
#include "media/MediaWorld.h"
#include "object/MessageWork.h"
#include "object/ObjectWorld.h"
#include "script/Statement.h"
#include "subgames/SubgameFiles.h"

namespace quendle {
namespace {

// The full path of the data file that a cell's file is, or leads to.
std::string DataFileOf(const ContentFiles& files, const std::string& path) {
  auto stream = files.OpenTextFileChecked(path, OpenMode::kRead, false);
  const std::optional<std::string> stored = ReadDataPathOfObjectFile(*stream);
  if (!stored) return path;
  const std::string folder = RelativeDirectoryOf(path, files.BaseDirectory());
  return files.BaseDirectory() + ResolveDirectoryTokens(folder, *stored);
}

}  // namespace

CellObject::CellObject(ObjectWorld& world) : ForwardingObject(world), world_(world) {}

void CellObject::LoadObject(const LoadArguments& arguments) {
  const ContentFiles& files = world_.media.content;
  LoadArguments inner = arguments;
  inner.data_file = DataFileOf(files, files.BaseDirectory() + arguments.data_file);
  inner.directives = "unused";
  Inner().LoadObject(inner);
}

void CellObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                               bool verifying, bool& result) {
  if (!EqualsNoCase(message, "reset")) {
    Inner().HandleMessage(message, sender, verifying, result);
    return;
  }
  const MessageWork work(Inner(), message, sender, verifying);
  if (!verifying) Inner().ProcessState("default");
}

void CellObject::RunSound(const std::string& name) {
  bool unused = false;
  Interpret(Statement("runsound " + name), false, unused);
}

void CellObject::Describe(Inspector& inspector) const {
  ForwardingObject::Describe(inspector);
  inspector.Flag("good-cell flag", good_cell_);
}

}  // namespace quendle
