#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "platform/Boxes.h"

namespace quendle {

// A box that was shown.
struct ShownBox {
  std::string kind;  // "message", "yesno", "input" or "file"
  std::string title;
  std::string text;
  std::string answer;  // the button, the text or the path; "cancel" where nothing was given
};

// Boxes that are answered from a queue, one answer a box, and kept on record.
//
// Without an answer a message box takes its first button and a file chooser is cancelled; an input
// box throws FatalError, since any text would be a guess.
class ScriptedBoxes : public Boxes {
 public:
  void MessageBox(const std::string& title, const std::string& text) override;
  // "yes" and "ok" are Yes, any other answer is No.
  bool YesNoBox(const std::string& title, const std::string& text) override;
  std::string InputBox(const std::string& title, const std::string& prompt) override;
  // The record's text names the filters, one a line.
  std::string ChooseFile(const std::string& title, const std::vector<FileFilter>& filters) override;

  // The answer of the next box that has none yet: a button, a text, a path, or "cancel".
  void QueueAnswer(std::string answer) { answers_.push_back(std::move(answer)); }
  std::size_t QueuedAnswers() const { return answers_.size(); }

  // The boxes shown, oldest first.
  const std::vector<ShownBox>& Shown() const { return shown_; }
  // The same, and the record begins anew.
  std::vector<ShownBox> TakeShown();

 private:
  // The next answer, or `otherwise`.
  std::string NextAnswer(std::string otherwise);
  std::string TextBox(ShownBox box, std::string answer);

  std::deque<std::string> answers_;
  std::vector<ShownBox> shown_;
};

}  // namespace quendle
