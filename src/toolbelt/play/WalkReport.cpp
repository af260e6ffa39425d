#include "toolbelt/play/WalkReport.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/Text.h"
#include "toolbelt/Json.h"

namespace quendle {
namespace {

constexpr const char* kCurrent = "Current ";  // how the walk's own lines of the log begin
constexpr const char* kClick = "totype_patient_useraction_";
constexpr const char* kTaken = "useraction_";

std::string Count(long count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

void WalkReport::Trace(const TraceEvent& event) {
  ScreenVisit& visit = visits_.back();
  switch (event.kind) {
    case TraceKind::kMessage:
      NoteMessage(event);
      break;
    case TraceKind::kScreen:
      if (event.text != "enter") break;
      visits_.push_back({std::string(event.to), going_on_});
      going_on_ = false;
      break;
    case TraceKind::kState:
      ++visit.states;
      break;
    case TraceKind::kSound:
      if (!EqualsNoCase(event.text, "nothing")) ++visit.sounds;
      break;
    case TraceKind::kLog:
      NoteLog(std::string(event.text));
      break;
    default:
      break;
  }
}

void WalkReport::NoteMessage(const TraceEvent& event) {
  if (!walk_.in_step) return;
  // A message of the walk itself comes from nobody and begins a chain.
  if (!event.from.empty() || event.depth > 1) {
    if (event.text.starts_with(kTaken)) ++visits_.back().taken;
  } else if (walk_.ScreensLeft() && event.text == "cs_" + walk_.screens[walk_.screen - 1]) {
    going_on_ = true;
  } else if (event.text.find(kClick) != std::string_view::npos) {
    ++visits_.back().clicks;
  }
}

void WalkReport::NoteLog(const std::string& line) {
  if (line.starts_with(kCurrent)) return;
  ScreenVisit& visit = visits_.back();
  const auto known = std::ranges::find(visit.warnings, line, &std::pair<std::string, long>::first);
  if (known == visit.warnings.end()) {
    visit.warnings.emplace_back(line, 1);
  } else {
    ++known->second;
  }
}

std::size_t WalkReport::Warnings() const {
  std::size_t count = 0;
  for (const ScreenVisit& visit : visits_) count += visit.warnings.size();
  return count;
}

void WalkReport::Print(std::ostream& out) const {
  long clicks = 0;
  for (const ScreenVisit& visit : visits_) {
    clicks += visit.clicks;
    out << ToUtf8(visit.screen) << ": ";
    if (!visit.by_walk) out << "entered by the content itself, ";
    if (visit.clicks > 0) {
      out << Count(visit.clicks, "click")
          << (visit.taken > 0 ? ", " + std::to_string(visit.taken) + " taken" : " (no patient)")
          << ", ";
    }
    out << Count(visit.states, "change") << " of state, " << Count(visit.sounds, "sound") << "\n";
    for (const auto& [line, times] : visit.warnings) {
      out << "  " << ToUtf8(line) << (times > 1 ? " (" + Count(times, "time") + ")" : "") << "\n";
    }
  }
  out << Count(static_cast<long>(visits_.size()), "visit") << ", " << Count(clicks, "click") << ", "
      << Count(static_cast<long>(Warnings()), "warning") << "\n";
}

}  // namespace quendle
