#pragma once

#include <string>

namespace quendle {

// `quendle bench` without a workload: plays a content tree and prints a table of what its frames,
// events, screens and saved games cost on this machine. Nothing is written into the tree. Throws
// std::runtime_error when the game fails.
void PrintBenchTable(const std::string& content);

}  // namespace quendle
