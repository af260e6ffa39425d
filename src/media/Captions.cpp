#include "media/Captions.h"

#include <algorithm>

#include "base/TextStream.h"

namespace quendle {
namespace {

bool HoldsControlCharacter(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 127; });
}

}  // namespace

CaptionFile::CaptionFile(TextStream& stream) {
  std::size_t passed_over = 0;
  while (!stream.AtEndOfStream()) {
    const std::string line = stream.ReadLine("a caption");
    const std::string problem = Take(line);
    if (problem.empty()) continue;
    if (++passed_over <= kMostProblems) {
      problems.emplace_back(FatalError(problem, stream.Place()).what());
    }
  }
  if (passed_over > kMostProblems) {
    problems.emplace_back(FatalError(std::to_string(passed_over - kMostProblems) +
                                         " more lines hold no caption that can be used",
                                     {stream.Place().file, 0})
                              .what());
  }
}

std::string CaptionFile::Take(std::string_view line) {
  const std::string_view text = TrimBlanks(line);
  if (text.empty()) return "";
  if (HoldsControlCharacter(text)) return "a caption is plain text without tabs";
  const std::size_t blank = text.find(' ');
  const std::string name(text.substr(0, blank));
  if (blank == std::string_view::npos) {
    return "a blank and a sentence are expected behind the sound \"" + name + "\"";
  }
  const std::string_view sentence = TrimBlanks(text.substr(blank));
  if (sentence.size() > Captions::kLongest) {
    return "the sentence of \"" + name + "\" has " + std::to_string(sentence.size()) +
           " characters and isn't shown; at most " + std::to_string(Captions::kLongest) +
           " can be read while it is spoken";
  }
  if (captions.Find(name) != nullptr) {
    return "\"" + name + "\" has a sentence already, and this one is never shown";
  }
  captions.sentences_.Add(std::string(sentence), name);
  return "";
}

}  // namespace quendle
