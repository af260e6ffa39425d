#include "base/TextStream.h"

#include <algorithm>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"

namespace quendle {

TextReader::TextReader(std::string bytes, std::string display_name)
    : bytes_(std::move(bytes)), display_name_(std::move(display_name)) {
  if (bytes_.starts_with("\xEF\xBB\xBF")) position_ = 3;
}

std::string TextReader::ReadLine(std::string_view expected) {
  if (AtEndOfStream()) {
    throw FatalError("the file ends where " + std::string(expected) + " should stand",
                     {display_name_, line_ + 1});
  }
  std::size_t end = std::min(bytes_.find('\n', position_), bytes_.size());
  std::string line = bytes_.substr(position_, end - position_);
  if (line.ends_with('\r')) line.pop_back();
  position_ = end + 1;
  ++line_;
  return line;
}

void TextReader::WriteLine(std::string_view) {
  throw FatalError("the file is open for reading and can't be written", Place());
}

std::string TextComposer::ReadLine(std::string_view expected) {
  throw FatalError("text that is being written can't be read for " + std::string(expected));
}

void TextComposer::WriteLine(std::string_view line) { bytes_.append(line).append("\r\n"); }

std::string ReadFilledLine(TextStream& stream, std::string_view what) {
  std::string line = stream.ReadLine(what);
  if (TrimBlanks(line).empty()) {
    throw FatalError("the line is blank where " + std::string(what) + " should stand",
                     stream.Place());
  }
  return line;
}

std::int16_t ReadInt16(TextStream& stream, std::string_view what) {
  std::string line = stream.ReadLine(what);
  return Int16FromText(line, what, stream.Place());
}

std::int32_t ReadInt32(TextStream& stream, std::string_view what) {
  std::string line = stream.ReadLine(what);
  return Int32FromText(line, what, stream.Place());
}

}  // namespace quendle
