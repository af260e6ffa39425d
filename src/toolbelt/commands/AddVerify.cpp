#include <iostream>
#include <memory>

#include "toolbelt/commands/CommandParts.h"
#include "toolbelt/commands/Commands.h"
#include "toolbelt/verify/Report.h"
#include "toolbelt/verify/VerifyCommand.h"

namespace quendle {
namespace {

struct VerifyWords {
  VerifySettings settings;
  bool json = false;
  bool sarif = false;
  std::string codes;
};

void PrintChecks(const std::string& form) {
  if (form == "markdown") {
    std::cout << CodesAsMarkdown();
  } else {
    PrintCodes(std::cout);
  }
}

}  // namespace

void AddVerify(CLI::App& belt, int& exit_code) {
  CLI::App* command =
      AddCommand(belt, kChecking, "verify", "Checks a whole content tree with nothing played");
  auto words = std::make_shared<VerifyWords>();
  CLI::Option* folder = AddContentTree(*command, "DIR", words->settings.folder);
  command
      ->add_option("--side-list", words->settings.side_list,
                   "Findings that are meant, a line each: CODE PATH REASON; without it, verify.txt "
                   "in DIR")
      ->option_text("FILE")
      ->check(CLI::ExistingFile);
  CLI::Option* json = command->add_flag("--json", words->json, "Print one JSON object");
  command->add_flag("--sarif", words->sarif, "Print a SARIF 2.1.0 log, for build servers")
      ->excludes(json);
  CLI::Option* codes = command
                           ->add_option("--codes", words->codes,
                                        "List all checks with cause and cure, and do nothing else")
                           ->option_text("[text|markdown]")
                           ->expected(0, 1)
                           ->check(CLI::IsMember({"text", "markdown"}));
  command->footer(
      Footer("Findings are printed as FILE:LINE: severity CODE: text, grouped by object.\n",
             {"quendle verify build/release/bin", "quendle verify mygame --sarif > verify.sarif",
              "quendle verify --codes"},
             {{0, "nothing found, or all of it silenced"}, {1, "findings"}}));
  command->callback([=, &exit_code] {
    if (codes->count() > 0) {
      PrintChecks(words->codes);
      return;
    }
    if (folder->count() == 0) throw CLI::RequiredError("DIR");
    using enum VerifySettings::Format;
    words->settings.format = words->json ? kJson : words->sarif ? kSarif : kText;
    exit_code = RunVerify(words->settings);
  });
}

}  // namespace quendle
