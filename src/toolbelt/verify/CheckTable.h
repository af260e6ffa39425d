// What `quendle verify` looks for: one row a check.
#pragma once

#include <span>
#include <string_view>

namespace quendle {

enum class Severity { kError, kWarning, kNote };

enum class Check {
  // The check itself
  kUnreadable,
  kSideListLine,
  kSideListIdle,
  // Files
  kMissingFile,
  kUnusedFile,
  kWrongCase,
  kCaseTwins,
  kTab,
  kUtf8,
  kOuterBlank,
  kVariantMissing,
  kOddDirective,
  kOddLoopWord,
  // Objects
  kUnknownType,
  kNoFirstState,
  kTwoOfOneName,
  kUnknownGlobal,
  kGlobalTooLate,
  kCircle,
  kNoFixedScreen,
  kNoHand,
  kPlacementWins,
  kPlayAreaPlace,
  kMenuChildren,
  kBoard,
  kTooDeep,
  kTooMany,
  // States, animations, frames
  kUnknownSound,
  kUnknownAnimation,
  kUnknownScript,
  kUnknownFrame,
  kFrameRange,
  kFrameOutside,
  kEmptySequence,
  kTwoFrames,
  kDrift,
  kStepOfOne,
  kUnknownFirstState,
  kIdleState,
  kPath,
  kRegionOutside,
  // Sounds
  kSoundMissing,
  kSoundDamaged,
  kSpeechCut,
  kLoopStops,
  kGreeting,
  kHoverSound,
  kSoundLeaves,
  kMusicLong,
  // Pictures
  kPictureDamaged,
  kKeyColour,
  kNotCovered,
  // Scripts
  kAccidentalEnd,
  kAccidentalElse,
  kNeverRead,
  kNoStatement,
  kOneWord,
  kCondition,
  kInnerStar,
  kHiddenBranch,
  kDeadPattern,
  kUnknownState,
  kUnknownSoundRun,
  kSubscript,
  // Messages
  kNoTaker,
  kMissingWord,
  kNoSuchObject,
  kNoSuchType,
  kNoSuchScreen,
  kNoSuchGlobal,
  kNoSuchScript,
  kMessageState,
  kEndlessMessage,
  kOwnEvent,
  kFarEvent,
  // Names and screens
  kCaughtWord,
  kUnderscore,
  kInnerBlank,
  kUnreachable,
  kNoPatient,
  kNoBar,
  kNotSaved,
  kBarOverGame,
  // Patients and the doctor
  kOwwwTwin,
  kInfoState,
  kDoctorState,
  kSurgery,
  kGapInRow,
  kUnusedTwin,
};

// A check as it is told to authors. The texts are plain sentences, words of content in backticks.
struct CheckRow {
  Check check;
  std::string_view code;  // "V101"; never given to another check
  Severity severity;
  std::string_view title;
  std::string_view cause;
  std::string_view cure;
};

// All checks, in the order of their codes.
std::span<const CheckRow> CheckTable();
const CheckRow& RowOf(Check check);
// The row of a code, case ignored; null for another text.
const CheckRow* FindCheck(std::string_view code);
// "error", "warning" or "note".
std::string_view SeverityWord(Severity severity);

}  // namespace quendle
