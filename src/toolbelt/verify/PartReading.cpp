// What a data file names: states, animations with their frames, sounds, scripts.
#include <algorithm>
#include <set>

#include "base/PathTokens.h"
#include "base/SF_Strings.h"
#include "base/Text.h"
#include "media/SoundState.h"
#include "media/SplineState.h"
#include "object/AnimationState.h"
#include "object/SoundFile.h"
#include "script/ScriptReader.h"
#include "toolbelt/verify/ScriptTexts.h"
#include "toolbelt/verify/TreeReader.h"

namespace quendle {
namespace {

constexpr const char* kLoopWords[] = {"loop", "nonloop", "noloop", "unused", "nothing"};

class ModelPaths : public PathResolver {
 public:
  explicit ModelPaths(const ModelObject& object) : object_(object) {}
  std::string Resolve(std::string_view path) const override {
    return ResolveObjectPath(object_.directory, object_.name, path);
  }

 private:
  const ModelObject& object_;
};

bool NearlyLoops(const std::string& word) {
  const bool known =
      std::ranges::any_of(kLoopWords, [&](const char* loop) { return EqualsNoCase(word, loop); });
  return !known && !NearestName(TrimBlanks(word), {"loop"}).empty();
}

// Tells of a second entry of a name; `place` and `name` read them off an entry.
template <class List, class Name, class Place>
void CheckNames(FileGate& gate, const std::string& object, const List& list, const char* noun,
                Name name, Place place) {
  std::set<std::string> names;
  for (const auto& entry : list) {
    gate.CheckEnds(name(entry), place(entry), object);
    if (names.insert(FoldCase(name(entry))).second) continue;
    gate.Found().Add(Check::kTwoOfOneName, object, place(entry),
                     std::string("there are two ") + noun + " named \"" + name(entry) + "\"");
  }
}

}  // namespace

void TreeReader::ReadStates(ModelObject& object, const NamedFile& file) {
  object.states_known =
      gate_.Read(file, [&](TextStream& stream) { object.states = ReadStateFile(stream); });
  CheckNames(
      gate_, file.object, object.states, "states", [](const ObjState& s) { return s.Name(); },
      [](const ObjState& s) { return s.Place(); });
}

void TreeReader::ReadAnimations(ModelObject& object, const NamedFile& file) {
  AnimationFile animations;
  object.animations_known = gate_.Read(file, [&](TextStream& stream) {
    animations = ReadAnimationFile(stream, [&](const std::string& stored) {
      return IsNothing(ResolveObjectPath(object.directory, object.name, stored));
    });
  });
  if (!object.animations_known) return;
  const NamedFile picture = InFile(object, animations.picture, animations.picture_place);
  if (IsNothing(picture.resolved)) return;
  object.picture_place = picture.place;
  if (!ContainsNoCase(picture.stored, "globalpicture_") && gate_.Names(picture)) {
    object.picture = picture.resolved;
  }
  ReadFrames(object, InFile(object, animations.frame_file, {animations.picture_place.file, 2}));
  const std::string display = animations.picture_place.file;
  for (AnimationRecord& record : animations.animations) {
    ReadAnimation(object, std::move(record), display);
  }
  CheckNames(
      gate_, file.object, object.animations, "animations",
      [](const ModelAnimation& a) { return a.record.name; },
      [](const ModelAnimation& a) { return a.record.place; });
}

void TreeReader::ReadAnimation(ModelObject& object, AnimationRecord record,
                               const std::string& file) {
  ModelAnimation animation{std::move(record), "", nullptr};
  const AnimationRecord& read = animation.record;
  const int line = read.place.line;
  if (NearlyLoops(read.loop)) {
    findings_.Add(Check::kOddLoopWord, ModelPath(object), {file, line + 2},
                  "\"" + read.loop + "\" means no loop; did you mean \"loop\"?");
  }
  // The engine puts a further backslash in front of it.
  NamedFile directives = InFile(object, read.directive_file, {file, line + 3});
  if (!IsNothing(directives.resolved) && !EqualsNoCase(directives.resolved, "unused")) {
    directives.resolved.insert(0, "\\");
    animation.directive_file = gate_.DisplayName(directives.resolved);
    auto state = std::make_shared<AnimationState>();
    gate_.Read(directives, [&](TextStream& stream) { state->LoadFileDirective(stream); });
    if (state->HasSpline()) {
      animation.spline = std::shared_ptr<const SplineState>(state, state->Spline());
    }
  }
  object.animations.push_back(std::move(animation));
}

void TreeReader::ReadFrames(ModelObject& object, const NamedFile& file) {
  std::vector<FrameRecord> records;
  if (!gate_.Read(file, [&](TextStream& stream) { records = ReadFrameFile(stream); })) {
    object.animations_known = false;
  }
  std::set<std::string> names;
  std::set<std::string> with_regions;
  for (FrameRecord& record : records) {
    ModelFrame frame{record.frame, record.place, {}, ""};
    const NamedFile regions =
        InFile(object, record.region_file, {record.place.file, record.place.line + 1});
    if (!IsNothing(regions.resolved)) {
      frame.region_file = gate_.DisplayName(regions.resolved);
      gate_.Read(regions, [&](TextStream& stream) { frame.regions = LoadRegions(stream); });
      if (!with_regions.insert(FoldCase(record.frame.FrameName)).second) {
        findings_.Add(Check::kTwoOfOneName, file.object, record.place,
                      "there are two frames with regions named \"" + record.frame.FrameName + "\"");
      }
    }
    if (!names.insert(FoldCase(record.frame.FrameName)).second) {
      findings_.Add(
          Check::kTwoFrames, file.object, record.place,
          "there are two frames named \"" + record.frame.FrameName + "\"; the last one counts");
    }
    object.frames.push_back(std::move(frame));
  }
}

void TreeReader::ReadSounds(ModelObject& object, const NamedFile& file) {
  std::vector<SoundRecord> records;
  object.sounds_known =
      gate_.Read(file, [&](TextStream& stream) { records = ReadSoundFile(stream); });
  for (const SoundRecord& record : records) ReadSound(object, record);
  CheckNames(
      gate_, file.object, object.sounds, "sounds", [](const ModelSound& s) { return s.name; },
      [](const ModelSound& s) { return s.place; });
}

void TreeReader::ReadSound(ModelObject& object, const SoundRecord& record) {
  const std::string label = ModelPath(object);
  if (!ContainsNoCase(record.name, "globalsound_")) {
    NamedFile file =
        InFile(object, PlayedPath(record.path), {record.place.file, record.place.line + 1});
    file.resolved = PlayedPath(file.resolved);
    const bool found = gate_.Names(file, Check::kSoundMissing);
    object.sounds.push_back({record.name, record.place, file.resolved, found});
    return;
  }
  const std::string name = SF_remove(record.name, "globalsound_");
  std::vector<std::string> names;
  for (const ModelSound& sound : model_.global_sounds) {
    names.push_back(sound.name);
    if (!EqualsNoCase(sound.name, name)) continue;
    object.sounds.push_back({sound.name, record.place, sound.file, sound.found});
    return;
  }
  findings_.Add(Check::kUnreadable, label, record.place,
                "there is no global sound \"" + name + "\"" + DidYouMean(name, names));
  object.sounds.push_back({name, record.place, "", false});
}

void TreeReader::ReadScripts(ModelObject& object, const NamedFile& file) {
  std::vector<ScriptListRecord> records;
  object.scripts_known =
      gate_.Read(file, [&](TextStream& stream) { records = ReadScriptList(stream); });
  for (const ScriptListRecord& record : records) ReadScript(object, record);
  CheckNames(
      gate_, file.object, object.scripts, "scripts", [](const ModelScript& s) { return s.name; },
      [](const ModelScript& s) { return s.place; });
}

void TreeReader::ReadScript(ModelObject& object, const ScriptListRecord& record) {
  if (!ContainsNoCase(record.name, "globalscript_")) {
    const NamedFile file = InFile(object, record.path, {record.place.file, record.place.line + 1});
    object.scripts.push_back({record.name, record.place, false,
                              ReadScriptTexts(gate_, file, ModelPaths(object), depth_)});
    return;
  }
  const std::string name = SF_remove(record.name, "globalscript_");
  std::vector<std::string> names;
  for (const ModelScript& script : model_.global_scripts) {
    names.push_back(script.name);
    if (!EqualsNoCase(script.name, name)) continue;
    object.scripts.push_back({name, record.place, true, script.texts});
    return;
  }
  findings_.Add(Check::kUnreadable, ModelPath(object), record.place,
                "there is no global script \"" + name + "\"" + DidYouMean(name, names));
  object.scripts.push_back({name, record.place, true, {}});
}

}  // namespace quendle
