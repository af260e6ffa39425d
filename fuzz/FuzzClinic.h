// A whole game that is made anew in well under a millisecond: the smallest clinic with the four
// arcade games, over a platform that is made once for all cases.
#pragma once

#include <algorithm>
#include <memory>
#include <string>

#include "ArcadeClinic.h"
#include "Fuzz.h"
#include "backends/headless/HeadlessBackend.h"
#include "base/ContentFiles.h"
#include "base/Settings.h"
#include "base/TextStream.h"
#include "base/Watch.h"
#include "logic/ButtonObject.h"
#include "logic/GameLogicLayer.h"
#include "logic/MenuObject.h"
#include "logic/PatientObject.h"
#include "logic/ScreenObject.h"
#include "logic/SmallClinic.h"
#include "logic/ToolObject.h"
#include "media/Graphics.h"
#include "media/MediaWorld.h"
#include "object/ObjectFactory.h"
#include "object/ObjectWorld.h"
#include "script/ScriptWorld.h"
#include "subgames/PointSystemObject.h"
#include "subgames/SubgameClasses.h"
#include "subgames/SubgameObject.h"
#include "support/FakeSounds.h"

namespace quendle {

inline constexpr const char* kFuzzBase = "C:\\game";

// The rooms of the small clinic with no more objects than its rules need.
inline MemoryFileSystem TinyClinic() {
  MemoryFileSystem files(kFuzzBase);
  for (const char* list : {"sound", "script"}) {
    files.Put(std::string("\\Info\\global") + list + "states.txt", "");
  }
  files.Put("\\info\\doodle.wma", "music");
  files.Put("\\info\\tools\\tool.bmp", Filled(1, 1, 'k'));
  PutGlobal(files, {.type = "doctor",
                    .name = "doctor",
                    .states = {{.name = "default"},
                               {.name = "tryagain"},
                               {.name = "startover"},
                               {.name = "helppatientroom"}}});
  for (const std::string name : {"hand", "bandaid"}) {
    PutGlobal(files, {.type = "button", .name = name + "cursor"});
    PutGlobal(files, {.type = "tool",
                      .name = name + "tool",
                      .width = 30,
                      .height = 30,
                      .states = {{.name = "default", .script = "pick"}},
                      .scripts = {{"pick", OnClick("mtp cursor_" + name + "\n")}}});
  }
  PutObject(files, ClickButton("start", "mtp cs_floor1hall1\n"));
  PutScreen(files, {.type = "hall",
                    .name = "introscreen",
                    .children = {ObjectPath("start") + " xpos_100 ypos_100"}});
  PutObject(files, ClickButton("dogdoor", "mtp cs_dogroom\n"));
  PutScreen(files,
            {.type = "hall",
             .name = "floor1hall1",
             .children = {"GlobalObject_doctor", ObjectPath("dogdoor") + " xpos_100 ypos_100"}});
  PutObject(files, {.type = "patient",
                    .name = "dog",
                    .width = 60,
                    .height = 60,
                    .states = {{.name = "default", .script = "ill"},
                               {.name = "better1", .script = "ill"},
                               {.name = "default-owww"}},
                    .scripts = {{"ill",
                                 "if action = gamewon\nchange <incrementstate>\n"
                                 "elseif action = *bandaidmouseclick\nmtp subgame_subgamesquare\n"
                                 "elseif action = *mouseclick\nrunstate default-owww\nendif\n"}}});
  PutScreen(files, {.type = "hall",
                    .name = "dogroom",
                    .children = {"GlobalObject_doctor", ObjectPath("dog") + " xpos_300 ypos_300"}});
  ObjectText bandaid = ClickButton("bandaid", "mtp tool_bandaid\n");
  bandaid.scripts.push_back({"toolwon", "mtp toscreen_tools_addglobalobj_bandaidtool\n"});
  PutObject(files, bandaid);
  PutScreen(files, {.type = "hall",
                    .name = "emptyroom1",
                    .children = {ObjectPath("bandaid") + " xpos_300 ypos_300"}});
  PutScreen(files, {.type = "overlay", .name = "tools", .children = {"GlobalObject_handtool"}});
  PutObject(files,
            {.type = "dialog",
             .name = "exitdialog",
             .states = {{.name = "default", .script = "answer"}},
             .scripts = {{"answer", OnClick("mtp hidetype_dialog\nmtp endexitondemand\n")}}});
  PutScreen(files, {.type = "overlay",
                    .name = "cursors",
                    .children = {ObjectPath("exitdialog") + " visible_off"}});
  PutArcadeScreens(files);
  return files;
}

// Frames are never looked at: the bitmap behind the game is as small as it may be.
class SmallFrames : public RasterGdi {
 public:
  using RasterGdi::RasterGdi;
  BitmapHandle CreateCompatibleBitmap(ContextHandle like, int width, int height) override {
    return RasterGdi::CreateCompatibleBitmap(like, std::min(width, 16), std::min(height, 16));
  }
};

// What lives as long as the process.
struct FuzzPlatform {
  Faults faults;
  MemoryFileSystem files{kFuzzBase};
  HeadlessBackend backend{files, faults};
  FakeSounds graphs;
  SmallFrames gdi{files, backend.screen, faults};
  Ports ports{files,
              backend.clock,
              backend.timers,
              backend.random,
              backend.boxes,
              gdi,
              backend.direct_draw,
              backend.display_modes,
              graphs,
              backend.window,
              backend.forms,
              backend.system,
              backend.picture_loader,
              backend.picture_saver};

  // As it was at first.
  void Renew() {
    static const MemoryFileSystem kFirst = TinyClinic();
    files = kFirst;
    backend.random = ScriptedRandom(1);
    graphs = FakeSounds();
  }
};

class SilentHost : public GameHost {
 public:
  void Deactivate() override {}
  void OpenProductPage() override {}
  void ShowPointer(bool) override {}
  void Beep() override {}
};

// One case's game. Whatever happened in it, nothing of it may stay behind.
class FuzzClinic {
 public:
  explicit FuzzClinic(FuzzPlatform& platform) : platform_(platform) {
    settings_.BaseDirectory = kFuzzBase;
    Register<ScreenObject>({"hall", "overlay"});
    Register<MenuObject>({"menu"});
    Register<ToolObject>({"tool"});
    Register<ButtonObject>({"button", "dialog"});
    Register<PatientObject>({"doctor", "patient"});
    Register<SubgameObject>({"subgame"});
    Register<PointSystemObject>({"pointsystem"});
    RegisterPlayAreas(factory_);
  }
  ~FuzzClinic() {
    logic_.reset();
    objects_.DropGlobalObjects();
    Require(platform_.backend.timers.Running().empty(), "no timer outlives its game");
    Require(platform_.gdi.LiveBitmaps() == 0, "no picture outlives its game");
  }

  void Start() {
    InitializeWindowGraphics(media_);
    logic_ = std::make_shared<GameLogicLayer>(objects_, host_);
    TextReader list(platform_.files.Get("\\Info\\globalgameobjects.txt").value(), "list");
    while (!list.AtEndOfStream()) {
      ObjectRef object = CreateGameObject(objects_, kFuzzBase + list.ReadLine("a path"), 0, logic_);
      objects_.GlobalObjects.Add(object, object->ObjectName());
    }
    logic_->Initialize(platform_.gdi.WindowContext(), "userdata.txt");
    logic_->TurnOn();
  }
  GameLogicLayer& Logic() { return *logic_; }
  void Tick(int milliseconds) {
    platform_.backend.Tick(Milliseconds(milliseconds), [](const std::function<void()>& work) {
      work();
      return true;
    });
  }

 private:
  template <class Class>
  void Register(std::initializer_list<const char*> words) {
    for (const char* word : words) {
      factory_.Register(word, [](ObjectWorld& world) { return std::make_shared<Class>(world); });
    }
  }

  FuzzPlatform& platform_;
  Settings settings_;
  ContentFiles content_{platform_.files, settings_};
  Watch watch_;
  MediaWorld media_{settings_, platform_.ports, content_};
  ScriptWorld scripts_{watch_};
  ObjectFactory factory_;
  ObjectWorld objects_{media_, scripts_, watch_, factory_};
  SilentHost host_;
  std::shared_ptr<GameLogicLayer> logic_;
};

}  // namespace quendle
