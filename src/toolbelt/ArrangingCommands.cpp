// Chance, clock and failures.

#include <nlohmann/json.hpp>

#include "base/Text.h"
#include "toolbelt/DriveCommand.h"

namespace quendle {
namespace {

constexpr long kMostCalls = 1000000000;

Json Random(DriveSession& session, Arguments& arguments) {
  std::vector<double> values;
  do {
    const double value = arguments.Number();
    if (value < 0 || value >= 1) arguments.Refuse("a value is from 0 up to but not including 1");
    values.push_back(value);
  } while (!arguments.Empty());
  for (const double value : values) session.Platform().random.Queue(value);
  return Json::object();
}

Json SetClock(DriveSession& session, Arguments& arguments) {
  const double seconds = arguments.Number();
  arguments.End();
  if (seconds < 0 || seconds >= VirtualClock::kSecondsOfDay) {
    arguments.Refuse("a time of day is from 0 up to but not including 86400 seconds");
  }
  session.Platform().clock.SetTimeOfDay(seconds);
  return Json::object();
}

Json Fail(DriveSession& session, Arguments& arguments) {
  const std::string operation = arguments.Word();
  int after = 0;
  int times = 0;  // for ever
  bool lost = false;
  while (!arguments.Empty()) {
    const std::string word = arguments.Word();
    if (EqualsNoCase(word, "after")) {
      after = static_cast<int>(arguments.Whole(0, kMostCalls));
    } else if (EqualsNoCase(word, "times")) {
      times = static_cast<int>(arguments.Whole(1, kMostCalls));
    } else if (EqualsNoCase(word, "lost")) {
      lost = true;
    } else {
      arguments.Refuse("\"" + word + "\" is neither after, times nor lost");
    }
  }
  session.Platform().faults.Plan(operation, after, times, lost);
  return Json::object();
}

}  // namespace

const CommandTable& ArrangingCommands() {
  static const CommandTable kTable = {
      {"random V V ...", "the next values of the generator, then the seeded ones", Random},
      {"clock SECONDS", "the time of day, which then runs with virtual time", SetClock},
      {"fail OPERATION [after N] [times M] [lost]",
       "a platform operation fails, for ever or M times, after N calls that go well", Fail},
  };
  return kTable;
}

}  // namespace quendle
