#include "toolbelt/drive/DriveCommand.h"

#include <string>

namespace quendle {
namespace {

constexpr std::size_t kHelpColumn = 34;

}  // namespace

std::vector<const CommandTable*> AllCommands() {
  return {&LaunchCommands(), &PlayCommands(), &SeeingCommands(), &FrameCommands(),
          &ArrangingCommands()};
}

const DriveCommand* FindCommand(std::string_view name) {
  for (const CommandTable* table : AllCommands()) {
    for (const DriveCommand& command : *table) {
      if (command.Name() == name) return &command;
    }
  }
  return nullptr;
}

std::string CommandHelp() {
  std::string help;
  for (const CommandTable* table : AllCommands()) {
    for (const DriveCommand& command : *table) {
      std::string line = "  " + std::string(command.usage) + "  ";
      if (line.size() < kHelpColumn) line.append(kHelpColumn - line.size(), ' ');
      help += line + std::string(command.help) + "\n";
    }
    help += "\n";
  }
  return help;
}

}  // namespace quendle
