#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/FatalError.h"
#include "base/Inspector.h"
#include "base/WorkDepth.h"
#include "object/AnimationState.h"
#include "object/GameObjectInterface.h"
#include "object/ObjState.h"
#include "object/ObjectWorld.h"
#include "object/Region.h"
#include "script/Program.h"

namespace quendle {

class ObjectPicture;
class ScriptState;
struct Directives;
struct SoundRecord;
enum class StatementVerb;

// Everything that is seen or clicked: states, animations, regions, sounds and scripts loaded from
// text files, and a place in the tree of objects. It exists only inside one of the specialised
// classes, which owns it; what must reach that class goes through SelfReference.
class GameObject final : public GameObjectInterface, public Inspectable, public WorkPlace {
 public:
  explicit GameObject(ObjectWorld& world);
  ~GameObject() override;
  GameObject(const GameObject&) = delete;
  GameObject& operator=(const GameObject&) = delete;

  DShowObj* GetDShowObj() override;
  ObjectList& Children() override { return Children_; }
  void SetChildren(ObjectList children) override;
  std::shared_ptr<Surface> DirectDrawingSurface() override;
  std::string CurrentState() override;
  std::shared_ptr<MessageTarget> Parent() override;
  void SetParent(std::weak_ptr<MessageTarget> parent) override;
  std::int32_t CurrentTextureYCoord() override;
  void SetCurrentTextureYCoord(std::int32_t y) override;
  std::int32_t CurrentTextureXCoord() override;
  void SetCurrentTextureXCoord(std::int32_t x) override;
  std::int32_t TimerID() override;
  void SetTimerID(std::int32_t id) override;
  ContextHandle DrawingSurface() override;
  void AddAnimationState(std::shared_ptr<AnimationState> state, std::string name) override;
  void SetDrawingSurface(ContextHandle context) override;
  BitmapHandle picture() override;
  ContextHandle pictureHandle() override;
  void SetpictureHandle(ContextHandle handle) override;
  void SetPictureName(std::string name) override;
  std::string PictureName() override;
  void SetObjectName(std::string name) override;
  const std::string& ObjectName() const override { return ObjectName_; }
  void SetObjectType(std::string type) override;
  const std::string& ObjectType() const override { return ObjectType_; }
  void SetVisible(bool visible) override;
  bool Visible() const override { return Visible_; }
  void SetObjectOn(bool on) override;
  bool ObjectOn() const override;
  void Setxpos(std::int16_t x) override;
  std::int16_t xpos() const override { return xpos_; }
  void Setypos(std::int16_t y) override;
  std::int16_t ypos() const override { return ypos_; }
  void Setheight(std::int16_t height) override;
  std::int16_t height() const override;
  std::int16_t width() const override;
  void Setwidth(std::int16_t width) override;
  bool AreWeOnTheObject(std::int16_t x, std::int16_t y) override;
  std::string ProcessState(const std::string& name) override;
  std::shared_ptr<ObjState> QueryObjState(const std::string& name) override;
  std::shared_ptr<SoundState> QuerySoundState(const std::string& name) override;
  std::shared_ptr<AnimationState> QueryAnimationState(const std::string& name) override;
  std::shared_ptr<AnimationFrame> QueryFrameState(const std::string& name) override;
  std::string PeekCurrentState(std::int16_t x, std::int16_t y, const std::string& action) override;
  void UpdateGameObject(std::int16_t x, std::int16_t y, const ActionText& action) override;
  void LoadObject(const LoadArguments& arguments) override;
  void Refresh(ContextHandle destination, int parent_x, int parent_y) override;
  void RefreshDirectX(Surface& destination, int parent_x, int parent_y) override;
  void TurnOn() override;
  void TurnOff() override;
  std::unique_ptr<BitmapObject> GetFrameAsObject(const std::string& name) override;
  void AddChildObject(ObjectRef child) override;
  void UpdateAnimationState() override;
  void NotifyChild(const std::string& message, const std::string& type) override;
  void NotifyParent(const std::string& message, bool verifying, bool& result) override;
  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override;
  void Interpret(const Statement& statement, bool verifying, bool& result) override;
  std::string LoadCurrentDirectory(const std::string& path) override;
  void Release(bool forced) override;
  void RemoveChild(const std::string& name) override;
  void LoadChildrenObjects(const std::string& path, ContextHandle context) override;
  void GetObjHeader(TextStream& stream) override;
  void CreateMemento(GameObjectMemento& memento) override;
  void LoadMemento(const GameObjectMemento& memento) override;
  void Verify() override;

  void Describe(Inspector& inspector) const override;
  std::string WorkPath() const override;

  // Guarded change of state that comes back: remembers the current state first.
  void RunState(const std::string& name);
  // Goes back to the state remembered last; a hurt patient follows the rule of failure.
  void PopStateHistory();
  // The current state's name without the first "-highlight", then without the first "highlight".
  std::string GetRootState();
  // Runs the named script with the text "nothing".
  void RunScript(const std::string& name);

  // Answers of the content check.
  void VerifyObject();
  bool VerifyState(const std::string& name);
  bool VerifySoundState(const std::string& name);
  bool VerifyAnimationState(const std::string& name);
  bool VerifyFrame(const std::string& name);
  void VerifyAllAnimationStates();
  void VerifyAllSoundStates();
  // False when the script is missing or a line of it could not be carried out.
  bool VerifyScript(const std::string& name);
  // A "default" or "better" state of a patient needs a twin "-owww" that doesn't loop and has no
  // script.
  bool VerifyOwwwPair(const std::string& name);
  bool StateExists(const std::string& name);
  // True if the state has NO script.
  bool StateHasScript(const std::string& name);
  // True if the state's animation does NOT loop.
  bool StateAnimationLoops(const std::string& name);
  bool VerifyInfoState(const std::string& name);

  // What was loaded and what runs, for tools.
  const KeyedList<std::shared_ptr<ObjState>>& States() const { return States_; }
  const KeyedList<std::shared_ptr<AnimationState>>& Animations() const { return Animations_; }
  const KeyedList<std::shared_ptr<SoundState>>& Sounds() const { return Sounds_; }
  const KeyedList<std::shared_ptr<ScriptState>>& Scripts() const { return Scripts_; }
  const KeyedList<FrameRef>& Frames() const { return Frames_; }
  const KeyedList<std::vector<Region>>& FrameRegions() const { return FrameRegions_; }
  const std::vector<FrameRef>& CurrentFrames() const { return CurrentFrames_; }
  const std::vector<std::string>& StateHistory() const { return StateHistory_; }
  const std::string& CurrentAnimationName() const { return CurrentAnimationName_; }
  const std::string& CurrentSoundName() const { return CurrentSoundName_; }
  const std::string& CurrentRegion() const { return CurrentRegion_; }
  const std::string& ObjDirectory() const { return ObjDirectory_; }
  // The script of the current state; null for none.
  const ScriptState* CurrentScript() const { return current_script_.get(); }
  // The region that an event at that point would find, or null. Changes nothing.
  const Region* RegionUnder(int x, int y) const;
  Watch& GetWatch() const { return world_.watch; }

  // True if an event at that point, relative to the parent, surely changes nothing: the object is
  // hidden, or it lies elsewhere, has no children, and its script is known to carry out nothing for
  // `elsewhere`, the text of such an event. A text of no table is never known.
  bool IsDeafTo(int x, int y, const ActionText& elsewhere) const {
    if (!Visible_) return true;
    const Heard* heard = FindHeard(elsewhere);
    return heard != nullptr && heard->first_act == Program::kNoAct && Children_.Empty() &&
           !InBox(x, y) && !(x == -1 && y == -1);
  }

 private:
  // An action text, and where the current script begins to act on it. At most events an object
  // gets the same text as before, usually that the pointer is somewhere else.
  struct Heard {
    const ActionText* action = nullptr;
    std::uint32_t first_act = Program::kNoAct;
  };
  const Heard* FindHeard(const ActionText& action) const {
    if (heard_[0].action == &action) return &heard_[0];
    return heard_[1].action == &action ? &heard_[1] : nullptr;
  }

  // One message that is being carried out.
  struct MessageCall;

  // Loading.
  void LoadObjectData(const std::string& data_file, ContextHandle context);
  void LoadStates(const std::string& path);
  void LoadAnimations(const std::string& path, ContextHandle context);
  void LoadFrames(const std::string& path);
  void LoadSounds(const std::string& path);
  void LoadSound(const SoundRecord& record);
  void LoadScriptStates(const std::string& path);
  void TakeSizeOfFirstFrame();
  ObjectRef ObtainChild(const std::string& word, ContextHandle context, const FilePlace& place);
  std::string FullPath(const std::string& resolved) const;
  void AttachChild(ObjectRef child);

  // States and sounds.
  const FilePlace& StatePlace() const;
  SoundState& SoundNamed(const std::string& name);
  void StartSound(const std::string& name);
  void RunSoundOfState(const std::string& name);
  void RunSoundStatement(const std::string& name);
  bool HurtPatientStartsOver();
  void ResetSurgeryMachine();
  void SetCurrentScript(std::shared_ptr<ScriptState> script);
  std::uint32_t FirstActFor(const ActionText& action);
  void RunStateScript(const ActionText& action);
  void Execute(const ScriptState& script, const ActionText& action);

  // Animation.
  void RunAnimation(const std::string& name);
  void StartAnimationTimer(const AnimationState& animation);
  void KillAnimationTimer();
  AnimationState& AnimationNamed(const std::string& name);
  void SetCurrentFrames(const std::vector<std::string>& names);
  void ShowFirstFrame(const AnimationFrame& frame);
  bool LastSoundIsSilent();

  // Hit test. The box is that of the first frame, its edges belong to it; y = -1 asks about the
  // horizontal only.
  bool InBox(int x, int y) const {
    const int dx = x - xpos_;
    const int dy = y - ypos_;
    return y == -1 ? dx >= 0 && dx < width_ : dx >= 0 && dy >= 0 && dx <= width_ && dy <= height_;
  }
  const AnimationFrame* HitFrame(int x, int y, int& offset_x, int& offset_y) const;
  const std::vector<Region>* RegionsAt(int x, int y, int& offset_x, int& offset_y) const;
  const std::string& GetRegionAtPoint(int x, int y);

  // Statements.
  std::string SubstituteTokensOf(const Statement& statement);
  void CarryOut(StatementVerb verb, const std::string& argument, bool verifying, bool& result);

  // Messages: a verb each.
  void ShowObj(MessageCall& call);
  void RunScriptVerb(MessageCall& call);
  void UserAction(MessageCall& call);
  void HideType(MessageCall& call);
  void HideObj(MessageCall& call);
  void AddGlobalObj(MessageCall& call);
  void ShowType(MessageCall& call);
  void ToType(MessageCall& call);
  void ToObj(MessageCall& call);
  void RunStateVerb(MessageCall& call);
  void ChangeState(MessageCall& call);
  void RemoveObj(MessageCall& call);
  void PassUp(MessageCall& call);
  using Property = const std::string& (GameObjectInterface::*)() const;
  bool SetVisibleWhere(Property property, const std::string& value, bool visible, bool verifying);
  bool DeliverWhere(Property property, MessageCall& call);
  void LogWarning(const char* warning, const std::string& message);

  ObjectWorld& world_;

  // Looked at on every event, and so side by side in memory.
  GameObjectInterface* SelfReference_ = nullptr;  // owns this object, or null before the load
  std::shared_ptr<ScriptState> current_script_;   // of the current state; null for "nothing"
  std::array<Heard, 2> heard_{};                  // by current_script_, the latest first
  std::unique_ptr<ObjectPicture> picture_;        // constant after the load, until Release
  std::vector<FrameRef> CurrentFrames_;
  std::int16_t xpos_ = 0;
  std::int16_t ypos_ = 0;
  std::int16_t height_ = -1;
  std::int16_t width_ = 0;
  bool Visible_ = true;
  bool ObjectOn_ = false;
  bool releasing_ = false;
  ObjectList Children_{"child"};
  std::weak_ptr<MessageTarget> Parent_;
  std::string ObjectName_;
  std::string CurrentRegion_;

  // Constant after the load, until Release.
  std::weak_ptr<GameObjectInterface> self_;  // SelfReference_, for those who keep it
  std::string ObjDirectory_;
  std::string depth_;
  std::string PictureName_;
  ContextHandle DrawingSurface_ = 0;
  KeyedList<std::shared_ptr<AnimationState>> Animations_{"animation"};
  KeyedList<std::shared_ptr<ObjState>> States_{"state"};
  KeyedList<std::shared_ptr<SoundState>> Sounds_{"sound state"};
  KeyedList<std::shared_ptr<ScriptState>> Scripts_{"script"};
  KeyedList<FrameRef> Frames_{"frame"};
  KeyedList<std::vector<Region>> FrameRegions_{"region list"};
  std::unique_ptr<DShowObj> player_;

  // Changes in play.
  std::string ObjectType_;
  std::shared_ptr<ObjState> m_ptrCurrObjState;
  std::vector<std::string> StateHistory_;

  // Changes while on.
  std::int32_t TimerID_ = 0;
  std::string CurrentAnimationName_;
  std::int32_t CurrentTextureXCoord_ = -1;
  std::int32_t CurrentTextureYCoord_ = 0;
  std::string previous_sound_name_ = "nothing";
  std::string CurrentSoundName_;
};

}  // namespace quendle
