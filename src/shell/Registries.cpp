#include "shell/Registries.h"

#include <memory>
#include <string>
#include <utility>

#include "base/PathTokens.h"
#include "logic/GameLogicLayer.h"
#include "media/SoundState.h"
#include "object/ObjectFactory.h"
#include "object/SoundFile.h"
#include "script/ScriptReader.h"
#include "script/ScriptState.h"
#include "shell/Globals.h"

namespace quendle {
namespace {

constexpr const char* kListFolder = "\\Info\\";

std::unique_ptr<TextStream> OpenList(const ContentFiles& content, const char* name) {
  return content.OpenTextFileChecked(content.BaseDirectory() + kListFolder + name, OpenMode::kRead,
                                     false);
}

}  // namespace

std::string FolderOfListLine(std::string_view line, const std::string& base_directory) {
  for (const char* token : {"<CurrentDirectory>\\", "<PreviousDirectory>\\"}) {
    if (FindNoCase(line, token) == 0) return kListFolder;
  }
  return RelativeDirectoryOf(line, base_directory);
}

void LoadGlobalSounds(Globals& globals) {
  const ContentFiles& content = globals.media.content;
  auto list = OpenList(content, "globalsoundstates.txt");
  for (const SoundRecord& record : ReadSoundFile(*list)) {
    auto sound = std::make_shared<SoundState>(globals.media);
    sound->SetName(record.name);
    const std::string path =
        ResolveDirectoryTokens(FolderOfListLine(record.path, content.BaseDirectory()), record.path);
    sound->Initialize(content.BaseDirectory() + path, true);
    sound->SetLoopState(record.loop);
    std::string name = sound->Name();
    globals.media.GlobalSounds.Add(std::move(sound), std::move(name), record.place);
  }
}

void LoadGlobalScripts(Globals& globals) {
  const ContentFiles& content = globals.media.content;
  auto list = OpenList(content, "globalscriptstates.txt");
  for (const ScriptListRecord& record : ReadScriptList(*list)) {
    const FolderPaths paths(FolderOfListLine(record.path, content.BaseDirectory()));
    auto script =
        LoadScript(content, record.name, content.BaseDirectory() + paths.Resolve(record.path),
                   paths, globals.watch.depth);
    globals.scripts.GlobalScripts.Add(std::move(script), record.name, record.place);
  }
}

void LoadGlobalObjects(Globals& globals, ContextHandle context) {
  const ContentFiles& content = globals.media.content;
  auto list = OpenList(content, "globalgameobjects.txt");
  while (!list->AtEndOfStream()) {
    const std::string line = ReadFilledLine(*list, "the path of a global object");
    ObjectRef object = CreateGameObject(globals.objects, content.BaseDirectory() + line, context,
                                        globals.GameLogic);
    std::string name = object->ObjectName();
    globals.objects.GlobalObjects.Add(std::move(object), std::move(name), list->Place());
  }
}

}  // namespace quendle
