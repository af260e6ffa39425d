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
    for (const std::string& name : KeysOfBoth(*wanted, *got)) {
      const std::string* before = Find(*wanted, name);
      const std::string* now = Find(*got, name);
      if (before != nullptr && now != nullptr && *before == *now) continue;
      return StateDifference{path, name, TextOf(before), TextOf(now)};
    }
  }
  return std::nullopt;
}

}  // namespace quendle
