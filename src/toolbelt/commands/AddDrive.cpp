#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/drive/Drive.h"
#include "toolbelt/drive/DriveCommand.h"

namespace quendle {
namespace {

constexpr const char* kAnswers =
    "Each command is answered by one line of JSON. A line that begins with # or > is a\n"
    "comment.\n\n";

// Makes the folder, so that a place where it can't be is a wrong command line.
std::string FolderCanBeMade(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return std::filesystem::is_directory(folder) ? "" : folder + " can't be made a folder";
}

}  // namespace

void AddDrive(CLI::App& belt, int& exit_code) {
  CLI::App* command = AddCommand(belt, kPlaying, "drive",
                                 "Plays the game in virtual time, driven by one command a line");
  auto settings = std::make_shared<DriveSettings>();
  auto path = std::make_shared<std::string>("directdraw");
  DriveOptions& options = settings->options;
  AddContentTree(*command, "--content", settings->content)->required();
  command
      ->add_option("--user", settings->user,
                   "Where everything is written; without it, the content tree")
      ->check(FolderCanBeMade)
      ->option_text("DIR");
  AddEditionAndSeed(*command, options);
  AddDrawingPath(*command, *path);
  command->add_flag("--forgiving", options.forgiving,
                    "As for a family at home: good saves are kept, and a saved game that can't be "
                    "read gives way to one of them");
  command->add_flag("--other-instance", options.other_instance, "Another instance runs already");
  command->add_option("--system", options.system_version, "Major version of the system")
      ->option_text("N");
  command
      ->add_option("--tester", options.tester,
                   "Switch the recorder of user actions on, with a tick every MS milliseconds; it "
                   "asks two questions at play")
      ->check(CLI::Range(1, 32767))
      ->option_text("MS");
  command->add_option("FILE", settings->file, "The commands; without it, standard input")
      ->check(CLI::ExistingFile);
  command->footer(
      Footer(kAnswers + CommandHelp() + FaultHelp(),
             {"quendle drive --content build/release/bin --user /tmp/player tour.drive"},
             {{0, "all commands were read; a refused one is told in its answer"},
              {3, "the game ended fatally"}}));
  command->callback([settings, path, &exit_code] {
    settings->options.window_path = *path == kWindowPath;
    exit_code = RunDrive(*settings);
  });
}

}  // namespace quendle
