#include "diagnostics/LineStream.h"

#include <utility>

namespace quendle {

LineStream::LineStream(FileSystem& files, const std::string& path, std::string display_name)
    : writer_(files.CreateLineFile(path)), display_name_(std::move(display_name)) {
  if (writer_ == nullptr) throw FatalError("the file can't be made", {display_name_, 0});
}

std::string LineStream::ReadLine(std::string_view) {
  throw FatalError("the file is open for writing and can't be read", Place());
}

void LineStream::WriteLine(std::string_view line) {
  ++line_;
  if (writer_ == nullptr || !writer_->WriteLine(line)) {
    throw FatalError("the line can't be written", Place());
  }
}

}  // namespace quendle
