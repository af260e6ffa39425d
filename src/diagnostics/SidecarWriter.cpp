#include "diagnostics/SidecarWriter.h"

#include <cmath>
#include <utility>

#include "base/ContentFiles.h"
#include "base/Settings.h"
#include "base/Text.h"
#include "diagnostics/GameSnapshot.h"
#include "diagnostics/LineStream.h"
#include "logic/GameLogicLayer.h"
#include "media/MediaWorld.h"
#include "object/ObjectWorld.h"
#include "platform/Clock.h"
#include "platform/FilterGraph.h"
#include "platform/Ports.h"

namespace quendle {
namespace {

constexpr long kSecond = 1000;

// As the settings file has it.
std::string LevelOf(const Settings& settings) {
  for (const char* level : {"Easy", "Hard"}) {
    if (EqualsNoCase(settings.DifficultyLevel, level)) return level;
  }
  return "Normal";
}

}  // namespace

SidecarWriter::SidecarWriter(ObjectWorld& world, std::weak_ptr<GameLogicLayer> logic,
                             SidecarConditions conditions)
    : world_(world), logic_(std::move(logic)), conditions_(std::move(conditions)) {}

SidecarWriter::~SidecarWriter() = default;

void SidecarWriter::FillIn() {
  const MediaWorld& media = world_.media;
  conditions_.edition = media.settings.GameEdition;
  conditions_.difficulty = LevelOf(media.settings);
  conditions_.safe_mode = media.settings.SafeMode;
  conditions_.personalize = media.settings.PersonalizeOn;
  conditions_.depth = media.settings.GraphicsMode;
  conditions_.direct_draw = media.UseDirectX;
  conditions_.sound = media.ports.filter_graphs.Create() != nullptr;
  conditions_.clock = std::lround(media.ports.clock.TimeOfDay() * static_cast<double>(kSecond));
}

void SidecarWriter::RecordingStarted(const std::string& file_name) {
  FillIn();
  const ContentFiles& files = world_.media.content;
  const std::string name = SidecarNameOf(file_name);
  stream_ = std::make_unique<LineStream>(world_.media.ports.files,
                                         files.BaseDirectory() + "\\" + name, name);
  WriteConditions(*stream_, conditions_);
  start_ = world_.media.ports.clock.Monotonic().count();
  second_ = 0;
  last_ = {};
}

long SidecarWriter::Time() const { return world_.media.ports.clock.Monotonic().count() - start_; }

void SidecarWriter::Note(SidecarMoment::Kind kind, int value) {
  if (stream_ != nullptr) WriteMoment(*stream_, {Time(), kind, value});
}

void SidecarWriter::ActionRecorded() { Note(SidecarMoment::Kind::kAction, 0); }

void SidecarWriter::RecordingTicked() {
  if (stream_ == nullptr || Time() / kSecond <= second_) return;
  second_ = Time() / kSecond;
  WriteStateNow();
}

void SidecarWriter::WriteStateNow() {
  const std::shared_ptr<GameLogicLayer> logic = logic_.lock();
  if (logic == nullptr) return;
  StateSnapshot now = TakeSnapshot(*logic, world_);
  WriteState(*stream_, {Time(), HashOfSnapshot(now), ChangesBetween(last_, now)});
  last_ = std::move(now);
}

void SidecarWriter::Close() {
  if (stream_ == nullptr) return;
  Note(SidecarMoment::Kind::kClose, 0);
  WriteStateNow();
}

void SidecarWriter::RecordingStopped() {
  if (stream_ == nullptr) return;
  WriteEnd(*stream_, Time());
  stream_->Close();
  stream_.reset();
}

}  // namespace quendle
