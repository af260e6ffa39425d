// The rules of the game over the small clinic, without the program around them.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "base/TextStream.h"
#include "logic/ButtonObject.h"
#include "logic/GameLogicLayer.h"
#include "logic/MenuObject.h"
#include "logic/PatientObject.h"
#include "logic/ScreenObject.h"
#include "logic/SmallClinic.h"
#include "logic/ToolObject.h"
#include "screens/WorldBench.h"

namespace quendle {

class NotedHost : public GameHost {
 public:
  void Deactivate() override { calls.push_back("Deactivate"); }
  void OpenProductPage() override { calls.push_back("OpenProductPage"); }
  void ShowPointer(bool visible) override { pointer = visible; }
  void Beep() override { calls.push_back("Beep"); }
  std::vector<std::string> calls;
  bool pointer = true;
};

// Messages and scripts as "TO: text", in the order in which they were sent.
class NotedTrace : public Tracer {
 public:
  void Trace(const TraceEvent& event) override {
    const std::string line = std::string(event.to) + ": " + std::string(event.text);
    if (event.kind == TraceKind::kMessage) messages.push_back(line);
    if (event.kind == TraceKind::kScript)
      scripts.push_back(std::string(event.to) + ": " + std::string(event.text));
  }
  std::vector<std::string> messages;
  std::vector<std::string> scripts;
};

struct LogicBench : WorldBench {
  LogicBench() {
    PutSmallClinic(files);
    Register<ScreenObject>({"hall", "overlay"});
    Register<MenuObject>({"menu"});
    Register<ToolObject>({"tool"});
    Register<ButtonObject>({"button", "dialog"});
    Register<PatientObject>({"doctor", "patient"});
    watch.tracer = &trace;
  }
  ~LogicBench() {
    // As at a fault: nothing is saved; everything goes before the worlds.
    logic.reset();
    objects.DropGlobalObjects();
  }

  template <class Class>
  void Register(std::initializer_list<const char*> words) {
    for (const char* word : words) {
      factory.Register(word, [](ObjectWorld& world) { return std::make_shared<Class>(world); });
    }
  }

  void Start(const std::string& saved_game = "userdata.txt") {
    logic = std::make_shared<GameLogicLayer>(objects, host);
    TextReader list(File("\\Info\\globalgameobjects.txt"), "globalgameobjects.txt");
    while (!list.AtEndOfStream()) {
      ObjectRef object = CreateGameObject(objects, kBase + list.ReadLine("a path"), 0, logic);
      objects.GlobalObjects.Add(object, object->ObjectName());
    }
    logic->Initialize(backend.gdi.WindowContext(), saved_game);
    logic->TurnOn();
    ForgetTrace();
  }

  void Send(const std::string& message) { logic->Send(message); }
  // The answer of a verifying call that starts as true.
  bool Ask(const std::string& message, bool start = true) {
    bool result = start;
    logic->HandleMessage(message, nullptr, true, result);
    return result;
  }
  void Click(int x, int y) {
    logic->MapMouseClick(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
  }
  void Move(int x, int y) {
    logic->MapMouseCoords(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
  }
  void ForgetTrace() { trace = NotedTrace(); }
  bool Sent(const std::string& line) const {
    return std::ranges::find(trace.messages, line) != trace.messages.end();
  }

  std::string Current() const { return NameOf(logic->CurrentScreen()); }
  std::string Previous() const { return NameOf(logic->PreviousScreen()); }
  std::string DoctorState() const { return objects.FindGlobalObject("doctor")->CurrentState(); }
  std::vector<std::string> Tools() const { return ChildNames(logic->ToolsScreen()); }
  std::vector<std::string> Pointers() const { return ChildNames(logic->CursorsScreen()); }
  ObjectRef Global(const std::string& name) const { return objects.FindGlobalObject(name); }
  // The five flags of the one-time help, "1" for given.
  std::string Help() const {
    const HelpMemory& help = logic->Help();
    std::string bits;
    for (bool given : {help.m_bHelpMedicalBook, help.m_bHelpPatientRoom, help.m_bHelpToolRoom,
                       help.m_bHelpElevator, help.m_bHelpToolItem}) {
      bits += given ? "1" : "0";
    }
    return bits;
  }
  // All that a message may change, in one text.
  std::string Everything() const {
    std::string text = Current() + "|" + Previous() + "|" + logic->CurrentCursor() + "|" +
                       logic->PreviousCursor() + "|" + logic->ToolsState() + "|" + Help();
    for (bool flag : {logic->DialogActive(), logic->SkipNextClick(), logic->GameReset()}) {
      text += flag ? "|1" : "|0";
    }
    for (const std::string& name : Tools()) text += "|" + name;
    for (const std::string& name : Pointers()) text += "|" + name;
    text += "|" + DoctorState() + "|" + std::to_string(logic->Keeper()->Mementos().Count());
    for (const auto& call : host.calls) text += "|" + call;
    for (const auto& entry : logic->Keeper()->Cache()) {
      text += "|" + entry.key + std::to_string(entry.value.m_nAge);
    }
    return text;
  }

  static std::string NameOf(const ObjectRef& object) {
    return object == nullptr ? "(none)" : object->ObjectName();
  }

  NotedHost host;
  NotedTrace trace;
  std::shared_ptr<GameLogicLayer> logic;
};

}  // namespace quendle
