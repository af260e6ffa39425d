// Objects under test: plain GameObjects in the class that only forwards, on a TestPlatform.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/EventSink.h"
#include "base/Watch.h"
#include "media/Graphics.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "object/ForwardingObject.h"
#include "object/ObjectFactory.h"
#include "object/ObjectWorld.h"
#include "screens/GameObjectMemento.h"
#include "script/ActionText.h"
#include "script/ScriptReader.h"
#include "script/ScriptState.h"
#include "script/ScriptWorld.h"
#include "support/Fatal.h"
#include "support/TestPlatform.h"
#include "support/TestTree.h"

namespace quendle {

// The top of a tree: notes what climbs to it.
class NotedMessages : public MessageTarget {
 public:
  std::vector<std::string> messages;
  std::vector<std::string> senders;
  bool verified = false;              // the last call was verifying
  std::function<void(bool&)> answer;  // what it does to the result, if anything
  std::function<void(const std::string&)> on_message;

  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override {
    messages.push_back(message);
    senders.push_back(sender != nullptr ? sender->ObjectName() : "");
    verified = verifying;
    if (answer) answer(result);
    if (on_message) on_message(message);
  }
};

class NotedEvents : public EventSink {
 public:
  std::vector<std::string> lines;  // "LEVEL CATEGORY: message"
  void LogEvent(std::string_view message, int level, std::string_view category) override {
    lines.push_back(std::to_string(level) + " " + std::string(category) + ":" +
                    std::string(message));
  }
};

enum class DrawingPath { kDirectDraw, kWindow };

using TestedObject = std::shared_ptr<ForwardingObject>;

struct ObjectBench {
  explicit ObjectBench(DrawingPath path = DrawingPath::kDirectDraw) {
    objects.log = &log;
    for (const char* type : {"button", "hall", "doctor", "patient", "tool", "dialog"}) {
      factory.Register(
          type, [](ObjectWorld& world) { return std::make_shared<ForwardingObject>(world); });
    }
    media.UseDirectX = media.FullScreen = path == DrawingPath::kDirectDraw;
    if (media.UseDirectX) {
      InitializeDirectDraw(media, platform.backend.window.Handle());
    } else {
      InitializeWindowGraphics(media);
    }
  }

  TestObject& Object(const std::string& name, const std::string& type = "button") {
    return tree.Object(name, type);
  }
  // Writes the tree and loads that object, off, below `top`.
  TestedObject Load(const std::string& name) {
    tree.Write();
    return std::static_pointer_cast<ForwardingObject>(
        CreateGameObject(objects, platform.settings.BaseDirectory + tree.Object(name).Path(),
                         platform.backend.gdi.WindowContext(), top));
  }
  TestedObject LoadOn(const std::string& name) {
    TestedObject object = Load(name);
    object->TurnOn();
    return object;
  }
  TestedObject LoadGlobal(const std::string& name) {
    TestedObject object = Load(name);
    objects.GlobalObjects.Add(object, name);
    return object;
  }
  // A global script of that text.
  void AddGlobalScript(const std::string& name, const std::string& text) {
    class NoTokens : public PathResolver {
      std::string Resolve(std::string_view path) const override { return std::string(path); }
    } resolver;
    const std::string path = "\\Info\\global_" + name + ".txt";
    platform.files.Put(path, text);
    scripts.GlobalScripts.Add(
        LoadScript(platform.content, name, platform.settings.BaseDirectory + path, resolver,
                   watch.depth),
        name);
  }
  // A global sound whose file is there.
  std::shared_ptr<SoundState> AddGlobalSound(const std::string& name) {
    const std::string path = "\\Info\\" + name + ".wma";
    platform.files.Put(path, "sound");
    auto sound = std::make_shared<SoundState>(media);
    sound->SetName(name);
    sound->Initialize(platform.settings.BaseDirectory + path, true);
    media.GlobalSounds.Add(sound, name);
    return sound;
  }
  void Tick(int milliseconds) { platform.Tick(milliseconds); }
  std::size_t RunningTimers() const { return platform.backend.timers.Running().size(); }

  static TestedObject Child(GameObjectInterface& parent, const std::string& name) {
    ObjectRef* child = parent.Children().Find(name);
    return child == nullptr ? nullptr : std::static_pointer_cast<ForwardingObject>(*child);
  }
  static Lines NamesOf(ObjectList& list) {
    Lines names;
    for (const auto& entry : list) names.push_back(entry.value->ObjectName());
    return names;
  }
  static Lines FramesOf(const ForwardingObject& object) {
    Lines names;
    for (const FrameRef& frame : object.Inner().CurrentFrames()) names.push_back(frame->FrameName);
    return names;
  }

  TestPlatform platform;
  FakeSounds& sounds = platform.sounds;
  Watch watch;
  MediaWorld media{platform.settings, platform.ports, platform.content};
  ScriptWorld scripts{watch};
  ObjectFactory factory;
  ObjectWorld objects{media, scripts, watch, factory};
  NotedEvents log;
  TestTree tree{platform.files};
  std::shared_ptr<NotedMessages> top = std::make_shared<NotedMessages>();
};

}  // namespace quendle
