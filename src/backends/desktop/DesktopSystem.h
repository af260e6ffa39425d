#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

#include "backends/desktop/InstanceLock.h"
#include "platform/SystemServices.h"

namespace quendle {

// Services of a desktop of today.
class DesktopSystem : public SystemServices {
 public:
  // `beep` draws attention without sound.
  DesktopSystem(std::filesystem::path lock_file, std::function<void()> beep)
      : lock_(std::move(lock_file)), beep_(std::move(beep)) {}

  bool PreviousInstanceRuns() override { return !lock_.Take(); }
  int MajorVersion() override { return 10; }
  void OpenInShell(const std::string& address) override;
  void Beep() override {
    if (beep_) beep_();
  }

 private:
  InstanceLock lock_;
  std::function<void()> beep_;
};

// What is handed to the desktop for an address: web pages and mail as they are, a bare mail
// address as mail; empty for anything else, which is not opened.
std::string ShellAddress(const std::string& address);

}  // namespace quendle
