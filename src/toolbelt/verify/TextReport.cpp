#include <algorithm>
#include <ostream>

#include "base/Text.h"
#include "toolbelt/verify/Report.h"

namespace quendle {
namespace {

std::string Counted(std::size_t number, const char* noun) {
  return std::to_string(number) + " " + noun + (number == 1 ? "" : "s");
}

// Content may hold anything; a terminal obeys some of it, and a finding is one line.
std::string OneLine(std::string text) {
  const auto is_control = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
  std::ranges::replace_if(text, is_control, '?');
  return ToUtf8(text);
}

}  // namespace

FindingCounts Count(const Findings& findings) {
  FindingCounts counts;
  for (const Finding& finding : findings.All()) {
    if (!finding.silenced.empty()) {
      ++counts.silenced;
      continue;
    }
    switch (RowOf(finding.check).severity) {
      case Severity::kError:
        ++counts.errors;
        break;
      case Severity::kWarning:
        ++counts.warnings;
        break;
      case Severity::kNote:
        ++counts.notes;
        break;
    }
  }
  return counts;
}

std::string ReportPath(const FilePlace& place, const ContentListing& listing) {
  if (place.file.empty()) return ".";
  std::string path = listing.OnDisk("\\" + place.file);
  std::ranges::replace(path, '\\', '/');
  return ToUtf8(path.substr(path.find_first_not_of('/')));
}

void PrintText(const Findings& findings, const ContentListing& listing, std::ostream& out) {
  const std::string* object = nullptr;
  for (const Finding& finding : findings.All()) {
    if (!finding.silenced.empty()) continue;
    if (object == nullptr || *object != finding.object) {
      if (object != nullptr) out << "\n";
      object = &finding.object;
      if (!object->empty()) out << OneLine(*object) << "\n";
    }
    const CheckRow& row = RowOf(finding.check);
    out << ReportPath(finding.place, listing) << ":" << std::max(finding.place.line, 1) << ": "
        << SeverityWord(row.severity) << " " << row.code << ": " << OneLine(finding.text) << "\n";
  }
  const FindingCounts counts = Count(findings);
  if (object != nullptr) out << "\n";
  out << Counted(counts.errors, "error") << ", " << Counted(counts.warnings, "warning") << ", "
      << Counted(counts.notes, "note");
  if (counts.silenced > 0) out << "; " << counts.silenced << " silenced by the side list";
  out << "\n";
}

void PrintCodes(std::ostream& out) {
  for (const CheckRow& row : CheckTable()) {
    out << row.code << " " << SeverityWord(row.severity) << ": " << row.title << "\n    "
        << row.cause << "\n    Cure: " << row.cure << "\n";
  }
}

std::string CodesAsMarkdown() {
  std::string page = "| code | | what | cause | cure |\n|---|---|---|---|---|\n";
  for (const CheckRow& row : CheckTable()) {
    page += "| " + std::string(row.code) + " | " + std::string(SeverityWord(row.severity)) + " | " +
            std::string(row.title) + " | " + std::string(row.cause) + " | " +
            std::string(row.cure) + " |\n";
  }
  return page;
}

}  // namespace quendle
