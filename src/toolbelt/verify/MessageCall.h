// One message on its way, for the sources of MessageRouter.
#pragma once

#include <string>
#include <vector>

#include "base/Text.h"
#include "toolbelt/verify/MessageRouter.h"

namespace quendle {

struct MessageRouter::Call {
  Call(std::string text, MessageEffects& gathered, int level)
      : message(std::move(text)),
        words(SplitTokens(message, '_')),
        effects(gathered),
        depth(level) {}

  std::string Verb() const { return words.empty() ? "" : words[0]; }
  bool Needs(std::size_t number) const { return words.size() >= number; }
  const std::string& Word(std::size_t number) const { return words[number - 1]; }
  // The words from `number` on, as a message of their own.
  Call Tail(std::size_t number) const {
    return Call(JoinTokens(words, number - 1, '_'), effects, depth + 1);
  }
  // The same message, one hand further.
  Call& Deeper() {
    ++depth;
    return *this;
  }
  bool TooDeep() const { return depth > kMostHands; }

  Verdict Wrong(Check check, std::string text) const {
    return {false, check, "\"" + message + "\": " + std::move(text)};
  }
  Verdict Short() const {
    return Wrong(Check::kMissingWord,
                 "the verb needs more words than " + std::to_string(words.size()));
  }
  Verdict Endless() const {
    return Wrong(Check::kEndlessMessage, "it is handed up and down for ever");
  }

  static constexpr int kMostHands = 60;

  std::string message;
  std::vector<std::string> words;
  MessageEffects& effects;
  int depth;
};

}  // namespace quendle
