#include "backends/headless/ScriptedBoxes.h"

#include <utility>

#include "base/FatalError.h"
#include "base/Text.h"

namespace quendle {

void ScriptedBoxes::MessageBox(const std::string& title, const std::string& text) {
  NextAnswer("ok");
  shown_.push_back({"message", title, text, "ok"});
}

bool ScriptedBoxes::YesNoBox(const std::string& title, const std::string& text) {
  const std::string answer = NextAnswer("yes");
  const bool yes = EqualsNoCase(answer, "yes") || EqualsNoCase(answer, "ok");
  shown_.push_back({"yesno", title, text, yes ? "yes" : "no"});
  return yes;
}

std::string ScriptedBoxes::InputBox(const std::string& title, const std::string& prompt) {
  if (answers_.empty()) {
    throw FatalError("no answer queued for the input box \"" + title + "\": " + prompt);
  }
  return TextBox({"input", title, prompt, ""}, NextAnswer(""));
}

std::string ScriptedBoxes::ChooseFile(const std::string& title,
                                      const std::vector<FileFilter>& filters) {
  std::string text;
  for (const FileFilter& filter : filters) text += (text.empty() ? "" : "\n") + filter.name;
  return TextBox({"file", title, text, ""}, NextAnswer("cancel"));
}

std::vector<ShownBox> ScriptedBoxes::TakeShown() { return std::exchange(shown_, {}); }

std::string ScriptedBoxes::NextAnswer(std::string otherwise) {
  if (answers_.empty()) return otherwise;
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

std::string ScriptedBoxes::TextBox(ShownBox box, std::string answer) {
  const bool cancelled = EqualsNoCase(answer, "cancel");
  box.answer = answer;
  shown_.push_back(std::move(box));
  return cancelled ? std::string() : answer;
}

}  // namespace quendle
