#include "backends/sound/OpenAlFilterGraphs.h"

#include "backends/sound/OpenAlFilterGraph.h"

namespace quendle {

std::unique_ptr<FilterGraph> OpenAlFilterGraphs::Create() {
  if (!opened_) {
    opened_ = true;
    device_ = OpenAlDevice::Open();
    TellIfSilent();
  }
  return std::make_unique<OpenAlFilterGraph>(*this);
}

void OpenAlFilterGraphs::TellIfSilent() {
  if (device_ == nullptr) library_.AddProblem("There is no sound device: all sounds are silent");
}

bool OpenAlFilterGraphs::DeviceLives() {
  if (device_ == nullptr || lost_) return !lost_;
  lost_ = !device_->Connected();
  if (lost_) library_.AddProblem("The sound device went away: all sounds are silent from now on");
  return !lost_;
}

}  // namespace quendle
