#include "base/ContentFiles.h"

#include <algorithm>
#include <utility>

#include "base/SF_Strings.h"
#include "base/Settings.h"

namespace quendle {
namespace {

// Hundreds of times the longest text of the demo clinic. What is made of a text takes many times
// its room, and that is what the limit keeps small.
constexpr std::size_t kMostTextBytes = 4'000'000;

// Collects lines and replaces the file as a whole at Close; a stream that is dropped before
// writes nothing, so a fault in the middle leaves the old file.
class TextWriter : public TextStream {
 public:
  TextWriter(FileSystem& files, std::string path, std::string display_name)
      : files_(files), path_(std::move(path)), display_name_(std::move(display_name)) {}

  bool AtEndOfStream() const override { return true; }
  std::string ReadLine(std::string_view) override {
    throw FatalError("the file is open for writing and can't be read", Place());
  }
  void WriteLine(std::string_view line) override {
    bytes_.append(line).append("\r\n");
    ++line_;
  }
  void Close() override {
    if (std::exchange(closed_, true)) return;
    if (!files_.Write(path_, bytes_)) {
      throw FatalError("the file can't be written", {display_name_, 0});
    }
  }
  FilePlace Place() const override { return {display_name_, line_}; }

 private:
  FileSystem& files_;
  std::string path_;
  std::string display_name_;
  std::string bytes_;
  int line_ = 0;
  bool closed_ = false;
};

}  // namespace

bool ContentFiles::FileExistsAt(const std::string& path) const {
  return unsaved_->Find(path) != nullptr || files_.Exists(path);
}

FileAnswer ContentFiles::Read(const std::string& path) const {
  if (const std::string* kept = unsaved_->Find(path)) return *kept;
  FileAnswer answer = files_.Read(path);
  if (!answer.reason.empty()) unsaved_->Note(DisplayName(path), "read", answer.reason);
  return answer;
}

void ContentFiles::DeleteFileIfPresent(const std::string& path) const {
  if (!TryDelete(path)) throw FatalError("the file can't be deleted", {DisplayName(path), 0});
}

bool ContentFiles::TryDelete(const std::string& path) const {
  unsaved_->Forget(path);
  if (!files_.Exists(path)) return true;
  const FileChange change = files_.Remove(path);
  if (!change) unsaved_->Note(DisplayName(path), "deleted", change.reason);
  return static_cast<bool>(change);
}

std::unique_ptr<TextStream> ContentFiles::OpenTextFileChecked(const std::string& path,
                                                              OpenMode mode, bool create) const {
  if (mode == OpenMode::kWrite) {
    if (!create) ReadExisting(path);
    return std::make_unique<TextWriter>(files_, path, DisplayName(path));
  }
  if (create && !FileExistsAt(path)) files_.Write(path, "");
  return std::make_unique<TextReader>(ReadExisting(path), DisplayName(path));
}

std::unique_ptr<TextStream> ContentFiles::OpenPlayerFile(const std::string& path) const {
  std::optional<std::string> bytes = ReadPlayerFile(path);
  if (!bytes) return nullptr;
  return std::make_unique<TextReader>(std::move(*bytes), DisplayName(path));
}

std::optional<std::string> ContentFiles::ReadPlayerFile(const std::string& path) const {
  FileAnswer answer = Read(path);
  if (answer || answer.IsMissing()) return answer;
  const std::string name = DisplayName(path);
  throw FatalError::WithBox("The file " + name + " can't be opened at the moment (" +
                                answer.reason +
                                ").\nNothing was changed. Please start the game again later.",
                            {name, 0});
}

bool ContentFiles::TryWrite(const std::string& path, std::string_view bytes) const {
  return unsaved_->TryWrite(path, DisplayName(path), bytes);
}

void ContentFiles::KeepFile(const std::string& path, std::string_view bytes) const {
  unsaved_->Keep(path, DisplayName(path), bytes);
}

void ContentFiles::WriteOneLine(const std::string& path, std::string_view line) const {
  KeepFile(path, std::string(line) + "\r\n");
}

void ContentFiles::CopyFile(const std::string& from, const std::string& to) const {
  if (TryWrite(to, ReadExisting(from))) return;
  throw FatalError("the file can't be written", {DisplayName(to), 0});
}

void ContentFiles::KeepCopy(const std::string& from, const std::string& to) const {
  KeepFile(to, ReadExisting(from));
}

std::string ContentFiles::DisplayName(std::string_view path) const {
  std::string name = SF_remove(path, settings_.BaseDirectory);
  return name.substr(std::min(name.find_first_not_of('\\'), name.size()));
}

const std::string& ContentFiles::BaseDirectory() const { return settings_.BaseDirectory; }

std::string ContentFiles::ReadExisting(const std::string& path) const {
  FileAnswer answer = Read(path);
  if (answer.IsMissing()) {
    throw FatalError::WithBox("File " + path + " not found", {DisplayName(path), 0});
  }
  if (!answer) throw FatalError("the file can't be read: " + answer.reason, {DisplayName(path), 0});
  if (answer->size() > kMostTextBytes) {
    throw FatalError("the file has more than 4 million bytes: no text of a game is that long",
                     {DisplayName(path), 0});
  }
  return std::move(*answer);
}

}  // namespace quendle
