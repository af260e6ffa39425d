#pragma once

#include <memory>
#include <string>

#include "base/TextStream.h"
#include "platform/FileSystem.h"

namespace quendle {

// A text file that is written line by line: each line is on the disk before WriteLine returns.
class LineStream : public TextStream {
 public:
  // Makes the file anew (full path); one that can't be made is fatal. `display_name` stands in
  // messages.
  LineStream(FileSystem& files, const std::string& path, std::string display_name);

  bool AtEndOfStream() const override { return true; }
  std::string ReadLine(std::string_view expected) override;
  // A line that can't be written is fatal.
  void WriteLine(std::string_view line) override;
  void Close() override { writer_.reset(); }
  FilePlace Place() const override { return {display_name_, line_}; }

 private:
  std::unique_ptr<LineWriter> writer_;
  std::string display_name_;
  int line_ = 0;
};

}  // namespace quendle
