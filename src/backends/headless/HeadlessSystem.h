#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/SystemServices.h"

namespace quendle {

// System services that answer what they were told and note what they were asked.
class HeadlessSystem : public SystemServices {
 public:
  static constexpr int kCurrentVersion = 10;

  bool PreviousInstanceRuns() override { return other_instance_; }
  int MajorVersion() override { return version_; }
  void OpenInShell(const std::string& address) override { opened_.push_back(address); }
  void Beep() override { ++beeps_; }

  void SetOtherInstance(bool runs) { other_instance_ = runs; }
  void SetMajorVersion(int version) { version_ = version; }
  long Beeps() const { return beeps_; }
  // The addresses handed to the shell since last asked.
  std::vector<std::string> TakeOpened() { return std::exchange(opened_, {}); }

 private:
  bool other_instance_ = false;
  int version_ = kCurrentVersion;
  long beeps_ = 0;
  std::vector<std::string> opened_;
};

}  // namespace quendle
