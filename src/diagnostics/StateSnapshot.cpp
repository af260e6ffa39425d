#include "diagnostics/StateSnapshot.h"

#include <set>

#include "base/TextHash.h"

namespace quendle {
namespace {

template <class Map>
const typename Map::mapped_type* Find(const Map& map, const std::string& key) {
  const auto found = map.find(key);
  return found == map.end() ? nullptr : &found->second;
}

template <class Map>
std::set<std::string> KeysOfBoth(const Map& a, const Map& b) {
  std::set<std::string> keys;
  for (const Map* map : {&a, &b}) {
    for (const auto& [key, value] : *map) keys.insert(key);
  }
  return keys;
}

std::optional<std::string> TextOf(const std::string* text) {
  return text == nullptr ? std::nullopt : std::optional(*text);
}

bool IsSame(const StateSnapshot::Fields& a, const StateSnapshot::Fields& b,
            const std::string& name) {
  const std::string* in_a = Find(a, name);
  const std::string* in_b = Find(b, name);
  return in_a != nullptr && in_b != nullptr && *in_a == *in_b;
}

std::optional<StateDifference> FirstDifference(const std::string& path,
                                               const StateSnapshot::Fields& expected,
                                               const StateSnapshot::Fields& found) {
  std::optional<std::string> first;
  for (const std::string& name : KeysOfBoth(expected, found)) {
    // Another screen in view tells more than all that follows from it.
    const bool telling = path == StateSnapshot::kGame && name == StateSnapshot::kScreen;
    if ((!first || telling) && !IsSame(expected, found, name)) first = name;
  }
  if (!first) return std::nullopt;
  return StateDifference{path, *first, TextOf(Find(expected, *first)), TextOf(Find(found, *first))};
}

}  // namespace

std::string HashOfSnapshot(const StateSnapshot& snapshot) {
  TextHash hash;
  for (const auto& [path, fields] : snapshot.objects) {
    hash.Add(path + "\n");
    for (const auto& [name, value] : fields) hash.Add(" " + name + " = " + value + "\n");
  }
  return hash.Digits();
}

std::optional<StateDifference> FirstDifference(const StateSnapshot& expected,
                                               const StateSnapshot& found) {
  for (const std::string& path : KeysOfBoth(expected.objects, found.objects)) {
    const StateSnapshot::Fields* wanted = Find(expected.objects, path);
    const StateSnapshot::Fields* got = Find(found.objects, path);
    if (wanted == nullptr) return StateDifference{path, "", std::nullopt, "there"};
    if (got == nullptr) return StateDifference{path, "", "there", std::nullopt};
    if (auto difference = FirstDifference(path, *wanted, *got)) return difference;
  }
  return std::nullopt;
}

}  // namespace quendle
