#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/KeyedList.h"

namespace quendle {

class TextStream;

// What is said, for those who read along: a sentence for each sound that has one.
class Captions {
 public:
  // Characters; a longer sentence can't be read while it is spoken.
  static constexpr std::size_t kLongest = 160;

  bool Empty() const { return sentences_.Empty(); }
  // The sentence of the sound of that name (case ignored), or nothing.
  const std::string* Find(std::string_view sound) const { return sentences_.Find(sound); }

 private:
  friend struct CaptionFile;
  KeyedList<std::string> sentences_{"caption"};
};

// A caption file as read: lines of a sound's name, a blank and its sentence. A line that can't be
// used is passed over and named among the problems, as "FILE:LINE: text". Nothing in it is fatal.
struct CaptionFile {
  static constexpr std::size_t kMostProblems = 20;  // of a file that is none, the first tell enough

  explicit CaptionFile(TextStream& stream);

  Captions captions;
  std::vector<std::string> problems;

 private:
  // What is wrong with a line, or an empty text when its caption was taken.
  std::string Take(std::string_view line);
};

}  // namespace quendle
