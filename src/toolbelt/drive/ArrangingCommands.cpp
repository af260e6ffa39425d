// Chance, clock and failures.

#include <nlohmann/json.hpp>

#include "base/FatalError.h"
#include "base/Text.h"
#include "platform/Faults.h"
#include "toolbelt/drive/DriveCommand.h"

namespace quendle {
namespace {

constexpr std::size_t kHelpWidth = 90;
constexpr long kMostCalls = 1000000000;

std::string ReadOperation(Arguments& arguments) {
  const std::string word = arguments.Word();
  for (std::string_view operation : kOperationsThatCanFail) {
    if (EqualsNoCase(operation, word)) return std::string(operation);
  }
  const std::vector<std::string> known(kOperationsThatCanFail.begin(),
                                       kOperationsThatCanFail.end());
  arguments.Refuse("there is no operation \"" + word + "\"" + DidYouMean(word, known));
}

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
  const std::string operation = ReadOperation(arguments);
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

std::string FaultHelp() {
  std::string help = "Operations that can fail:";
  std::size_t column = help.size();
  for (std::string_view operation : kOperationsThatCanFail) {
    const bool full = column + operation.size() + 1 > kHelpWidth;
    help.append(full ? "\n  " : " ").append(operation);
    column = (full ? 2 : column + 1) + operation.size();
  }
  return help + "\n";
}

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
