// Ends a process right before each step that it makes on the disk, one process for each step.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "backends/files/DiskFileSystem.h"

namespace quendle {

struct StopOutcome {
  int steps = 0;  // of the whole work
  std::set<std::string> seen;
};

// Runs `work` in one process for each of its steps and ends that process right before the step;
// what `look` finds afterwards is collected.
inline StopOutcome StopAtEveryStep(const std::function<void(DiskFileSystem&)>& work,
                                   const std::function<DiskFileSystem(Faults&)>& open,
                                   const std::function<std::string()>& look) {
  StopOutcome outcome;
  constexpr int kStopped = 77;
  constexpr int kMostSteps = 1000;
  for (int stop = 0; stop < kMostSteps; ++stop) {
    pid_t child = fork();
    if (child == 0) {
      Faults faults;
      DiskFileSystem files = open(faults);
      int step = 0;
      files.WatchSteps([&](std::string_view) {
        if (step++ == stop) _exit(kStopped);
      });
      work(files);
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    outcome.seen.insert(look());
    if (WEXITSTATUS(status) != kStopped) {
      EXPECT_EQ(WEXITSTATUS(status), 0);
      outcome.steps = stop;
      return outcome;
    }
  }
  ADD_FAILURE() << "the work never ends";
  return outcome;
}

}  // namespace quendle
