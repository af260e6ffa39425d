#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

#include "base/Text.h"
#include "toolbelt/verify/Report.h"

namespace quendle {
namespace {

// Spaces and the like in a path, as an address writes them.
std::string AsUri(const std::string& path) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  constexpr std::string_view kPlain = "-._~/";
  std::string uri;
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain = (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
                       (byte >= 'a' && byte <= 'z') || kPlain.find(c) != std::string_view::npos;
    if (plain) {
      uri += c;
    } else {
      uri += '%';
      uri += kDigits[byte >> 4];
      uri += kDigits[byte & 15];
    }
  }
  return uri;
}

Json SarifRules() {
  Json rules = Json::array();
  for (const CheckRow& row : CheckTable()) {
    rules.push_back({{"id", row.code},
                     {"shortDescription", {{"text", row.title}}},
                     {"fullDescription", {{"text", row.cause}}},
                     {"help", {{"text", row.cure}}},
                     {"defaultConfiguration", {{"level", SeverityWord(row.severity)}}}});
  }
  return rules;
}

Json SarifResult(const Finding& finding, const ContentListing& listing) {
  const CheckRow& row = RowOf(finding.check);
  Json location = {
      {"physicalLocation",
       {{"artifactLocation",
         {{"uri", AsUri(ReportPath(finding.place, listing))}, {"uriBaseId", "CONTENT"}}},
        {"region", {{"startLine", std::max(finding.place.line, 1)}}}}}};
  if (!finding.object.empty()) {
    location["logicalLocations"] =
        Json::array({{{"fullyQualifiedName", ToUtf8(finding.object)}, {"kind", "object"}}});
  }
  Json result = {{"ruleId", row.code},
                 {"ruleIndex", static_cast<int>(finding.check)},
                 {"level", SeverityWord(row.severity)},
                 {"message", {{"text", ToUtf8(finding.text)}}},
                 {"locations", Json::array({location})}};
  if (!finding.silenced.empty()) {
    result["suppressions"] =
        Json::array({{{"kind", "external"}, {"justification", ToUtf8(finding.silenced)}}});
  }
  return result;
}

}  // namespace

Json JsonReport(const Findings& findings, const ContentListing& listing) {
  Json list = Json::array();
  for (const Finding& finding : findings.All()) {
    const CheckRow& row = RowOf(finding.check);
    Json entry = {{"code", row.code},
                  {"severity", SeverityWord(row.severity)},
                  {"title", row.title},
                  {"object", ToUtf8(finding.object)},
                  {"file", ReportPath(finding.place, listing)},
                  {"line", std::max(finding.place.line, 1)},
                  {"text", ToUtf8(finding.text)}};
    if (!finding.silenced.empty()) entry["silenced"] = ToUtf8(finding.silenced);
    list.push_back(std::move(entry));
  }
  const FindingCounts counts = Count(findings);
  return {{"findings", std::move(list)},
          {"counts",
           {{"errors", counts.errors},
            {"warnings", counts.warnings},
            {"notes", counts.notes},
            {"silenced", counts.silenced}}}};
}

Json SarifReport(const Findings& findings, const ContentListing& listing) {
  Json results = Json::array();
  for (const Finding& finding : findings.All()) results.push_back(SarifResult(finding, listing));
  Json run = {{"tool", {{"driver", {{"name", "quendle verify"}, {"rules", SarifRules()}}}}},
              {"columnKind", "unicodeCodePoints"},
              {"results", std::move(results)}};
  return {{"version", "2.1.0"}, {"runs", Json::array({std::move(run)})}};
}

}  // namespace quendle
