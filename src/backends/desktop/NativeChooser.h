#pragma once

#include <string>
#include <vector>

#include "platform/Boxes.h"

namespace quendle {

// The desktop's own file chooser, by the helper program that desktops bring for scripts (kdialog
// or zenity). It runs beside us; our own windows are still drawn meanwhile.
class NativeChooser {
 public:
  // Starts it. Without such a helper, or when it can't be started, IsRunning is false.
  NativeChooser(const std::string& title, const std::vector<FileFilter>& filters,
                const std::string& folder);
  ~NativeChooser();
  NativeChooser(const NativeChooser&) = delete;
  NativeChooser& operator=(const NativeChooser&) = delete;

  // Takes what it has told; false when it has ended.
  bool IsRunning();
  // False when no helper was there or it failed: then another chooser is needed.
  bool Served() const { return served_; }
  // The chosen native path; empty when it was cancelled.
  const std::string& Answer() const { return answer_; }

 private:
  void Start(const std::vector<std::string>& command);
  void ReadOutput();
  void Finish(int status);

  int child_ = -1;   // number of its process
  int output_ = -1;  // descriptor
  bool served_ = false;
  std::string told_;
  std::string answer_;
};

// The command that shows the chooser with a helper, by its name ("kdialog", "zenity").
std::vector<std::string> ChooserCommand(const std::string& helper, const std::string& title,
                                        const std::vector<FileFilter>& filters,
                                        const std::string& folder);

}  // namespace quendle
