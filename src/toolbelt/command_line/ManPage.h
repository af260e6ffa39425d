#pragma once

#include <string>

namespace CLI {
class App;
}

namespace quendle {

// The page of the manual of the whole belt, or of one of its commands, as roff: made of the same
// definitions as the help.
std::string ManPageOfBelt(const CLI::App& belt);
std::string ManPageOfCommand(const CLI::App& command);

}  // namespace quendle
