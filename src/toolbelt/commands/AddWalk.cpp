#include <iostream>
#include <memory>

#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/play/Walk.h"

namespace quendle {
namespace {

constexpr const char* kText =
    "The long walk clicks the patient of the screen in view with every tool, five rounds, and\n"
    "goes on to the next screen of the table; the short walk only goes from screen to screen.\n"
    "Nothing is written into the tree.\n";

}  // namespace

void AddWalk(CLI::App& belt, int& exit_code) {
  CLI::App* command = AddCommand(belt, kChecking, "walk",
                                 "Goes through all screens, in virtual time, and tells what "
                                 "happened on each");
  auto settings = std::make_shared<WalkSettings>();
  auto words = std::make_shared<std::string>();
  AddContentTree(*command, "DIR", settings->content)->required();
  command->add_flag("--short", settings->brief, "Only go from screen to screen");
  command
      ->add_option("--words", *words,
                   "Root names of tools to click with: a file with one a line, or words parted by "
                   "commas; without it, all tools of the global list")
      ->option_text("FILE|WORD,...");
  command
      ->add_option("--interval", settings->interval, "Milliseconds of the game from step to step")
      ->check(CLI::Range(10L, 3600000L))
      ->option_text("MS")
      ->capture_default_str();
  AddDifficulty(*command, settings->difficulty);
  AddEditionAndSeed(*command, settings->options);
  command->footer(Footer(kText,
                         {"quendle walk build/release/bin", "quendle walk mygame --words hand,soap",
                          "quendle walk mygame --short --interval 60000"},
                         {{0, "all screens were visited and the log warned of nothing"},
                          {1, "the log warned of something, or the tool failed"},
                          {3, "the game ended fatally"}}));
  command->callback([settings, words, &exit_code] {
    if (!words->empty()) settings->words = ReadActionWords(*words);
    exit_code = RunWalk(*settings, std::cout, std::cerr);
  });
}

}  // namespace quendle
