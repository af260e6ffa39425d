#pragma once

#include <array>
#include <cstddef>
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

enum class Work { kMessage, kScript, kLoad, kTreeWalk, kObject, kBlock };

class DepthGuard;

// Counts the nesting of messages, scripts, loads and tree walks, so that content which goes round
// in circles ends with a message and not with the stack. It also counts how much of each there is
// within one event, so that content which multiplies comes to an end. After a fault it tells what
// was in work.
class WorkDepth {
 public:
  static constexpr int kLimit = 200;
  // How much of each kind of work, in the order of the kinds, one event may bring about: far from
  // what a game of many screens needs.
  static const std::array<int, 6> kMost;
  static int MostOf(Work work) { return kMost[static_cast<std::size_t>(work)]; }

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
  std::array<int, 6> done_{};  // in the event in work, by kind
  const DepthGuard* innermost_ = nullptr;
  bool noted_ = false;
  std::string failed_object_;
  std::string failed_text_;
  FilePlace failed_place_;
};

// One level of nesting, and one piece of work of its kind. More than WorkDepth::kLimit levels are
// fatal, and so is more than WorkDepth::kMost in one event; the message names the work. An event is
// all that is done within one outermost level; a script line alone begins none, since its script
// goes on. `text`, `place` and `origin` must outlive the guard; the pointers may be null.
class DepthGuard {
 public:
  DepthGuard(WorkDepth& depth, Work work, std::string_view text, const WorkPlace* place = nullptr,
             const FilePlace* origin = nullptr)
      : depth_(depth), work_(work), text_(text), place_(place), origin_(origin) {
    const auto kind = static_cast<std::size_t>(work);
    if (depth_.depth_ == 0 && work != Work::kScript) depth_.done_ = {};
    if (depth_.depth_ >= WorkDepth::kLimit || ++depth_.done_[kind] > WorkDepth::kMost[kind]) {
      Refuse();
    }
    ++depth_.depth_;
    depth_.innermost_ = this;
  }
  ~DepthGuard() {
    --depth_.depth_;
    depth_.innermost_ = outer_;
    if (std::uncaught_exceptions() > uncaught_ && !depth_.noted_) Note();
  }
  DepthGuard(const DepthGuard&) = delete;
  DepthGuard& operator=(const DepthGuard&) = delete;

  // Fatal when more than `limit` levels of this kind of work are open, `things` inside one another.
  void KeepWithin(int limit, std::string_view things) const;

 private:
  [[noreturn]] void Refuse();
  // "the content goes round in circles at message "x"", or "is nested too deep".
  std::string WhyTooDeep() const;
  // Some level around does the same.
  bool Repeats() const;
  // What led here, the outermost first.
  std::string Chain() const;
  void Note() noexcept;

  WorkDepth& depth_;
  Work work_;
  std::string_view text_;
  const WorkPlace* place_;
  const FilePlace* origin_;
  const DepthGuard* outer_ = depth_.innermost_;
  // At the start: a level that passes whole while another fault unwinds has not failed.
  int uncaught_ = std::uncaught_exceptions();
};

}  // namespace quendle
