#include "backends/codecs/PictureDecoder.h"

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <cstdlib>
#include <cstring>
#include <memory>

#include "backends/codecs/PictureFrame.h"
#include "backends/codecs/PictureHeader.h"
#include "backends/codecs/PictureShrinker.h"
#include "backends/raster/BitmapReader.h"

namespace quendle {
namespace {

constexpr const char* kOtherKind =
    "This file is no photograph that can be used. Please choose a JPEG, GIF or bitmap picture.";
constexpr const char* kDamaged =
    "This photograph is damaged and can't be used. Please choose another one.";
constexpr const char* kLargeFile =
    "This file is too large for a photograph. Please choose another one.";
constexpr std::int64_t kMillion = 1'000'000;
// The library takes a copy, and more the more there is; the largest photographs have half of it.
constexpr std::size_t kMostForLibrary = 60'000'000;
// Decoders round the sides up to whole blocks before they count the points.
constexpr std::int64_t kMostWithBlocks = kMostPicturePoints / 4 * 5;

struct FreeCodec {
  void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
};
struct FreePacket {
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
struct FreeFrame {
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
using Codec = std::unique_ptr<AVCodecContext, FreeCodec>;
using Packet = std::unique_ptr<AVPacket, FreePacket>;
using Frame = std::unique_ptr<AVFrame, FreeFrame>;

AVCodecID CodecOf(PictureKind kind) {
  switch (kind) {
    case PictureKind::kJpeg:
      return AV_CODEC_ID_MJPEG;
    case PictureKind::kGif:
      return AV_CODEC_ID_GIF;
    default:
      return AV_CODEC_ID_BMP;
  }
}

std::string TooLarge(const PictureHeader& header) {
  return "This photograph is too large: it has " +
         std::to_string(header.width * header.height / kMillion) + " million points, and " +
         std::to_string(kMostPicturePoints / kMillion) +
         " million are the most. Please choose a smaller one, or save it smaller first.";
}

// Any fault in the file ends the decoding: half a face helps nobody.
Codec OpenCodec(PictureKind kind) {
  const AVCodec* decoder = avcodec_find_decoder(CodecOf(kind));
  Codec codec(decoder == nullptr ? nullptr : avcodec_alloc_context3(decoder));
  if (codec == nullptr) return nullptr;
  codec->max_pixels = kMostWithBlocks;
  codec->err_recognition = AV_EF_EXPLODE;
  codec->thread_count = 1;
  // The same pixels on every machine.
  codec->flags |= AV_CODEC_FLAG_BITEXACT;
  codec->idct_algo = FF_IDCT_SIMPLE;
  codec->log_level_offset = 2 * AV_LOG_TRACE;  // the player is told; the terminal is not
  if (avcodec_open2(codec.get(), decoder, nullptr) < 0) return nullptr;
  return codec;
}

Packet MakePacket(std::string_view bytes) {
  Packet packet(av_packet_alloc());
  if (packet == nullptr || av_new_packet(packet.get(), static_cast<int>(bytes.size())) < 0) {
    return nullptr;
  }
  std::memcpy(packet->data, bytes.data(), bytes.size());
  packet->flags |= AV_PKT_FLAG_KEY;
  return packet;
}

Frame DecodeFrame(AVCodecContext& codec, std::string_view bytes) {
  Packet packet = MakePacket(bytes);
  Frame frame(av_frame_alloc());
  if (packet == nullptr || frame == nullptr) return nullptr;
  if (avcodec_send_packet(&codec, packet.get()) < 0) return nullptr;
  packet.reset();
  avcodec_send_packet(&codec, nullptr);  // nothing follows: what is there comes out
  if (avcodec_receive_frame(&codec, frame.get()) < 0) return nullptr;
  if (frame->decode_error_flags != 0 || (frame->flags & AV_FRAME_FLAG_CORRUPT) != 0) return nullptr;
  return frame;
}

int OrientationOf(const AVFrame& frame) {
  const AVDictionaryEntry* entry = av_dict_get(frame.metadata, "Orientation", nullptr, 0);
  return entry == nullptr ? 1 : std::atoi(entry->value);
}

DecodedPicture DecodeWithLibrary(std::string_view bytes, PictureKind kind, PictureLimit limit) {
  if (bytes.size() > kMostForLibrary) return {{}, kLargeFile};
  const Codec codec = OpenCodec(kind);
  if (codec == nullptr) return {{}, kOtherKind};
  const Frame frame = DecodeFrame(*codec, bytes);
  if (frame == nullptr) return {{}, kDamaged};
  Picture picture = PictureOfFrame(*frame, limit);
  if (picture.Empty()) return {{}, kOtherKind};
  return {Upright(std::move(picture), OrientationOf(*frame)), {}};
}

// The common bitmaps need no library; the rest (few colours, run lengths) goes to it.
DecodedPicture DecodeBitmap(std::string_view bytes, PictureLimit limit) {
  const BitmapFile file = ReadBitmapFile(bytes);
  if (!file.problem.empty()) return DecodeWithLibrary(bytes, PictureKind::kBitmap, limit);
  PictureShrinker shrinker({file.width, file.height}, limit);
  const auto width = static_cast<std::size_t>(file.width);
  for (std::size_t y = 0; y < static_cast<std::size_t>(file.height); ++y) {
    shrinker.AddRow({file.pixels.get() + y * width, width});
  }
  return {shrinker.Take(), {}};
}

}  // namespace

DecodedPicture DecodePicture(std::string_view bytes, PictureLimit limit) {
  const PictureHeader header = ReadPictureHeader(bytes);
  if (header.kind == PictureKind::kUnknown) return {{}, kOtherKind};
  if (header.width * header.height > kMostPicturePoints) return {{}, TooLarge(header)};
  if (!header.whole) return {{}, kDamaged};
  if (header.kind == PictureKind::kBitmap) return DecodeBitmap(bytes, limit);
  return DecodeWithLibrary(bytes, header.kind, limit);
}

}  // namespace quendle
