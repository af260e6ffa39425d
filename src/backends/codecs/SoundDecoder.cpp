#include "backends/codecs/SoundDecoder.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "backends/codecs/MemoryStream.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/log.h>
#include <libavutil/mem.h>
}

namespace quendle {
namespace {

constexpr const char* kCodecs = "wmav1,wmav2,pcm_u8,pcm_s16le";
constexpr int kLowestRate = 4000;
constexpr int kHighestRate = 96000;
// A piece of these formats is a few thousand frames; nothing honest comes near.
constexpr std::int64_t kLargestPiece = 1 << 20;
constexpr std::size_t kLargestAllocation = std::size_t{64} << 20;

struct CloseFormat {
  void operator()(AVFormatContext* format) const { avformat_close_input(&format); }
};
struct CloseCodec {
  void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
};
struct FreePacket {
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
struct FreeFrame {
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};

// The bytes that show Windows Media: the identifier of its header.
constexpr unsigned char kWindowsMedia[] = {0x30, 0x26, 0xB2, 0x75, 0x8E, 0x66, 0xCF, 0x11,
                                           0xA6, 0xD9, 0x00, 0xAA, 0x00, 0x62, 0xCE, 0x6C};

// The name of the library's reader, null when the bytes show neither kind.
const char* KindOf(std::string_view bytes) {
  if (bytes.size() >= sizeof kWindowsMedia &&
      std::memcmp(bytes.data(), kWindowsMedia, sizeof kWindowsMedia) == 0) {
    return "asf";
  }
  if (bytes.starts_with("RIFF") &&
      bytes.substr(std::min<std::size_t>(8, bytes.size()), 4) == "WAVE") {
    return "wav";
  }
  return nullptr;
}

std::int16_t SampleOf(float value) {
  if (std::isnan(value)) return 0;
  return static_cast<std::int16_t>(std::lround(std::clamp(value * 32768.0F, -32768.0F, 32767.0F)));
}

// The sample of `channel` at `index` of a decoded piece, whose format is one of the three that our
// codecs give.
std::int16_t SampleAt(const AVFrame& frame, int channel, int channels, int index) {
  const int beside = index * channels + channel;
  switch (frame.format) {
    case AV_SAMPLE_FMT_FLTP: {
      float value = 0;
      std::memcpy(&value, frame.extended_data[channel] + index * sizeof value, sizeof value);
      return SampleOf(value);
    }
    case AV_SAMPLE_FMT_S16: {
      std::int16_t value = 0;
      std::memcpy(&value, frame.data[0] + beside * sizeof value, sizeof value);
      return value;
    }
    default:
      return static_cast<std::int16_t>((frame.data[0][beside] - 128) * 256);
  }
}

// What the library prints is for its own developers, and what it may ask memory for is bounded.
void SetUpLibrary() {
  static const bool kDone = [] {
    av_log_set_level(AV_LOG_QUIET);
    av_max_alloc(kLargestAllocation);
    return true;
  }();
  static_cast<void>(kDone);
}

// One file on its way to samples.
class Decoding {
 public:
  Decoding(std::string_view bytes, const SoundLimits& limits) : stream_(bytes), limits_(limits) {}

  // Each step gives a reason, or nothing when it went well.
  std::string Open(const char* kind);
  std::string Decode();
  std::shared_ptr<const DecodedSound> Take() { return std::move(sound_); }

 private:
  std::string OpenCodec();
  std::string Feed(const AVPacket* packet);
  std::string Keep(const AVFrame& frame);
  // What the header of Windows Media says, which is about right; 0 when it says nothing or the file
  // was cut. A wave that was written into a pipe has no honest length.
  double PromisedSeconds() const;

  MemoryStream stream_;
  SoundLimits limits_;
  std::unique_ptr<AVFormatContext, CloseFormat> format_;
  std::unique_ptr<AVCodecContext, CloseCodec> codec_;
  std::unique_ptr<AVFrame, FreeFrame> frame_{av_frame_alloc()};
  std::unique_ptr<AVPacket, FreePacket> packet_{av_packet_alloc()};
  int index_ = -1;  // of the sound among the streams
  std::shared_ptr<DecodedSound> sound_ = std::make_shared<DecodedSound>();
};

std::string Decoding::Open(const char* kind) {
  AVFormatContext* format = avformat_alloc_context();
  if (format == nullptr || stream_.Context() == nullptr || !frame_ || !packet_) {
    return "there is no memory for it";
  }
  format->pb = stream_.Context();
  format->flags |= AVFMT_FLAG_CUSTOM_IO;
  format->codec_whitelist = av_strdup(kCodecs);
  format->protocol_whitelist = av_strdup("");  // a file leads to no other
  // On failure the library frees the context.
  if (avformat_open_input(&format, nullptr, av_find_input_format(kind), nullptr) < 0) {
    return "its header is damaged";
  }
  format_.reset(format);
  return OpenCodec();
}

std::string Decoding::OpenCodec() {
  for (unsigned i = 0; i < format_->nb_streams; ++i) {
    AVStream& stream = *format_->streams[i];
    const bool first_sound = index_ < 0 && stream.codecpar->codec_type == AVMEDIA_TYPE_AUDIO;
    if (first_sound) index_ = static_cast<int>(i);
    stream.discard = first_sound ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
  }
  if (index_ < 0) return "it holds no sound";
  const AVCodecParameters& parameters = *format_->streams[index_]->codecpar;
  const std::string name = avcodec_get_name(parameters.codec_id);
  if (("," + std::string(kCodecs) + ",").find("," + name + ",") == std::string::npos) {
    return "its sound is encoded as " + name + ", which is not played";
  }
  if (parameters.sample_rate < kLowestRate || parameters.sample_rate > kHighestRate) {
    return "its rate of " + std::to_string(parameters.sample_rate) + " Hz is out of range";
  }
  const int channels = parameters.ch_layout.nb_channels;
  if (channels < 1 || channels > 2) return "it has " + std::to_string(channels) + " channels";
  const AVCodec* codec = avcodec_find_decoder(parameters.codec_id);
  codec_.reset(avcodec_alloc_context3(codec));
  if (codec == nullptr || codec_ == nullptr) return "its decoder is missing";
  if (avcodec_parameters_to_context(codec_.get(), &parameters) < 0) return "its header is damaged";
  codec_->thread_count = 1;
  codec_->max_samples = kLargestPiece;
  if (avcodec_open2(codec_.get(), codec, nullptr) < 0) return "its header is damaged";
  sound_->rate = parameters.sample_rate;
  sound_->channels = channels;
  return {};
}

std::string Decoding::Decode() {
  while (av_read_frame(format_.get(), packet_.get()) >= 0) {
    std::string problem;
    if (packet_->stream_index == index_) problem = Feed(packet_.get());
    av_packet_unref(packet_.get());
    if (!problem.empty()) return problem;
  }
  if (stream_.Exhausted()) return "it leads in circles";
  if (std::string problem = Feed(nullptr); !problem.empty()) return problem;
  if (sound_->samples.empty()) return "it holds nothing that can be decoded";
  if (sound_->Seconds() < PromisedSeconds() / 2) return "most of it is damaged";
  sound_->samples.shrink_to_fit();
  return {};
}

// Null empties the decoder at the end.
std::string Decoding::Feed(const AVPacket* packet) {
  // What can't be decoded is left out.
  avcodec_send_packet(codec_.get(), packet);
  while (avcodec_receive_frame(codec_.get(), frame_.get()) >= 0) {
    std::string problem = Keep(*frame_);
    av_frame_unref(frame_.get());
    if (!problem.empty()) return problem;
  }
  return {};
}

double Decoding::PromisedSeconds() const {
  if (std::strcmp(format_->iformat->name, "asf") != 0) return 0;
  const AVStream& stream = *format_->streams[index_];
  return stream.duration > 0 ? static_cast<double>(stream.duration) * av_q2d(stream.time_base) : 0;
}

std::string Decoding::Keep(const AVFrame& frame) {
  const int channels = sound_->channels;
  const bool known = frame.format == AV_SAMPLE_FMT_FLTP || frame.format == AV_SAMPLE_FMT_S16 ||
                     frame.format == AV_SAMPLE_FMT_U8;
  if (!known || frame.ch_layout.nb_channels != channels || frame.nb_samples < 0) {
    return "it changes its format on the way";
  }
  std::vector<std::int16_t>& samples = sound_->samples;
  const std::size_t count = samples.size() + static_cast<std::size_t>(frame.nb_samples) * channels;
  if (count > limits_.samples ||
      static_cast<double>(count) > limits_.seconds * sound_->rate * channels) {
    return "it is longer than " + std::to_string(static_cast<int>(limits_.seconds)) +
           " seconds or larger than " + std::to_string(limits_.samples) + " samples";
  }
  for (int i = 0; i < frame.nb_samples; ++i) {
    for (int channel = 0; channel < channels; ++channel) {
      samples.push_back(SampleAt(frame, channel, channels, i));
    }
  }
  return {};
}

}  // namespace

SoundDecoding SoundDecoder::Decode(std::string_view bytes) const {
  SetUpLibrary();
  const char* kind = KindOf(bytes);
  if (kind == nullptr) return {nullptr, "it is neither Windows Media nor a wave"};
  Decoding decoding(bytes, limits_);
  std::string problem = decoding.Open(kind);
  if (problem.empty()) problem = decoding.Decode();
  if (!problem.empty()) return {nullptr, problem};
  return {decoding.Take(), {}};
}

std::string SoundDecoder::Library() {
  const unsigned version = avcodec_version();
  return "libavcodec " + std::to_string(AV_VERSION_MAJOR(version)) + "." +
         std::to_string(AV_VERSION_MINOR(version)) + "." +
         std::to_string(AV_VERSION_MICRO(version));
}

}  // namespace quendle
