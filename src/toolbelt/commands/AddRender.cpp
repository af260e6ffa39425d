#include <iostream>
#include <memory>

#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/making/Render.h"

namespace quendle {

void AddRender(CLI::App& belt, int& exit_code) {
  CLI::App* command =
      AddCommand(belt, kMaking, "render", "Writes the picture of a screen as a PNG file");
  auto settings = std::make_shared<RenderSettings>();
  auto no_pointer = std::make_shared<bool>(false);
  auto path = std::make_shared<std::string>("directdraw");
  AddContentTree(*command, "DIR", settings->content)->required();
  CLI::Option* screen =
      command->add_option("SCREEN", settings->screen, "Its name in the screen table");
  CLI::Option* picture = command->add_option("OUT.png", settings->picture, "The picture to write");
  command
      ->add_option("--all", settings->folder,
                   "Instead of SCREEN and OUT.png: every screen, as SCREEN.png in this folder")
      ->option_text("FOLDER")
      ->excludes(screen)
      ->excludes(picture);
  command
      ->add_option(
          "--state", settings->states,
          "Puts an object of the screen, such as dog or shelf/cup, into a state first; may "
          "be given several times")
      ->option_text("OBJECT=STATE")
      ->check([](const std::string& pair) {
        const std::size_t cut = pair.find('=');
        const bool whole = cut != std::string::npos && cut > 0 && cut + 1 < pair.size();
        return whole ? "" : "\"" + pair + "\" has not the form OBJECT=STATE";
      })
      ->expected(1)
      ->take_all()
      ->excludes("--all");
  command->add_option("--after", settings->after, "Milliseconds of the game before the picture")
      ->check(CLI::Range(0L, 3600000L))
      ->option_text("MS");
  command->add_flag("--no-pointer", *no_pointer, "Leave the pointer out");
  AddDrawingPath(*command, *path);
  AddEditionAndSeed(*command, settings->options);
  command->footer(Footer("Nothing is written into the tree.\n",
                         {"quendle render build/release/bin floor1hall1 hall.png",
                          "quendle render build/release/bin dogroom dog.png --state dog=better1",
                          "quendle render build/release/bin --all pictures --after 2000"},
                         {{0, "the picture is written"}, {3, "the game ended fatally"}}));
  command->callback([settings, no_pointer, path, &exit_code] {
    if (settings->folder.empty() && settings->picture.empty()) {
      throw CLI::RequiredError("SCREEN and OUT.png, or --all,");
    }
    settings->pointer = !*no_pointer;
    settings->options.window_path = *path == kWindowPath;
    settings->screen = ContentWord(settings->screen);
    for (std::string& state : settings->states) state = ContentWord(state);
    exit_code = RenderScreens(*settings, std::cerr);
  });
}

}  // namespace quendle
