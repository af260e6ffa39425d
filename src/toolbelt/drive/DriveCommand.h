#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolbelt/Json.h"
#include "toolbelt/drive/Arguments.h"
#include "toolbelt/drive/DriveSession.h"

namespace quendle {

// One command of a session. `run` gives the fields of the answer, or throws CommandRefused.
struct DriveCommand {
  std::string_view usage;  // begins with the command's name
  std::string_view help;
  Json (*run)(DriveSession& session, Arguments& arguments);

  std::string_view Name() const { return usage.substr(0, usage.find(' ')); }
};

using CommandTable = std::vector<DriveCommand>;

// The families of commands.
const CommandTable& LaunchCommands();     // start-up form, dialogs and boxes
const CommandTable& PlayCommands();       // the game window's events, time and messages
const CommandTable& SeeingCommands();     // objects and state
const CommandTable& FrameCommands();      // the picture
const CommandTable& ArrangingCommands();  // chance, clock, failures

// All families, in the order of the help.
std::vector<const CommandTable*> AllCommands();
// The command of that name, or null.
const DriveCommand* FindCommand(std::string_view name);
// One line a command, for the help.
std::string CommandHelp();
// The operations that `fail` knows, for the help.
std::string FaultHelp();

}  // namespace quendle
