#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "base/FatalError.h"

namespace quendle {

// Something with a place in the object tree, for messages.
class WorkPlace {
 public:
  virtual ~WorkPlace() = default;
  // "SCREEN/child/...".
  virtual std::string WorkPath() const = 0;
};

enum class Work { kMessage, kScript, kLoad, kTreeWalk };

// Counts the nesting of messages, scripts, loads and tree walks, so that content which goes round
// in circles ends with a message and not with the stack. After a fault it tells what was in work.
class WorkDepth {
 public:
  static constexpr int kLimit = 200;

  int Depth() const { return depth_; }
  // What was in work when the last exception passed: object path, and message or script line.
  const std::string& FailedObject() const { return failed_object_; }
  const std::string& FailedText() const { return failed_text_; }
  // Where that script line stands, or the one that sent the message; no file without one.
  const FilePlace& FailedPlace() const { return failed_place_; }
  void ForgetFailure();

 private:
  friend class DepthGuard;
  int depth_ = 0;
  bool noted_ = false;
  std::string failed_object_;
  std::string failed_text_;
  FilePlace failed_place_;
};

// One level of nesting. More than WorkDepth::kLimit levels are fatal, and the message names the
// work. `text`, `place` and `origin` must outlive the guard; the pointers may be null.
class DepthGuard {
 public:
  DepthGuard(WorkDepth& depth, Work work, std::string_view text, const WorkPlace* place = nullptr,
             const FilePlace* origin = nullptr)
      : depth_(depth), work_(work), text_(text), place_(place), origin_(origin) {
    if (depth_.depth_ >= WorkDepth::kLimit) Refuse();
    ++depth_.depth_;
  }
  ~DepthGuard() {
    --depth_.depth_;
    if (std::uncaught_exceptions() > uncaught_ && !depth_.noted_) Note();
  }
  DepthGuard(const DepthGuard&) = delete;
  DepthGuard& operator=(const DepthGuard&) = delete;

 private:
  [[noreturn]] void Refuse();
  void Note() noexcept;

  WorkDepth& depth_;
  Work work_;
  std::string_view text_;
  const WorkPlace* place_;
  const FilePlace* origin_;
  // At the start: a level that passes whole while another fault unwinds has not failed.
  int uncaught_ = std::uncaught_exceptions();
};

}  // namespace quendle
