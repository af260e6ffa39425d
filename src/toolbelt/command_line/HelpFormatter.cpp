#include "toolbelt/command_line/HelpFormatter.h"

#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::size_t kColumn = 20;
constexpr std::size_t kWidth = 80;

// The name in the first column, the text wrapped in the second.
std::string Row(const std::string& name, const std::string& text) {
  const std::string margin(kColumn, ' ');
  std::string out, line = "  " + name;
  if (line.size() + 2 > kColumn) {
    out = line + "\n";
    line.clear();
  }
  line.resize(kColumn, ' ');
  bool first = true;
  for (const std::string& word : SplitTokens(text, ' ')) {
    if (!first && line.size() + 1 + word.size() > kWidth) {
      out += line + "\n";
      line = margin;
      first = true;
    }
    line += (first ? "" : " ") + word;
    first = false;
  }
  return out + line + "\n";
}

}  // namespace

std::string NamesOfOption(const CLI::Option& option) {
  if (option.get_positional()) return option.get_name(true, false);
  std::string names;
  for (const std::string& name : option.get_snames()) names += ", -" + name;
  for (const std::string& name : option.get_lnames()) names += ", --" + name;
  return names.substr(2);
}

std::string ArgumentOfOption(const CLI::Option& option) {
  if (option.get_positional() || option.get_type_size() == 0) return "";
  return option.get_option_text();
}

std::string HelpOfOption(const CLI::Option& option) {
  std::string help = option.get_description();
  if (!option.get_default_str().empty()) help += " (default: " + option.get_default_str() + ")";
  if (option.get_required() && !option.get_positional()) help += " (required)";
  return help;
}

HelpFormatter::HelpFormatter() {
  label("SUBCOMMAND", "COMMAND");
  label("Positionals", "Words");
}

std::string HelpFormatter::make_option(const CLI::Option* option, bool) const {
  const std::string argument = ArgumentOfOption(*option);
  return Row(NamesOfOption(*option) + (argument.empty() ? "" : " " + argument),
             HelpOfOption(*option));
}

std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
  return Row(command->get_name(), command->get_description());
}

}  // namespace quendle
