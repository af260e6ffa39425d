#include "subgames/PointSystemObject.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "object/MessageWork.h"
#include "subgames/PointVerbs.h"

namespace quendle {
namespace {

// Empty pieces count here: a doubled underscore is an empty name or value.
std::vector<std::string> SplitAtEach(const std::string& message) {
  std::vector<std::string> tokens;
  std::size_t begin = 0;
  for (std::size_t end = 0; end != std::string::npos; begin = end + 1) {
    end = message.find('_', begin);
    tokens.push_back(message.substr(begin, end - begin));
  }
  return tokens;
}

const std::string& TokenAt(const std::vector<std::string>& tokens, std::size_t index) {
  if (index < tokens.size()) return tokens[index];
  throw FatalError("Warning: We received an invalid 'Add Point' message: \"" +
                   JoinTokens(tokens, 0, '_') + "\" ends where " +
                   (index % 2 == 1 ? "a name" : "a value") + " should stand");
}

}  // namespace

void PointSystemObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                                      bool verifying, bool& result) {
  const PointVerb verb = PointVerbOf(message);
  if (verb == PointVerb::kInner) {
    Inner().HandleMessage(message, sender, verifying, result);
    return;
  }
  const MessageWork work(Inner(), message, sender, verifying);
  if (!verifying) CarryOut(verb, SplitAtEach(message));
}

void PointSystemObject::CarryOut(PointVerb verb, const Tokens& tokens) {
  switch (verb) {
    case PointVerb::kAddClass:
      return AddClass(tokens);
    case PointVerb::kAddPoints:
      return ChangePoints(tokens, 1);
    case PointVerb::kRemovePoints:
      return ChangePoints(tokens, -1);
    case PointVerb::kInner:
      return;
  }
}

void PointSystemObject::AddClass(const Tokens& tokens) { Insert(TokenAt(tokens, 1), 0); }

void PointSystemObject::ChangePoints(const Tokens& tokens, int sign) {
  // Half to even: a lone name is no pair, three words behind the verb are two.
  const double last_index = static_cast<double>(tokens.size() - 1);
  const auto pairs = static_cast<std::size_t>(RoundHalfEven(last_index / 2));
  for (std::size_t k = 0; k < pairs; ++k) {
    const std::string& name = TokenAt(tokens, 2 * k + 1);
    ChangeItems(name, Int16FromText(TokenAt(tokens, 2 * k + 2), "points of \"" + name + "\""),
                sign);
  }
}

void PointSystemObject::ChangeItems(const std::string& name, std::int16_t value, int sign) {
  bool found = false;
  for (auto& entry : points_) {
    if (!EqualsNoCase(entry.value.Name(), name)) continue;
    found = true;
    entry.value.SetPoints(
        ToInt16(entry.value.Points() + sign * value, "points of \"" + name + "\""));
  }
  // Taking from a name that isn't there begins it with the value, not with its negative.
  if (!found) Insert(name, value);
}

void PointSystemObject::Insert(const std::string& name, std::int16_t points) {
  PointItem item;
  item.SetName(name);
  item.SetPoints(points);
  points_.Add(std::move(item), name);
}

void PointSystemObject::Describe(Inspector& inspector) const {
  ForwardingObject::Describe(inspector);
  for (const auto& entry : points_) {
    inspector.Field("points." + entry.value.Name(), entry.value.Points());
  }
}

}  // namespace quendle
