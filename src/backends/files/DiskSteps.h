#pragma once

#include <cerrno>
#include <functional>
#include <string_view>
#include <utility>

#include "platform/Faults.h"

namespace quendle {

// Every operation that changes the disk passes here first, so that it can fail on demand and so
// that a test can stop the process between any two of them.
class DiskSteps {
 public:
  using Watcher = std::function<void(std::string_view operation)>;

  explicit DiskSteps(Faults& faults) : faults_(faults) {}

  void Watch(Watcher watcher) { watcher_ = std::move(watcher); }

  // Whether the operation may go on; errno tells why not.
  bool Allows(Operation operation) {
    if (watcher_) watcher_(operation.Name());
    if (!faults_.Fails(operation)) return true;
    errno = EIO;
    return false;
  }

 private:
  Faults& faults_;
  Watcher watcher_;
};

}  // namespace quendle
