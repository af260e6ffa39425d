#include "base/FatalError.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace quendle {
namespace {

std::string Describe(const std::string& text, const FilePlace& place) {
  if (place.file.empty()) return text;
  std::string line = place.line > 0 ? ":" + std::to_string(place.line) : "";
  return place.file + line + ": " + text;
}

std::size_t EditDistance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row[b.size()];
}

}  // namespace

FatalError::FatalError(std::string text, FilePlace place)
    : text_(std::move(text)),
      place_(std::move(place)),
      described_(Describe(text_, place_)),
      box_text_(described_) {}

FatalError FatalError::WithBox(std::string box_text, FilePlace place) {
  FatalError error(box_text, std::move(place));
  error.box_text_ = std::move(box_text);
  return error;
}

std::string NearestName(std::string_view name, const std::vector<std::string>& candidates) {
  const std::string wanted = FoldCase(name);
  std::string nearest;
  std::size_t best = wanted.size() / 3 + 2;
  for (const std::string& candidate : candidates) {
    std::size_t distance = EditDistance(wanted, FoldCase(candidate));
    if (distance < best) {
      best = distance;
      nearest = candidate;
    }
  }
  return nearest;
}

std::string DidYouMean(std::string_view name, const std::vector<std::string>& candidates) {
  std::string nearest = NearestName(name, candidates);
  return nearest.empty() ? "" : "; did you mean \"" + nearest + "\"?";
}

}  // namespace quendle
