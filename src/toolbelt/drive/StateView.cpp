#include <nlohmann/json.hpp>

#include "base/Settings.h"
#include "logic/GameLogicLayer.h"
#include "media/DShowObj.h"
#include "media/SoundState.h"
#include "toolbelt/drive/DriveSession.h"
#include "toolbelt/drive/Views.h"

namespace quendle {
namespace {

Json NameOf(const ObjectRef& object) {
  return object == nullptr ? Json("") : TextJson(object->ObjectName());
}

Json DescribeHelp(const HelpMemory& help) {
  return {help.m_bHelpMedicalBook, help.m_bHelpPatientRoom, help.m_bHelpToolRoom,
          help.m_bHelpElevator, help.m_bHelpToolItem};
}

Json DescribeCache(const ScreenKeeper& keeper) {
  Json cache = Json::array();
  for (const auto& [name, entry] : keeper.Cache()) {
    cache.push_back({{"name", NameOf(entry.m_ptrGameObject)},
                     {"age", entry.m_nAge},
                     {"free", entry.m_bFreeToRelease}});
  }
  return cache;
}

Json DescribeMusic(const GameLogicLayer& logic) {
  const SoundState* music = logic.Music();
  DShowObj* player = music == nullptr ? nullptr : music->Player();
  const bool playing = player != nullptr && music->FileFound() && player->StillPlaying(0);
  return {{"playing", playing},
          {"paused", playing && player->Paused()},
          {"position", player == nullptr ? 0.0 : player->GetPosition()},
          {"volume", player == nullptr ? 0 : player->GetVolume()},
          {"rate", player == nullptr ? 0.0 : player->GetRate()}};
}

Json DescribeTimedObjects(const ObjectWorld& world) {
  Json names = Json::array();
  for (const auto& [id, weak] : world.TimedObjects) {
    if (ObjectRef object = weak.lock()) names.push_back(TextJson(object->ObjectName()));
  }
  return names;
}

void AddLogic(Json& state, const GameLogicLayer& logic, const ObjectWorld& world) {
  state["screen"] = NameOf(logic.CurrentScreen());
  state["previous"] = NameOf(logic.PreviousScreen());
  state["cursor"] = TextJson(logic.CurrentCursor());
  state["previousCursor"] = TextJson(logic.PreviousCursor());
  state["toolsState"] = TextJson(logic.ToolsState());
  state["dialogActive"] = logic.DialogActive();
  state["skipNextClick"] = logic.SkipNextClick();
  state["help"] = DescribeHelp(logic.Help());
  state["gameReset"] = logic.GameReset();
  state["frameCounter"] = logic.FrameCounter();
  state["gameActive"] = world.GameActive;
}

void AddSettings(Json& state, const Settings& settings) {
  state["difficulty"] = TextJson(settings.DifficultyLevel);
  state["safeMode"] = settings.SafeMode;
  state["personalize"] = settings.PersonalizeOn;
  state["graphicsMode"] = settings.GraphicsMode;
}

void AddDrawing(Json& state, const MediaWorld& media) {
  state["directDraw"] = media.UseDirectX;
  state["fullScreen"] = media.FullScreen;
  state["transparentColor"] = media.TransparentColor;
}

void AddScreens(Json& state, const GameLogicLayer& logic, const ObjectWorld& world) {
  if (const ScreenKeeper* keeper = logic.Keeper()) {
    state["cache"] = DescribeCache(*keeper);
    state["mementos"] = TextListJson(keeper->Mementos().Keys());
    state["screens"] = TextListJson(keeper->Table().Keys());
  }
  state["timedObjects"] = DescribeTimedObjects(world);
  state["music"] = DescribeMusic(logic);
}

}  // namespace

Json StateAnswer(DriveSession& session) {
  Json state = Json::object();
  const Globals* globals = session.Game().Game();
  const GameLogicLayer* logic = globals == nullptr ? nullptr : globals->GameLogic.get();
  if (logic != nullptr) AddLogic(state, *logic, globals->objects);
  AddSettings(state, session.Game().GetSettings());
  if (logic != nullptr) {
    AddDrawing(state, globals->media);
    AddScreens(state, *logic, globals->objects);
  }
  const HeadlessBackend& platform = session.Platform();
  state["beeps"] = platform.window.Beeps() + platform.system.Beeps();
  state["seeds"] = platform.random.Seeds();
  return state;
}

}  // namespace quendle
