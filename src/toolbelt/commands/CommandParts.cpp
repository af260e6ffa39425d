#include "toolbelt/commands/CommandParts.h"

#include <algorithm>

#include "base/Text.h"

namespace quendle {

CLI::App* AddCommand(CLI::App& belt, const char* group, const char* name, const char* description) {
  CLI::App* command = belt.add_subcommand(name, description);
  command->group(group);
  return command;
}

CLI::Option* AddContentTree(CLI::App& command, const char* name, std::string& folder) {
  return command.add_option(name, folder, "The content tree")
      ->check(CLI::ExistingDirectory)
      ->option_text("DIR");
}

void AddDifficulty(CLI::App& command, std::string& difficulty) {
  command.add_option("--difficulty", difficulty, "The answer to the game's first question")
      ->transform(CLI::IsMember({"Easy", "Normal", "Hard"}, CLI::ignore_case))
      ->option_text("Easy|Normal|Hard")
      ->capture_default_str();
}

void AddEditionAndSeed(CLI::App& command, DriveOptions& options) {
  command.add_option("--edition", options.edition, "2 is the product, 1 its sibling")
      ->check(CLI::IsMember({1, 2}))
      ->option_text("1|2")
      ->capture_default_str();
  command.add_option("--seed", options.seed, "Where chance begins")
      ->option_text("N")
      ->capture_default_str();
}

void AddDrawingPath(CLI::App& command, std::string& path) {
  command.add_option("--path", path, "directdraw, or window: the first drawing path fails")
      ->check(CLI::IsMember({"directdraw", kWindowPath}))
      ->option_text("PATH")
      ->capture_default_str();
}

std::string ContentWord(const std::string& word) { return FromUtf8(word).value_or(word); }

std::string Footer(const std::string& text, const std::vector<std::string>& examples,
                   std::vector<ExitCode> exits) {
  for (const ExitCode& common : {ExitCode{1, "something failed; the reason is on standard error"},
                                 ExitCode{2, "a wrong command line"}}) {
    if (std::ranges::find(exits, common.code, &ExitCode::code) == exits.end()) {
      exits.push_back(common);
    }
  }
  std::ranges::sort(exits, {}, &ExitCode::code);
  std::string footer = text.empty() ? "" : text + "\n";
  footer += examples.size() == 1 ? "Example:\n" : "Examples:\n";
  for (const std::string& example : examples) footer += "  " + example + "\n";
  footer += "\nExit code:\n";
  for (const ExitCode& exit : exits) {
    footer += "  " + std::to_string(exit.code) + "  " + exit.meaning + "\n";
  }
  footer.pop_back();
  return footer;
}

}  // namespace quendle
