// How a GameObject is loaded from its files.

#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/PathTokens.h"
#include "base/SF_Strings.h"
#include "base/TextStream.h"
#include "base/Watch.h"
#include "media/DShowObj.h"
#include "media/MediaWorld.h"
#include "media/ObjectPicture.h"
#include "media/SoundState.h"
#include "object/AnimationFile.h"
#include "object/GameObject.h"
#include "object/ObjectFactory.h"
#include "object/ObjectFile.h"
#include "object/SoundFile.h"
#include "platform/Ports.h"
#include "script/ScriptReader.h"
#include "script/ScriptState.h"
#include "script/ScriptWorld.h"

namespace quendle {
namespace {

// Resolves the stored paths of one object.
class ObjectPaths : public PathResolver {
 public:
  explicit ObjectPaths(GameObject& object) : object_(object) {}
  std::string Resolve(std::string_view path) const override {
    return object_.LoadCurrentDirectory(std::string(path));
  }

 private:
  GameObject& object_;
};

// Sets what a directive line says. Every line, also an empty one, sets a state and a visibility.
void ApplyObjectDirectives(const Directives& directives, GameObjectInterface& target) {
  if (directives.visible) target.SetVisible(*directives.visible);
  if (directives.xpos) target.Setxpos(*directives.xpos);
  if (directives.ypos) target.Setypos(*directives.ypos);
  target.ProcessState(directives.state.value_or("default"));
  if (directives.runstate) target.Send("runstate_" + *directives.runstate);
  if (!directives.visible_given) target.SetVisible(true);
}

bool AsksForDirectives(const std::string& path) {
  return !IsNothing(path) && !EqualsNoCase(path, "unused");
}

}  // namespace

void GameObject::LoadObject(const LoadArguments& arguments) {
  DepthGuard guard(world_.watch.depth, Work::kLoad, arguments.name, this);
  self_ = arguments.outer;
  SelfReference_ = arguments.outer.lock().get();
  ObjDirectory_ = RelativeDirectoryOf(arguments.data_file, world_.media.content.BaseDirectory());
  DrawingSurface_ = arguments.context;
  ObjectType_ = arguments.type;
  ObjectName_ = arguments.name;
  xpos_ = 0;
  ypos_ = 0;
  depth_ = arguments.depth;
  Parent_ = arguments.parent;
  LoadObjectData(arguments.data_file, arguments.context);
  CurrentAnimationName_.clear();
  TakeSizeOfFirstFrame();
  if (arguments.width != nullptr) *arguments.width = width_;
  if (arguments.height != nullptr) *arguments.height = height_;
  Directives directives = ParseDirectives(arguments.directives, {});
  if (directives.depth) depth_ = *directives.depth;
  ApplyObjectDirectives(directives, *this);
  LoadChildrenObjects(arguments.child_list, arguments.context);
}

void GameObject::LoadObjectData(const std::string& data_file, ContextHandle context) {
  auto stream = world_.media.content.OpenTextFileChecked(data_file, OpenMode::kRead, false);
  DataFile file = ReadDataFile(*stream);
  stream->Close();
  LoadStates(LoadCurrentDirectory(file.states));
  LoadAnimations(LoadCurrentDirectory(file.animations), context);
  LoadSounds(LoadCurrentDirectory(file.sounds));
  LoadScriptStates(LoadCurrentDirectory(file.scripts));
}

void GameObject::LoadStates(const std::string& path) {
  if (IsNothing(path)) return;
  auto stream = world_.media.content.OpenTextFileChecked(FullPath(path), OpenMode::kRead, false);
  for (ObjState& record : ReadStateFile(*stream)) {
    FilePlace place = record.Place();
    std::string name = record.Name();
    States_.Add(std::make_shared<ObjState>(std::move(record)), std::move(name), std::move(place));
  }
}

void GameObject::LoadAnimations(const std::string& path, ContextHandle context) {
  if (IsNothing(path)) return;
  const ContentFiles& files = world_.media.content;
  auto stream = files.OpenTextFileChecked(FullPath(path), OpenMode::kRead, false);
  AnimationFile file = ReadAnimationFile(*stream, [this](const std::string& stored) {
    return IsNothing(LoadCurrentDirectory(stored));
  });
  PictureName_ = LoadCurrentDirectory(file.picture);
  if (IsNothing(PictureName_)) return;
  picture_ = std::make_unique<ObjectPicture>(world_.media, context);
  picture_->LoadPicture(PictureName_);
  LoadFrames(LoadCurrentDirectory(file.frame_file));
  for (AnimationRecord& record : file.animations) {
    auto animation = std::make_shared<AnimationState>();
    animation->SetName(record.name);
    animation->SetInterval(record.interval);
    animation->SetLoopState(record.loop);
    if (std::string directives = LoadCurrentDirectory(record.directive_file);
        AsksForDirectives(directives)) {
      auto directive_stream =
          files.OpenTextFileChecked(FullPath("\\" + directives), OpenMode::kRead, false);
      animation->LoadFileDirective(*directive_stream);
    }
    for (auto& names : record.frame_sets) animation->AddFrameSet(std::move(names));
    Animations_.Add(std::move(animation), record.name, record.place);
  }
}

void GameObject::LoadFrames(const std::string& path) {
  const ContentFiles& files = world_.media.content;
  auto stream = files.OpenTextFileChecked(FullPath(path), OpenMode::kRead, false);
  for (FrameRecord& record : ReadFrameFile(*stream)) {
    AnimationFrame& frame = record.frame;
    if (std::string regions = LoadCurrentDirectory(record.region_file); !IsNothing(regions)) {
      auto region_stream = files.OpenTextFileChecked(FullPath(regions), OpenMode::kRead, false);
      frame.RegionKey = frame.FrameName;
      FrameRegions_.Add(LoadRegions(*region_stream), frame.FrameName, record.place);
    }
    // Two frames may share a name; every search takes the last.
    Frames_.AddRepeatable(std::make_shared<AnimationFrame>(frame), frame.FrameName);
  }
}

void GameObject::LoadSounds(const std::string& path) {
  if (IsNothing(path)) return;
  player_ = std::make_unique<DShowObj>(world_.media.ports.filter_graphs);
  auto stream = world_.media.content.OpenTextFileChecked(FullPath(path), OpenMode::kRead, false);
  for (const SoundRecord& record : ReadSoundFile(*stream)) LoadSound(record);
}

void GameObject::LoadSound(const SoundRecord& record) {
  if (ContainsNoCase(record.name, "globalsound_")) {
    const std::string name = SF_remove(record.name, "globalsound_");
    std::shared_ptr<SoundState> shared = world_.media.FindGlobalSound(name);
    if (shared == nullptr) {
      throw FatalError("there is no global sound \"" + name + "\"" +
                           DidYouMean(name, world_.media.GlobalSounds.Keys()),
                       record.place);
    }
    Sounds_.Add(shared, shared->Name(), record.place);
    return;
  }
  auto sound = std::make_shared<SoundState>(world_.media);
  sound->SetName(record.name);
  sound->SetParent(self_);
  sound->Initialize(FullPath(LoadCurrentDirectory(record.path)), false);
  sound->SetLoopState(record.loop);
  if (AsksToLoad(record)) sound->LoadSound();
  Sounds_.Add(std::move(sound), record.name, record.place);
}

void GameObject::LoadScriptStates(const std::string& path) {
  if (IsNothing(path)) return;
  const ContentFiles& files = world_.media.content;
  auto stream = files.OpenTextFileChecked(FullPath(path), OpenMode::kRead, false);
  ObjectPaths paths(*this);
  for (const ScriptListRecord& record : ReadScriptList(*stream)) {
    if (!ContainsNoCase(record.name, "globalscript_")) {
      const std::string file = FullPath(LoadCurrentDirectory(record.path));
      Scripts_.Add(LoadScript(files, record.name, file, paths, world_.watch.depth), record.name,
                   record.place);
      continue;
    }
    const std::string name = SF_remove(record.name, "globalscript_");
    const auto* shared = world_.scripts.GlobalScripts.Find(name);
    if (shared == nullptr) {
      throw FatalError("there is no global script \"" + name + "\"" +
                           DidYouMean(name, world_.scripts.GlobalScripts.Keys()),
                       record.place);
    }
    Scripts_.Add(*shared, name, record.place);
  }
}

void GameObject::TakeSizeOfFirstFrame() {
  width_ = kFrameWidth;
  height_ = kFrameHeight;
  if (Frames_.Empty()) return;
  const AnimationFrame& first = *Frames_.Item(1);
  const bool use_source = first.DrawWidth == 0 && first.DrawHeight == 0;
  width_ = ToInt16(use_source ? first.SourceWidth : first.DrawWidth, "width of a frame");
  height_ = ToInt16(use_source ? first.SourceHeight : first.DrawHeight, "height of a frame");
}

std::string GameObject::LoadCurrentDirectory(const std::string& path) {
  return ResolveObjectPath(ObjDirectory_, ObjectName_, path);
}

void GameObject::LoadChildrenObjects(const std::string& path, ContextHandle context) {
  if (IsNothing(path)) return;
  auto stream = world_.media.content.OpenTextFileChecked(FullPath(path), OpenMode::kRead, false);
  for (const ChildLine& line : ReadChildList(*stream)) {
    ObjectRef child = ObtainChild(line.child, context, line.place);
    if (child == nullptr) continue;
    ApplyObjectDirectives(ParseDirectives(line.line, line.place), *child);
    if (SelfReference_ != nullptr) SelfReference_->AddChildObject(std::move(child));
  }
}

ObjectRef GameObject::ObtainChild(const std::string& word, ContextHandle context,
                                  const FilePlace& place) {
  if (!ContainsNoCase(word, "GlobalObject")) {
    return CreateGameObject(world_, FullPath(LoadCurrentDirectory(word)), context, self_);
  }
  std::vector<std::string> pieces = SplitTokens(word, '_');
  if (pieces.size() < 2) {
    throw FatalError("\"" + word + "\" names no global object; it has the form GlobalObject_name",
                     place);
  }
  return world_.FindGlobalObject(pieces[1]);
}

std::string GameObject::FullPath(const std::string& resolved) const {
  return world_.media.content.BaseDirectory() + resolved;
}

void GameObject::GetObjHeader(TextStream& stream) {
  stream.ReadLine("the type word of an object");
  stream.ReadLine("the name of an object");
}

}  // namespace quendle
