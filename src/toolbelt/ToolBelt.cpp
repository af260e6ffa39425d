#include "toolbelt/ToolBelt.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "base/FatalError.h"
#include "toolbelt/HelpFormatter.h"
#include "toolbelt/commands/Commands.h"

namespace quendle {
namespace {

constexpr int kUsageError = 2;

// In the order of the help, group by group.
constexpr void (*kCommands[])(CLI::App&, int&) = {
    AddDrive,  AddReplay,              // playing
    AddVerify, AddWalk,    AddTree,    // checking
    AddNew,    AddPicture, AddRender,  // making
    AddBench,                          // measuring
};

constexpr const char* kFooter =
    "`quendle COMMAND --help` tells a command's words and options, with an example.\n\n"
    "Exit code:\n"
    "  0  all well\n"
    "  1  something was found, or failed\n"
    "  2  a wrong command line\n"
    "  3  a game ended fatally";

int TellUsageError(const std::string& text) {
  std::cerr << "quendle: " << text << "\nRun with --help for more information.\n";
  return kUsageError;
}

int TellUnknownWord(const CLI::App& belt) {
  const std::vector<std::string> unknown = belt.remaining(true);
  std::vector<std::string> names;
  for (const CLI::App* command : belt.get_subcommands({})) names.push_back(command->get_name());
  return TellUsageError("there is no command or word \"" + unknown.front() + "\"" +
                        DidYouMean(unknown.front(), names));
}

}  // namespace

int RunToolBelt(std::vector<std::string> words) {
  CLI::App belt("The tool belt of the clinic's authors. No window is ever needed.", "quendle");
  belt.formatter(std::make_shared<HelpFormatter>());
  belt.get_help_ptr()->description("Tell all this");
  belt.require_subcommand(0, 1);  // none at all is answered below, with the help
  belt.footer(kFooter);
  int exit_code = 0;
  for (const auto add : kCommands) add(belt, exit_code);
  std::ranges::reverse(words);  // the parser takes them from the back
  try {
    belt.parse(words);
  } catch (const CLI::Success& asked) {
    // Asking for help excuses no word that nothing knows.
    return belt.remaining(true).empty() ? belt.exit(asked) : TellUnknownWord(belt);
  } catch (const CLI::ExtrasError&) {
    return TellUnknownWord(belt);
  } catch (const CLI::ParseError& error) {
    return TellUsageError(error.what());
  } catch (const std::exception& error) {
    std::cerr << "quendle: " << error.what() << "\n";
    return 1;
  }
  if (belt.get_subcommands().empty()) {
    std::cerr << belt.help();
    return kUsageError;
  }
  return exit_code;
}

}  // namespace quendle
