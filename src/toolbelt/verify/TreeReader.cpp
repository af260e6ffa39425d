// The lists of "\Info\", from which everything hangs.
#include "toolbelt/verify/TreeReader.h"

#include <algorithm>
#include <set>

#include "base/PathTokens.h"
#include "base/Text.h"
#include "media/SoundState.h"
#include "object/SoundFile.h"
#include "script/ScriptReader.h"
#include "shell/ObjectClasses.h"
#include "shell/Registries.h"
#include "toolbelt/Progress.h"
#include "toolbelt/verify/ScriptTexts.h"

namespace quendle {
namespace {

constexpr const char* kSoundList = "\\Info\\globalsoundstates.txt";
constexpr const char* kScriptList = "\\Info\\globalscriptstates.txt";
constexpr const char* kObjectList = "\\Info\\globalgameobjects.txt";
constexpr const char* kScreenList = "\\Info\\screens.txt";

// Files that the game itself names and that may be missing.
constexpr const char* kFixedFiles[] = {"\\Info\\doodle.wma", "\\Info\\captions.txt"};
constexpr const char* kKeyPicture = "\\Info\\Tools\\tool.bmp";
constexpr const char* kPersonFolder = "\\info\\globalreferences\\images\\person\\";

// A file that the game names itself.
NamedFile Fixed(const std::string& path) { return {path, path, {path.substr(1), 0}, ""}; }

// A name that is there already, case ignored.
bool IsSecond(std::set<std::string>& names, const std::string& name) {
  return !names.insert(FoldCase(name)).second;
}

}  // namespace

TreeReader::TreeReader(FileGate& gate, Progress& progress)
    : gate_(gate), progress_(progress), findings_(gate.Found()) {
  RegisterObjectClasses(factory_);
}

ContentModel TreeReader::Read() {
  ReadGlobalSounds();
  ReadGlobalScripts();
  ReadGlobalObjects();
  ReadScreens();
  CheckVariants(gate_);
  NoteFixedFiles();
  return std::move(model_);
}

void TreeReader::ReadGlobalSounds() {
  std::vector<SoundRecord> records;
  gate_.Read(Fixed(kSoundList), [&](TextStream& stream) { records = ReadSoundFile(stream); });
  std::set<std::string> names;
  for (const SoundRecord& record : records) {
    const std::string folder = FolderOfListLine(record.path, "");
    ModelSound sound{record.name, record.place,
                     PlayedPath(ResolveDirectoryTokens(folder, record.path)), false};
    sound.found = gate_.Names(
        {PlayedPath(record.path), sound.file, {record.place.file, record.place.line + 1}, ""},
        Check::kSoundMissing);
    gate_.CheckEnds(record.name, record.place, "");
    if (IsSecond(names, record.name)) {
      findings_.Add(Check::kTwoOfOneName, "", record.place,
                    "there are two global sounds named \"" + record.name + "\"");
    }
    model_.global_sounds.push_back(std::move(sound));
  }
}

void TreeReader::ReadGlobalScripts() {
  std::vector<ScriptListRecord> records;
  gate_.Read(Fixed(kScriptList), [&](TextStream& stream) { records = ReadScriptList(stream); });
  std::set<std::string> names;
  for (const ScriptListRecord& record : records) {
    const FolderPaths paths(FolderOfListLine(record.path, ""));
    const NamedFile file{
        record.path, paths.Resolve(record.path), {record.place.file, record.place.line + 1}, ""};
    gate_.CheckEnds(record.name, record.place, "");
    if (IsSecond(names, record.name)) {
      findings_.Add(Check::kTwoOfOneName, "", record.place,
                    "there are two global scripts named \"" + record.name + "\"");
    }
    model_.global_scripts.push_back(
        {record.name, record.place, true, ReadScriptTexts(gate_, file, paths, depth_)});
  }
}

std::vector<NamedFile> TreeReader::ReadPaths(const std::string& list) {
  std::vector<NamedFile> paths;
  gate_.Read(Fixed(list), [&](TextStream& stream) {
    while (!stream.AtEndOfStream()) {
      const std::string line = ReadFilledLine(stream, "the path of an object file");
      paths.push_back({line, line, stream.Place(), ""});
    }
  });
  return paths;
}

void TreeReader::ReadGlobalObjects() {
  const std::vector<NamedFile> files = ReadPaths(kObjectList);
  for (const NamedFile& file : files) {
    if (!gate_.Listing().Use(file.resolved)) continue;  // told below
    try {
      auto stream = gate_.Content().OpenTextFileChecked(
          gate_.Content().BaseDirectory() + file.resolved, OpenMode::kRead, false);
      stream->ReadLine("the type word of an object");
      global_names_.push_back(stream->ReadLine("the name of an object"));
    } catch (const FatalError&) {
      continue;  // told below, when the whole file is read
    }
  }
  for (const NamedFile& file : files) {
    ModelObjectRef object = ReadObject(file, ModelRole::kGlobal, nullptr);
    if (object != nullptr) model_.globals.push_back(std::move(object));
  }
  CheckTwice(model_.globals, "global objects");
}

void TreeReader::ReadScreens() {
  for (const NamedFile& file : ReadPaths(kScreenList)) {
    ModelObjectRef object = ReadObject(file, ModelRole::kScreen, nullptr);
    if (object != nullptr) model_.screens.push_back(std::move(object));
  }
  CheckTwice(model_.screens, "screens");
}

void TreeReader::CheckTwice(const std::vector<ModelObjectRef>& objects, const char* noun) {
  std::set<std::string> names;
  for (const ModelObjectRef& object : objects) {
    if (!IsSecond(names, object->name)) continue;
    findings_.Add(Check::kTwoOfOneName, ModelPath(*object), object->name_place,
                  std::string("there are two ") + noun + " named \"" + object->name + "\"");
  }
}

void TreeReader::NoteFixedFiles() {
  for (const char* path : kFixedFiles) gate_.Listing().Use(path);
  gate_.Names(Fixed(gate_.Listing().OnDisk(kKeyPicture)));
  for (const std::string& path : gate_.Listing().All()) {
    if (FindNoCase(path, kPersonFolder) == 0) gate_.Listing().Use(path);
  }
}

}  // namespace quendle
