#include "backends/headless/HeadlessFilterGraphs.h"

namespace quendle {
namespace {

class EmptyGraph : public FilterGraph {
 public:
  bool RenderFile(const std::string&) override { return false; }
  bool QueryAudio() override { return false; }
  bool QueryEvent() override { return false; }
  bool QueryPosition() override { return false; }
  void Run() override {}
  void Pause() override {}
  void Stop() override {}
  double Duration() override { return 0; }
  double Position() override { return 0; }
  void SetPosition(double) override {}
  double Rate() override { return 1; }
  bool SetRate(double) override { return false; }
  std::int32_t Volume() override { return 0; }
  void SetVolume(std::int32_t) override {}
  std::int32_t Balance() override { return 0; }
  void SetBalance(std::int32_t) override {}
  long WaitForCompletion(long) override { return 1; }
};

}  // namespace

std::unique_ptr<FilterGraph> HeadlessFilterGraphs::Create() {
  if (faults_.Fails("CreateGraph")) return nullptr;
  return std::make_unique<EmptyGraph>();
}

}  // namespace quendle
