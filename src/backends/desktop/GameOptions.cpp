#include "backends/desktop/GameOptions.h"

#include <CLI/CLI.hpp>
#include <map>

namespace quendle {

GameOptions GameOptions::Parse(const std::string& program, int argc, const char* const* argv,
                               std::optional<int>& exit_code) {
  GameOptions options;
  bool in_window = false;
  CLI::App app("A point-and-click animal clinic for young children.", program);
  app.add_flag("--window", in_window, "Play in a window; Alt+Enter switches to full screen");
  const std::map<std::string, ScaleMode> modes = {
      {"sharp", ScaleMode::kSharp}, {"whole", ScaleMode::kWhole}, {"smooth", ScaleMode::kSmooth}};
  std::string scale = "sharp";
  app.add_option("--scale", scale, "How the picture grows: sharp, whole or smooth")
      ->check(CLI::IsMember({"sharp", "whole", "smooth"}))
      ->capture_default_str();
  app.add_option("--content", options.content, "Folder of the game's content")
      ->check(CLI::ExistingDirectory);
  app.add_option("--user", options.user, "Folder for saved games and settings");
  bool captions = false;
  const CLI::Option* captions_word =
      app.add_flag("--captions,!--no-captions", captions,
                   "Show what is said as text, or don't; F2 switches it in the game and keeps it");
  constexpr const char* kTesterInterval = "50";
  std::int16_t interval = 0;
  CLI::Option* tester =
      app.add_option("--tester", interval,
                     "Record or play user actions, with a tick every MS milliseconds (50)")
          ->expected(0, 1)
          ->default_str(kTesterInterval)
          ->check(CLI::Range(1, 32767))
          ->option_text("[MS]");
  app.add_flag("--debug", options.debug,
               "For authors: play in a window, with the event log in a second one; F12 shows what "
               "lies under the pointer");
  app.add_flag("--version", options.version,
               "Tell build, libraries, drawing backend and folders, and end");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    exit_code = app.exit(error) == 0 ? 0 : 2;
  }
  if (captions_word->count() > 0) options.captions = captions;
  if (tester->count() > 0) options.tester = interval;
  options.window.full_screen = !in_window && !options.debug;
  options.window.scale = modes.at(scale);
  return options;
}

}  // namespace quendle
