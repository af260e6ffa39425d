// A run's worlds over files in memory, with objects that only forward.
#pragma once

#include <memory>
#include <string>

#include "backends/files/MemoryFileSystem.h"
#include "backends/headless/HeadlessBackend.h"
#include "base/ContentFiles.h"
#include "base/EventSink.h"
#include "base/Settings.h"
#include "base/Watch.h"
#include "media/Graphics.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "object/ForwardingObject.h"
#include "object/ObjectFactory.h"
#include "object/ObjectWorld.h"
#include "script/ScriptState.h"
#include "script/ScriptWorld.h"
#include "support/FakeSounds.h"
#include "support/ObjectText.h"

namespace quendle {

inline constexpr const char* kBase = "C:\\game";

class NotedLines : public EventSink {
 public:
  std::vector<std::string> lines;
  void LogEvent(std::string_view message, int, std::string_view) override {
    lines.emplace_back(message);
  }
};

// A platform: headless, with sounds that note what was asked of them.
struct BenchPlatform {
  Faults faults;
  MemoryFileSystem files{kBase, &faults};
  HeadlessBackend backend{files, faults};
  FakeSounds graphs;
  Ports ports{files,
              backend.clock,
              backend.timers,
              backend.random,
              backend.boxes,
              backend.gdi,
              backend.direct_draw,
              backend.display_modes,
              graphs,
              backend.window,
              backend.forms,
              backend.system,
              backend.picture_loader,
              backend.picture_saver};

  std::string File(const std::string& path) { return files.Get(path).value_or("(none)"); }
};

struct WorldBench : BenchPlatform {
  WorldBench() {
    settings.BaseDirectory = kBase;
    objects.log = &log;
    media.log = &log;
    files.Put("\\info\\tools\\tool.bmp", Filled(1, 1, 'k'));
    for (const char* type :
         {"hall", "overlay", "button", "doctor", "patient", "tool", "subgame", "menu", "dialog"}) {
      factory.Register(
          type, [](ObjectWorld& world) { return std::make_shared<ForwardingObject>(world); });
    }
    InitializeDirectDraw(media, 1);
  }

  // An object of the tree, loaded and off.
  ObjectRef Make(const std::string& name) {
    return CreateGameObject(objects, kBase + ObjectPath(name), 0, {});
  }
  ObjectRef AddGlobal(const ObjectText& text) {
    PutObject(files, text);
    ObjectRef object = Make(text.name);
    objects.GlobalObjects.Add(object, text.name);
    return object;
  }
  // The text of the fatal fault that `work` ends with, "(none)" without one.
  template <class Work>
  static std::string Fault(Work work) {
    try {
      work();
    } catch (const FatalError& error) {
      return error.what();
    }
    return "(none)";
  }
  // Lets virtual time pass.
  void Tick(int milliseconds) {
    backend.Tick(Milliseconds(milliseconds), [](const std::function<void()>& work) {
      work();
      return true;
    });
  }

  Settings settings;
  ContentFiles content{files, settings};
  Watch watch;
  MediaWorld media{settings, ports, content};
  ScriptWorld scripts{watch};
  ObjectFactory factory;
  ObjectWorld objects{media, scripts, watch, factory};
  NotedLines log;
};

// The child of that name; null without one.
inline ObjectRef Child(const ObjectRef& parent, const std::string& name) {
  for (const auto& entry : parent->Children()) {
    if (EqualsNoCase(entry.value->ObjectName(), name)) return entry.value;
  }
  return nullptr;
}

inline std::vector<std::string> ChildNames(const ObjectRef& parent) {
  std::vector<std::string> names;
  for (const auto& entry : parent->Children()) names.push_back(entry.value->ObjectName());
  return names;
}

}  // namespace quendle
