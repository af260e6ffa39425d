// The four statements of a script, carried out on a GameObject.

#include "base/Numbers.h"
#include "base/SF_Strings.h"
#include "base/Watch.h"
#include "object/GameObject.h"
#include "script/Statement.h"

namespace quendle {
namespace {

// Replaces the first `token` in the text; false when it isn't there.
bool ReplaceToken(std::string& text, std::string_view token, const std::string& value) {
  if (!ContainsNoCase(text, token)) return false;
  text = SF_replace(text, token, value);
  return true;
}

}  // namespace

void GameObject::Interpret(const Statement& statement, bool verifying, bool& result) {
  DepthGuard guard(world_.watch.depth, Work::kScript, statement.Text(), this, &statement.Origin());
  world_.watch.Trace(TraceKind::kStatement, ObjectName_, "", statement.Text(), verifying);
  const StatementVerb verb = statement.Verb();
  // Most statements are messages without tokens: their words need no copy.
  if (verb == StatementVerb::kMtp && !statement.MayHoldToken()) {
    if (SelfReference_ != nullptr) {
      SelfReference_->NotifyParent(statement.Argument(), verifying, result);
    }
    return;
  }
  if (verb == StatementVerb::kOther) {
    if (verifying) result = false;
    return;
  }
  const std::string argument = SubstituteTokens(statement);
  if (verb == StatementVerb::kMtp) {
    if (SelfReference_ != nullptr) SelfReference_->NotifyParent(argument, verifying, result);
    return;
  }
  if (verifying) {
    result = VerifyStatement(verb, argument);
    return;
  }
  // A released object has nothing left to act on: the rest of its script does nothing.
  if (SelfReference_ == nullptr) return;
  switch (verb) {
    case StatementVerb::kChange:
      SelfReference_->ProcessState(argument);
      break;
    case StatementVerb::kRunSound:
      RunSoundStatement(argument);
      break;
    case StatementVerb::kRunState:
      RunState(argument);
      break;
    case StatementVerb::kMtp:
    case StatementVerb::kOther:
      break;
  }
}

bool GameObject::VerifyStatement(StatementVerb verb, const std::string& argument) {
  return verb == StatementVerb::kRunSound ? VerifySoundState(argument) : VerifyState(argument);
}

std::string GameObject::SubstituteTokens(const Statement& statement) {
  std::string text = statement.Argument();
  if (!statement.MayHoldToken()) return text;
  if (!ReplaceToken(text, "<rootobjectname>", StripToolWords(ObjectName_))) {
    ReplaceToken(text, "<objectname>", ObjectName_);
  }
  ReplaceToken(text, "<objecttype>", ObjectType_);
  ReplaceToken(text, "<currentregion>", CurrentRegion_);
  if (!ReplaceToken(text, "<currentstate>", CurrentState())) {
    ReplaceToken(text, "<currentrootstate>", GetRootState());
  }
  if (ContainsNoCase(text, "<incrementstate>")) {
    ReplaceToken(text, "<incrementstate>", IncrementState());
  }
  return text;
}

std::string GameObject::IncrementState() const {
  const std::string current = m_ptrCurrObjState ? m_ptrCurrObjState->Name() : std::string();
  if (EqualsNoCase(current, "default")) return "better1";
  if (!ContainsNoCase(current, "better")) return current;
  // The leading number: pointing at a patient in "better2-highlight" must not end the game.
  const double number = LeadingNumber(SF_remove(current, "better"));
  return "better" + std::to_string(ToInt32(number + 1, "number of a state"));
}

}  // namespace quendle
