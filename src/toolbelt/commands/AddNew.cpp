#include <memory>

#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/making/SmallestContent.h"

namespace quendle {

void AddNew(CLI::App& belt, int&) {
  CLI::App* command =
      AddCommand(belt, kMaking, "new", "Makes a smallest content tree that runs, to begin with");
  auto folder = std::make_shared<std::string>();
  command->add_option("DIR", *folder, "A folder that is empty or not there yet")->required();
  command->footer(Footer("", {"quendle new mygame"}, {{0, "the tree is made"}}));
  command->callback([folder] { MakeNewContent(*folder); });
}

}  // namespace quendle
