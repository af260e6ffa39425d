#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace quendle {

// Every operation of the platform that can be made to fail.
inline constexpr std::array<std::string_view, 38> kOperationsThatCanFail = {
    // the display
    "Create", "SetDisplayMode", "SetCooperativeLevel", "CreatePrimarySurface", "CreateSurface",
    "GetPixelFormat", "SetColorKey", "Blt", "GetDC", "ReleaseDC", "Restore", "TestMode", "SetMode",
    // contexts, bitmaps and regions
    "LoadImageA", "CreateCompatibleDC", "CreateCompatibleBitmap", "CreateMonochromeBitmap",
    "CreatePictureBitmap", "SelectObject", "GetObjectA", "BitBlt", "TransparentBlt",
    "CreatePolygonRgn", "FillRgn",
    // the window and the players
    "ReplaceWindowProc", "CreateGraph", "RenderFile",
    // files
    "probe", "read", "makefolder", "open", "write", "writepart", "flush", "rename", "flushfolder",
    "remove", "writeline"};

constexpr bool CanFail(std::string_view operation) {
  return std::find(kOperationsThatCanFail.begin(), kOperationsThatCanFail.end(), operation) !=
         kOperationsThatCanFail.end();
}

// One of these, by its name: a name that isn't among them doesn't compile.
class Operation {
 public:
  template <std::size_t kSize>
  consteval Operation(const char (&name)[kSize]) : name_(name) {  // NOLINT: a name is an operation
    if (!CanFail(name_)) throw std::invalid_argument("no operation that can fail");
  }
  std::string_view Name() const { return name_; }

 private:
  std::string_view name_;
};

// Failures on demand: a backend asks before each platform operation whether it fails this time.
class Faults {
 public:
  enum class Kind { kNone, kFail, kLost };

  // The operation fails `times` times (0: for ever), after `after` calls that go well. `lost`
  // makes a surface operation report lost memory instead of a plain failure. An operation that
  // nobody asks about is std::invalid_argument.
  void Plan(std::string_view operation, int after, int times, bool lost) {
    if (!CanFail(operation)) {
      throw std::invalid_argument("no operation that can fail: " + std::string(operation));
    }
    plans_[std::string(operation)] = {after, times, times == 0, lost};
  }

  // Asked about each operation before any plan: how it fails, or kNone. It may throw, as if the
  // process was stopped there.
  using Watcher = std::function<Kind(std::string_view operation)>;
  void Watch(Watcher watcher) { watcher_ = std::move(watcher); }

  // What happens to this call of `operation`.
  Kind Next(Operation operation) {
    if (watcher_) {
      if (const Kind kind = watcher_(operation.Name()); kind != Kind::kNone) return kind;
    }
    if (plans_.empty()) return Kind::kNone;
    auto found = plans_.find(operation.Name());
    if (found == plans_.end()) return Kind::kNone;
    Entry& plan = found->second;
    if (plan.after > 0) {
      --plan.after;
      return Kind::kNone;
    }
    if (!plan.always && plan.times-- <= 0) return Kind::kNone;
    return plan.lost ? Kind::kLost : Kind::kFail;
  }

  bool Fails(Operation operation) { return Next(operation) != Kind::kNone; }

 private:
  struct Entry {
    int after = 0;
    int times = 0;
    bool always = false;
    bool lost = false;
  };
  std::map<std::string, Entry, std::less<>> plans_;
  Watcher watcher_;
};

}  // namespace quendle
