#pragma once

#include <string>
#include <vector>

namespace quendle {

struct GameOptions;

// Where a run reads and writes.
struct GameFolders {
  std::string content;                // native absolute path; empty when no content was found
  std::vector<std::string> searched;  // where content was looked for, in order
  std::string user;                   // as asked for on the command line, or empty
  std::string fallback;               // the player's own folder for the program, or empty

  // The content tree is the one asked for, else the one beside the executable, else the installed
  // one. A folder is a content tree when it holds Info/screens.txt, in any case of letters.
  static GameFolders Find(const GameOptions& options, const std::string& program,
                          const std::string& executable_folder);
};

// The folder of the running executable; empty when the system doesn't tell.
std::string ExecutableFolder();

// What a player is told who has no content.
std::string ContentMissingText(const GameFolders& folders);

}  // namespace quendle
