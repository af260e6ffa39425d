#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>

#include "diagnostics/UserActionObj.h"
#include "logic/InputRecorder.h"
#include "object/MessageTarget.h"

namespace quendle {

class IntelliTesterObj;
class TextStream;
struct ObjectWorld;

// The recorder whose timer runs, for the timer's callback; owned by the run.
struct TesterReference {
  std::weak_ptr<IntelliTesterObj> active;
};

// Something that keeps more beside a recording.
class TesterWatcher {
 public:
  virtual ~TesterWatcher() = default;
  // The session file is open; its name beside the executable.
  virtual void RecordingStarted(const std::string& file_name) = 0;
  // An action is in the session file.
  virtual void ActionRecorded() = 0;
  // A tick of the recorder's timer was counted.
  virtual void RecordingTicked() = 0;
  virtual void RecordingStopped() = 0;
};

// A test aid inside the game: records the player's presses and moves with the timer ticks between
// them into a session file, and plays such a file by sending the same actions as messages. Held by
// a shared_ptr.
//
// Files stand directly under the base directory. Ticks count only while the application has the
// focus. A tick counter past 32767, a session file that is malformed or can't be made or written,
// are fatal.
class IntelliTesterObj : public InputRecorder,
                         public std::enable_shared_from_this<IntelliTesterObj> {
 public:
  enum class Mode : std::int16_t { kIdle = 0, kRecording = 1, kPlaying = 2 };

  // Both must outlive the recorder.
  IntelliTesterObj(ObjectWorld& world, TesterReference& reference);
  ~IntelliTesterObj() override;

  // Lets go of the game and of the actions.
  void Release();
  // `interval` is in milliseconds. The loop flag is switched on when the low bit of `loop` is set,
  // and never off.
  void Initialize(std::int16_t interval, std::weak_ptr<MessageTarget> logic, std::int16_t loop);
  // Asks for "play" or "record" until one of them is given, and does it.
  void RunTester();
  // Asks for a file name until one is given, and starts recording.
  void Record();
  // "mouseclick_X_Y" and "mousemove_X_Y" are recorded while recording; other words never.
  void RecordUserAction(const std::string& message) override;
  // One tick.
  void Update();
  // Asks for the name of a file that is there, and starts playing. The name decides whether the
  // file is played once or, when it holds "loop", for ever.
  void Play();
  // Ends either mode. The mode itself stays; without a timer nothing is counted or played.
  void StopTesting();
  // Writes all actions anew into a file of that name.
  void SaveAllActions(const std::string& file_name) const;
  // Stops and releases.
  void Detach() override;

  // Told of recording; may be null, and must outlive it.
  void SetWatcher(TesterWatcher* watcher) { watcher_ = watcher; }

  // The state, for tools.
  Mode GetMode() const { return mode_; }
  std::int16_t Interval() const { return interval_; }
  std::int16_t TickCounter() const { return ticks_; }
  bool Loop() const { return loop_; }
  int TimerId() const { return timer_; }
  const std::string& FileName() const { return file_name_; }
  const std::deque<UserActionObj>& Actions() const { return actions_; }

 private:
  std::string Ask(const char* prompt);
  std::string PathOf(const std::string& file_name) const;
  bool ExistsAsTyped(const std::string& file_name) const;
  void StartTimer();
  void KillTimer();
  void LoadActions();
  void PlayTick();
  void PlayFirst();

  ObjectWorld& world_;
  TesterReference& reference_;
  TesterWatcher* watcher_ = nullptr;
  std::int16_t interval_ = 0;  // milliseconds
  std::weak_ptr<MessageTarget> logic_;
  bool loop_ = false;

  int timer_ = 0;  // 0 when none runs
  Mode mode_ = Mode::kIdle;
  std::int16_t ticks_ = 0;  // since the last recorded action
  // Recording: what has been recorded. Playing: what is still to play.
  std::deque<UserActionObj> actions_;
  std::string file_name_;
  std::unique_ptr<TextStream> stream_;  // open while recording
};

// The callback of the recorder's timer.
void OnTesterTimer(ObjectWorld& world, TesterReference& reference);

}  // namespace quendle
