#include <algorithm>
#include <set>

#include "base/Text.h"
#include "script/Pattern.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

constexpr const char* kMouseWords[] = {"mouseclick", "mouseover", "mouseclicknot", "mouseovernot"};

// What actions an object can see.
class Actions {
 public:
  explicit Actions(const CheckContext& context) {
    pointers_.insert("");
    for (const ModelObjectRef& global : context.model.globals) {
      const std::string name = FoldCase(global->name);
      const std::size_t cut = name.rfind("cursor");
      if (cut != std::string::npos) pointers_.insert(name.substr(0, cut));
    }
    sent_ = context.flow.Actions();
  }

  // Some event or message makes an action that the pattern takes.
  bool Comes(const ModelObject& object, const std::string& pattern) const {
    const Pattern compiled(pattern);
    if (compiled.Matches(ActionText(""))) return true;  // takes anything
    for (const std::string& sent : sent_) {
      if (compiled.Matches(ActionText(sent)) || compiled.Matches(ActionText(sent + "not"))) {
        return true;
      }
    }
    std::set<std::string> regions{""};
    for (const ModelFrame& frame : object.frames) {
      for (const Region& region : frame.regions) regions.insert(FoldCase(region.Name()));
    }
    for (const std::string& region : regions) {
      for (const std::string& pointer : pointers_) {
        for (const char* word : kMouseWords) {
          if (compiled.Matches(ActionText(region + pointer + word))) return true;
        }
      }
    }
    return false;
  }

  // Words that patterns are made of, for the nearest one.
  std::vector<std::string> Words() const {
    std::vector<std::string> words(sent_.begin(), sent_.end());
    for (const std::string& pointer : pointers_) {
      for (const char* word : kMouseWords) words.push_back(pointer + word);
    }
    return words;
  }

 private:
  std::set<std::string> pointers_;  // in small letters
  std::set<std::string> sent_;
};

// A later pattern takes nothing that an earlier one has not taken: shown on the text that it is
// made of, with something in front or behind where its star stands.
bool Hides(const std::string& earlier, const std::string& later) {
  const Pattern compiled(earlier);
  const std::size_t star = later.find('*');
  std::string text = later;
  if (star == std::string::npos) return compiled.Matches(ActionText(text));
  text.erase(star, 1);
  const std::string more = star == 0 ? "\x01" + text : text + "\x01";
  return compiled.Matches(ActionText(text)) && compiled.Matches(ActionText(more));
}

// Lines whose action comes to at least one of the objects that share them.
using LivingLines = std::set<std::pair<std::string, int>>;

class ConditionChecker {
 public:
  ConditionChecker(const CheckContext& context, const Actions& actions, const ModelObject& object,
                   const LivingLines& living)
      : context_(context), actions_(actions), object_(object), living_(living) {}

  void Visit(const Command& node) {
    if (node.Type() == NodeType::kIf) CheckBranches(node);
    for (const Command& child : node.Children()) Visit(child);
  }

 private:
  void CheckBranches(const Command& node) {
    std::vector<std::string> earlier;
    for (const Command& branch : node.Children()) {
      if (branch.Type() == NodeType::kBoolElse) continue;
      const std::vector<std::string> words = SplitTokens(branch.Text(), ' ');
      if (words.size() < 3 || branch.DecidingPattern() == nullptr) {
        context_.Tell(Check::kCondition, object_, branch.Place(),
                      "a condition reads \"action = PATTERN\", and this one \"" +
                          std::string(TrimBlanks(branch.Text())) + "\"");
        continue;
      }
      CheckPattern(branch, words[2], earlier);
      earlier.push_back(words[2]);
    }
  }

  void CheckPattern(const Command& branch, const std::string& pattern,
                    const std::vector<std::string>& earlier) {
    const auto tell = [&](Check check, const std::string& text) {
      context_.Tell(check, object_, branch.Place(), "\"" + pattern + "\" " + text);
    };
    const std::size_t star = pattern.find('*');
    const std::size_t second = star == std::string::npos ? star : pattern.find('*', star + 1);
    if (second != std::string::npos ||
        (star != std::string::npos && star != 0 && star != pattern.size() - 1)) {
      tell(Check::kInnerStar, "has a star that stands for nothing");
    }
    const auto hider = std::ranges::find_if(
        earlier, [&](const std::string& other) { return Hides(other, pattern); });
    if (hider != earlier.end()) {
      tell(Check::kHiddenBranch, "never comes: \"" + *hider + "\" above takes it");
    } else if (object_.role != ModelRole::kCell && object_.animations_known &&
               !living_.contains({branch.Place().file, branch.Place().line})) {
      std::string bare = pattern;
      std::erase(bare, '*');
      tell(Check::kDeadPattern,
           "fits no event and no message" + DidYouMean(bare, actions_.Words()));
    }
  }

  const CheckContext& context_;
  const Actions& actions_;
  const ModelObject& object_;
  const LivingLines& living_;
};

void NoteLiving(const Actions& actions, const ModelObject& object, const Command& node,
                LivingLines& living) {
  if (node.Type() == NodeType::kBoolIf || node.Type() == NodeType::kBoolElseIf) {
    const std::vector<std::string> words = SplitTokens(node.Text(), ' ');
    if (words.size() >= 3 && actions.Comes(object, words[2])) {
      living.insert({node.Place().file, node.Place().line});
    }
  }
  for (const Command& child : node.Children()) NoteLiving(actions, object, child, living);
}

template <class Visit>
void ForEachScript(const ContentModel& model, Visit visit) {
  for (const ModelObjectRef& object : model.objects) {
    for (const ModelScript& script : object->scripts) {
      for (const auto& text : script.texts) {
        if (text->parsed != nullptr) visit(*object, text->parsed->Root());
      }
    }
  }
}

}  // namespace

void CheckPatterns(const CheckContext& context) {
  const Actions actions(context);
  LivingLines living;
  ForEachScript(context.model, [&](const ModelObject& object, const Command& root) {
    NoteLiving(actions, object, root, living);
  });
  ForEachScript(context.model, [&](const ModelObject& object, const Command& root) {
    ConditionChecker(context, actions, object, living).Visit(root);
  });
}

void CheckMessages(const CheckContext& context) {
  for (const StatementFault& fault : context.flow.Faults()) {
    context.Tell(fault.check, *fault.object, fault.place, fault.text);
  }
}

}  // namespace quendle
