#include "toolbelt/verify/VerifyCommand.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
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

}  // namespace quendle
