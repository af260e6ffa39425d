#include "toolbelt/verify/ContentFlow.h"

#include <algorithm>

#include "base/Text.h"
#include "logic/GameVerbs.h"
#include "object/DoctorStates.h"
#include "object/ObjectVerbs.h"
#include "object/SurgeryReset.h"
#include "screens/ScreenNames.h"

namespace quendle {
namespace {

// The game itself leads the object to that state.
bool LeadsToItself(const ModelObject& object, const ObjState& state) {
  if (object.IsNamed(kDoctorName)) {
    return std::ranges::any_of(
        kDoctorStates, [&](DoctorState s) { return EqualsNoCase(state.Name(), NameOf(s)); });
  }
  return object.IsNamed(kSurgeryMachineName) &&
         std::ranges::any_of(kSurgeryResets, [&](const SurgeryReset& reset) {
           return EqualsNoCase(state.Name(), reset.machine_state);
         });
}

const ModelObject* RootScreen(const ModelInstance& instance) {
  const ModelObject* root = instance.front();
  return root->IsRoom() ? root : nullptr;
}

}  // namespace

ContentFlow::ContentFlow(const ContentModel& model)
    : model_(model), router_(model), chains_(router_, faults_) {
  Walk(false);
  // Now it is known where global objects are added, so their own messages can be followed.
  std::set<std::pair<const ModelObject*, const ModelObject*>> added;
  for (const auto& [screen, effects] : effects_) {
    added.insert(effects.added.begin(), effects.added.end());
  }
  std::erase_if(added, [](const auto& pair) {
    return std::ranges::any_of(pair.first->children, [&](const ModelChild& child) {
      return child.object.get() == pair.second;
    });
  });
  router_.SetAdded(std::move(added));
  Walk(true);
  AddOwnMessages();
  for (const auto& [screen, effects] : effects_) {
    actions_.insert(effects.actions.begin(), effects.actions.end());
  }
}

void ContentFlow::Walk(bool tell) {
  for (const ModelObjectRef& object : model_.objects) WalkObject(*object, tell);
}

void ContentFlow::WalkObject(const ModelObject& object, bool tell) {
  const std::vector<ModelInstance> instances = router_.Instances(object);
  for (const ModelScript& script : object.scripts) {
    for (const auto& text : script.texts) {
      if (text->parsed == nullptr) continue;
      WalkScript(object, script, text->parsed->Root(),
                 [&](const Command& node, const StateSet& states) {
                   WalkStatement(object, node, states, instances, tell);
                 });
    }
  }
  // Directives of its own file and of the lists that hold it.
  const auto enter = [&](const ModelObject& target, const Directives& directives,
                         const FilePlace& place) {
    MessageEffects& effects = effects_[nullptr];
    for (const auto& [word, passing] :
         {std::pair(directives.state, false), std::pair(directives.runstate, true)}) {
      if (!word) continue;
      effects.states.insert({&target, FoldCase(*word)});
      if (passing) effects.passing.insert({&target, FoldCase(*word)});
      if (!target.states_known || target.State(*word) != nullptr) continue;
      Tell(tell, target, place, Check::kUnknownFirstState,
           "Did not find a valid object state: there is no state \"" + *word + "\"" +
               DidYouMean(*word, target.StateNames()));
    }
  };
  if (!object.IsPlayArea()) enter(object, object.directives, object.directives_place);
  for (const ModelChild& child : object.children) {
    if (child.object != nullptr) enter(*child.object, child.directives, child.line.place);
  }
}

void ContentFlow::WalkStatement(const ModelObject& object, const Command& node,
                                const StateSet& states, const std::vector<ModelInstance>& instances,
                                bool tell) {
  const Statement& statement = *node.ActionStatement();
  if (statement.Meaning() == StatementMeaning::kNothing) return;
  if (!statement.HasArgument()) return;  // told with the script
  // Counting past the last state is how a row of states ends.
  const bool tell_this = tell && !CountsUp(statement.Argument());
  for (const std::string& word : ExpandWord(object, statement.Argument(), states)) {
    switch (statement.Meaning()) {
      case StatementMeaning::kMessage:
        Message(object, word, node.Place(), instances, tell_this);
        if (tell) chains_.Follow(instances, node.Place(), word, states);
        break;
      case StatementMeaning::kState:
        EnterOwn(object, word, node.Place(), false, tell_this);
        break;
      case StatementMeaning::kPassingState:
        EnterOwn(object, word, node.Place(), true, tell_this);
        break;
      case StatementMeaning::kSound:
        RunSound(object, word, node.Place(), tell_this);
        break;
      case StatementMeaning::kNothing:
        break;
    }
  }
}

void ContentFlow::Message(const ModelObject& object, const std::string& message,
                          const FilePlace& place, const std::vector<ModelInstance>& instances,
                          bool tell) {
  Verdict wrong;
  bool taken = false;
  for (const ModelInstance& instance : instances) {
    const Verdict verdict = router_.SendUp(instance, message, effects_[RootScreen(instance)]);
    taken = taken || verdict.fine;
    if (!verdict.fine) wrong = verdict;
  }
  if (taken || wrong.fine) return;
  Tell(tell, object, place, wrong.check, wrong.text);
}

void ContentFlow::EnterOwn(const ModelObject& object, const std::string& state,
                           const FilePlace& place, bool passing, bool tell) {
  MessageEffects& effects = effects_[nullptr];
  effects.states.insert({&object, FoldCase(state)});
  if (passing) effects.passing.insert({&object, FoldCase(state)});
  if (!object.states_known || object.State(state) != nullptr) return;
  Tell(tell, object, place, Check::kUnknownState,
       "Did not find a valid object state: there is no state \"" + state + "\"" +
           DidYouMean(state, object.StateNames()));
}

void ContentFlow::RunSound(const ModelObject& object, const std::string& sound,
                           const FilePlace& place, bool tell) {
  if (EqualsNoCase(sound, "nothing") || EqualsNoCase(sound, "unchanged")) return;
  sounding_.insert(&object);
  if (!object.sounds_known || object.Sound(sound) != nullptr) return;
  std::vector<std::string> names;
  for (const ModelSound& known : object.sounds) names.push_back(known.name);
  Tell(tell, object, place, Check::kUnknownSoundRun,
       "Did not find Sound State \"" + sound + "\"" + DidYouMean(sound, names));
}

void ContentFlow::Tell(bool tell, const ModelObject& object, const FilePlace& place, Check check,
                       std::string text) {
  if (tell) faults_.push_back({&object, place, check, std::move(text)});
}

// What the game itself sends.
void ContentFlow::AddOwnMessages() {
  MessageEffects& effects = effects_[nullptr];
  for (const ModelObjectRef& object : model_.objects) {
    for (const ObjState& state : object->states) {
      if (!LeadsToItself(*object, state)) continue;
      effects.states.insert({object.get(), FoldCase(state.Name())});
      if (object->IsNamed(kDoctorName))
        effects.passing.insert({object.get(), FoldCase(state.Name())});
    }
  }
  for (const char* action : {kGameWonAction, kGameLostAction, kRunScriptAction}) {
    effects.actions.insert(action);
  }
}

bool ContentFlow::Enters(const ModelObject& object, const std::string& state) const {
  // A line of a child list without a state leads to "default", and so does a hurt patient.
  if (EqualsNoCase(state, "default")) return true;
  return std::ranges::any_of(effects_, [&](const auto& entry) {
    return entry.second.states.contains({&object, FoldCase(state)});
  });
}

bool ContentFlow::Passes(const ModelObject& object, const std::string& state) const {
  return std::ranges::any_of(effects_, [&](const auto& entry) {
    return entry.second.passing.contains({&object, FoldCase(state)});
  });
}

std::set<std::string> ContentFlow::ReachableScreens() const {
  std::set<std::string> reached(kFixedScreens.begin(), kFixedScreens.end());
  const auto global = effects_.find(nullptr);
  if (global != effects_.end()) {
    reached.insert(global->second.screens.begin(), global->second.screens.end());
  }
  for (bool grown = true; grown;) {
    grown = false;
    for (const auto& [screen, effects] : effects_) {
      if (screen == nullptr || !reached.contains(FoldCase(screen->name))) continue;
      for (const std::string& next : effects.screens) grown |= reached.insert(next).second;
    }
  }
  return reached;
}

}  // namespace quendle
