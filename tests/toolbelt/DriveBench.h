// What the tests of the automation protocol stand on: a session on the smallest content, in memory.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "backends/files/MemoryFileSystem.h"
#include "toolbelt/drive/Drive.h"
#include "toolbelt/making/SmallestContent.h"

namespace quendle {

struct DriveBench {
  explicit DriveBench(DriveOptions drive_options = {}) : options(drive_options) {
    static const std::vector<ContentPiece> content = SmallestContent();
    for (const ContentPiece& piece : content) files.Put(piece.path, piece.bytes);
  }

  DriveSession& Session() {
    if (!session) session = std::make_unique<DriveSession>(files, faults, "", options);
    return *session;
  }
  Json Run(const std::string& line) { return RunCommandLine(Session(), line); }
  // A command that must be carried out.
  Json Do(const std::string& line) {
    Json answer = Run(line);
    EXPECT_TRUE(answer["ok"] == true) << line << ": " << answer.dump();
    return answer;
  }
  // The error of a command that must be refused, after which the session goes on.
  std::string Refused(const std::string& line) {
    const Json answer = Run(line);
    EXPECT_TRUE(answer["ok"] == false && answer.contains("error")) << line << answer.dump();
    EXPECT_TRUE(Session().Running());
    return answer.value("error", "");
  }
  // A whole session: the answers, one a line.
  std::string Play(const std::string& commands) {
    std::istringstream in(commands);
    std::ostringstream out;
    exit_code = RunDriveSession(Session(), in, out);
    return out.str();
  }
  // The process ends; the next command begins another one on the same files.
  void Restart() { session.reset(); }

  DriveOptions options;
  Faults faults;
  MemoryFileSystem files{"", &faults};
  std::unique_ptr<DriveSession> session;
  int exit_code = -1;
};

}  // namespace quendle
