#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace quendle {

// A place in a content file; line 0 means the file as a whole.
struct FilePlace {
  std::string file;  // relative to the base directory
  int line = 0;
};

// The one exception of faults that end the game: bad content and failed platform services.
// Nothing inside the engine catches it; the outermost frame shows BoxText and ends with code 1.
class FatalError : public std::exception {
 public:
  explicit FatalError(std::string text, FilePlace place = {});
  // A fault whose box shows exactly `box_text`.
  static FatalError WithBox(std::string box_text, FilePlace place = {});

  // "FILE:LINE: text", or the text alone when no place is known.
  const char* what() const noexcept override { return described_.c_str(); }
  const std::string& Text() const { return text_; }
  const FilePlace& Place() const { return place_; }
  const std::string& BoxText() const { return box_text_; }

 private:
  std::string text_;
  FilePlace place_;
  std::string described_;
  std::string box_text_;
};

// The name among `candidates` that is nearest to `name`, or an empty text when none is near.
std::string NearestName(std::string_view name, const std::vector<std::string>& candidates);

// `; did you mean "X"?` for the nearest of `candidates`, or an empty text.
std::string DidYouMean(std::string_view name, const std::vector<std::string>& candidates);

}  // namespace quendle
