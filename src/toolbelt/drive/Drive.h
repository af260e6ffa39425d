#pragma once

#include <iosfwd>
#include <string>

#include "toolbelt/Json.h"
#include "toolbelt/drive/DriveSession.h"

namespace quendle {

// Carries out one command line and gives its whole answer.
Json RunCommandLine(DriveSession& session, const std::string& line);

// Carries out the commands of `in`, one per line; each is answered by one line on `out`. Gives the
// exit code: 0, or 3 when the game ended fatally.
int RunDriveSession(DriveSession& session, std::istream& in, std::ostream& out);

// `quendle drive`.
struct DriveSettings {
  std::string content;  // native path of the content tree
  std::string user;     // a folder, where everything is written; empty: the content tree
  std::string file;     // commands; empty: standard input
  DriveOptions options;
};
int RunDrive(const DriveSettings& settings);

}  // namespace quendle
