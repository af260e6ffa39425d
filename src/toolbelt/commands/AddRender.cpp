#include <memory>

#include "toolbelt/Render.h"
#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"

namespace quendle {
namespace {

struct RenderWords {
  std::string content, screen, picture;
};

}  // namespace

void AddRender(CLI::App& belt, int& exit_code) {
  CLI::App* command =
      AddCommand(belt, kMaking, "render", "Writes the picture of a screen as a PNG file");
  auto words = std::make_shared<RenderWords>();
  AddContentTree(*command, "DIR", words->content)->required();
  command->add_option("SCREEN", words->screen, "Its name in the screen table")->required();
  command->add_option("OUT.png", words->picture, "The picture to write")->required();
  command->footer(Footer("", {"quendle render build/release/bin floor1hall1 hall.png"},
                         {{0, "the picture is written"}, {3, "the game ended fatally"}}));
  command->callback([words, &exit_code] {
    exit_code = RenderScreen(words->content, words->screen, words->picture);
  });
}

}  // namespace quendle
