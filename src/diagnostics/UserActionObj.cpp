#include "diagnostics/UserActionObj.h"

#include <array>

#include "base/Text.h"
#include "base/TextStream.h"

namespace quendle {
namespace {

struct Abbreviation {
  const char* word;
  const char* letters;
};

constexpr std::array kAbbreviations = {Abbreviation{"mousemove", "mm"},
                                       Abbreviation{"mouseclick", "mc"}};

std::string Shortened(const std::string& word) {
  for (const Abbreviation& row : kAbbreviations) {
    if (EqualsNoCase(word, row.word)) return row.letters;
  }
  return word;
}

std::string Lengthened(std::string word) {
  for (const Abbreviation& row : kAbbreviations) {
    if (EqualsNoCase(word, row.letters)) return row.word;
  }
  return word;
}

}  // namespace

void UserActionObj::Save(TextStream& stream) const {
  stream.WriteLine("B");
  stream.WriteLine(Shortened(type_));
  stream.WriteLine(Shortened(name_));
  stream.WriteLine(std::to_string(ticks_));
  stream.WriteLine(std::to_string(x_));
  stream.WriteLine(std::to_string(y_));
  stream.WriteLine("E");
}

void UserActionObj::Load(TextStream& stream) {
  stream.ReadLine("the beginning of a user action");
  type_ = Lengthened(stream.ReadLine("the type of a user action"));
  name_ = Lengthened(stream.ReadLine("the name of a user action"));
  ticks_ = ReadInt16(stream, "ticks of a user action");
  x_ = ReadInt16(stream, "x of a user action");
  y_ = ReadInt16(stream, "y of a user action");
  stream.ReadLine("the end of a user action");
}

bool IsMouseAction(const std::string& word) {
  for (const Abbreviation& row : kAbbreviations) {
    if (EqualsNoCase(word, row.word)) return true;
  }
  return false;
}

}  // namespace quendle
