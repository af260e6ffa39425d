#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "toolbelt/verify/ContentModel.h"
#include "toolbelt/verify/EventChains.h"
#include "toolbelt/verify/MessageRouter.h"
#include "toolbelt/verify/ScriptWalk.h"

namespace quendle {

// What all statements and directives of a content tree bring about, followed without playing.
class ContentFlow {
 public:
  // `model` must outlive the flow.
  explicit ContentFlow(const ContentModel& model);

  const std::vector<StatementFault>& Faults() const { return faults_; }
  // Something leads the object into that state, be it the game itself.
  bool Enters(const ModelObject& object, const std::string& state) const;
  // "runstate" leads it there: it will go back.
  bool Passes(const ModelObject& object, const std::string& state) const;
  // Something starts that sound by a statement.
  bool RunsSound(const ModelObject& object) const { return sounding_.contains(&object); }
  // Actions that messages send, in small letters.
  const std::set<std::string>& Actions() const { return actions_; }
  // Screens that play can come to, in small letters.
  std::set<std::string> ReachableScreens() const;

 private:
  void Walk(bool tell);
  void WalkObject(const ModelObject& object, bool tell);
  void WalkStatement(const ModelObject& object, const Command& node, const StateSet& states,
                     const std::vector<ModelInstance>& instances, bool tell);
  void Message(const ModelObject& object, const std::string& message, const FilePlace& place,
               const std::vector<ModelInstance>& instances, bool tell);
  void EnterOwn(const ModelObject& object, const std::string& state, const FilePlace& place,
                bool passing, bool tell);
  void RunSound(const ModelObject& object, const std::string& sound, const FilePlace& place,
                bool tell);
  void Tell(bool tell, const ModelObject& object, const FilePlace& place, Check check,
            std::string text);
  void AddOwnMessages();

  const ContentModel& model_;
  MessageRouter router_;
  std::vector<StatementFault> faults_;
  EventChains chains_;
  // By the screen from whose tree they were sent; null for those of global objects.
  std::map<const ModelObject*, MessageEffects> effects_;
  std::set<const ModelObject*> sounding_;
  std::set<std::string> actions_;
};

}  // namespace quendle
