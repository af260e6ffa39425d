#include "diagnostics/GameSnapshot.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/Inspector.h"
#include "base/Settings.h"
#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "media/DShowObj.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "object/ForwardingObject.h"

namespace quendle {
namespace {

// What is no state of play: a folder of content, and a number that depends on what else runs.
constexpr std::array<std::string_view, 2> kLeftOut = {"directory", "GameUpdateTimerID"};

std::string Word(bool flag) { return flag ? "on" : "off"; }

class FieldInspector : public Inspector {
 public:
  explicit FieldInspector(StateSnapshot::Fields& fields) : fields_(fields) {}
  void Field(std::string_view name, std::string_view value) override {
    if (std::find(kLeftOut.begin(), kLeftOut.end(), name) != kLeftOut.end()) return;
    fields_[ToUtf8(name)] = ToUtf8(value);
  }
  void Field(std::string_view name, long value) override { Field(name, std::to_string(value)); }
  void Flag(std::string_view name, bool value) override { Field(name, Word(value)); }

 private:
  StateSnapshot::Fields& fields_;
};

std::string Joined(const std::vector<std::string>& words) { return JoinTokens(words, 0, ' '); }

std::string FramesOf(const GameObject& object) {
  std::vector<std::string> names;
  for (const FrameRef& frame : object.CurrentFrames()) names.push_back(frame->FrameName);
  return Joined(names);
}

StateSnapshot::Fields FieldsOf(GameObjectInterface& object) {
  StateSnapshot::Fields fields;
  FieldInspector inspector(fields);
  if (const auto* inspectable = dynamic_cast<const Inspectable*>(&object)) {
    inspectable->Describe(inspector);
  }
  inspector.Field("state", object.CurrentState());
  if (const GameObject* inner = InnerObject(object)) {
    inspector.Field("frames", FramesOf(*inner));
    inspector.Field("history", Joined(inner->StateHistory()));
  }
  inspector.Field("x", object.xpos());
  inspector.Field("y", object.ypos());
  inspector.Flag("visible", object.Visible());
  inspector.Flag("on", object.ObjectOn());
  return fields;
}

void AddTree(StateSnapshot& snapshot, GameObjectInterface& object, const std::string& above) {
  const std::string path = above + ToUtf8(object.ObjectName());
  snapshot.objects[path] = FieldsOf(object);
  for (const auto& [key, child] : object.Children()) AddTree(snapshot, *child, path + "/");
}

std::string NameOf(const ObjectRef& object) {
  return object == nullptr ? std::string() : object->ObjectName();
}

std::string HelpOf(const HelpMemory& help) {
  std::string given;
  for (const bool flag : {help.m_bHelpMedicalBook, help.m_bHelpPatientRoom, help.m_bHelpToolRoom,
                          help.m_bHelpElevator, help.m_bHelpToolItem}) {
    given += flag ? '1' : '0';
  }
  return given;
}

std::string CacheOf(const ScreenKeeper& keeper) {
  std::vector<std::string> screens;
  for (const auto& [name, entry] : keeper.Cache()) {
    screens.push_back(name + (entry.m_bFreeToRelease ? "(free)" : ""));
  }
  return Joined(screens);
}

bool MusicPlays(const GameLogicLayer& logic) {
  const SoundState* music = logic.Music();
  DShowObj* player = music == nullptr ? nullptr : music->Player();
  return player != nullptr && music->FileFound() && player->StillPlaying(0);
}

StateSnapshot::Fields FieldsOfGame(const GameLogicLayer& logic, const ObjectWorld& world) {
  StateSnapshot::Fields fields;
  FieldInspector inspector(fields);
  const Settings& settings = world.media.settings;
  inspector.Field("screen", NameOf(logic.CurrentScreen()));
  inspector.Field("previous", NameOf(logic.PreviousScreen()));
  inspector.Field("cursor", logic.CurrentCursor());
  inspector.Field("previousCursor", logic.PreviousCursor());
  inspector.Field("toolsState", logic.ToolsState());
  inspector.Flag("dialogActive", logic.DialogActive());
  inspector.Flag("skipNextClick", logic.SkipNextClick());
  inspector.Field("help", HelpOf(logic.Help()));
  inspector.Flag("gameReset", logic.GameReset());
  inspector.Field("frameCounter", logic.FrameCounter());
  inspector.Field("difficulty", FoldCase(settings.DifficultyLevel));  // its case means nothing
  inspector.Flag("safeMode", settings.SafeMode);
  inspector.Flag("personalize", settings.PersonalizeOn);
  inspector.Flag("music", MusicPlays(logic));
  if (const ScreenKeeper* keeper = logic.Keeper()) {
    inspector.Field("cache", CacheOf(*keeper));
    inspector.Field("mementos", Joined(keeper->Mementos().Keys()));
  }
  return fields;
}

}  // namespace

StateSnapshot TakeSnapshot(const GameLogicLayer& logic, const ObjectWorld& world) {
  StateSnapshot snapshot;
  snapshot.objects[StateSnapshot::kGame] = FieldsOfGame(logic, world);
  for (const ObjectRef& screen :
       {logic.CurrentScreen(), logic.ToolsScreen(), logic.CursorsScreen()}) {
    if (screen != nullptr) AddTree(snapshot, *screen, "");
  }
  return snapshot;
}

}  // namespace quendle
