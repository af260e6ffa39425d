#pragma once

#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "toolbelt/verify/ContentModel.h"
#include "toolbelt/verify/MessageRouter.h"
#include "toolbelt/verify/ScriptWalk.h"

namespace quendle {

// A statement that doesn't do what it says.
struct StatementFault {
  const ModelObject* object;
  FilePlace place;
  Check check;
  std::string text;
};

// Follows the events that statements send to objects, and those that these send in turn, without
// playing: finds an event that comes back to where it is still being answered, and one that brings
// more about than the game allows. The state of an object is known as far as the way shows it; any
// other object may be in each of its states.
class EventChains {
 public:
  // Both must outlive the chains. Faults go to the end of `faults`.
  EventChains(MessageRouter& router, std::vector<StatementFault>& faults)
      : router_(router), faults_(faults) {}

  // Follows a message of the statement at `place`, which runs in one of `states`.
  void Follow(const std::vector<ModelInstance>& senders, const FilePlace& place,
              const std::string& message, const StateSet& states);

 private:
  // An object, its state, and the action or the script that it answers.
  using Step = std::tuple<const ModelObject*, std::string, std::string, std::string>;
  // States of objects as far as they are known on the way.
  using Known = std::map<const ModelObject*, StateSet>;

  // Each gives the number of statements that run.
  long Send(const ModelInstance& sender, const FilePlace& place, const std::string& message,
            Known& known);
  long ReceiveTree(const SentEvent& event, Known& known);
  long Receive(const SentEvent& event, Known& known);
  long Answer(const SentEvent& event, const std::string& state, Known& known);
  long Run(const SentEvent& event, const Command& root, const std::string& state, Known& known);
  void Tell(Check check, const std::string& text);
  std::string WayBackTo(const Step& step) const;

  MessageRouter& router_;
  std::vector<StatementFault>& faults_;
  std::map<Step, long> counted_;
  std::vector<Step> open_;
  std::set<std::pair<std::string, int>> told_;
  // The statement whose message is on its way.
  const ModelObject* sender_ = nullptr;
  FilePlace place_;
  long followed_ = 0;
};

}  // namespace quendle
