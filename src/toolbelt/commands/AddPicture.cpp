#include <memory>

#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/making/PictureTool.h"

namespace quendle {

void AddPicture(CLI::App& belt, int&) {
  CLI::App* command = AddCommand(belt, kMaking, "picture",
                                 "Makes a keyed 24-bit bitmap of a PNG file: hard edges at half "
                                 "alpha, the ground exactly 200,200,200");
  auto input = std::make_shared<std::string>();
  auto output = std::make_shared<std::string>();
  command->add_option("IN.png", *input, "The picture")->required();
  command->add_option("OUT.bmp", *output, "The bitmap to write")->required();
  command->footer(
      Footer("", {"quendle picture duck.png Info/Pond/duck.bmp"}, {{0, "the bitmap is written"}}));
  command->callback([input, output] { MakeKeyedBitmap(*input, *output); });
}

}  // namespace quendle
