#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "base/ContentFiles.h"
#include "platform/FileSystem.h"
#include "toolbelt/verify/ContentListing.h"
#include "toolbelt/verify/Finding.h"

namespace quendle {

// A path as content names it.
struct NamedFile {
  std::string stored;    // as it is written
  std::string resolved;  // from the base directory
  FilePlace place;       // where it is written
  std::string object;    // by whose files
};

// The one way from the author's tool to the files of a tree. Whatever is wrong with a file becomes
// a finding, and the check goes on.
class FileGate {
 public:
  // All must outlive the gate.
  FileGate(FileSystem& files, const ContentFiles& content, ContentListing& listing,
           Findings& findings)
      : files_(files), content_(content), listing_(listing), findings_(findings) {}

  // The file is there; notes that it is of use. Tells what is missing, or written in other letters
  // than the file's own, with `missing` for a file that isn't there.
  bool Names(const NamedFile& file, Check missing = Check::kMissingFile);
  // Opens a text file and hands it to `read`. False when it is missing, or when `read` ends in a
  // fatal error: both are told.
  bool Read(const NamedFile& file, const std::function<void(TextStream&)>& read);
  // Runs `work`; false when it ends in a fatal error, which is told.
  bool Guard(const std::string& object, const std::function<void()>& work);
  // All bytes of a file; none of one that can't be read.
  std::string Bytes(const std::string& path) const;
  // The name of `path` in messages, in the letters of the disk.
  std::string DisplayName(const std::string& path) const;
  // Tells of blanks at the ends of a name.
  void CheckEnds(const std::string& name, const FilePlace& place, const std::string& object);

  const ContentFiles& Content() const { return content_; }
  ContentListing& Listing() { return listing_; }
  Findings& Found() { return findings_; }

 private:
  void TellMissing(const NamedFile& file, Check missing);
  void CheckCase(const NamedFile& file);
  void CheckLines(const std::string& path, const std::string& object);

  FileSystem& files_;
  const ContentFiles& content_;
  ContentListing& listing_;
  Findings& findings_;
  std::set<std::string> read_;    // folded paths whose lines were looked at
  std::set<std::string> closed_;  // folded paths of those that can't be read
};

}  // namespace quendle
