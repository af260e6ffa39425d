#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

extern "C" {
#include <libavformat/avio.h>
}

namespace quendle {

// Bytes in memory as a stream that the library reads. A file that sends its reader round in
// circles comes to an end: there is a bound on what is read in all.
class MemoryStream {
 public:
  // `bytes` must outlive the stream.
  explicit MemoryStream(std::string_view bytes);
  ~MemoryStream();
  MemoryStream(const MemoryStream&) = delete;
  MemoryStream& operator=(const MemoryStream&) = delete;

  // Null without memory.
  AVIOContext* Context() { return context_; }
  // True once the bound was met.
  bool Exhausted() const { return work_left_ < 0; }

 private:
  static int Read(void* stream, std::uint8_t* target, int size);
  static std::int64_t Seek(void* stream, std::int64_t offset, int whence);
  // False when the bound is met.
  bool Work(std::int64_t bytes);

  std::string_view bytes_;
  std::int64_t position_ = 0;
  std::int64_t work_left_;
  AVIOContext* context_ = nullptr;
};

}  // namespace quendle
