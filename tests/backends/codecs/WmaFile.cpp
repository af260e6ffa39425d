#include "backends/codecs/WmaFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <stdexcept>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace quendle {
namespace {

int Checked(int answer) {
  if (answer < 0) throw std::runtime_error("the encoder refused");
  return answer;
}

// What the library writes; the header is completed at the end.
struct Written {
  std::string bytes;
  std::size_t position = 0;

  static int Write(void* target, std::uint8_t* data, int size) {
    auto& self = *static_cast<Written*>(target);
    const auto count = static_cast<std::size_t>(size);
    if (self.bytes.size() < self.position + count) self.bytes.resize(self.position + count);
    std::copy_n(data, count, self.bytes.begin() + static_cast<std::ptrdiff_t>(self.position));
    self.position += count;
    return size;
  }
  static std::int64_t Seek(void* target, std::int64_t offset, int whence) {
    auto& self = *static_cast<Written*>(target);
    if (whence != SEEK_SET) return -1;
    self.position = static_cast<std::size_t>(offset);
    return offset;
  }
};

void WritePackets(AVCodecContext* codec, AVFormatContext* format, AVPacket* packet) {
  while (avcodec_receive_packet(codec, packet) >= 0) {
    packet->stream_index = 0;
    av_packet_rescale_ts(packet, codec->time_base, format->streams[0]->time_base);
    Checked(av_interleaved_write_frame(format, packet));
  }
}

}  // namespace

std::string WmaFile(const Samples& samples, int rate) {
  const AVCodec* encoder = avcodec_find_encoder(AV_CODEC_ID_WMAV2);
  AVCodecContext* codec = avcodec_alloc_context3(encoder);
  codec->sample_rate = rate;
  codec->sample_fmt = AV_SAMPLE_FMT_FLTP;
  codec->bit_rate = 32000;
  codec->time_base = {1, rate};
  av_channel_layout_default(&codec->ch_layout, 1);
  codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER | AV_CODEC_FLAG_BITEXACT;
  Checked(avcodec_open2(codec, encoder, nullptr));

  AVFormatContext* format = nullptr;
  Checked(avformat_alloc_output_context2(&format, nullptr, "asf", nullptr));
  AVStream* stream = avformat_new_stream(format, nullptr);
  Checked(avcodec_parameters_from_context(stream->codecpar, codec));
  Written written;
  constexpr int kBufferSize = 4096;
  format->pb = avio_alloc_context(static_cast<unsigned char*>(av_malloc(kBufferSize)), kBufferSize,
                                  1, &written, nullptr, &Written::Write, &Written::Seek);
  Checked(avformat_write_header(format, nullptr));

  const std::size_t padding = rate <= 16000 ? 512 : rate <= 22050 ? 1024 : 2048;
  Samples padded(padding, 0);
  padded.insert(padded.end(), samples.begin(), samples.end());
  padded.insert(padded.end(), padding, 0);
  AVFrame* frame = av_frame_alloc();
  AVPacket* packet = av_packet_alloc();
  for (std::size_t at = 0; at < padded.size(); at += static_cast<std::size_t>(codec->frame_size)) {
    frame->nb_samples =
        static_cast<int>(std::min(padded.size() - at, static_cast<std::size_t>(codec->frame_size)));
    frame->format = codec->sample_fmt;
    frame->sample_rate = rate;
    frame->pts = static_cast<std::int64_t>(at);
    Checked(av_channel_layout_copy(&frame->ch_layout, &codec->ch_layout));
    Checked(av_frame_get_buffer(frame, 0));
    auto* values = reinterpret_cast<float*>(frame->extended_data[0]);
    for (int i = 0; i < frame->nb_samples; ++i) values[i] = padded[at + i] / 32768.0F;
    Checked(avcodec_send_frame(codec, frame));
    WritePackets(codec, format, packet);
    av_frame_unref(frame);
  }
  Checked(avcodec_send_frame(codec, nullptr));
  WritePackets(codec, format, packet);
  Checked(av_write_trailer(format));

  avio_flush(format->pb);
  av_freep(&format->pb->buffer);
  avio_context_free(&format->pb);
  av_packet_free(&packet);
  av_frame_free(&frame);
  avcodec_free_context(&codec);
  avformat_free_context(format);
  return written.bytes;
}

}  // namespace quendle
