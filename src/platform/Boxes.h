#pragma once

#include <string>

namespace quendle {

// Modal questions. While a box stands, the message loop runs: timers go on.
class Boxes {
 public:
  virtual ~Boxes() = default;
  // A text with one OK button.
  virtual void MessageBox(const std::string& title, const std::string& text) = 0;
  // A question with Yes and No; true for Yes.
  virtual bool YesNoBox(const std::string& title, const std::string& text) = 0;
  // One line of text; empty when the player cancels.
  virtual std::string InputBox(const std::string& title, const std::string& prompt) = 0;
  // The native path of a chosen file; empty when the player cancels.
  virtual std::string ChooseFile(const std::string& title) = 0;
};

}  // namespace quendle
