#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace quendle {

// The names of an option as typed, such as "-h, --help" or "DIR".
std::string NamesOfOption(const CLI::Option& option);
// What stands behind its name, such as "N"; empty for a flag or a word without a name.
std::string ArgumentOfOption(const CLI::Option& option);
// Its description, with the default and whether it must be given.
std::string HelpOfOption(const CLI::Option& option);

// The help of the tool belt: descriptions in one column, wrapped at 80 characters.
class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter();
  std::string make_option(const CLI::Option* option, bool is_positional) const override;
  std::string make_subcommand(const CLI::App* command) const override;
};

}  // namespace quendle
