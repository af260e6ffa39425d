#include <memory>

#include "toolbelt/Bench.h"
#include "toolbelt/BenchTable.h"
#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"

namespace quendle {

void AddBench(CLI::App& belt, int&) {
  CLI::App* command = AddCommand(belt, kMeasuring, "bench",
                                 "Measures the engine: one workload, or a table for a content "
                                 "tree");
  auto workload = std::make_shared<std::string>();
  auto folder = std::make_shared<std::string>(DefaultBenchFolder());
  auto content = std::make_shared<std::string>();
  CLI::Option* which = command->add_option(
      "WORKLOAD", *workload, "W1: whole frames; W3: mouse events; any other prints nothing");
  command->add_option("--data", *folder, "The folder of a workload's inputs")
      ->option_text("DIR")
      ->capture_default_str();
  AddContentTree(*command, "--content", *content)->excludes(which);
  command->footer(Footer("", {"quendle bench --content build/release/bin", "quendle bench W1"},
                         {{0, "all was measured"}}));
  command->callback([workload, folder, content] {
    if (workload->empty() && content->empty()) {
      throw CLI::RequiredError("WORKLOAD or --content");
    }
    if (workload->empty()) {
      PrintBenchTable(*content);
    } else {
      RunBench(*workload, *folder);
    }
  });
}

}  // namespace quendle
