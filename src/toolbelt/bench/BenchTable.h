#pragma once

#include <string>

namespace quendle {

// `quendle bench` without a workload: prints a table of what the engine costs on a content tree, or
// the same as lines of JSON. Throws std::runtime_error when the game fails.
void PrintBenchTable(const std::string& content, bool json);

// The content tree that stands beside the executable; empty when none does.
std::string ContentBesideTheProgram();

}  // namespace quendle
