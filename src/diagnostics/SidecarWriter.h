#pragma once

#include <memory>
#include <string>

#include "diagnostics/IntelliTesterObj.h"
#include "diagnostics/Sidecar.h"

namespace quendle {

class GameLogicLayer;
class LineStream;
struct ObjectWorld;

// Writes the sidecar of a recording while it goes on: the conditions at its start, the moment of
// everything that comes from outside, and the state once a second. Each line is on the disk at
// once.
class SidecarWriter : public TesterWatcher {
 public:
  // `world` must outlive the writer. Of the conditions those that the game knows itself are filled
  // in at the start.
  SidecarWriter(ObjectWorld& world, std::weak_ptr<GameLogicLayer> logic,
                SidecarConditions conditions);
  ~SidecarWriter() override;

  void RecordingStarted(const std::string& file_name) override;
  void ActionRecorded() override;
  void RecordingTicked() override;
  void RecordingStopped() override;

  // What else comes from outside; nothing is written while nothing is recorded.
  void Key(int code) { Note(SidecarMoment::Kind::kKey, code); }
  void Focus(bool on) { Note(SidecarMoment::Kind::kFocus, on ? 1 : 0); }
  // The last state is written, too.
  void Close();

 private:
  void FillIn();
  long Time() const;
  void Note(SidecarMoment::Kind kind, int value);
  void WriteStateNow();

  ObjectWorld& world_;
  std::weak_ptr<GameLogicLayer> logic_;
  SidecarConditions conditions_;
  std::unique_ptr<LineStream> stream_;  // open while recording
  long start_ = 0;                      // on the scale of Clock::Monotonic
  long second_ = 0;                     // of the last state
  StateSnapshot last_;
};

}  // namespace quendle
