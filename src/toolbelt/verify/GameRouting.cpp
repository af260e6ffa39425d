// How a message that no object took passes through the game itself.
#include "base/FatalError.h"
#include "base/Text.h"
#include "logic/GameVerbs.h"
#include "toolbelt/verify/MessageCall.h"
#include "toolbelt/verify/MessageRouter.h"

namespace quendle {

Verdict MessageRouter::ToGame(const ModelObject* root, Call& call) {
  if (call.TooDeep()) return call.Endless();
  if (call.words.empty()) return call.Short();
  switch (GameVerbOf(call.message, call.Verb())) {
    case GameVerb::kCursor:
      return ToPointer(call);
    case GameVerb::kTool:
      return ToolOffer(root, call);
    case GameVerb::kToScreen:
      return ToWhere(root, call);
    case GameVerb::kSubgame:
      return ToSubgame(call);
    case GameVerb::kChangeScreen:
      return call.Needs(2) ? EnterScreen(call) : call.Short();
    case GameVerb::kRemoveObj:
      if (!call.Needs(2)) return call.Short();
      if (NamesCurrentTool(call.Word(2))) return {};
      return call.Wrong(Check::kNoSuchObject, "nothing on its way holds \"" + call.Word(2) + "\"");
    case GameVerb::kToObj:
      return ToCurrentScreen(root, call);
    case GameVerb::kMouseClick:
    case GameVerb::kMouseMove:
      return call.Needs(3) ? Verdict{} : call.Short();
    case GameVerb::kHideObj:
      // What climbed from the screen in view doesn't come back to it.
      if (root == nullptr || !root->IsRoom()) return ToCurrentScreen(root, call);
      return call.Wrong(Check::kNoSuchObject, "nothing on its way holds such an object");
    case GameVerb::kSubgameDone:
    case GameVerb::kResetAllTools:
    case GameVerb::kResetTools:
    case GameVerb::kBuyNow:
    case GameVerb::kScreenPrevious:
    case GameVerb::kPlayMusic:
    case GameVerb::kStopMusic:
    case GameVerb::kResetGame:
    case GameVerb::kExitOnDemand:
    case GameVerb::kEndExitOnDemand:
    case GameVerb::kExitGame:
      return {};
    case GameVerb::kNone:
      break;
  }
  return call.Wrong(Check::kNoTaker, "nothing takes the verb \"" + call.Verb() + "\"");
}

Verdict MessageRouter::ToPointer(const Call& call) {
  if (!call.Needs(2)) return call.Short();
  const std::string wanted = PointerNameOf(call.Word(2));
  if (model_.Global(wanted) != nullptr) return {};
  return call.Wrong(Check::kNoSuchGlobal, "there is no pointer \"" + wanted + "\"" +
                                              DidYouMean(wanted, model_.GlobalNames()));
}

Verdict MessageRouter::ToSubgame(Call& call) {
  if (!call.Needs(2)) return call.Short();
  switch (SubgameWordOf(call.Word(2))) {
    case SubgameWord::kWon:
    case SubgameWord::kLost:
      return {};
    case SubgameWord::kBegins:
      return EnterScreen(call);
  }
  return {};
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
  if (root != nullptr && root->IsRoom()) screens = {root};
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
  if (call.words.size() > kMostToolWords) {
    return call.Wrong(Check::kNoTaker, "an offer of more than three words is none");
  }
  std::string name = call.Word(2);
  switch (ToolWordOf(name)) {
    case ToolWord::kAlreadyHave:
    case ToolWord::kTooMany:
      return {};
    case ToolWord::kYes:
      if (!call.Needs(3)) return call.Short();
      name = call.Word(3);
      break;
    case ToolWord::kOffer:
      break;
  }
  Call won(ToolWonMessage(name), call.effects, call.depth + 1);
  Verdict verdict = ToCurrentScreen(root, won);
  if (!verdict.fine) verdict.text = "\"" + call.message + "\" leads to " + verdict.text;
  return verdict;
}

Verdict MessageRouter::ToWhere(const ModelObject* root, Call& call) {
  if (!call.Needs(3)) return call.Short();
  const std::string& where = call.Word(2);
  Call tail = call.Tail(3);
  switch (ScreenWordOf(where)) {
    case ScreenWord::kCurrent:
      return ToCurrentScreen(root, tail);
    case ScreenWord::kTools:
    case ScreenWord::kCursors:
    case ScreenWord::kNamed:
      if (const ModelObject* screen = model_.Screen(where)) return ToObject({screen}, tail);
      break;
  }
  return call.Wrong(Check::kNoSuchScreen, "there is no screen \"" + where + "\"" +
                                              DidYouMean(where, model_.ScreenNames()));
}

}  // namespace quendle
