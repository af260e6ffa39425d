#include "base/UnsavedFiles.h"

#include <utility>

#include "base/EventSink.h"
#include "base/Text.h"
#include "platform/FileSystem.h"

namespace quendle {
namespace {

constexpr int kWarningLevel = 10;

}  // namespace

bool UnsavedFiles::TryWrite(const std::string& path, const std::string& name,
                            std::string_view bytes) {
  TryAgain();
  const FileChange change = files_.Write(path, bytes);
  if (change) {
    Forget(path);
    return true;
  }
  Note(name, "written", change.reason);
  return false;
}

void UnsavedFiles::Keep(const std::string& path, const std::string& name, std::string_view bytes) {
  Forget(path);
  if (!TryWrite(path, name, bytes)) kept_[FoldCase(path)] = {path, std::string(bytes)};
}

const std::string* UnsavedFiles::Find(const std::string& path) const {
  if (kept_.empty()) return nullptr;
  auto found = kept_.find(FoldCase(path));
  return found == kept_.end() ? nullptr : &found->second.bytes;
}

void UnsavedFiles::Forget(const std::string& path) {
  if (!kept_.empty()) kept_.erase(FoldCase(path));
}

void UnsavedFiles::TryAgain() {
  std::erase_if(kept_, [this](const auto& entry) {
    return static_cast<bool>(files_.Write(entry.second.path, entry.second.bytes));
  });
}

void UnsavedFiles::Tell(const std::string& line) {
  if (log_ != nullptr) {
    log_->LogEvent(line, kWarningLevel, "General");
  } else {
    waiting_.push_back(line);
  }
}

void UnsavedFiles::SetLog(EventSink* log) {
  log_ = log;
  if (log_ == nullptr) return;
  for (const std::string& line : std::exchange(waiting_, {})) {
    log_->LogEvent(line, kWarningLevel, "General");
  }
}

}  // namespace quendle
