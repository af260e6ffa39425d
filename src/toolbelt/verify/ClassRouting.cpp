// How a message passes through what a class of objects decides itself, before it is a plain object.
#include "base/Text.h"
#include "logic/MenuVerbs.h"
#include "logic/ScreenVerbs.h"
#include "object/ObjectVerbs.h"
#include "subgames/FrameVerbs.h"
#include "subgames/PlayAreaVerbs.h"
#include "subgames/PointVerbs.h"
#include "subgames/SubgameKinds.h"
#include "toolbelt/verify/MessageCall.h"
#include "toolbelt/verify/MessageRouter.h"

namespace quendle {

Verdict MessageRouter::ToScreen(const ModelInstance& receiver, Call& call) {
  switch (ScreenVerbOf(call.message, receiver.back()->name)) {
    case ScreenVerb::kInner:
    case ScreenVerb::kAddGlobalObj:
      return ToPlainObject(receiver, call);
    case ScreenVerb::kScrollOn:
    case ScreenVerb::kScrollBack:
    case ScreenVerb::kRemoveAll:
    case ScreenVerb::kRemoveMost:
      return {};
    case ScreenVerb::kAnswerOffer:
      return call.Needs(2) ? Verdict{} : call.Short();
    case ScreenVerb::kClimb:
      return ClimbFromScreen(receiver, call);
  }
  return {};
}

Verdict MessageRouter::ClimbFromScreen(const ModelInstance& receiver, Call& call) {
  Verdict verdict = ToParent(receiver, call.Deeper());
  if (!verdict.fine && verdict.check == Check::kNoTaker) {
    verdict.text += "; a screen hands all that holds \"tool\" or \"subgame\" up to the game";
  }
  return verdict;
}

Verdict MessageRouter::ToMenu(const ModelInstance& receiver, Call& call) {
  switch (MenuVerbOf(call.message)) {
    case MenuVerb::kScore:
      return {};
    case MenuVerb::kInner:
      return ToPlainObject(receiver, call);
  }
  return {};
}

Verdict MessageRouter::ToFrame(const ModelInstance& receiver, Call& call) {
  switch (FrameVerbOf(call.message)) {
    case FrameVerb::kScore:
      return {};
    case FrameVerb::kClimb:
      return ToParent(receiver, call.Deeper());
    case FrameVerb::kInner:
      return ToPlainObject(receiver, call);
  }
  return {};
}

Verdict MessageRouter::ToPoints(const ModelInstance& receiver, Call& call) {
  switch (PointVerbOf(call.message)) {
    case PointVerb::kAddClass:
    case PointVerb::kAddPoints:
    case PointVerb::kRemovePoints:
      return call.Needs(2) ? Verdict{} : call.Short();
    case PointVerb::kInner:
      return ToPlainObject(receiver, call);
  }
  return {};
}

Verdict MessageRouter::ToArea(const ModelInstance& receiver, Call& call) {
  const SubgameKind kind = *receiver.back()->Game();
  switch (PlayAreaVerbOf(kind, call.message)) {
    case PlayAreaVerb::kStartGame:
    case PlayAreaVerb::kStopGame:
    case PlayAreaVerb::kEndGame:
    case PlayAreaVerb::kReplayGame:
    case PlayAreaVerb::kRestartGame:
    case PlayAreaVerb::kSelect:
    case PlayAreaVerb::kAcceptedCell:
      return {};
    case PlayAreaVerb::kInner:
      // Cells come and go in play.
      if (EndsAtChildren(ObjectVerbOf(call.Verb()))) return {};
      return ToPlainObject(receiver, call);
  }
  return {};
}

}  // namespace quendle
