#include "toolbelt/ToolBelt.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

#include "base/FatalError.h"
#include "base/Text.h"
#include "toolbelt/command_line/HelpFormatter.h"
#include "toolbelt/command_line/ManPage.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/drive/Arguments.h"

namespace quendle {
namespace {

constexpr int kUsageError = 2;
constexpr const char* kMan = "--man";

// In the order of the help, group by group.
constexpr void (*kCommands[])(CLI::App&, int&) = {
    AddDrive,  AddReplay,                       // playing
    AddVerify, AddWalk,    AddRandom, AddTree,  // checking
    AddNew,    AddPicture, AddRender,           // making
    AddBench,                                   // measuring
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

int TellUnknownWord(const CLI::App& belt, const std::string& word) {
  std::vector<std::string> names;
  for (const CLI::App* command : belt.get_subcommands({})) names.push_back(command->get_name());
  return TellUsageError("there is no command or word \"" + word + "\"" + DidYouMean(word, names));
}

// --man [COMMAND]: read here, since the parser would take a command's name for a call of it.
int PrintManPage(const CLI::App& belt, const std::vector<std::string>& words) {
  if (words.size() > 2) return TellUnknownWord(belt, words[2]);
  if (words.size() < 2) {
    std::cout << ManPageOfBelt(belt);
    return 0;
  }
  for (const CLI::App* command : belt.get_subcommands({})) {
    if (command->get_name() != words[1]) continue;
    std::cout << ManPageOfCommand(*command);
    return 0;
  }
  return TellUnknownWord(belt, words[1]);
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
  belt.add_option(kMan, "Print this page of the manual, or a command's, as roff")
      ->option_text("[COMMAND]");
  if (!words.empty() && words.front() == kMan) return PrintManPage(belt, words);
  std::ranges::reverse(words);  // the parser takes them from the back
  try {
    belt.parse(words);
  } catch (const CLI::Success& asked) {
    // Asking for help excuses no word that nothing knows.
    const std::vector<std::string> unknown = belt.remaining(true);
    return unknown.empty() ? belt.exit(asked) : TellUnknownWord(belt, unknown.front());
  } catch (const CLI::ExtrasError&) {
    return TellUnknownWord(belt, belt.remaining(true).front());
  } catch (const CLI::ParseError& error) {
    return TellUsageError(error.what());
  } catch (const CommandRefused& refused) {
    std::cerr << "quendle: " << ToUtf8(refused.what()) << "\n";  // names things of the content
    return 1;
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
