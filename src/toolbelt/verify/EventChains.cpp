#include "toolbelt/verify/EventChains.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "base/WorkDepth.h"
#include "script/ActionText.h"

namespace quendle {
namespace {

// Places in the tree of one sender that are followed.
constexpr std::size_t kMostSenders = 4;
// Each takes three levels of work and more (a line, a message, a walk), so the game ends before.
constexpr std::size_t kMostOpen = WorkDepth::kLimit / 3;
constexpr std::size_t kDeepestTree = 20;
// Answers that are followed in all: the end of a tree made to have no end.
constexpr long kMostFollowed = 300'000;

long Budget() { return WorkDepth::MostOf(Work::kScript); }

const ModelScript* ScriptOf(const SentEvent& event, const std::string& state) {
  const ModelObject& object = *event.receiver.back();
  if (!event.script.empty()) return object.Script(event.script);
  const ObjState* found = object.State(state);
  return found == nullptr ? nullptr : object.Script(found->ScriptState());
}

}  // namespace

void EventChains::Follow(const std::vector<ModelInstance>& senders, const FilePlace& place,
                         const std::string& message, const StateSet& states) {
  for (std::size_t i = 0; i < std::min(senders.size(), kMostSenders); ++i) {
    Known known{{senders[i].back(), states}};
    Send(senders[i], place, message, known);
  }
}

long EventChains::Send(const ModelInstance& sender, const FilePlace& place,
                       const std::string& message, Known& known) {
  std::vector<SentEvent> events;
  MessageEffects effects;
  effects.events = &events;
  router_.SendUp(sender, message, effects);
  for (const auto& [object, state] : effects.states) {
    if (const ObjState* entered = object->State(state)) known[object] = {entered->Name()};
  }
  long count = 0;
  for (const SentEvent& event : events) {
    sender_ = sender.back();
    place_ = place;
    count += event.script.empty() ? ReceiveTree(event, known) : Receive(event, known);
  }
  return count;
}

long EventChains::ReceiveTree(const SentEvent& event, Known& known) {
  const auto sender = std::pair(sender_, place_);
  long count = Receive(event, known);
  if (event.receiver.size() > kDeepestTree) return count;
  for (const ModelObject* child : router_.ChildrenOf(*event.receiver.back())) {
    SentEvent below = event;
    below.receiver.push_back(child);
    std::tie(sender_, place_) = sender;
    count += ReceiveTree(below, known);
  }
  return count;
}

long EventChains::Receive(const SentEvent& event, Known& known) {
  const ModelObject* object = event.receiver.back();
  StateSet states;
  if (const auto found = known.find(object); found != known.end()) {
    states = found->second;
  } else {
    const std::vector<std::string> names = object->StateNames();
    states.insert(names.begin(), names.end());
  }
  std::erase_if(states, [&](const auto& state) { return ScriptOf(event, state) == nullptr; });
  if (states.size() == 1) return Answer(event, *states.begin(), known);
  const auto sender = std::pair(sender_, place_);
  long most = 0;
  for (const std::string& state : states) {
    Known alone = known;
    alone[object] = {state};
    std::tie(sender_, place_) = sender;
    most = std::max(most, Answer(event, state, alone));
  }
  return most;
}

long EventChains::Answer(const SentEvent& event, const std::string& state, Known& known) {
  const Step step(event.receiver.back(), state, FoldCase(event.action), FoldCase(event.script));
  if (std::ranges::find(open_, step) != open_.end()) {
    Tell(Check::kOwnEvent,
         "the event comes back to where it is being answered: " + WayBackTo(step));
    return 1;
  }
  if (const auto counted = counted_.find(step); counted != counted_.end()) return counted->second;
  if (open_.size() >= kMostOpen) {
    Tell(Check::kFarEvent, "the event leads through more than " + std::to_string(kMostOpen) +
                               " others, and the game ends at " +
                               std::to_string(WorkDepth::kLimit) + " levels");
    return 1;
  }
  if (++followed_ > kMostFollowed) return 1;
  const ModelScript* script = ScriptOf(event, state);
  long most = 0;
  open_.push_back(step);
  for (const auto& text : script->texts) {
    if (text->parsed == nullptr) continue;
    most = std::max(most, Run(event, text->parsed->Root(), state, known));
  }
  open_.pop_back();
  counted_[step] = most;
  return most;
}

long EventChains::Run(const SentEvent& event, const Command& root, const std::string& state,
                      Known& known) {
  const ModelObject& object = *event.receiver.back();
  long count = 0;
  StateSet before{state};  // as the script alone has it
  StateSet now = before;   // with what messages have changed
  const auto turn = [&](const StateSet& states) {
    if (states != before) now = before = states;
    known[&object] = now;
  };
  const StateSet behind = WalkEvent(
      object, root, ActionText(event.action), before,
      [&](const Command& node, const StateSet& states) {
        turn(states);
        ++count;
        const Statement& statement = *node.ActionStatement();
        if (statement.Verb() != StatementVerb::kMtp) return;
        if (SplitTokens(statement.Text(), ' ').size() < 2) return;
        for (const std::string& message : ExpandWord(object, statement.Argument(), states)) {
          const long more = Send(event.receiver, node.Place(), message, known);
          if (count <= Budget() && more <= Budget() && count + more > Budget()) {
            sender_ = &object;
            place_ = node.Place();
            Tell(Check::kFarEvent, "with this message the answer to \"" + event.action +
                                       "\" runs more than " + std::to_string(Budget()) +
                                       " script lines in one event: the content multiplies");
          }
          count = std::min(count + more, Budget() + 1);
        }
        now = known[&object];
      });
  turn(behind);
  return count;
}

void EventChains::Tell(Check check, const std::string& text) {
  if (told_.insert({place_.file, place_.line}).second) {
    faults_.push_back({sender_, place_, check, text});
  }
}

std::string EventChains::WayBackTo(const Step& step) const {
  std::string way;
  for (auto at = std::ranges::find(open_, step); at != open_.end(); ++at) {
    const auto& [object, state, action, script] = *at;
    way += object->name + " \"" + (script.empty() ? action : script) + "\" > ";
  }
  return way + std::get<0>(step)->name;
}

}  // namespace quendle
