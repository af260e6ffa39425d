// How a message that no object took passes through the game itself.
#include "base/FatalError.h"
#include "base/Text.h"
#include "toolbelt/verify/MessageCall.h"
#include "toolbelt/verify/MessageRouter.h"

namespace quendle {
namespace {

constexpr const char* kPlainVerbs[] = {"playmusic",    "stopmusic",       "resetgame",
                                       "exitondemand", "endexitondemand", "exitgame"};

}  // namespace

Verdict MessageRouter::ToGame(const ModelObject* root, Call& call) {
  if (call.TooDeep()) return call.Endless();
  if (call.words.empty()) return call.Short();
  const bool second = call.Needs(2);
  if (call.Is("cursor")) {
    if (!second) return call.Short();
    const std::string wanted = call.Word(2) + "cursor";
    if (model_.Global(wanted) != nullptr) return {};
    return call.Wrong(Check::kNoSuchGlobal, "there is no pointer \"" + wanted + "\"" +
                                                DidYouMean(wanted, model_.GlobalNames()));
  }
  if (call.Is("tool")) return ToolOffer(root, call);
  if (call.Is("toscreen")) return ToWhere(root, call);
  if (call.Holds("subgamedone")) return {};
  if (call.Is("subgame")) {
    if (!second) return call.Short();
    if (EqualsNoCase(call.Word(2), "won") || EqualsNoCase(call.Word(2), "lost")) return {};
    return EnterScreen(call);
  }
  for (const char* word : {"resetalltools", "resettools", "buynow", "screenprevious"}) {
    if (call.Holds(word)) return {};
  }
  if (call.Is("cs")) return second ? EnterScreen(call) : call.Short();
  if (call.Is("removeobj")) {
    if (!second) return call.Short();
    if (ContainsNoCase(call.Word(2), "currenttool")) return {};
    return call.Wrong(Check::kNoSuchObject, "nothing on its way holds \"" + call.Word(2) + "\"");
  }
  if (call.Is("toobj")) return ToCurrentScreen(root, call);
  if (call.Is("mouseclick") || call.Is("mousemove")) {
    return call.Needs(3) ? Verdict{} : call.Short();
  }
  if (call.Is("hideobj")) {
    const bool from_other = root == nullptr || root->role != ModelRole::kScreen ||
                            root->IsNamed("tools") || root->IsNamed("cursors");
    if (from_other) return ToCurrentScreen(root, call);
    return call.Wrong(Check::kNoSuchObject, "nothing on its way holds such an object");
  }
  for (const char* verb : kPlainVerbs) {
    if (call.Is(verb)) return {};
  }
  return call.Wrong(Check::kNoTaker, "nothing takes the verb \"" + call.Verb() + "\"");
}

Verdict MessageRouter::EnterScreen(Call& call) {
  const std::string& name = call.Word(2);
  if (model_.Screen(name) != nullptr) {
    call.effects.screens.insert(FoldCase(name));
    return {};
  }
  return call.Wrong(Check::kNoSuchScreen,
                    "there is no screen \"" + name + "\"" + DidYouMean(name, model_.ScreenNames()));
}

Verdict MessageRouter::ToCurrentScreen(const ModelObject* root, Call& call) {
  std::vector<const ModelObject*> screens = OrdinaryScreens();
  if (root != nullptr && root->role == ModelRole::kScreen && !root->IsNamed("tools") &&
      !root->IsNamed("cursors")) {
    screens = {root};
  }
  Verdict verdict;
  bool taken = screens.empty();
  for (const ModelObject* screen : screens) {  // all of them, for what the message brings about
    Call again(call.message, call.effects, call.depth + 1);
    const Verdict answer = ToObject({screen}, again);
    taken = taken || answer.fine;
    if (!answer.fine) verdict = answer;
  }
  return taken ? Verdict{} : verdict;
}

Verdict MessageRouter::ToolOffer(const ModelObject* root, Call& call) {
  if (!call.Needs(2)) return call.Short();
  if (call.words.size() > 3) {
    return call.Wrong(Check::kNoTaker, "an offer of more than three words is none");
  }
  const std::string& word = call.Word(2);
  if (EqualsNoCase(word, "alreadyhavetool") || EqualsNoCase(word, "toomany")) return {};
  const bool yes = EqualsNoCase(word, "yes");
  if (yes && !call.Needs(3)) return call.Short();
  Call won("toobj_" + (yes ? call.Word(3) : word) + "_runscript_toolwon", call.effects,
           call.depth + 1);
  Verdict verdict = ToCurrentScreen(root, won);
  if (!verdict.fine) verdict.text = "\"" + call.message + "\" leads to " + verdict.text;
  return verdict;
}

Verdict MessageRouter::ToWhere(const ModelObject* root, Call& call) {
  if (!call.Needs(3)) return call.Short();
  const std::string& where = call.Word(2);
  Call tail = call.Tail(3);
  if (EqualsNoCase(where, "currentscreen")) return ToCurrentScreen(root, tail);
  if (const ModelObject* screen = model_.Screen(where)) return ToObject({screen}, tail);
  return call.Wrong(Check::kNoSuchScreen, "there is no screen \"" + where + "\"" +
                                              DidYouMean(where, model_.ScreenNames()));
}

}  // namespace quendle
