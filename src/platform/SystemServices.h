#pragma once

#include <string>

namespace quendle {

// Small services of the operating system that the launch needs.
class SystemServices {
 public:
  virtual ~SystemServices() = default;
  // Another instance of the application runs. Asked once, at start.
  virtual bool PreviousInstanceRuns() = 0;
  // Major version number of the system; below 5 the player is asked whether to go on.
  virtual int MajorVersion() = 0;
  // ShellExecuteA: hands an address (web page or mailto:) to the desktop. The outcome is ignored.
  virtual void OpenInShell(const std::string& address) = 0;
  virtual void Beep() = 0;
};

}  // namespace quendle
