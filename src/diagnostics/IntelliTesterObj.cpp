#include "diagnostics/IntelliTesterObj.h"

#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/Settings.h"
#include "base/Text.h"
#include "base/Words.h"
#include "diagnostics/LineStream.h"
#include "media/MediaWorld.h"
#include "object/ObjectWorld.h"
#include "platform/Boxes.h"
#include "platform/Ports.h"
#include "platform/TimerService.h"

namespace quendle {
namespace {

constexpr const char* kTitle = "IntelliTester";
constexpr const char* kAskMode = "Enter 'play' for play mode and 'record' for record mode";
constexpr const char* kAskNewFile = "Please enter the file name to store the user actions";
constexpr const char* kAskFile = "Please enter the file name to run";
constexpr const char* kFinished = "IntelliTester has finished playing";

// A name without a folder is looked for in the current one, which is the game's own.
bool IsRelative(const std::string& name) {
  return !name.starts_with('\\') && !name.starts_with('/') && name.find(':') == std::string::npos;
}

}  // namespace

IntelliTesterObj::IntelliTesterObj(ObjectWorld& world, TesterReference& reference)
    : world_(world), reference_(reference) {}

IntelliTesterObj::~IntelliTesterObj() {
  KillTimer();
  if (stream_ != nullptr) stream_->Close();
}

void IntelliTesterObj::Release() {
  logic_.reset();
  actions_.clear();
}

void IntelliTesterObj::Initialize(std::int16_t interval, std::weak_ptr<MessageTarget> logic,
                                  std::int16_t loop) {
  interval_ = interval;
  logic_ = std::move(logic);
  if ((loop & 1) != 0) loop_ = true;
}

void IntelliTesterObj::RunTester() {
  for (;;) {
    const std::string answer = Ask(kAskMode);
    if (EqualsNoCase(answer, "play")) return Play();
    if (EqualsNoCase(answer, "record")) return Record();
  }
}

void IntelliTesterObj::Record() {
  file_name_.clear();
  while (file_name_.empty()) file_name_ = Ask(kAskNewFile);
  stream_ = std::make_unique<LineStream>(world_.media.ports.files, PathOf(file_name_), file_name_);
  mode_ = Mode::kRecording;
  StartTimer();
  if (watcher_ != nullptr) watcher_->RecordingStarted(file_name_);
}

void IntelliTesterObj::RecordUserAction(const std::string& message) {
  if (mode_ != Mode::kRecording || stream_ == nullptr) return;
  const Words pieces(message, '_');
  if (pieces.Empty() || !IsMouseAction(pieces[1])) return;
  UserActionObj action;
  action.SetActionType(pieces[1]);
  action.SetActionName(pieces[1]);
  action.SetX(Int16FromText(pieces[2], "x of a user action"));
  action.SetY(Int16FromText(pieces[3], "y of a user action"));
  action.SetTicks(ticks_);
  actions_.push_back(action);
  // At once, so that a crash loses nothing.
  action.Save(*stream_);
  ticks_ = 0;
  if (watcher_ != nullptr) watcher_->ActionRecorded();
}

void IntelliTesterObj::Update() {
  if (mode_ == Mode::kRecording) {
    ticks_ = ToInt16(ticks_ + 1, "ticks between two user actions");
    if (watcher_ != nullptr) watcher_->RecordingTicked();
  } else if (mode_ == Mode::kPlaying) {
    PlayTick();
  }
}

void IntelliTesterObj::PlayTick() {
  if (actions_.empty()) {
    if (loop_) {
      LoadActions();
      return;
    }
    StopTesting();
    world_.media.ports.boxes.MessageBox(world_.media.settings.ProductName, kFinished);
    return;
  }
  UserActionObj& first = actions_.front();
  // The tick counts before the test: an action with no ticks at the head comes with the first one.
  first.SetTicks(ToInt16(first.Ticks() - 1, "ticks of a user action"));
  if (first.Ticks() >= 1) return;
  PlayFirst();
  while (!actions_.empty() && actions_.front().Ticks() == 0) PlayFirst();
}

void IntelliTesterObj::PlayFirst() {
  // Taken out first: what it starts may end the game and empty the list.
  const UserActionObj action = std::move(actions_.front());
  actions_.pop_front();
  std::string message;
  if (IsMouseAction(action.ActionType())) {
    message =
        action.ActionName() + "_" + std::to_string(action.X()) + "_" + std::to_string(action.Y());
  }
  if (std::shared_ptr<MessageTarget> logic = logic_.lock()) logic->Send(message);
}

void IntelliTesterObj::Play() {
  // The mode is still idle: ticks that come during the question do nothing.
  StartTimer();
  file_name_.clear();
  while (file_name_.empty() || !ExistsAsTyped(file_name_)) file_name_ = Ask(kAskFile);
  loop_ = ContainsNoCase(file_name_, "loop");
  mode_ = Mode::kPlaying;
  LoadActions();
}

void IntelliTesterObj::LoadActions() {
  auto stream = world_.media.content.OpenTextFileChecked(PathOf(file_name_), OpenMode::kRead,
                                                         /*create=*/false);
  actions_.clear();
  while (!stream->AtEndOfStream()) actions_.emplace_back().Load(*stream);
  stream->Close();
}

void IntelliTesterObj::StopTesting() {
  KillTimer();
  if (mode_ != Mode::kRecording || stream_ == nullptr) return;
  stream_->Close();
  stream_.reset();
  file_name_.clear();
  if (watcher_ != nullptr) watcher_->RecordingStopped();
}

void IntelliTesterObj::SaveAllActions(const std::string& file_name) const {
  LineStream stream(world_.media.ports.files, PathOf(file_name), file_name);
  for (const UserActionObj& action : actions_) action.Save(stream);
  stream.Close();
}

void IntelliTesterObj::Detach() {
  StopTesting();
  Release();
}

std::string IntelliTesterObj::Ask(const char* prompt) {
  return world_.media.ports.boxes.InputBox(kTitle, prompt);
}

std::string IntelliTesterObj::PathOf(const std::string& file_name) const {
  return world_.media.content.BaseDirectory() + "\\" + file_name;
}

bool IntelliTesterObj::ExistsAsTyped(const std::string& file_name) const {
  return world_.media.content.FileExistsAt(IsRelative(file_name) ? PathOf(file_name) : file_name);
}

void IntelliTesterObj::StartTimer() {
  KillTimer();
  timer_ = world_.media.ports.timers.SetTimer(
      Milliseconds(interval_), "OnTesterTimer",
      [&world = world_, &reference = reference_](int) { OnTesterTimer(world, reference); });
  reference_.active = weak_from_this();
}

void IntelliTesterObj::KillTimer() {
  if (timer_ == 0) return;
  world_.media.ports.timers.KillTimer(std::exchange(timer_, 0));
  reference_.active.reset();
}

void OnTesterTimer(ObjectWorld& world, TesterReference& reference) {
  if (!world.GameActive) {
    ++world.gated_ticks;
    return;
  }
  // Held for the tick: what it plays may end the game.
  if (std::shared_ptr<IntelliTesterObj> tester = reference.active.lock()) tester->Update();
}

}  // namespace quendle
