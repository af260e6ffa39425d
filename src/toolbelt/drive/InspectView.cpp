#include <nlohmann/json.hpp>
#include <set>

#include "base/ContentFiles.h"
#include "logic/GameLogicLayer.h"
#include "media/DShowObj.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "media/SplineState.h"
#include "object/ForwardingObject.h"
#include "script/ScriptState.h"
#include "toolbelt/drive/Arguments.h"
#include "toolbelt/drive/DriveSession.h"
#include "toolbelt/drive/Views.h"

namespace quendle {
namespace {

Json DescribeStates(const GameObject& object) {
  Json list = Json::array();
  for (const auto& [name, state] : object.States()) {
    list.push_back({{"name", TextJson(state->Name())},
                    {"sound", TextJson(state->SoundState())},
                    {"animation", TextJson(state->AnimationState())},
                    {"script", TextJson(state->ScriptState())}});
  }
  return list;
}

Json DescribeSpline(const SplineState* spline) {
  if (spline == nullptr) return nullptr;
  return {{"name", TextJson(spline->Name())},   {"loop", spline->Loops()},
          {"speed", spline->Speed()},           {"x", TextListJson(spline->XList())},
          {"y", TextListJson(spline->YList())}, {"done", spline->IsSplineDone()}};
}

Json DescribeAnimations(const GameObject& object) {
  Json list = Json::array();
  for (const auto& [name, animation] : object.Animations()) {
    Json sets = Json::array();
    for (const AnimationState::FrameSet& set : animation->FrameSets()) {
      sets.push_back({{"frames", TextListJson(set.names)},
                      {"position", set.position},
                      {"loop", set.loops},
                      {"done", set.done}});
    }
    list.push_back({{"name", TextJson(name)},
                    {"interval", animation->Interval()},
                    {"loop", animation->GetLoopState()},
                    {"sets", std::move(sets)},
                    {"spline", DescribeSpline(animation->Spline())}});
  }
  return list;
}

Json DescribeFrames(const GameObject& object) {
  Json list = Json::array();
  for (const auto& [name, frame] : object.Frames()) {
    list.push_back({{"name", TextJson(frame->FrameName)},
                    {"sourceX", frame->SourceX},
                    {"sourceY", frame->SourceY},
                    {"sourceWidth", frame->SourceWidth},
                    {"sourceHeight", frame->SourceHeight},
                    {"placeX", frame->PlaceX},
                    {"placeY", frame->PlaceY},
                    {"drawWidth", frame->DrawWidth},
                    {"drawHeight", frame->DrawHeight},
                    {"regionKey", TextJson(frame->RegionKey)}});
  }
  return list;
}

Json DescribeRegions(const GameObject& object) {
  Json lists = Json::array();
  for (const auto& [key, regions] : object.FrameRegions()) {
    Json list = Json::array();
    for (const Region& region : regions) {
      list.push_back({{"name", TextJson(region.Name())},
                      {"x1", region.X1()},
                      {"y1", region.Y1()},
                      {"x2", region.X2()},
                      {"y2", region.Y2()}});
    }
    lists.push_back({{"key", TextJson(key)}, {"regions", std::move(list)}});
  }
  return lists;
}

Json DescribeScripts(const GameObject& object) {
  Json list = Json::array();
  for (const auto& [name, script] : object.Scripts()) {
    std::vector<std::string> lines;
    script->PrintScript(lines);
    list.push_back({{"name", TextJson(name)}, {"lines", TextListJson(lines)}});
  }
  return list;
}

Json DescribeSounds(const GameObject& object, const MediaWorld& media) {
  Json list = Json::array();
  for (const auto& [name, sound] : object.Sounds()) {
    list.push_back({{"name", TextJson(name)},
                    {"file", TextJson(sound->Sound())},
                    {"found", sound->FileFound()},
                    {"loaded", sound->Loaded()},
                    {"loop", sound->DoWeLoop()},
                    {"global", media.FindGlobalSound(sound->Name()) == sound}});
  }
  return list;
}

// Appends what is in a player; a player seen already, or an empty one, is left out.
class PlayerList {
 public:
  explicit PlayerList(const MediaWorld& media) : media_(media) {}

  void Add(std::string_view owner, DShowObj* player) {
    if (player == nullptr || player->File().empty() || !Remember(player)) return;
    list_.push_back({{"owner", TextJson(owner)},
                     {"file", TextJson(media_.content.DisplayName(player->File()))},
                     {"playing", player->StillPlaying(0)},
                     {"position", player->GetPosition()},
                     {"duration", player->GetDuration()},
                     {"volume", player->GetVolume()},
                     {"rate", player->GetRate()}});
  }
  void AddTree(GameObjectInterface& object) {
    if (!Remember(&object)) return;
    Add(object.ObjectName(), object.GetDShowObj());
    for (const auto& [key, child] : object.Children()) AddTree(*child);
  }
  Json Take() { return std::move(list_); }

 private:
  bool Remember(const void* seen) { return seen_.insert(seen).second; }

  const MediaWorld& media_;
  Json list_ = Json::array();
  std::set<const void*> seen_;
};

}  // namespace

Json InspectObject(GameObjectInterface& object, DriveSession& session) {
  const GameObject* inner = InnerObject(object);
  if (inner == nullptr) throw CommandRefused("this object holds no loaded files");
  return {{"states", DescribeStates(*inner)},
          {"animations", DescribeAnimations(*inner)},
          {"frames", DescribeFrames(*inner)},
          {"regions", DescribeRegions(*inner)},
          {"scripts", DescribeScripts(*inner)},
          {"sounds", DescribeSounds(*inner, session.World().media)}};
}

Json DescribePlayers(DriveSession& session) {
  Globals& globals = session.World();
  GameLogicLayer& logic = session.Logic();
  PlayerList players(globals.media);
  if (const SoundState* music = logic.Music()) players.Add("music", music->Player());
  for (const auto& [name, sound] : globals.media.GlobalSounds) players.Add(name, sound->Player());
  if (const ScreenKeeper* keeper = logic.Keeper()) {
    for (const auto& [name, entry] : keeper->Cache()) players.AddTree(*entry.m_ptrGameObject);
  }
  for (const ObjectRef& screen : {logic.CurrentScreen(), logic.PreviousScreen()}) {
    if (screen != nullptr) players.AddTree(*screen);
  }
  for (const auto& [name, object] : globals.objects.GlobalObjects) players.AddTree(*object);
  return players.Take();
}

}  // namespace quendle
