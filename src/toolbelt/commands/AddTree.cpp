#include <iostream>
#include <memory>

#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/making/TreeTool.h"

namespace quendle {

void AddTree(CLI::App& belt, int& exit_code) {
  CLI::App* command = AddCommand(belt, kChecking, "tree",
                                 "Prints the objects of a screen as they are when it is entered: "
                                 "type, state, position, size");
  auto settings = std::make_shared<TreeSettings>();
  AddContentTree(*command, "DIR", settings->content)->required();
  command->add_option("SCREEN", settings->screen,
                      "Its name in the screen table; without it, all screens and the global "
                      "objects");
  command->add_flag("--json", settings->json, "All that `quendle drive` tells of each object");
  AddEditionAndSeed(*command, settings->options);
  command->footer(Footer("Nothing is written into the tree.\n",
                         {"quendle tree build/release/bin dogroom",
                          "quendle tree build/release/bin --json > objects.json"},
                         {{0, "all was printed"}, {3, "the game ended fatally"}}));
  command->callback([settings, &exit_code] {
    settings->screen = ContentWord(settings->screen);
    exit_code = PrintTree(*settings, std::cout, std::cerr);
  });
}

}  // namespace quendle
