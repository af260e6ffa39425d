#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "backends/codecs/SoundTransport.h"
#include "backends/sound/OpenAlVoice.h"
#include "platform/FilterGraph.h"

namespace quendle {

class OpenAlFilterGraphs;

// One sound file in the mixer. Where the sound stands is asked of the mixer while it is heard. When
// it isn't (no device, no source left, device gone) the clock moves it.
class OpenAlFilterGraph : public FilterGraph {
 public:
  // `graphs` must outlive the graph.
  explicit OpenAlFilterGraph(OpenAlFilterGraphs& graphs) : graphs_(graphs) {}

  bool RenderFile(const std::string& path) override;
  bool QueryAudio() override { return transport_.has_value(); }
  bool QueryEvent() override { return transport_.has_value(); }
  bool QueryPosition() override { return transport_.has_value(); }

  void Run() override;
  void Pause() override;
  void Stop() override;

  double Duration() override { return transport_->Duration(); }
  double Position() override;
  void SetPosition(double seconds) override;
  double Rate() override { return transport_->Rate(); }
  bool SetRate(double rate) override;

  std::int32_t Volume() override { return volume_; }
  void SetVolume(std::int32_t volume) override;
  std::int32_t Balance() override { return balance_; }
  void SetBalance(std::int32_t balance) override;

  long WaitForCompletion(long timeout) override;

 private:
  // Brings the clock's view of the sound to what is heard.
  void Follow();
  // Whether the mixer, which stands at `heard`, has stopped moving.
  bool StandsStill(double heard);
  // Makes a sound with a voice heard from where it stands, if the mixer can.
  void Sound();

  OpenAlFilterGraphs& graphs_;
  std::optional<SoundTransport> transport_;  // there once a file is rendered
  std::optional<OpenAlVoice> voice_;         // there when it can be heard
  double heard_ = 0;                         // where the mixer stood when asked last, in seconds
  Milliseconds heard_since_{0};              // when it came there
  std::int32_t volume_ = 0;
  std::int32_t balance_ = 0;
};

}  // namespace quendle
