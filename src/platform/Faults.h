#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace quendle {

// Failures on demand: a backend asks before each platform operation whether it fails this time.
class Faults {
 public:
  enum class Kind { kNone, kFail, kLost };

  // The operation fails `times` times (0: for ever), after `after` calls that go well. `lost`
  // makes a surface operation report lost memory instead of a plain failure.
  void Plan(std::string operation, int after, int times, bool lost) {
    plans_[std::move(operation)] = {after, times, times == 0, lost};
  }

  // What happens to this call of `operation`.
  Kind Next(std::string_view operation) {
    if (plans_.empty()) return Kind::kNone;
    auto found = plans_.find(operation);
    if (found == plans_.end()) return Kind::kNone;
    Entry& plan = found->second;
    if (plan.after > 0) {
      --plan.after;
      return Kind::kNone;
    }
    if (!plan.always && plan.times-- <= 0) return Kind::kNone;
    return plan.lost ? Kind::kLost : Kind::kFail;
  }

  bool Fails(std::string_view operation) { return Next(operation) != Kind::kNone; }

 private:
  struct Entry {
    int after = 0;
    int times = 0;
    bool always = false;
    bool lost = false;
  };
  std::map<std::string, Entry, std::less<>> plans_;
};

}  // namespace quendle
