#include <iostream>
#include <memory>

#include "base/FatalError.h"
#include "base/Text.h"
#include "toolbelt/bench/Bench.h"
#include "toolbelt/bench/BenchTable.h"
#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/play/ContentRun.h"

namespace quendle {
namespace {

struct BenchSettings {
  std::string workload;
  std::string folder = DefaultBenchFolder();
  std::string content;
  bool json = false;
};

constexpr const char* kText =
    "The table: start to first frame, a screen's first load and its change from the cache, a\n"
    "composed frame, a saved game written and read, peak memory, and a mouse event over 60\n"
    "scripted objects. A workload prints one line of JSON for each of its measurements.\n";

}  // namespace

void AddBench(CLI::App& belt, int& exit_code) {
  CLI::App* command = AddCommand(belt, kMeasuring, "bench",
                                 "Measures the engine: one workload, or a table for a content "
                                 "tree");
  auto settings = std::make_shared<BenchSettings>();
  CLI::Option* which =
      command->add_option("WORKLOAD", settings->workload,
                          "W1: whole frames; W3: mouse events; any other prints nothing");
  command->add_option("--data", settings->folder, "The folder of a workload's inputs")
      ->option_text("DIR")
      ->capture_default_str();
  AddContentTree(*command, "--content", settings->content)
      ->description("The content tree of the table; without it, the one beside the executable")
      ->excludes(which);
  command->add_flag("--json", settings->json, "The table as lines of JSON")->excludes(which);
  command->footer(
      Footer(kText, {"quendle bench", "quendle bench --content mygame --json", "quendle bench W1"},
             {{0, "all was measured"}, {3, "the game ended fatally"}}));
  command->callback([settings, &exit_code] {
    if (!settings->workload.empty()) return RunBench(settings->workload, settings->folder);
    if (settings->content.empty()) settings->content = ContentBesideTheProgram();
    if (settings->content.empty()) throw CLI::RequiredError("WORKLOAD or --content");
    try {
      PrintBenchTable(settings->content, settings->json);
    } catch (const FatalError& fault) {
      std::cerr << ToUtf8(fault.what()) << "\n";
      exit_code = kGameFailed;
    }
  });
}

}  // namespace quendle
