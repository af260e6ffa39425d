#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "toolbelt/verify/CheckTable.h"
#include "toolbelt/verify/ContentModel.h"

namespace quendle {

// An object in its tree: its screen (or the global object that holds it) first, itself last.
using ModelInstance = std::vector<const ModelObject*>;

// What becomes of a message.
struct Verdict {
  bool fine = true;
  Check check = Check::kNoTaker;  // of one that isn't fine
  std::string text;
};

// An event that a message sends to an object, or a script that it runs there.
struct SentEvent {
  ModelInstance receiver;
  std::string action;
  std::string script = {};  // empty for an event
};

// What messages bring about, gathered over many of them.
struct MessageEffects {
  std::set<std::pair<const ModelObject*, std::string>> states;        // entered, in small letters
  std::set<std::pair<const ModelObject*, std::string>> passing;       // of those, by "runstate"
  std::set<std::string> screens;                                      // entered, in small letters
  std::set<std::string> actions;                                      // sent, in small letters
  std::set<std::pair<const ModelObject*, const ModelObject*>> added;  // holder, global object
  std::vector<SentEvent>* events = nullptr;                           // gathered when there is one
};

// Follows messages through a content tree at rest: the rows of objects, of screens and of the game,
// in their order. Nothing is carried out.
class MessageRouter {
 public:
  // `model` must outlive the router.
  explicit MessageRouter(const ContentModel& model) : model_(model) {}

  // Everywhere an object stands. A global object also stands where messages put it.
  std::vector<ModelInstance> Instances(const ModelObject& object) const;
  // A message to the parent of an object. Where that could be one of several, a message that one of
  // them takes is fine.
  Verdict SendUp(const ModelInstance& sender, const std::string& message, MessageEffects& effects);
  // What hangs in an object: also the global objects that the game or messages put there.
  std::vector<const ModelObject*> ChildrenOf(const ModelObject& object) const;
  // Global objects that messages add to holders, as gathered by an earlier pass.
  void SetAdded(std::set<std::pair<const ModelObject*, const ModelObject*>> added) {
    added_ = std::move(added);
  }

 private:
  struct Call;
  std::vector<ModelInstance> InstancesBelow(const ModelObject& object, std::size_t depth) const;
  Verdict ToParent(const ModelInstance& sender, Call& call);
  Verdict ToObject(const ModelInstance& receiver, Call& call);
  Verdict ToScreen(const ModelInstance& receiver, Call& call);
  Verdict ClimbFromScreen(const ModelInstance& receiver, Call& call);
  Verdict ToMenu(const ModelInstance& receiver, Call& call);
  Verdict ToFrame(const ModelInstance& receiver, Call& call);
  Verdict ToPoints(const ModelInstance& receiver, Call& call);
  Verdict ToArea(const ModelInstance& receiver, Call& call);
  Verdict ToPlainObject(const ModelInstance& receiver, Call& call);
  Verdict ToGame(const ModelObject* root, Call& call);
  Verdict ToCurrentScreen(const ModelObject* root, Call& call);
  Verdict ToPointer(const Call& call);
  Verdict ToolOffer(const ModelObject* root, Call& call);
  Verdict ToSubgame(Call& call);
  Verdict ToWhere(const ModelObject* root, Call& call);
  Verdict Deliver(const ModelInstance& receiver, Call& call, bool by_type);
  Verdict EnterState(const ModelObject& object, Call& call, bool passing);
  Verdict EnterScreen(Call& call);
  Verdict ShowOrHide(const ModelInstance& receiver, Call& call, bool by_type, bool climbs);
  Verdict RunScript(const ModelInstance& receiver, Call& call);
  Verdict RemoveObject(const ModelInstance& receiver, Call& call);
  Verdict AddGlobal(const ModelObject& object, Call& call);

  std::vector<const ModelObject*> OrdinaryScreens() const;

  const ContentModel& model_;
  std::set<std::pair<const ModelObject*, const ModelObject*>> added_;
};

}  // namespace quendle
