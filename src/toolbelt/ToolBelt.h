#pragma once

#include <string>
#include <vector>

namespace quendle {

// Runs the tool belt on the words of its command line (without the program's name) and gives the
// exit code: 0 all well, 1 findings or a failed tool, 2 a usage error, 3 a game that ended fatally.
int RunToolBelt(std::vector<std::string> words);

}  // namespace quendle
