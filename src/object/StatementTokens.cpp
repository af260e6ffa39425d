#include "object/StatementTokens.h"

#include "base/Numbers.h"
#include "base/SF_Strings.h"
#include "base/Text.h"

namespace quendle {
namespace {

// Replaces the first `token` in the text; false when it isn't there.
bool ReplaceToken(std::string& text, std::string_view token, std::string_view value) {
  if (!ContainsNoCase(text, token)) return false;
  text = SF_replace(text, token, value);
  return true;
}

}  // namespace

std::string SubstituteTokens(std::string word, const TokenValues& values) {
  if (!ReplaceToken(word, "<rootobjectname>", StripToolWords(values.object_name))) {
    ReplaceToken(word, "<objectname>", values.object_name);
  }
  ReplaceToken(word, "<objecttype>", values.object_type);
  ReplaceToken(word, "<currentregion>", values.region);
  if (!ReplaceToken(word, "<currentstate>", values.state)) {
    ReplaceToken(word, "<currentrootstate>", RootStateOf(values.state));
  }
  if (ContainsNoCase(word, "<incrementstate>")) {
    ReplaceToken(word, "<incrementstate>", IncrementedState(values.state));
  }
  return word;
}

std::string RootStateOf(std::string_view state) {
  return SF_remove(SF_remove(state, "-highlight"), "highlight");
}

std::string IncrementedState(const std::string& state) {
  if (EqualsNoCase(state, "default")) return "better1";
  if (!ContainsNoCase(state, "better")) return state;
  // The leading number: pointing at a patient in "better2-highlight" must not end the game.
  const double number = LeadingNumber(SF_remove(state, "better"));
  return "better" + std::to_string(ToInt16(number + 1, "number of a state"));
}

}  // namespace quendle
