// A new content tree on the disk, for tools that read one.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "toolbelt/TemporaryFolder.h"
#include "toolbelt/making/SmallestContent.h"

namespace quendle {

struct TreeBench {
  TreeBench() { MakeNewContent(folder.Path() + "/tree"); }

  std::string Path() const { return folder.Path() + "/tree"; }
  // A file below "Info", by its native path.
  std::filesystem::path File(const std::string& name) const { return Path() + "/Info/" + name; }
  // Whatever else a tool writes.
  std::string Beside(const std::string& name) const { return folder.Path() + "/" + name; }

  static std::string Read(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  std::string Get(const std::string& name) const { return Read(File(name)); }
  void Put(const std::string& name, const std::string& text) const {
    std::filesystem::create_directories(File(name).parent_path());
    std::ofstream(File(name), std::ios::binary) << text;
  }
  void Append(const std::string& name, const std::string& text) const {
    Put(name, Get(name) + text);
  }
  // Replaces the first `from` of a file, which must be there.
  void Replace(const std::string& name, const std::string& from, const std::string& to) const {
    std::string text = Get(name);
    const std::size_t at = text.find(from);
    ASSERT_NE(at, std::string::npos) << name << " has no " << from;
    Put(name, text.replace(at, from.size(), to));
  }
  // Every file of the tree with its bytes.
  std::map<std::string, std::string> Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(Path())) {
      if (entry.is_regular_file()) files[entry.path()] = Read(entry.path());
    }
    return files;
  }

  TemporaryFolder folder;
};

}  // namespace quendle
