#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/StateSnapshot.h"

namespace quendle {

class TextStream;

// A file of the player's own as it was when a recording began.
struct SidecarFile {
  std::string name;  // beside the executable
  std::vector<std::string> lines;
  friend bool operator==(const SidecarFile&, const SidecarFile&) = default;
};

// All that a session depends on beside the player. Texts are UTF-8.
struct SidecarConditions {
  std::string version;  // of the engine
  int edition = 2;
  std::uint64_t seed = 1;  // of the random generator, at process start
  std::string difficulty = "Normal";
  bool safe_mode = false;
  bool personalize = false;
  int depth = 32;           // colour depth asked for
  bool direct_draw = true;  // the drawing path
  bool sound = true;        // sounds can be played, heard or not
  int interval = 50;        // milliseconds between ticks of the recorder
  long clock = 0;           // time of day at the start, in milliseconds
  std::string content;      // hash of the content tree
  std::vector<SidecarFile> files;
};

// Something that came from outside, in milliseconds from the start of the recording. An action is
// the next one of the session file.
struct SidecarMoment {
  enum class Kind { kAction, kKey, kFocus, kClose };
  long time = 0;
  Kind kind = Kind::kAction;
  int value = 0;  // code of the key; 1 when the focus was found, 0 when it was lost
  friend bool operator==(const SidecarMoment&, const SidecarMoment&) = default;
};

// The state at one moment, as the lines by which it differs from the one before.
struct SidecarState {
  long time = 0;
  std::string hash;  // of the whole state
  std::vector<std::string> changes;
};

// What stands beside a session file, in the order in which it happened.
struct Sidecar {
  SidecarConditions conditions;
  std::vector<SidecarMoment> moments;
  std::vector<SidecarState> states;
  bool ended = false;  // the game ended in order, and with it the recording
  // Of the last line that tells one.
  long last_time = 0;
};

// "tour.txt" gives "tour.sidecar.txt".
std::string SidecarNameOf(std::string_view session_name);

// The pieces of the text, for who writes it bit by bit.
void WriteConditions(TextStream& stream, const SidecarConditions& conditions);
void WriteMoment(TextStream& stream, const SidecarMoment& moment);
void WriteState(TextStream& stream, const SidecarState& state);
void WriteEnd(TextStream& stream, long time);

// A line that isn't understood is fatal and named. A last line that was cut off by a crash counts
// as one.
Sidecar ReadSidecar(TextStream& stream);

// The lines that lead from one state to the next.
std::vector<std::string> ChangesBetween(const StateSnapshot& before, const StateSnapshot& after);
// Applies such lines; one that isn't understood is fatal.
void ApplyChanges(StateSnapshot& snapshot, const std::vector<std::string>& changes);

// Where two recordings of one session differ first.
struct SidecarDifference {
  long time = 0;  // milliseconds
  StateDifference where;
};
std::optional<SidecarDifference> FirstDifference(const Sidecar& expected, const Sidecar& found);

// "second 4: floor1hall1/doctor: state: expected "default", found "helpelevator"".
std::string DescribeDifference(const SidecarDifference& difference);

}  // namespace quendle
