#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "backends/files/DiskFileSystem.h"
#include "platform/Faults.h"
#include "toolbelt/TemporaryFolder.h"
#include "toolbelt/drive/DriveSession.h"

namespace quendle {

// The exit code of a tool whose game ended fatally.
inline constexpr int kGameFailed = 3;

// A content tree that is run as a player's first start: what a player left in the tree isn't seen,
// and nothing is written into it.
class ContentRun {
 public:
  // `content` is a native path; a folder that isn't there throws std::filesystem::filesystem_error,
  // one without content std::runtime_error.
  explicit ContentRun(const std::string& content, const DriveOptions& options = {});

  DriveSession& Session() { return session_; }
  // Starts the game and plays to the first screen. False when the game ended over it.
  bool Play(const std::string& difficulty = "Normal");
  // The screens of the table, without tools and cursors.
  std::vector<std::string> Screens();
  // Goes to a screen of the table; any other name throws CommandRefused with the nearest. False
  // when the game ended over it.
  bool Enter(const std::string& screen);
  // Tells the fault that ended the game; gives kGameFailed.
  int TellFault(std::ostream& out);

 private:
  std::string base_;
  TemporaryFolder user_;
  Faults faults_;
  DiskFileSystem files_;
  DriveSession session_;
};

// The commands of `quendle drive` that start the game at a difficulty and play to the first screen.
std::vector<std::string> CommandsToPlay(const std::string& difficulty);

}  // namespace quendle
