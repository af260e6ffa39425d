#include "toolbelt/verify/FileGate.h"

#include <algorithm>

#include "base/Text.h"

namespace quendle {
namespace {

std::vector<std::string> Components(std::string path) {
  std::ranges::replace(path, '/', '\\');
  return SplitTokens(path, '\\');
}

// The components of a stored path that the author wrote: tokens stand for others.
std::size_t WrittenComponents(const std::string& stored) {
  std::size_t count = 0;
  for (const std::string& part : Components(stored)) {
    const bool token = part.starts_with('<') && part.ends_with('>');
    if (!token) ++count;
  }
  return count;
}

std::string LastComponents(const std::string& path, std::size_t count) {
  const std::vector<std::string> parts = Components(path);
  return JoinTokens(parts, parts.size() - std::min(count, parts.size()), '\\');
}

bool HoldsUtf8(const std::string& line) {
  const bool plain =
      std::ranges::all_of(line, [](char c) { return static_cast<signed char>(c) >= 0; });
  return !plain && FromUtf8(line).has_value();
}

std::string WithoutMark(std::string line) {
  return line.starts_with("\xEF\xBB\xBF") ? line.substr(3) : line;
}

std::string ExtensionOf(const std::string& name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string::npos ? "" : name.substr(dot);
}

// The file of the same kind in the same folder whose name is nearest.
std::string NearestFile(const ContentListing& listing, const std::string& path) {
  const std::size_t cut = path.rfind('\\') + 1;
  std::vector<std::string> names;
  for (const std::string& beside : listing.Beside(path)) {
    if (EqualsNoCase(ExtensionOf(beside), ExtensionOf(path))) {
      names.push_back(beside.substr(beside.rfind('\\') + 1));
    }
  }
  return NearestName(path.substr(cut), names);
}

}  // namespace

bool FileGate::Names(const NamedFile& file, Check missing) {
  if (TrimBlanks(file.stored) != file.stored) {
    findings_.Add(Check::kOuterBlank, file.object, file.place,
                  "the path \"" + file.stored + "\" has blanks at its ends");
  }
  if (!listing_.Use(file.resolved)) {
    TellMissing(file, missing);
    return false;
  }
  CheckCase(file);
  return true;
}

void FileGate::TellMissing(const NamedFile& file, Check missing) {
  const std::string nearest = NearestFile(listing_, file.resolved);
  const std::string hint = nearest.empty() ? "" : "; did you mean \"" + nearest + "\"?";
  const std::string warning = missing == Check::kSoundMissing ? "Did not find Sound File: " : "";
  const bool rooted = file.resolved.starts_with('\\') || file.resolved.starts_with('/');
  findings_.Add(missing, file.object, file.place,
                warning + "file " + file.resolved + " not found" +
                    (rooted ? hint : "; a path begins with a backslash or a token"));
}

void FileGate::CheckCase(const NamedFile& file) {
  const std::size_t written = WrittenComponents(file.stored);
  const std::string wanted = LastComponents(file.resolved, written);
  for (const std::string& name : listing_.NamesOf(file.resolved)) {
    if (LastComponents(name, written) == wanted) return;
  }
  findings_.Add(Check::kWrongCase, file.object, file.place,
                "\"" + wanted + "\" is called \"" +
                    LastComponents(listing_.OnDisk(file.resolved), written) + "\"");
}

bool FileGate::Read(const NamedFile& file, const std::function<void(TextStream&)>& read) {
  if (!Names(file)) return false;
  const std::string key = FoldCase(file.resolved);
  if (closed_.contains(key)) return false;
  if (read_.insert(key).second) {
    if (!files_.Read(content_.BaseDirectory() + file.resolved)) {
      closed_.insert(key);
      findings_.Add(Check::kUnreadable, file.object, {DisplayName(file.resolved), 0},
                    "the file is there and can't be read: is it allowed?");
      return false;
    }
    CheckLines(file.resolved, file.object);
  }
  return Guard(file.object, [&] {
    auto stream = content_.OpenTextFileChecked(content_.BaseDirectory() + file.resolved,
                                               OpenMode::kRead, false);
    read(*stream);
  });
}

bool FileGate::Guard(const std::string& object, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const FatalError& error) {
    findings_.Add(Check::kUnreadable, object, error.Place(), error.Text());
    return false;
  }
}

std::string FileGate::Bytes(const std::string& path) const {
  return files_.Read(content_.BaseDirectory() + path).value_or("");
}

std::string FileGate::DisplayName(const std::string& path) const {
  return content_.DisplayName(content_.BaseDirectory() + listing_.OnDisk(path));
}

void FileGate::CheckEnds(const std::string& name, const FilePlace& place,
                         const std::string& object) {
  if (TrimBlanks(name) == name) return;
  findings_.Add(Check::kOuterBlank, object, place, "\"" + name + "\" has blanks at its ends");
}

void FileGate::CheckLines(const std::string& path, const std::string& object) {
  Guard(object, [&] {
    auto stream =
        content_.OpenTextFileChecked(content_.BaseDirectory() + path, OpenMode::kRead, false);
    while (!stream->AtEndOfStream()) {
      const std::string line = WithoutMark(stream->ReadLine("a line"));
      if (line.find('\t') != std::string::npos) {
        findings_.Add(Check::kTab, object, stream->Place(), "the line holds a tab");
      }
      if (HoldsUtf8(line)) {
        findings_.Add(Check::kUtf8, object, stream->Place(),
                      "\"" + line + "\" is written in UTF-8 and read as Windows-1252");
      }
    }
  });
}

}  // namespace quendle
