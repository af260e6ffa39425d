#include "subgames/PlayAreaVerbs.h"

#include "base/FirstFit.h"
#include "subgames/SubgameKinds.h"

namespace quendle {
namespace {

// The games that have a verb, a bit each.
using Kinds = unsigned;
constexpr Kinds Only(SubgameKind kind) { return 1U << static_cast<unsigned>(kind); }
constexpr Kinds kAll = ~0U;
constexpr Kinds kWithCells =
    Only(SubgameKind::kShooter) | Only(SubgameKind::kBlinker) | Only(SubgameKind::kBobbler);

struct Row {
  FitRow<PlayAreaVerb> test;
  Kinds kinds;
};

// Tried from the top.
constexpr Row kRows[] = {
    {{Fit::kIs, "startgame", PlayAreaVerb::kStartGame}, kAll},
    {{Fit::kHolds, "stopgame", PlayAreaVerb::kStopGame}, kAll},
    {{Fit::kIs, "endgame", PlayAreaVerb::kEndGame}, Only(SubgameKind::kSquare)},
    {{Fit::kHolds, "replaygame", PlayAreaVerb::kReplayGame}, Only(SubgameKind::kBlinker)},
    {{Fit::kHolds, "restartgame", PlayAreaVerb::kRestartGame}, Only(SubgameKind::kBlinker)},
    {{Fit::kHolds, "select", PlayAreaVerb::kSelect}, kWithCells},
    {{Fit::kHolds, "acceptedcell", PlayAreaVerb::kAcceptedCell}, kWithCells},
};

}  // namespace

PlayAreaVerb PlayAreaVerbOf(SubgameKind kind, std::string_view message) {
  for (const Row& row : kRows) {
    if ((row.kinds & Only(kind)) != 0 && row.test.Takes(message)) return row.test.answer;
  }
  return PlayAreaVerb::kInner;
}

}  // namespace quendle
