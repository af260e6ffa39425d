// A whole small content tree. A line "== PATH" begins a file; the lines before the first one name
// the object files to load. Each object is turned on, drawn, clicked, ticked, remembered and
// released.

#include <memory>
#include <string>
#include <vector>

#include "Fuzz.h"
#include "MessageGrammar.h"
#include "base/TextStream.h"
#include "media/Graphics.h"
#include "object/GameObjectInterface.h"
#include "object/ObjectFactory.h"
#include "screens/GameObjectMemento.h"
#include "script/ActionText.h"
#include "shell/Globals.h"
#include "shell/Registries.h"
#include "support/TestPlatform.h"

using namespace quendle;

namespace {

constexpr std::size_t kMostObjects = 4;
constexpr std::size_t kMostFiles = 200;

// Writes the files; gives the paths of the objects.
std::vector<std::string> PutTree(MemoryFileSystem& files, TextStream& stream) {
  std::vector<std::string> objects;
  std::string path;
  std::string text;
  std::size_t count = 0;
  while (!stream.AtEndOfStream() && count < kMostFiles) {
    const std::string line = stream.ReadLine("a line");
    if (line.starts_with("== ")) {
      if (!path.empty()) files.Put(path, text);
      path = line.substr(3);
      text.clear();
      ++count;
    } else if (!path.empty()) {
      text += line + "\n";
    } else if (objects.size() < kMostObjects) {
      objects.push_back(line);
    }
  }
  if (!path.empty()) files.Put(path, text);
  return objects;
}

class Top : public MessageTarget {
 public:
  void HandleMessage(const std::string&, GameObjectInterface*, bool, bool&) override {}
};

void Play(TestPlatform& platform, GameObjectInterface& object) {
  object.TurnOn();
  const ContextHandle context = platform.backend.gdi.WindowContext();
  for (const char* message : {"startgame", "showtype_button", "runstate_other", "stopgame"}) {
    object.Send(message);
    for (const char* action : {"handmouseover", "handmouseclick"}) {
      const ActionText text(action);
      for (const std::int16_t at : {-1, 5, 120, 400}) object.UpdateGameObject(at, at, text);
    }
    platform.Tick(120);
    object.Refresh(context, 0, 0);
  }
  GameObjectMemento memento;
  object.CreateMemento(memento);
  object.LoadMemento(memento);
  object.TurnOff();
}

constexpr std::string_view kTypeWords[] = {
    "hall",           "overlay",     "dialog",         "button",          "key",
    "doctor",         "patient",     "tool",           "bodyview",        "menu",
    "subgame",        "pointsystem", "playareasquare", "playareablinker", "playareabobbler",
    "playareashooter"};
constexpr std::string_view kWords[] = {"nothing",
                                       "loop",
                                       "nonloop",
                                       "statedone",
                                       "stable",
                                       "unused",
                                       "stable+5",
                                       "GlobalObject_doctor",
                                       "xpos_20 state_better1",
                                       "visible_off runstate_bad"};

// The path of a file that the tree in work may have: those of the seeds.
std::string AnyPath(FuzzRandom& random) {
  constexpr std::string_view kParts[] = {"data",    "states",   "animation", "frames", "sounds",
                                         "scripts", "children", "regions",   ""};
  return "<CurrentDirectory>\\" + AnyObject(random) + std::string(OneOf(random, kParts)) + ".txt";
}

// A line of some file, a whole script, or the beginning of a file.
std::string AnyTreeLines(FuzzRandom& random) {
  switch (Below(random, 9)) {
    case 0:
      return std::string(OneOf(random, kTypeWords)) + "\n";
    case 1:
      return AnyNumber(random) + "\n";
    case 2:
      return AnyPath(random) + "\n";
    case 3:
      return std::string(OneOf(random, kWords)) + "\n";
    case 4:
      return AnyState(random) + "\n";
    case 5:
      return AnyState(random) + "\nnothing\n" + AnyState(random) + "\n" + AnyState(random) +
             "\nunused\nunused\n";
    case 6:
      return "begin\n" + AnyStatements(random) + "end\n";
    case 7:
      return "== \\Info\\" + AnyObject(random) + ".txt\n" + std::string(OneOf(random, kTypeWords)) +
             "\n" + AnyObject(random) + "\n0\n0\n0\n0\n" + AnyPath(random) + "\n" +
             AnyPath(random) + "\n\n";
    default:
      return AnyStatements(random);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TextReader stream(std::string(BytesOf(data, size)), "tree.txt");
  TestPlatform platform;
  for (const char* list : {"sound", "script"}) {
    platform.files.Put(std::string("\\Info\\global") + list + "states.txt", "");
  }
  const std::vector<std::string> objects = PutTree(platform.files, stream);
  Globals globals(platform.settings, platform.ports, platform.content);
  globals.media.UseDirectX = false;
  if (!EndsWell([&] {
        InitializeWindowGraphics(globals.media);
        LoadGlobalSounds(globals);
        LoadGlobalScripts(globals);
      })) {
    return 0;
  }
  const auto top = std::make_shared<Top>();
  for (const std::string& path : objects) {
    EndsWell([&] {
      ObjectRef object = CreateGameObject(globals.objects, platform.settings.BaseDirectory + path,
                                          platform.backend.gdi.WindowContext(), top);
      Play(platform, *object);
      object->Release(true);
    });
  }
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  return MutateLines(data, size, most, seed, AnyTreeLines);
}
