// What `quendle verify` prints.
#pragma once

#include <iosfwd>
#include <string>

#include "toolbelt/Json.h"
#include "toolbelt/verify/ContentListing.h"
#include "toolbelt/verify/Finding.h"

namespace quendle {

struct FindingCounts {
  std::size_t errors = 0;
  std::size_t warnings = 0;
  std::size_t notes = 0;
  std::size_t silenced = 0;
  std::size_t Counting() const { return errors + warnings + notes; }
};
FindingCounts Count(const Findings& findings);

// The path of a finding from the root of the tree, as the disk has it: parted by slashes, in UTF-8.
std::string ReportPath(const FilePlace& place, const ContentListing& listing);

// `FILE:LINE: severity CODE: text`, grouped by object, and a last line that counts.
void PrintText(const Findings& findings, const ContentListing& listing, std::ostream& out);
// One JSON object: `findings`, and `counts`.
Json JsonReport(const Findings& findings, const ContentListing& listing);
// A log in the format SARIF 2.1.0, which build servers show beside the lines. Paths are relative to
// the root of the tree.
Json SarifReport(const Findings& findings, const ContentListing& listing);

// All checks with their causes and cures, for a terminal.
void PrintCodes(std::ostream& out);
// The same as the table of a page.
std::string CodesAsMarkdown();

}  // namespace quendle
