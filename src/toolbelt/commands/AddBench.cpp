#include <memory>

#include "toolbelt/bench/Bench.h"
#include "toolbelt/bench/BenchTable.h"
#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"

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

void AddBench(CLI::App& belt, int&) {
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
             {{0, "all was measured"}}));
  command->callback([settings] {
    if (!settings->workload.empty()) return RunBench(settings->workload, settings->folder);
    if (settings->content.empty()) settings->content = ContentBesideTheProgram();
    if (settings->content.empty()) throw CLI::RequiredError("WORKLOAD or --content");
    PrintBenchTable(settings->content, settings->json);
  });
}

}  // namespace quendle
