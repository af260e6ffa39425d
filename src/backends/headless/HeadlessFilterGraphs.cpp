#include "backends/headless/HeadlessFilterGraphs.h"

#include <optional>

#include "backends/codecs/SoundTransport.h"
#include "platform/Faults.h"

namespace quendle {
namespace {

class HeadlessFilterGraph : public FilterGraph {
 public:
  HeadlessFilterGraph(SoundLibrary& library, Clock& clock, Faults& faults)
      : library_(library), clock_(clock), faults_(faults) {}

  bool RenderFile(const std::string& path) override {
    if (faults_.Fails("RenderFile")) return false;
    const auto sound = library_.Get(path);
    if (sound == nullptr) return false;
    transport_.emplace(clock_, sound->Seconds());
    return true;
  }
  bool QueryAudio() override { return transport_.has_value(); }
  bool QueryEvent() override { return transport_.has_value(); }
  bool QueryPosition() override { return transport_.has_value(); }

  void Run() override {
    if (transport_) transport_->Run();
  }
  void Pause() override {
    if (transport_) transport_->Pause();
  }
  void Stop() override {
    if (transport_) transport_->Stop();
  }

  double Duration() override { return transport_->Duration(); }
  double Position() override { return transport_->Position(); }
  void SetPosition(double seconds) override { transport_->SetPosition(seconds); }
  double Rate() override { return transport_->Rate(); }
  bool SetRate(double rate) override { return transport_->SetRate(rate); }

  std::int32_t Volume() override { return volume_; }
  void SetVolume(std::int32_t volume) override { volume_ = volume; }
  std::int32_t Balance() override { return balance_; }
  void SetBalance(std::int32_t balance) override { balance_ = balance; }

  long WaitForCompletion(long) override { return transport_->Completed() ? 1 : 0; }

 private:
  SoundLibrary& library_;
  Clock& clock_;
  Faults& faults_;
  std::optional<SoundTransport> transport_;  // there once a file is rendered
  std::int32_t volume_ = 0;
  std::int32_t balance_ = 0;
};

}  // namespace

std::unique_ptr<FilterGraph> HeadlessFilterGraphs::Create() {
  if (faults_.Fails("CreateGraph")) return nullptr;
  return std::make_unique<HeadlessFilterGraph>(library_, clock_, faults_);
}

}  // namespace quendle
