// The statements of a script, carried out on a GameObject.

#include "base/Watch.h"
#include "object/GameObject.h"
#include "object/StatementTokens.h"
#include "script/Statement.h"

namespace quendle {

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
  CarryOut(verb, SubstituteTokensOf(statement), verifying, result);
}

// A released object has nothing left to act on: the rest of its script does nothing.
void GameObject::CarryOut(StatementVerb verb, const std::string& argument, bool verifying,
                          bool& result) {
  switch (verb) {
    case StatementVerb::kMtp:
      if (SelfReference_ != nullptr) SelfReference_->NotifyParent(argument, verifying, result);
      return;
    case StatementVerb::kChange:
      if (verifying) {
        result = VerifyState(argument);
      } else if (SelfReference_ != nullptr) {
        SelfReference_->ProcessState(argument);
      }
      return;
    case StatementVerb::kRunSound:
      if (verifying) {
        result = VerifySoundState(argument);
      } else if (SelfReference_ != nullptr) {
        RunSoundStatement(argument);
      }
      return;
    case StatementVerb::kRunState:
      if (verifying) {
        result = VerifyState(argument);
      } else if (SelfReference_ != nullptr) {
        RunState(argument);
      }
      return;
    case StatementVerb::kOther:
      return;
  }
}

std::string GameObject::SubstituteTokensOf(const Statement& statement) {
  const std::string& text = statement.Argument();
  if (!statement.MayHoldToken()) return text;
  const std::string state = m_ptrCurrObjState ? m_ptrCurrObjState->Name() : std::string();
  return SubstituteTokens(text, {ObjectName_, ObjectType_, CurrentRegion_, state});
}

}  // namespace quendle
