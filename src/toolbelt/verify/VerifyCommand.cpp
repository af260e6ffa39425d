#include "toolbelt/verify/VerifyCommand.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>

#include "backends/files/DiskFileSystem.h"
#include "platform/Faults.h"
#include "toolbelt/Progress.h"
#include "toolbelt/verify/Report.h"
#include "toolbelt/verify/SideList.h"
#include "toolbelt/verify/VerifyContent.h"

namespace quendle {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSideListName = "verify.txt";
constexpr int kIndent = 1;

std::optional<SideList> ReadSideList(const VerifySettings& settings) {
  const bool named = !settings.side_list.empty();
  const fs::path path =
      named ? fs::path(settings.side_list) : fs::path(settings.folder) / kSideListName;
  std::ifstream file(path, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  if (file.is_open() && !file.bad() && fs::is_regular_file(path)) {
    return SideList(text, named ? settings.side_list : kSideListName);
  }
  if (named) throw std::runtime_error(settings.side_list + ": can't be read");
  return std::nullopt;
}

void Print(const VerifySettings& settings, const Findings& findings,
           const ContentListing& listing) {
  switch (settings.format) {
    case VerifySettings::Format::kText:
      PrintText(findings, listing, std::cout);
      return;
    case VerifySettings::Format::kJson:
      std::cout << JsonReport(findings, listing).dump(kIndent) << "\n";
      return;
    case VerifySettings::Format::kSarif:
      std::cout << SarifReport(findings, listing).dump(kIndent) << "\n";
      return;
  }
}

}  // namespace

int RunVerify(const VerifySettings& settings) {
  const std::string base = fs::canonical(settings.folder).string();
  Faults faults;
  DiskFileSystem files({base, "", ""}, faults);
  VerifiedTree tree{files, base, ContentListing::OfFolder(base)};
  const std::optional<SideList> side_list = ReadSideList(settings);
  Progress progress(std::cerr, Progress::ErrorIsTerminal());
  const Findings findings = VerifyContent(tree, side_list ? &*side_list : nullptr, progress);
  Print(settings, findings, tree.listing);
  return Count(findings).Counting() == 0 ? 0 : 1;
}

void AddVerify(CLI::App& belt, int& exit_code) {
  CLI::App* tool = belt.add_subcommand("verify", "Checks a whole content tree with nothing played");
  auto settings = std::make_shared<VerifySettings>();
  auto json = std::make_shared<bool>(false);
  auto sarif = std::make_shared<bool>(false);
  auto codes = std::make_shared<std::string>();
  CLI::Option* folder =
      tool->add_option("DIR", settings->folder, "The content tree")->check(CLI::ExistingDirectory);
  tool->add_option("--side-list", settings->side_list,
                   "Findings that are meant, a line each: CODE PATH REASON. Without it, "
                   "verify.txt in the content tree")
      ->check(CLI::ExistingFile);
  CLI::Option* as_json = tool->add_flag("--json", *json, "Print one JSON object");
  tool->add_flag("--sarif", *sarif, "Print a SARIF 2.1.0 log, for build servers")
      ->excludes(as_json);
  CLI::Option* list = tool->add_option("--codes", *codes, "List all checks, and do nothing else")
                          ->expected(0, 1)
                          ->default_str("text")
                          ->check(CLI::IsMember({"text", "markdown"}));
  tool->footer(
      "Findings are printed as FILE:LINE: severity CODE: text, grouped by object.\n"
      "Exit code 0 when there are none, 1 when there are some, 2 for a usage error.");
  tool->callback([=, &exit_code] {
    if (list->count() > 0) {
      if (*codes == "markdown") {
        std::cout << CodesAsMarkdown();
      } else {
        PrintCodes(std::cout);
      }
      return;
    }
    if (folder->count() == 0) throw CLI::RequiredError("DIR");
    using enum VerifySettings::Format;
    settings->format = *json ? kJson : *sarif ? kSarif : kText;
    exit_code = RunVerify(*settings);
  });
}

}  // namespace quendle
