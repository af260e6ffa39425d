#pragma once

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "backends/codecs/SoundDecoder.h"

namespace quendle {

class FileSystem;

// The sound files of the game as samples. Those used last stay decoded, so that an object that
// goes from one sound to another and back costs nothing.
class SoundLibrary {
 public:
  // `files` must outlive the library; `kept_bytes` bounds what is kept of sounds nobody plays:
  // some twenty sentences.
  explicit SoundLibrary(FileSystem& files, SoundDecoder decoder = SoundDecoder(),
                        std::size_t kept_bytes = std::size_t{4} << 20);

  // The sound of a file (full path, case ignored). Nothing when it is missing or damaged; that
  // makes a problem, once for each file.
  std::shared_ptr<const DecodedSound> Get(const std::string& path);

  // Notes a sentence about sound that can't be heard.
  void AddProblem(std::string problem) { problems_.push_back(std::move(problem)); }
  // The problems since last asked, in their order.
  std::vector<std::string> TakeProblems();

 private:
  struct Kept {
    std::string key;
    std::shared_ptr<const DecodedSound> sound;
  };
  void Keep(std::string key, std::shared_ptr<const DecodedSound> sound);

  FileSystem& files_;
  SoundDecoder decoder_;
  std::size_t kept_bytes_;
  std::vector<Kept> kept_;  // the one used last stands last
  std::set<std::string> told_;
  std::vector<std::string> problems_;
};

}  // namespace quendle
