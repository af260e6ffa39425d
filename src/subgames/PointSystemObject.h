#pragma once

#include <string>
#include <vector>

#include "base/KeyedList.h"
#include "object/ForwardingObject.h"
#include "subgames/PointItem.h"

namespace quendle {

enum class PointVerb;

// Counts points by name: "addclass_NAME", "addpoints_NAME_VALUE...", "removepoints_NAME_VALUE...".
// Nothing in the game reads them back; tools do.
class PointSystemObject : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;

  // A class that is there already, a value that is no number, a missing word and a sum beyond 16
  // bits are fatal.
  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override;
  // Each item as the field "points.NAME".
  void Describe(Inspector& inspector) const override;

  const KeyedList<PointItem>& Points() const { return points_; }

 private:
  using Tokens = std::vector<std::string>;
  void CarryOut(PointVerb verb, const Tokens& tokens);
  void AddClass(const Tokens& tokens);
  void ChangePoints(const Tokens& tokens, int sign);
  void ChangeItems(const std::string& name, std::int16_t value, int sign);
  void Insert(const std::string& name, std::int16_t points);

  KeyedList<PointItem> points_{"point class"};
};

}  // namespace quendle
