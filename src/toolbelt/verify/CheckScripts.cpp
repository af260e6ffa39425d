#include <set>

#include "base/Text.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

std::string FirstWord(const std::string& line) {
  const std::vector<std::string> words = SplitTokens(line, ' ');
  return words.empty() ? "" : words[0];
}

// Walks the parsed script beside its lines: a line between two nodes is the one that closed a
// block.
class BlockChecker {
 public:
  BlockChecker(const CheckContext& context, const ModelObject& object, const ModelScriptText& text)
      : context_(context), object_(object), lines_(text.lines) {}

  void Check(const Command& root) {
    Visit(root);
    for (; at_ < lines_.size(); ++at_) {
      if (FirstWord(lines_[at_].text).empty()) continue;
      Tell(quendle::Check::kNeverRead, lines_[at_],
           "\"" + lines_[at_].text + "\" stands behind the end of the script");
      return;  // once is enough
    }
  }

 private:
  void Visit(const Command& node) {
    switch (node.Type()) {
      case NodeType::kBegin:
        ++at_;
        for (const Command& child : node.Children()) Visit(child);
        CheckCloser("end");
        break;
      case NodeType::kIf:
        for (const Command& child : node.Children()) Visit(child);
        // Without branches the parser has stayed on the `if` line, which closes it.
        CheckCloser("endif");
        break;
      case NodeType::kBoolIf:
      case NodeType::kBoolElseIf:
      case NodeType::kBoolElse:
        CheckBranch(node);
        ++at_;
        for (const Command& child : node.Children()) Visit(child);
        break;
      case NodeType::kAction:
        CheckAction(node);
        ++at_;
        break;
      case NodeType::kNone:
        break;
    }
  }

  void CheckCloser(const char* word) {
    if (at_ >= lines_.size()) return;
    const ScriptLine& line = lines_[at_++];
    const std::string first = FirstWord(line.text);
    if (EqualsNoCase(first, word)) return;
    Tell(quendle::Check::kAccidentalEnd, line,
         "\"" + line.text + "\" closes the block here, where \"" + word + "\" should");
  }

  void CheckBranch(const Command& node) {
    const ScriptLine& line = lines_[at_];
    const std::string first = FirstWord(line.text);
    const char* word = node.Type() == NodeType::kBoolElse     ? "else"
                       : node.Type() == NodeType::kBoolElseIf ? "elseif"
                                                              : "if";
    if (EqualsNoCase(first, word)) return;
    Tell(quendle::Check::kAccidentalElse, line,
         "\"" + line.text + "\" opens a branch \"" + word + "\", for the letters in it");
  }

  void CheckAction(const Command& node) {
    const ScriptLine& line = lines_[at_];
    const Statement& statement = *node.ActionStatement();
    if (statement.Meaning() != StatementMeaning::kNothing) {
      if (!statement.HasArgument()) {
        Tell(quendle::Check::kOneWord, line, "\"" + node.Text() + "\" needs a second word");
      }
      return;
    }
    if (ContainsNoCase(node.Text(), "subscript")) return;  // told with the inclusions
    std::vector<std::string> known = StatementWords();
    known.insert(known.end(), {"if", "endif", "elseif"});
    Tell(quendle::Check::kNoStatement, line,
         "Invalid Script Statement \"" + node.Text() + "\"" +
             DidYouMean(FirstWord(node.Text()), known));
  }

  void Tell(quendle::Check check, const ScriptLine& line, std::string text) {
    context_.Tell(check, object_, line.place, std::move(text));
  }

  const CheckContext& context_;
  const ModelObject& object_;
  const std::vector<ScriptLine>& lines_;
  std::size_t at_ = 0;
};

}  // namespace

void CheckScripts(const CheckContext& context) {
  std::set<const ModelScriptText*> seen;  // global scripts belong to many objects
  for (const ModelObjectRef& object : context.model.objects) {
    for (const ModelScript& script : object->scripts) {
      for (const auto& text : script.texts) {
        if (text->parsed == nullptr || !seen.insert(text.get()).second) continue;
        BlockChecker(context, *object, *text).Check(text->parsed->Root());
      }
    }
  }
}

}  // namespace quendle
