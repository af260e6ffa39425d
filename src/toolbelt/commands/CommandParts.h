// What the commands' definitions share.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "toolbelt/drive/DriveSession.h"

namespace quendle {

// A command of a group of the help.
CLI::App* AddCommand(CLI::App& belt, const char* group, const char* name, const char* description);

// The option or the word that names the content tree: a folder that is there.
CLI::Option* AddContentTree(CLI::App& command, const char* name, std::string& folder);

// --difficulty: Easy, Normal or Hard; case is ignored.
void AddDifficulty(CLI::App& command, std::string& difficulty);

// How the game is started: --edition and --seed.
void AddEditionAndSeed(CLI::App& command, DriveOptions& options);

// --path: which drawing path is used.
inline constexpr const char* kWindowPath = "window";
void AddDrawingPath(CLI::App& command, std::string& path);

// One way a command can end.
struct ExitCode {
  int code;
  const char* meaning;
};

// A word of the command line as content writes it: 8-bit. What has no place there stays as it is,
// and is the name of nothing.
std::string ContentWord(const std::string& word);

// The end of a command's help: further text (may be empty; each line as it stands), examples, and
// exit codes. What every command has in common, 1 for a failed tool and 2 for a wrong command line,
// is added where the command says nothing of its own.
std::string Footer(const std::string& text, const std::vector<std::string>& examples,
                   std::vector<ExitCode> exits);

}  // namespace quendle
