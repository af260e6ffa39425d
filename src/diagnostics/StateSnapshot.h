#pragma once

#include <map>
#include <optional>
#include <string>

namespace quendle {

// What the game was at one moment, as texts: objects by path ("SCREEN/child/..."), each with its
// fields by name. The game itself is the object "(game)".
struct StateSnapshot {
  using Fields = std::map<std::string, std::string>;
  std::map<std::string, Fields> objects;

  static constexpr const char* kGame = "(game)";
  static constexpr const char* kScreen = "screen";

  friend bool operator==(const StateSnapshot&, const StateSnapshot&) = default;
};

// 16 hexadecimal digits, the same on every machine for the same snapshot.
std::string HashOfSnapshot(const StateSnapshot& snapshot);

// Where two snapshots differ first: in the game, else in the object whose path comes first, and
// there in the field whose name comes first (of the game's, the screen in view). `field` is empty
// when one of them lacks the object, and a text is absent where a side has no such object or field.
struct StateDifference {
  std::string object;
  std::string field;
  std::optional<std::string> expected;
  std::optional<std::string> found;
};
std::optional<StateDifference> FirstDifference(const StateSnapshot& expected,
                                               const StateSnapshot& found);

}  // namespace quendle
