#include <iostream>
#include <memory>

#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/play/Replay.h"

namespace quendle {

void AddReplay(CLI::App& belt, int& exit_code) {
  CLI::App* command =
      AddCommand(belt, kPlaying, "replay",
                 "Plays a recorded session anew and tells where its state first differs");
  auto settings = std::make_shared<ReplaySettings>();
  AddContentTree(*command, "DIR", settings->content)->required();
  command
      ->add_option("SESSION", settings->session, "The session file; its sidecar stands beside it")
      ->required()
      ->check(CLI::ExistingFile);
  command->add_flag("--update", settings->update,
                    "Write the sidecar anew from what is found, instead of comparing");
  command->footer(Footer("", {"quendle replay build/release/bin tests/recordings/tour.txt"},
                         {{0, "the same as recorded"},
                          {1, "different: the first second, object and field are told"},
                          {3, "the game ended fatally"}}));
  command->callback([settings, &exit_code] { exit_code = RunReplay(*settings, std::cout); });
}

}  // namespace quendle
