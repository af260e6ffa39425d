#pragma once

#include <string>
#include <vector>

namespace quendle {

// A kind of file that a file chooser offers.
struct FileFilter {
  std::string name;     // "Bitmap Files (*.bmp)"
  std::string pattern;  // "*.jpg;*.jpeg": * stands for any text, case is ignored
};

// Modal questions. While a box stands, the message loop runs: timers go on.
class Boxes {
 public:
  virtual ~Boxes() = default;
  // A text with one OK button.
  virtual void MessageBox(const std::string& title, const std::string& text) = 0;
  // A question with Yes and No; true for Yes.
  virtual bool YesNoBox(const std::string& title, const std::string& text) = 0;
  // One line of text; empty when the player cancels. Closing the window may end the process.
  virtual std::string InputBox(const std::string& title, const std::string& prompt) = 0;
  // The native path of a chosen file, which exists; empty when the player cancels. The first filter
  // is the one that is set when the chooser opens.
  virtual std::string ChooseFile(const std::string& title,
                                 const std::vector<FileFilter>& filters) = 0;
};

}  // namespace quendle
