// What the objects of a subgame decide on a message, and what each kind of game is made of.
#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>

#include "subgames/FrameVerbs.h"
#include "subgames/PlayAreaVerbs.h"
#include "subgames/PointVerbs.h"
#include "subgames/SubgameKinds.h"

namespace quendle {
namespace {

using enum PlayAreaVerb;

// Of the square, the shooter, the blinker and the bobbler.
struct AreaCase {
  const char* message;
  std::array<PlayAreaVerb, 4> verbs;
};

TEST(PlayAreaVerbs, EachKindOfGameHasItsOwn) {
  const AreaCase cases[] = {
      {"StartGame", {kStartGame, kStartGame, kStartGame, kStartGame}},
      {"startgame_", {kInner, kInner, kInner, kInner}},
      {"xstopgame_", {kStopGame, kStopGame, kStopGame, kStopGame}},
      {"endgame", {kEndGame, kInner, kInner, kInner}},
      {"endgame_", {kInner, kInner, kInner, kInner}},
      {"xreplaygame_", {kInner, kInner, kReplayGame, kInner}},
      {"xrestartgame_", {kInner, kInner, kRestartGame, kInner}},
      {"selectone", {kInner, kSelect, kSelect, kSelect}},
      {"xAcceptedCell_", {kInner, kAcceptedCell, kAcceptedCell, kAcceptedCell}},
      {"runstate_default", {kInner, kInner, kInner, kInner}},
  };
  for (const AreaCase& row : cases) {
    for (std::size_t i = 0; i < row.verbs.size(); ++i) {
      EXPECT_EQ(PlayAreaVerbOf(Subgames()[i].kind, row.message), row.verbs[i])
          << row.message << " to " << Subgames()[i].type_word;
    }
  }
}

TEST(PlayAreaVerbs, TheFirstRowThatFitsDecides) {
  EXPECT_EQ(PlayAreaVerbOf(SubgameKind::kBlinker, "select_stopgame"), kStopGame);
  EXPECT_EQ(PlayAreaVerbOf(SubgameKind::kBlinker, "select_restartgame"), kRestartGame);
  EXPECT_EQ(PlayAreaVerbOf(SubgameKind::kBlinker, "restartgame_replaygame"), kReplayGame);
  EXPECT_EQ(PlayAreaVerbOf(SubgameKind::kShooter, "acceptedcell_select"), kSelect);
}

TEST(FrameVerbs, AScoreGoesDownAndAnEndClimbs) {
  EXPECT_EQ(FrameVerbOf("xScoreValue_won"), FrameVerb::kScore);
  for (const char* message : {"subgamedone", "subgame_won", "Lost", "showobj_wonder"}) {
    EXPECT_EQ(FrameVerbOf(message), FrameVerb::kClimb) << message;
  }
  EXPECT_EQ(FrameVerbOf("showobj_play"), FrameVerb::kInner);
}

TEST(PointVerbs, WhatStandsInFrontOfTheFirstUnderscoreDecides) {
  EXPECT_EQ(PointVerbOf("AddClass_a"), PointVerb::kAddClass);
  EXPECT_EQ(PointVerbOf("addpoints"), PointVerb::kAddPoints);
  EXPECT_EQ(PointVerbOf("removepoints__a"), PointVerb::kRemovePoints);
  EXPECT_EQ(PointVerbOf("_addpoints_a"), PointVerb::kInner);
  EXPECT_EQ(PointVerbOf("addpointsx_a"), PointVerb::kInner);
}

TEST(SubgameKinds, EachRowIsFoundByItsKindAndByItsTypeWord) {
  std::set<std::string> timers;
  for (const SubgameRow& row : Subgames()) {
    EXPECT_EQ(&RowOf(row.kind), &row);
    EXPECT_EQ(SubgameKindOf(row.type_word), row.kind);
    EXPECT_EQ(row.fixed_cells.empty(), row.data != GameData::kHeader) << row.type_word;
    timers.insert(row.timer);
  }
  EXPECT_EQ(timers.size(), Subgames().size());
  EXPECT_EQ(SubgameKindOf("PlayAreaSquare"), SubgameKind::kSquare);
  EXPECT_EQ(SubgameKindOf("playarea"), std::nullopt);
}

}  // namespace
}  // namespace quendle
