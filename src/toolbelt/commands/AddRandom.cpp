#include <iostream>
#include <memory>

#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/play/RandomPlay.h"

namespace quendle {
namespace {

constexpr const char* kText =
    "Events are moves and presses of the pointer, at objects and anywhere, keys, the loss of the\n"
    "focus, and time that passes. After a fault, events are left out as long as the rest still\n"
    "shows it; what is left is printed as a script for `quendle drive`. Nothing is written into\n"
    "the tree.\n";

}  // namespace

void AddRandom(CLI::App& belt, int& exit_code) {
  CLI::App* command = AddCommand(belt, kChecking, "random",
                                 "Plays wild events in virtual time, up to the first fault");
  auto settings = std::make_shared<RandomSettings>();
  auto path = std::make_shared<std::string>("directdraw");
  AddContentTree(*command, "DIR", settings->content)->required();
  command->add_option("--events", settings->events, "How many events are played")
      ->check(CLI::Range(1L, 100000000L))
      ->option_text("N")
      ->capture_default_str();
  command->add_option("--from", settings->from, "The screen where each game begins")
      ->option_text("SCREEN");
  command->add_option("--output", settings->output, "Saves the script of a fault, too")
      ->option_text("FILE");
  AddDifficulty(*command, settings->difficulty);
  AddDrawingPath(*command, *path);
  AddEditionAndSeed(*command, settings->options);
  command->footer(Footer(kText,
                         {"quendle random build/release/bin --seed 7 --events 5000",
                          "quendle random mygame --from garden --output fault.drive"},
                         {{0, "no fault was found"}, {3, "the game ended fatally"}}));
  command->callback([settings, path, &exit_code] {
    settings->options.window_path = *path == kWindowPath;
    settings->from = ContentWord(settings->from);
    exit_code = PlayRandomly(*settings, std::cout, std::cerr);
  });
}

}  // namespace quendle
