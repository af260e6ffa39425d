// The start-up form, the dialogs and the boxes.

#include <cmath>
#include <nlohmann/json.hpp>

#include "base/Numbers.h"
#include "base/Text.h"
#include "toolbelt/drive/DriveCommand.h"
#include "toolbelt/drive/Views.h"

namespace quendle {
namespace {

constexpr const char* kButtons = "Picture1";
constexpr int kFirstButton = 1;  // Play on the start-up form, OK on the dialogs
constexpr int kMostFormsOnTheWay = 8;
constexpr long kLargestIndex = 1000;
constexpr long kLargestPixel = 32767;

struct ControlName {
  std::string name;
  int index = 0;
};

// "N" is an element of Picture1, "NAME [INDEX]" another control.
ControlName ReadControl(Arguments& arguments) {
  ControlName control{arguments.Word(), 0};
  if (const auto number = ParseNumber(control.name)) {
    if (*number != std::floor(*number) || *number < 0 || *number > kLargestIndex) {
      arguments.Refuse("\"" + control.name + "\" is no number of a button");
    }
    control = {kButtons, static_cast<int>(*number)};
  } else if (!arguments.Empty()) {
    control.index = static_cast<int>(arguments.Whole(0, kLargestIndex));
  }
  arguments.End();
  return control;
}

// Runs a form event; a control that isn't there, or can't be reached, refuses the command.
Json FormEvent(DriveSession& session, const std::string& what, const std::function<bool()>& event) {
  bool reached = false;
  const bool running = session.Deliver([&] { reached = event(); });
  if (!running) return Json::object();
  if (!reached) throw CommandRefused(what + " can't be reached on the form in view");
  return FormAnswer(session);
}

std::string Describe(const ControlName& control) {
  return "\"" + control.name + "\" " + std::to_string(control.index);
}

void RequireStart(DriveSession& session) {
  if (!session.Started()) throw CommandRefused("the process has not been started: use `start`");
}

Json Start(DriveSession& session, Arguments& arguments) {
  arguments.End();
  if (session.Started()) throw CommandRefused("the process has been started already");
  session.Start();
  return session.Running() ? FormAnswer(session) : Json::object();
}

// Gives the answer that lets the launch go on: Normal where something is asked, then OK or Play.
void AcceptForm(HeadlessFormHost& host, const Form& form) {
  if (EqualsNoCase(form.name, "frmSafeMode")) host.Set("optNormal", 0, 1);
  if (EqualsNoCase(form.name, "frmDifficultyMenu")) host.Set("optMedium", 0, 1);
  host.Press(kButtons, kFirstButton);
}

Json Play(DriveSession& session, Arguments& arguments) {
  arguments.End();
  HeadlessBackend& platform = session.Platform();
  if (platform.window.IsOpen()) throw CommandRefused("the game is on already");
  if (!session.Started()) session.Start();
  for (int i = 0; i < kMostFormsOnTheWay && session.Running() && !platform.window.IsOpen(); ++i) {
    const Form* form = platform.forms.InView();
    if (form == nullptr) break;
    session.Deliver([&] { AcceptForm(platform.forms, *form); });
  }
  if (!session.Running()) return Json::object();
  if (!platform.window.IsOpen()) throw CommandRefused("the game could not be reached");
  return StateAnswer(session);
}

Json ShowForm(DriveSession& session, Arguments& arguments) {
  arguments.End();
  return FormAnswer(session);
}

Json Over(DriveSession& session, Arguments& arguments) {
  RequireStart(session);
  HeadlessFormHost& host = session.Platform().forms;
  const ControlName control = ReadControl(arguments);
  if (EqualsNoCase(control.name, "form")) {
    return FormEvent(session, "the form", [&] { return host.OverForm(); });
  }
  return FormEvent(session, Describe(control),
                   [&] { return host.Over(control.name, control.index); });
}

Json Press(DriveSession& session, Arguments& arguments) {
  RequireStart(session);
  const ControlName control = ReadControl(arguments);
  return FormEvent(session, Describe(control),
                   [&] { return session.Platform().forms.Press(control.name, control.index); });
}

int ReadValue(Arguments& arguments) {
  const std::string word = arguments.Word();
  if (EqualsNoCase(word, "on")) return 1;
  if (EqualsNoCase(word, "off")) return 0;
  const auto number = ParseNumber(word);
  if (!number) arguments.Refuse("\"" + word + "\" is neither on, off nor a number");
  return static_cast<int>(ToInt16(*number, "value of a control"));
}

Json Set(DriveSession& session, Arguments& arguments) {
  RequireStart(session);
  const std::string control = arguments.Word();
  const int value = ReadValue(arguments);
  arguments.End();
  return FormEvent(session, "that value of \"" + control + "\"",
                   [&] { return session.Platform().forms.Set(control, 0, value); });
}

Json PressPoint(DriveSession& session, Arguments& arguments) {
  RequireStart(session);
  const int x = static_cast<int>(arguments.Whole(0, kLargestPixel));
  const int y = static_cast<int>(arguments.Whole(0, kLargestPixel));
  arguments.End();
  return FormEvent(session, "the picture Image1", [&] {
    return session.Platform().forms.Press("Image1", 0, {x, y});
  });
}

Json QueueAnswer(DriveSession& session, Arguments& arguments) {
  session.Platform().boxes.QueueAnswer(arguments.Rest());
  return Json::object();
}

Json ShowBoxes(DriveSession& session, Arguments& arguments) {
  arguments.End();
  return {{"boxes", DescribeBoxes(session.Platform().boxes.TakeShown())}};
}

Json Opened(DriveSession& session, Arguments& arguments) {
  arguments.End();
  return {{"opened", TextListJson(session.Platform().system.TakeOpened())}};
}

Json Quit(DriveSession& session, Arguments& arguments) {
  arguments.End();
  session.AskToQuit();
  return Json::object();
}

}  // namespace

const CommandTable& LaunchCommands() {
  static const CommandTable kTable = {
      {"start", "process start, up to the waiting start-up form", Start},
      {"play", "start, then Play, up to the first screen; questions get OK with Normal", Play},
      {"form", "the form in view and its controls", ShowForm},
      {"over N | NAME [INDEX] | form", "pointer over element N of Picture1, a control, the form",
       Over},
      {"press N | NAME [INDEX]", "press on element N of Picture1 or on another control", Press},
      {"set CONTROL on|off|NUMBER", "set an option, a check or a scroll bar", Set},
      {"point X Y", "press on Image1, in pixels of the picture", PressPoint},
      {"answer TEXT", "queue the answer of the next box: ok, yes, no, a text, a path, cancel",
       QueueAnswer},
      {"boxes", "the boxes shown since last asked", ShowBoxes},
      {"opened", "the addresses handed to the shell since last asked", Opened},
      {"quit", "end here, without an orderly end of the game", Quit},
  };
  return kTable;
}

}  // namespace quendle
