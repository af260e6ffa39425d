#include "base/WorkDepth.h"

#include <limits>
#include <vector>

namespace quendle {
namespace {

struct Nouns {
  const char* one;
  const char* many;
};

Nouns NounsOf(Work work) {
  switch (work) {
    case Work::kMessage:
      return {"message", "messages"};
    case Work::kScript:
      return {"script line", "script lines"};
    case Work::kLoad:
      return {"file", "files"};
    case Work::kTreeWalk:
      return {"walk over the tree", "steps over the tree"};
    case Work::kObject:
      return {"object file", "object files"};
    case Work::kBlock:
      return {"script line", "blocks"};
  }
  return {"work", "works"};
}

constexpr int kNoLimit = std::numeric_limits<int>::max();
constexpr std::size_t kFirstOfChain = 3;
constexpr std::size_t kLastOfChain = 4;

std::string Joined(const std::vector<std::string_view>& texts) {
  std::string joined;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i >= kFirstOfChain && i + kLastOfChain < texts.size()) {
      if (i == kFirstOfChain) joined += "... > ";
      continue;
    }
    joined.append(texts[i]).append(i + 1 < texts.size() ? " > " : "");
  }
  return joined;
}

bool Speaks(Work work) { return work == Work::kMessage || work == Work::kScript; }

}  // namespace

// Messages, script lines, files, steps of walks, object files, blocks. What is read from one file
// is bounded by the size of files.
const std::array<int, 6> WorkDepth::kMost = {100'000,   100'000, kNoLimit,
                                             1'000'000, 10'000,  kNoLimit};

void WorkDepth::ForgetFailure() {
  noted_ = false;
  failed_object_.clear();
  failed_text_.clear();
  failed_place_ = {};
}

void DepthGuard::Refuse() {
  Note();
  const FilePlace place = origin_ == nullptr ? FilePlace{} : *origin_;
  const Nouns nouns = NounsOf(work_);
  if (depth_.depth_ < WorkDepth::kLimit) {
    const int most = WorkDepth::MostOf(work_);
    throw FatalError("more than " + std::to_string(most) + " " + nouns.many +
                         " in one event: the content multiplies at " + Chain(),
                     place);
  }
  throw FatalError(
      "more than " + std::to_string(WorkDepth::kLimit) + " levels deep: " + WhyTooDeep(), place);
}

void DepthGuard::KeepWithin(int limit, std::string_view things) const {
  int levels = 1;
  for (const DepthGuard* outer = outer_; outer != nullptr; outer = outer->outer_) {
    if (outer->work_ == work_) ++levels;
  }
  if (levels <= limit) return;
  throw FatalError("more than " + std::to_string(limit) + " " + std::string(things) +
                       " inside one another: " + WhyTooDeep(),
                   origin_ == nullptr ? FilePlace{} : *origin_);
}

std::string DepthGuard::WhyTooDeep() const {
  return std::string("the content ") +
         (Repeats() ? "goes round in circles" : "is nested too deep") + " at " +
         NounsOf(work_).one + " \"" + std::string(text_) + "\"";
}

bool DepthGuard::Repeats() const {
  if (work_ == Work::kLoad || work_ == Work::kBlock)
    return false;  // what is read goes forward in a file
  for (const DepthGuard* outer = outer_; outer != nullptr; outer = outer->outer_) {
    if (outer->work_ == work_ && outer->place_ == place_ && outer->text_ == text_) return true;
  }
  return false;
}

std::string DepthGuard::Chain() const {
  std::vector<std::string_view> texts{text_};
  for (const DepthGuard* outer = outer_; outer != nullptr; outer = outer->outer_) {
    // A message passes many hands; the lines that sent it tell enough.
    const bool told = Speaks(work_) ? outer->work_ == Work::kScript : outer->work_ == work_;
    if (told && outer->text_ != texts.front()) texts.insert(texts.begin(), outer->text_);
  }
  return Joined(texts);
}

void DepthGuard::Note() noexcept {
  try {
    // Each is taken from the innermost level that knows it: a message that the rules refuse still
    // leads to the object that it passed, and to the script line that sent it.
    if (place_ != nullptr && depth_.failed_object_.empty()) {
      depth_.failed_object_ = place_->WorkPath();
    }
    if (Speaks(work_) && depth_.failed_text_.empty()) depth_.failed_text_ = text_;
    if (origin_ != nullptr && depth_.failed_place_.file.empty()) depth_.failed_place_ = *origin_;
    depth_.noted_ = !depth_.failed_object_.empty() && !depth_.failed_text_.empty() &&
                    !depth_.failed_place_.file.empty();
  } catch (...) {
    depth_.noted_ = true;  // no memory to describe the fault: its own text must do
  }
}

}  // namespace quendle
