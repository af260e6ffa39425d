#include "diagnostics/Sidecar.h"

#include <algorithm>

#include "base/FatalError.h"

namespace quendle {
namespace {

constexpr std::string_view kObject = "object ";
constexpr std::string_view kGone = "gone ";
constexpr std::string_view kField = " ";
constexpr std::string_view kIs = " = ";

constexpr const char* kEnded = "ended";

// The fields by which `after` differs; a field that is there no more has no line of its own, since
// an object tells the same fields as long as it lives.
void AddObject(std::vector<std::string>& lines, const std::string& path,
               const StateSnapshot::Fields& before, const StateSnapshot::Fields& after) {
  if (before == after) return;
  lines.push_back(std::string(kObject) + path);
  for (const auto& [name, value] : after) {
    const auto old = before.find(name);
    if (old != before.end() && old->second == value) continue;
    lines.push_back(std::string(kField).append(name).append(kIs).append(value));
  }
}

bool LostFields(const StateSnapshot::Fields& before, const StateSnapshot::Fields& after) {
  return std::any_of(before.begin(), before.end(),
                     [&](const auto& field) { return !after.contains(field.first); });
}

[[noreturn]] void RefuseChange(const std::string& line) {
  throw FatalError("\"" + line + "\" is no change of a state");
}

SidecarDifference AtEnd(long time, const char* expected, const char* found) {
  return {time, {StateSnapshot::kGame, kEnded, expected, found}};
}

std::string Quoted(const std::optional<std::string>& text) {
  return text ? "\"" + *text + "\"" : "nothing";
}

// Whole seconds without a fraction: "4", "4.35".
std::string Seconds(long milliseconds) {
  std::string text = std::to_string(milliseconds / 1000);
  std::string rest = std::to_string(1000 + milliseconds % 1000).substr(1);
  while (!rest.empty() && rest.back() == '0') rest.pop_back();
  return rest.empty() ? text : text + "." + rest;
}

}  // namespace

std::vector<std::string> ChangesBetween(const StateSnapshot& before, const StateSnapshot& after) {
  std::vector<std::string> lines;
  for (const auto& [path, fields] : before.objects) {
    const auto now = after.objects.find(path);
    if (now == after.objects.end() || LostFields(fields, now->second)) {
      lines.push_back(std::string(kGone) + path);
    }
  }
  for (const auto& [path, fields] : after.objects) {
    const auto old = before.objects.find(path);
    const bool kept = old != before.objects.end() && !LostFields(old->second, fields);
    AddObject(lines, path, kept ? old->second : StateSnapshot::Fields(), fields);
  }
  return lines;
}

void ApplyChanges(StateSnapshot& snapshot, const std::vector<std::string>& changes) {
  StateSnapshot::Fields* object = nullptr;
  for (const std::string& line : changes) {
    if (line.starts_with(kObject)) {
      object = &snapshot.objects[line.substr(kObject.size())];
    } else if (line.starts_with(kGone)) {
      snapshot.objects.erase(line.substr(kGone.size()));
      object = nullptr;
    } else {
      const std::size_t is = line.find(kIs);
      if (object == nullptr || !line.starts_with(kField) || is == std::string::npos) {
        RefuseChange(line);
      }
      (*object)[line.substr(kField.size(), is - kField.size())] = line.substr(is + kIs.size());
    }
  }
}

std::optional<SidecarDifference> FirstDifference(const Sidecar& expected, const Sidecar& found) {
  StateSnapshot wanted;
  StateSnapshot got;
  const std::size_t both = std::min(expected.states.size(), found.states.size());
  for (std::size_t i = 0; i < both; ++i) {
    const SidecarState& mine = expected.states[i];
    const SidecarState& theirs = found.states[i];
    ApplyChanges(wanted, mine.changes);
    ApplyChanges(got, theirs.changes);
    if (auto where = FirstDifference(wanted, got)) return SidecarDifference{mine.time, *where};
    if (mine.time != theirs.time) {
      return SidecarDifference{
          mine.time, {StateSnapshot::kGame, "time", Seconds(mine.time), Seconds(theirs.time)}};
    }
    if (mine.hash != theirs.hash) {
      return SidecarDifference{mine.time, {StateSnapshot::kGame, "hash", mine.hash, theirs.hash}};
    }
  }
  if (both < expected.states.size()) return AtEnd(expected.states[both].time, "off", "on");
  if (both < found.states.size()) return AtEnd(found.states[both].time, "on", "off");
  if (expected.ended != found.ended) {
    return AtEnd(expected.last_time, expected.ended ? "on" : "off", found.ended ? "on" : "off");
  }
  return std::nullopt;
}

std::string DescribeDifference(const SidecarDifference& difference) {
  std::string text = "second " + Seconds(difference.time) + ": " + difference.where.object;
  if (!difference.where.field.empty()) text += ": " + difference.where.field;
  return text + ": expected " + Quoted(difference.where.expected) + ", found " +
         Quoted(difference.where.found);
}

}  // namespace quendle
