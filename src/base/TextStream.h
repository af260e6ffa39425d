#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/FatalError.h"

namespace quendle {

// A text file that is read or written line by line. Read: either line ending, a byte order mark
// is dropped. Written: lines end with a carriage return and a line feed.
class TextStream {
 public:
  virtual ~TextStream() = default;
  virtual bool AtEndOfStream() const = 0;
  // The next line. Past the end it is fatal; `expected` tells in the message what should stand
  // there.
  virtual std::string ReadLine(std::string_view expected) = 0;
  virtual void WriteLine(std::string_view line) = 0;
  // Ends the work; a written file takes the place of the old one only now. A failure is fatal.
  virtual void Close() = 0;
  // The file and the number of the line read or written last.
  virtual FilePlace Place() const = 0;
};

// Reads from text in memory.
class TextReader : public TextStream {
 public:
  // `display_name` stands in messages: the path relative to the base directory.
  TextReader(std::string bytes, std::string display_name);

  bool AtEndOfStream() const override { return position_ >= bytes_.size(); }
  std::string ReadLine(std::string_view expected) override;
  void WriteLine(std::string_view line) override;
  void Close() override { position_ = bytes_.size(); }
  FilePlace Place() const override { return {display_name_, line_}; }

 private:
  std::string bytes_;
  std::string display_name_;
  std::size_t position_ = 0;
  int line_ = 0;
};

// Writes to text in memory.
class TextComposer : public TextStream {
 public:
  // `bytes` must outlive this object; lines are appended to it.
  explicit TextComposer(std::string& bytes) : bytes_(bytes) {}

  bool AtEndOfStream() const override { return true; }
  std::string ReadLine(std::string_view expected) override;
  void WriteLine(std::string_view line) override;
  void Close() override {}
  FilePlace Place() const override { return {}; }

 private:
  std::string& bytes_;
};

// The next line, which must hold something; a blank one is fatal.
std::string ReadFilledLine(TextStream& stream, std::string_view what);

// The next line as a number, rounded; other text is fatal.
std::int16_t ReadInt16(TextStream& stream, std::string_view what);
std::int32_t ReadInt32(TextStream& stream, std::string_view what);

}  // namespace quendle
