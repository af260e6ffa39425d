#include "toolbelt/ToolBelt.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <iostream>
#include <memory>

#include "toolbelt/Bench.h"
#include "toolbelt/BenchTable.h"
#include "toolbelt/Drive.h"
#include "toolbelt/DriveCommand.h"
#include "toolbelt/PictureTool.h"
#include "toolbelt/Render.h"
#include "toolbelt/SmallestContent.h"
#include "toolbelt/verify/VerifyCommand.h"

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

void AddDrive(CLI::App& belt, int& exit_code) {
  CLI::App* drive =
      belt.add_subcommand("drive", "Plays the game in virtual time, driven by one command a line");
  auto settings = std::make_shared<DriveSettings>();
  auto path = std::make_shared<std::string>("directdraw");
  DriveOptions& options = settings->options;
  drive->add_option("--content", settings->content, "The content tree")
      ->required()
      ->check(CLI::ExistingDirectory);
  drive->add_option("--user", settings->user,
                    "Where everything is written; without it, the content tree");
  drive->add_option("--edition", options.edition, "2 is the product, 1 its sibling")
      ->check(CLI::IsMember({1, 2}))
      ->capture_default_str();
  drive->add_option("--seed", options.seed, "Where chance begins")->capture_default_str();
  drive->add_option("--path", *path, "directdraw, or window: the first drawing path fails")
      ->check(CLI::IsMember({"directdraw", "window"}))
      ->capture_default_str();
  drive->add_flag("--other-instance", options.other_instance, "Another instance runs already");
  drive->add_option("--system", options.system_version, "Major version of the system");
  drive->add_option("FILE", settings->file, "The commands; without it, standard input")
      ->check(CLI::ExistingFile);
  drive->footer(
      "Each command is answered by one line of JSON. A line that begins with # or > is a\n"
      "comment.\n"
      "Exit code 0, or 3 when the game ended fatally. Commands:\n\n" +
      CommandHelp() + FaultHelp());
  drive->callback([settings, path, &exit_code] {
    settings->options.window_path = *path == "window";
    exit_code = RunDrive(*settings);
  });
}

void AddRender(CLI::App& belt, int& exit_code) {
  CLI::App* tool = belt.add_subcommand("render", "Writes the picture of a screen as a PNG file");
  auto words = std::make_shared<std::array<std::string, 3>>();
  tool->add_option("DIR", (*words)[0], "The content tree")
      ->required()
      ->check(CLI::ExistingDirectory);
  tool->add_option("SCREEN", (*words)[1], "Its name in the screen table")->required();
  tool->add_option("OUT.png", (*words)[2], "The picture to write")->required();
  tool->callback(
      [words, &exit_code] { exit_code = RenderScreen((*words)[0], (*words)[1], (*words)[2]); });
}

void AddBench(CLI::App& belt) {
  CLI::App* tool = belt.add_subcommand(
      "bench", "Measures the engine: one workload, or a table for a content tree");
  auto workload = std::make_shared<std::string>();
  auto folder = std::make_shared<std::string>(DefaultBenchFolder());
  auto content = std::make_shared<std::string>();
  CLI::Option* which = tool->add_option(
      "WORKLOAD", *workload, "W1: whole frames; W3: mouse events; any other prints nothing");
  tool->add_option("--data", *folder, "The folder of a workload's inputs")->capture_default_str();
  tool->add_option("--content", *content, "The content tree of the table")
      ->check(CLI::ExistingDirectory)
      ->excludes(which);
  tool->callback([workload, folder, content] {
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

void AddNew(CLI::App& belt) {
  CLI::App* tool = belt.add_subcommand("new", "Makes a smallest content tree that runs");
  auto folder = std::make_shared<std::string>();
  tool->add_option("DIR", *folder, "A folder that is empty or not there yet")->required();
  tool->callback([folder] { MakeNewContent(*folder); });
}

}  // namespace

int RunToolBelt(std::vector<std::string> words) {
  CLI::App belt("The tool belt of the clinic's authors. No window is ever needed.", "quendle");
  belt.require_subcommand(0, 1);  // none at all is answered below, with the help
  int exit_code = 0;
  AddDrive(belt, exit_code);
  AddPicture(belt);
  AddRender(belt, exit_code);
  AddNew(belt);
  AddBench(belt);
  AddVerify(belt, exit_code);
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
  return exit_code;
}

}  // namespace quendle
