// A subgame's screen with one play area and small cells, written into memory, on the headless
// platform.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "backends/files/MemoryFileSystem.h"
#include "backends/headless/HeadlessBackend.h"
#include "base/ContentFiles.h"
#include "base/Inspector.h"
#include "base/Settings.h"
#include "base/Watch.h"
#include "logic/ButtonObject.h"
#include "logic/GameLogicLayer.h"
#include "logic/MenuObject.h"
#include "logic/PatientObject.h"
#include "logic/ScreenObject.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "object/ObjectFactory.h"
#include "object/ObjectWorld.h"
#include "platform/Faults.h"
#include "script/ActionText.h"
#include "script/ScriptWorld.h"
#include "subgames/PlayAreaObject.h"
#include "subgames/PointSystemObject.h"
#include "subgames/SubgameClasses.h"
#include "subgames/SubgameObject.h"
#include "support/TestTree.h"

namespace quendle {

// The fields that an object tells tools.
class FieldMap : public Inspector {
 public:
  void Field(std::string_view name, std::string_view value) override {
    texts[std::string(name)] = value;
  }
  void Field(std::string_view name, long value) override { numbers[std::string(name)] = value; }
  void Flag(std::string_view name, bool value) override { numbers[std::string(name)] = value; }
  std::map<std::string, std::string> texts;
  std::map<std::string, long> numbers;
};

// The top of a tree: notes what climbs to it.
class NotedTop : public MessageTarget {
 public:
  void HandleMessage(const std::string& message, GameObjectInterface*, bool, bool&) override {
    messages.push_back(message);
    if (on_message) on_message(message);
  }
  Lines messages;
  std::function<void(const std::string&)> on_message;
};

class QuietHost : public GameHost {
 public:
  void Deactivate() override {}
  void OpenProductPage() override {}
  void ShowPointer(bool) override {}
  void Beep() override {}
};

// "FILE:LINE: text" of the fatal error that the work ends in.
template <class Work>
std::string FatalOf(Work&& work) {
  try {
    work();
  } catch (const FatalError& error) {
    return error.what();
  }
  return "no fatal error";
}

struct SubgameBench {
  // `area_type` is the type word of the play area, `header` the sixth line of its data file.
  SubgameBench(std::string area_type, std::string header, std::uint64_t seed = 1)
      : backend(files, faults, seed), area_type_(std::move(area_type)), header_(std::move(header)) {
    media.UseDirectX = false;
    Register<ScreenObject>("hall");
    Register<ButtonObject>("button");
    Register<PatientObject>("patient");
    Register<MenuObject>("menu");
    Register<SubgameObject>("subgame");
    Register<PointSystemObject>("pointsystem");
    RegisterPlayAreas(factory);
    PutGame();
  }
  virtual ~SubgameBench() {
    logic.reset();
    game.reset();
    world.DropGlobalObjects();
  }

  // What loads from \info\NAME.txt: a cell's data file with these states, all of one picture. Two
  // looping frames keep a timer running.
  void PutCell(const std::string& name, int width, int height, const Lines& states,
               bool animated = false, const std::string& script = "") {
    TestObject cell = Pictured(name, "cell", width, height, animated ? "all all" : "all");
    for (const std::string& state : states) {
      cell.State(state, "nothing", "still", script.empty() ? "nothing" : "main");
    }
    if (!script.empty()) cell.Script("main", script);
    cell.DataAt("\\info\\" + name + ".txt").WriteParts(files);
  }

  // An object at \info\NAME.txt of one state without a picture.
  void PutObject(const std::string& name, const std::string& type, const Lines& children = {},
                 const std::string& script = "", const std::string& sixth_line = "") {
    TestObject object(name, type);
    object.State("default", "nothing", "nothing", script.empty() ? "nothing" : "main");
    if (!script.empty()) object.Script("main", script);
    for (const std::string& child : children) object.ChildLine(child);
    if (!sixth_line.empty()) object.SixthLine(sixth_line);
    object.ObjectAt("\\info\\" + name + ".txt").Write(files);
  }

  void PutGame() {
    PutObject("area", area_type_, {}, "", header_);
    const Lines names{"Play1", "Help1", "HOK1", "EOK1", "replay", "Scoring1"};
    Lines children{"\\info\\area.txt"};
    for (const std::string& name : names) {
      PutObject(name, "button");
      children.push_back("\\info\\" + name + ".txt");
    }
    PutObject("game", "subgame", children);
  }

  // A button at the top left corner that sends these messages to the screen when it is clicked.
  void PutButton(const std::string& name, const Lines& messages) {
    Lines script{"begin", "if action = handmouseclick"};
    for (const std::string& message : messages) script.push_back("mtp " + message);
    script.insert(script.end(), {"endif", "end"});
    Pictured(name, "button", 60, 30, "all")
        .State("default", "nothing", "still", "main")
        .Script("main", Text(script))
        .ObjectAt("\\info\\" + name + ".txt")
        .Write(files);
  }

  // The game's screen, off, below a top that notes.
  void LoadGame() {
    game = CreateGameObject(world, "\\info\\game.txt", 0, top);
    TakeArea(game);
  }
  void TurnOnGame() {
    LoadGame();
    game->TurnOn();
    top->messages.clear();
  }
  void StartGame() {
    TurnOnGame();
    area->Send("startgame");
  }
  void TakeArea(const ObjectRef& screen) {
    ObjectRef* found = screen->Children().Find("area");
    ASSERT_NE(found, nullptr);
    area = std::dynamic_pointer_cast<PlayAreaObject>(*found);
  }

  // The whole game around it: "patient1", from which the subgame "game" is entered, and the
  // patient's script for the outcome.
  void StartClinic(const std::string& patient_script) {
    for (const char* name : {"introscreen", "tools", "cursors", "floor1hall1"}) {
      PutObject(name, "hall");
    }
    PutObject("koala", "patient", {}, patient_script);
    PutObject("patient1", "hall", {"\\info\\koala.txt"});
    PutObject("handcursor", "button");
    files.Put("\\Info\\screens.txt",
              Text({"\\info\\introscreen.txt", "\\info\\tools.txt", "\\info\\cursors.txt",
                    "\\info\\floor1hall1.txt", "\\info\\patient1.txt", "\\info\\game.txt"}));
    logic = std::make_shared<GameLogicLayer>(world, host);
    world.GlobalObjects.Add(CreateGameObject(world, "\\info\\handcursor.txt", 0, logic),
                            "handcursor");
    logic->Initialize(backend.gdi.WindowContext(), "userdata.txt");
    logic->TurnOn();
    logic->Send("cs_patient1");
  }
  void EnterSubgame() {
    logic->Send("subgame_game");
    TakeArea(logic->CurrentScreen());
  }
  std::string Screen() const { return logic->CurrentScreen()->ObjectName(); }

  void Tick(int milliseconds = 0) {
    backend.Tick(Milliseconds(milliseconds), [](const std::function<void()>& work) {
      work();
      return true;
    });
  }
  // One tick of the game, past its timer.
  void GameTick() { area->UpdateGameData(); }
  void Mouse(int x, int y, const std::string& action) {
    area->UpdateGameObject(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                           ActionText(action));
  }
  void Click(int x, int y) { Mouse(x, y, "handmouseclick"); }

  static long Number(const GameObjectInterface& object, const std::string& field) {
    FieldMap map;
    dynamic_cast<const Inspectable&>(object).Describe(map);
    auto found = map.numbers.find(field);
    if (found == map.numbers.end()) {
      ADD_FAILURE() << "no field " << field;
      return -999;
    }
    return found->second;
  }
  static std::string TextField(const GameObjectInterface& object, const std::string& field) {
    FieldMap map;
    dynamic_cast<const Inspectable&>(object).Describe(map);
    return map.texts.contains(field) ? map.texts[field] : "(none)";
  }
  long Counter(const std::string& field) const { return Number(*area, field); }

  // A child of the area; fails the test when there is none.
  GameObjectInterface& Cell(const std::string& name) const {
    ObjectRef* found = area->Children().Find(name);
    if (found == nullptr) throw std::runtime_error("no cell " + name);
    return **found;
  }
  template <class Class>
  Class& CellAs(const std::string& name) const {
    return dynamic_cast<Class&>(Cell(name));
  }
  Lines CellNames() const {
    Lines names;
    for (const auto& entry : area->Children()) names.push_back(entry.value->ObjectName());
    return names;
  }
  bool IsShown(const std::string& name) const { return (*game->Children().Find(name))->Visible(); }
  void Queue(const std::vector<double>& values) {
    for (double value : values) backend.random.Queue(value);
  }
  static std::string LastSound(const GameObjectInterface& object) {
    return TextField(object, "sound");
  }

  template <class Class>
  void Register(const char* word) {
    factory.Register(word, [](ObjectWorld& w) { return std::make_shared<Class>(w); });
  }

  Faults faults;
  MemoryFileSystem files{"", &faults};
  HeadlessBackend backend;
  Settings settings;
  ContentFiles content{files, settings};
  Watch watch;
  MediaWorld media{settings, backend.ports, content};
  ScriptWorld scripts{watch};
  ObjectFactory factory;
  ObjectWorld world{media, scripts, watch, factory};
  QuietHost host;
  std::shared_ptr<NotedTop> top = std::make_shared<NotedTop>();
  std::shared_ptr<GameLogicLayer> logic;
  ObjectRef game;
  std::shared_ptr<PlayAreaObject> area;

 private:
  // An object with the sounds of a game and an animation "still" of its whole picture, which isn't
  // there: the window path draws nothing.
  static TestObject Pictured(const std::string& name, const std::string& type, int width,
                             int height, const std::string& frames) {
    TestObject object(name, type);
    object.NoPicture()
        .Frame("all", {0, 0, width, height})
        .Animation("still", 100, "loop", {frames});
    for (const char* sound : {"hit", "fire", "owww", "bounce"}) object.MissingSound(sound);
    return object;
  }

  std::string area_type_;
  std::string header_;
};

struct SquareBench : SubgameBench {
  explicit SquareBench(const std::string& limit = "120",
                       const Lines& size = {"3", "100", "200", "50"}, std::uint64_t seed = 1)
      : SubgameBench("playareasquare", "\\info\\board.txt", seed) {
    Lines lines{"\\info\\tile.txt", limit};
    lines.insert(lines.end(), size.begin(), size.end());
    Lines states;
    for (int tile = 1; tile <= 8; ++tile) states.push_back("t" + std::to_string(tile));
    lines.insert(lines.end(), states.begin(), states.end());
    files.Put("\\info\\board.txt", Text(lines));
    states.insert(states.begin(), "default");
    PutCell("tile", 90, 90, states);
  }
  // The values that lay out these tile numbers in turn.
  void QueueTiles(const std::vector<int>& tiles) {
    for (int tile : tiles) Queue({(tile - 0.5) / 8});
  }
  std::string Board() const { return TextField(*area, "m_aBoard"); }
};

struct ShooterBench : SubgameBench {
  explicit ShooterBench(const std::string& points = "100 40 300 40 *", std::uint64_t seed = 1)
      : SubgameBench("playareashooter", "\\info\\header.txt", seed) {
    files.Put("\\info\\header.txt", Text({"text", "7", "1", "\\info\\cells.txt", "", ""}));
    files.Put("\\info\\cells.txt",
              Text({"\\info\\player.txt", "\\info\\enemy.txt", "\\info\\shot.txt"}));
    files.Put("\\info\\shooterdata.txt", points + "\r\n");
    PutCell("player", 40, 30, {"default", "bad"});
    PutCell("enemy", 40, 30, {"default", "bad"});
    PutCell("shot", 4, 10, {"default", "bad"});
  }
  // So that no enemy fires: the product with the odds is 0.
  void NoFire(int draws) { Queue(std::vector<double>(static_cast<std::size_t>(draws), 0.0)); }
};

struct BlinkerBench : SubgameBench {
  explicit BlinkerBench(std::uint64_t seed = 1)
      : SubgameBench("playareablinker", "\\info\\header.txt", seed) {
    files.Put("\\info\\header.txt", Text({"text", "7", "1", "nothing", "", ""}));
    for (const char* name : {"game\\cell1data", "game\\cell2data", "game\\cell3data",
                             "game\\cell4data", "game\\cell5data"}) {
      PutCell(name, 40, 40, {"default", "bad"});
    }
    PutCell("game\\balldata", 16, 16, {"default", "bad"});
    PutCell("game\\paddledata", 100, 20, {"default", "bad"});
  }
  void HideAllBricks() {
    for (int i = 1; i <= 32; ++i) Cell("cell" + std::to_string(i)).SetVisible(false);
  }
};

struct BobblerBench : SubgameBench {
  explicit BobblerBench(std::uint64_t seed = 1)
      : SubgameBench("playareabobbler", "\\info\\header.txt", seed) {
    files.Put("\\info\\header.txt", Text({"text", "7", "1", "nothing", "", ""}));
    for (const char* name :
         {"game\\gooddata", "game\\cell1data", "game\\cell2data", "game\\cell3data",
          "game\\cell4data", "game\\cell5data", "game\\cell6data"}) {
      PutCell(name, 20, 20, {"default", "bad"});
    }
  }
  // All cells apart from each other, in the order of their numbers.
  void SpreadOut() {
    std::int16_t i = 0;
    for (auto& entry : area->Children()) {
      entry.value->Setxpos(static_cast<std::int16_t>(40 + 50 * (i % 10)));
      entry.value->Setypos(static_cast<std::int16_t>(40 + 50 * (i / 10)));
      ++i;
    }
  }
  void ClickCell(int number) {
    auto& cell = Cell("cell" + std::to_string(number));
    Click(cell.xpos() + 5, cell.ypos() + 5);
  }
};

}  // namespace quendle
