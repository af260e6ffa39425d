#include "backends/codecs/MemoryStream.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

extern "C" {
#include <libavutil/error.h>
#include <libavutil/mem.h>
}

namespace quendle {
namespace {

constexpr int kBufferSize = 4096;
// Each call counts as this many bytes, so that calls which read nothing come to an end as well.
constexpr std::int64_t kCallCost = 64;
constexpr std::int64_t kReadings = 4;  // so often may the whole file be read
constexpr std::int64_t kAllowance = 1 << 20;

}  // namespace

MemoryStream::MemoryStream(std::string_view bytes)
    : bytes_(bytes), work_left_(kReadings * static_cast<std::int64_t>(bytes.size()) + kAllowance) {
  auto* buffer = static_cast<unsigned char*>(av_malloc(kBufferSize));
  if (buffer == nullptr) return;
  context_ = avio_alloc_context(buffer, kBufferSize, 0, this, &Read, nullptr, &Seek);
  if (context_ == nullptr) av_free(buffer);
}

MemoryStream::~MemoryStream() {
  // The library may have put another buffer in place of ours.
  if (context_ != nullptr) av_freep(&context_->buffer);
  avio_context_free(&context_);
}

bool MemoryStream::Work(std::int64_t bytes) {
  if (work_left_ >= 0) work_left_ -= bytes + kCallCost;
  return work_left_ >= 0;
}

int MemoryStream::Read(void* stream, std::uint8_t* target, int size) {
  auto& self = *static_cast<MemoryStream*>(stream);
  const std::int64_t left = static_cast<std::int64_t>(self.bytes_.size()) - self.position_;
  const std::int64_t count = std::min<std::int64_t>(left, size);
  if (count <= 0 || !self.Work(count)) return AVERROR_EOF;
  std::memcpy(target, self.bytes_.data() + self.position_, static_cast<std::size_t>(count));
  self.position_ += count;
  return static_cast<int>(count);
}

std::int64_t MemoryStream::Seek(void* stream, std::int64_t offset, int whence) {
  auto& self = *static_cast<MemoryStream*>(stream);
  const auto size = static_cast<std::int64_t>(self.bytes_.size());
  whence &= ~AVSEEK_FORCE;
  if (whence == AVSEEK_SIZE) return size;
  std::int64_t base = 0;
  if (whence == SEEK_CUR) base = self.position_;
  if (whence == SEEK_END) base = size;
  if (!self.Work(0) || offset > size - base || offset < -base) return AVERROR(EINVAL);
  self.position_ = base + offset;
  return self.position_;
}

}  // namespace quendle
