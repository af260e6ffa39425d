#include "LineMutator.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace quendle {
namespace {

enum class Change { kInsert, kReplace, kRemove, kRepeat, kSwap, kSplice, kBytes, kCount };

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1);
    lines.emplace_back(text.substr(0, end + 1));
    text.remove_prefix(end + 1);
  }
  return lines;
}

// The front of one line and the back of another, parted where words are.
std::string Splice(const std::string& front, const std::string& back, FuzzRandom& random) {
  const auto cut = [&](const std::string& line) {
    const std::size_t at = line.find_first_of("_ =\\", Below(random, line.size()));
    return std::min(at, line.size() - 1);
  };
  return front.substr(0, cut(front)) + back.substr(cut(back));
}

void ChangeLines(std::vector<std::string>& lines, Change change, FuzzRandom& random,
                 const std::function<std::string(FuzzRandom&)>& make) {
  const auto any = [&] { return lines.begin() + static_cast<long>(Below(random, lines.size())); };
  if (lines.empty() || change == Change::kInsert) {
    const std::size_t at = Below(random, lines.size() + 1);
    lines.insert(lines.begin() + static_cast<long>(at), make(random));
  } else if (change == Change::kReplace) {
    *any() = make(random);
  } else if (change == Change::kRemove) {
    lines.erase(any());
  } else if (change == Change::kRepeat) {
    const std::string line = *any();
    lines.insert(any(), line);
  } else if (change == Change::kSwap) {
    std::swap(*any(), *any());
  } else {
    *any() = Splice(*any(), *any(), random);
  }
}

}  // namespace

std::size_t MutateLines(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed,
                        const std::function<std::string(FuzzRandom&)>& make) {
  FuzzRandom random(seed);
  const auto change = static_cast<Change>(Below(random, static_cast<std::size_t>(Change::kCount)));
  if (change == Change::kBytes) return LLVMFuzzerMutate(data, size, most);
  std::vector<std::string> lines = LinesOf({reinterpret_cast<const char*>(data), size});
  ChangeLines(lines, change, random, make);
  std::string text;
  for (const std::string& line : lines) text += line;
  text.resize(std::min(text.size(), most));
  std::memcpy(data, text.data(), text.size());
  return text.size();
}

}  // namespace quendle
