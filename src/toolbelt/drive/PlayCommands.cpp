// The game window's events, time, and messages.

#include <cmath>
#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>

#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "script/ActionText.h"
#include "script/Statement.h"
#include "toolbelt/drive/DriveCommand.h"
#include "toolbelt/drive/ObjectPath.h"
#include "toolbelt/drive/Views.h"

namespace quendle {
namespace {

constexpr long kLongestTick = 100L * 24 * 3600 * 1000;  // milliseconds
constexpr long kLargestKey = 65535;

Json WindowEvent(DriveSession& session, const std::function<void(HeadlessWindow&)>& event) {
  HeadlessWindow& window = session.Platform().window;
  if (!window.IsOpen()) throw CommandRefused("the game window is not open: use `play` first");
  session.Deliver([&] { event(window); });
  return Json::object();
}

// A coordinate of the window, which may have fractions.
double ReadCoordinate(Arguments& arguments) {
  const double value = arguments.Number();
  if (std::abs(value) > INT16_MAX) arguments.Refuse("no window is that large");
  return value;
}

Json Move(DriveSession& session, Arguments& arguments) {
  const double x = ReadCoordinate(arguments);
  const double y = ReadCoordinate(arguments);
  arguments.End();
  return WindowEvent(session, [=](HeadlessWindow& window) { window.Move(x, y); });
}

MouseButton ReadButton(Arguments& arguments) {
  if (arguments.Empty()) return MouseButton::kLeft;
  const std::string word = arguments.Word();
  if (EqualsNoCase(word, "left")) return MouseButton::kLeft;
  if (EqualsNoCase(word, "right")) return MouseButton::kRight;
  if (EqualsNoCase(word, "middle")) return MouseButton::kMiddle;
  arguments.Refuse("\"" + word + "\" is no button");
}

Json Click(DriveSession& session, Arguments& arguments) {
  const double x = ReadCoordinate(arguments);
  const double y = ReadCoordinate(arguments);
  const MouseButton button = ReadButton(arguments);
  arguments.End();
  return WindowEvent(session, [=](HeadlessWindow& window) { window.Click(x, y, button); });
}

Json Key(DriveSession& session, Arguments& arguments) {
  const int code = static_cast<int>(arguments.Whole(0, kLargestKey));
  arguments.End();
  return WindowEvent(session, [=](HeadlessWindow& window) { window.Key(code); });
}

bool ReadSwitch(Arguments& arguments) {
  const std::string word = arguments.Word();
  arguments.End();
  if (EqualsNoCase(word, "on")) return true;
  if (!EqualsNoCase(word, "off")) arguments.Refuse("\"" + word + "\" is neither on nor off");
  return false;
}

Json Focus(DriveSession& session, Arguments& arguments) {
  const bool on = ReadSwitch(arguments);
  return WindowEvent(session, [=](HeadlessWindow& window) { window.Focus(on); });
}

Json Close(DriveSession& session, Arguments& arguments) {
  arguments.End();
  HeadlessBackend& platform = session.Platform();
  if (platform.forms.InView() == nullptr) {
    return WindowEvent(session, [](HeadlessWindow& window) { window.CloseByPlayer(); });
  }
  if (!session.Deliver([&] { platform.forms.Close(); })) return Json::object();
  return FormAnswer(session);
}

long GatedTicks(DriveSession& session) {
  const Globals* globals = session.Game().Game();
  return globals == nullptr ? 0 : globals->objects.gated_ticks;
}

Json Tick(DriveSession& session, Arguments& arguments) {
  const Milliseconds time(arguments.Whole(0, kLongestTick));
  arguments.End();
  const long gated_before = GatedTicks(session);
  long ticks = 0;
  std::map<std::string, long> fired;
  session.Platform().Tick(
      time, [&](const std::function<void()>& work) { return session.Deliver(work); },
      [&](const std::string& callback) {
        ++ticks;
        ++fired[callback];
      });
  const long gated = GatedTicks(session) - gated_before;
  return {{"ticks", ticks}, {"fired", fired}, {"gated", gated}};
}

Json Draw(DriveSession& session, Arguments& arguments) {
  arguments.End();
  GameLogicLayer& logic = session.Logic();
  session.Deliver([&] { logic.draw(); });
  return Json::object();
}

Json HandMessage(DriveSession& session, MessageTarget& target, const std::string& message,
                 bool verifying) {
  bool result = true;
  session.Deliver([&] { target.HandleMessage(message, nullptr, verifying, result); });
  return {{"result", result}};
}

Json Send(DriveSession& session, Arguments& arguments) {
  return HandMessage(session, session.Logic(), arguments.Rest(), false);
}

Json Ask(DriveSession& session, Arguments& arguments) {
  return HandMessage(session, session.Logic(), arguments.Rest(), true);
}

Json Tell(DriveSession& session, Arguments& arguments) {
  const ObjectRef object = ObjectAt(session, arguments.Word());
  return HandMessage(session, *object, arguments.Rest(), false);
}

Json AskTell(DriveSession& session, Arguments& arguments) {
  const ObjectRef object = ObjectAt(session, arguments.Word());
  return HandMessage(session, *object, arguments.Rest(), true);
}

Json Interpret(DriveSession& session, Arguments& arguments) {
  const ObjectRef object = ObjectAt(session, arguments.Word());
  const Statement statement(arguments.Rest());
  bool result = true;
  session.Deliver([&] { object->Interpret(statement, false, result); });
  return Json::object();
}

Json Event(DriveSession& session, Arguments& arguments) {
  const ObjectRef object = ObjectAt(session, arguments.Word());
  const std::int16_t x = arguments.Coordinate();
  const std::int16_t y = arguments.Coordinate();
  const ActionText action(arguments.Rest());
  session.Deliver([&] { object->UpdateGameObject(x, y, action); });
  return Json::object();
}

Json Peek(DriveSession& session, Arguments& arguments) {
  const ObjectRef object = ObjectAt(session, arguments.Word());
  const std::int16_t x = arguments.Coordinate();
  const std::int16_t y = arguments.Coordinate();
  const std::string action = arguments.Rest();
  std::string text;
  session.Deliver([&] { text = object->PeekCurrentState(x, y, action); });
  return {{"text", TextJson(text)}};
}

}  // namespace

const CommandTable& PlayCommands() {
  static const CommandTable kTable = {
      {"move X Y", "the pointer moves; pixels of the frame, may be fractions", Move},
      {"click X Y [left|right|middle]", "a press of a button", Click},
      {"key CODE", "a key is pressed", Key},
      {"focus on|off", "the application gains or loses the focus", Focus},
      {"close", "the form in view, or the game window, is asked to close", Close},
      {"tick MS", "let MS of virtual time pass", Tick},
      {"draw", "paint and present one frame", Draw},
      {"send MESSAGE", "a message to the game logic", Send},
      {"ask MESSAGE", "the same, verifying", Ask},
      {"tell PATH MESSAGE", "a message to one object", Tell},
      {"asktell PATH MESSAGE", "the same, verifying", AskTell},
      {"interpret PATH LINE", "one script line on an object", Interpret},
      {"event PATH X Y ACTION", "an event for an object and its children", Event},
      {"peek PATH X Y ACTION", "the text that a script would get for that event", Peek},
  };
  return kTable;
}

}  // namespace quendle
