#include "toolbelt/ToolBelt.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "toolbelt/PictureTool.h"

namespace quendle {
namespace {

constexpr int kUsageError = 2;

void AddPicture(CLI::App& belt) {
  CLI::App* picture = belt.add_subcommand(
      "picture",
      "Makes a keyed 24-bit bitmap of a PNG file: hard edges at half alpha, the ground exactly "
      "200,200,200");
  auto input = std::make_shared<std::string>();
  auto output = std::make_shared<std::string>();
  picture->add_option("IN.png", *input, "The picture")->required();
  picture->add_option("OUT.bmp", *output, "The bitmap to write")->required();
  picture->callback([input, output] { MakeKeyedBitmap(*input, *output); });
}

}  // namespace

int RunToolBelt(std::vector<std::string> words) {
  CLI::App belt("The tool belt of the clinic's authors. No window is ever needed.", "quendle");
  belt.require_subcommand(0, 1);  // none at all is answered below, with the help
  AddPicture(belt);
  std::ranges::reverse(words);  // the parser takes them from the back
  try {
    belt.parse(words);
  } catch (const CLI::ParseError& error) {
    return belt.exit(error) == 0 ? 0 : kUsageError;
  } catch (const std::exception& error) {
    std::cerr << "quendle: " << error.what() << "\n";
    return 1;
  }
  if (belt.get_subcommands().empty()) {
    std::cerr << belt.help();
    return kUsageError;
  }
  return 0;
}

}  // namespace quendle
