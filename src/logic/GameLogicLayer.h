#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/Words.h"
#include "logic/GameHost.h"
#include "media/MemoryBitmap.h"
#include "object/ObjectWorld.h"
#include "screens/ScreenKeeper.h"

namespace quendle {

class ActionText;
class InputRecorder;
class SoundState;
struct ScreenWalk;
enum class GameVerb;
enum class HelpPlace;

// Which one-time help has been given; the order is that of "HelpSys.txt".
struct HelpMemory {
  bool m_bHelpMedicalBook = false;
  bool m_bHelpPatientRoom = false;
  bool m_bHelpToolRoom = false;
  bool m_bHelpElevator = false;
  bool m_bHelpToolItem = false;

  // That of a screen.
  bool& GivenAt(HelpPlace place);
};

// The root of the running game: three live screens, the pointer, the music, the help memory, and
// the messages that no object takes. Every screen's parent. Held by a shared_ptr.
class GameLogicLayer : public MessageTarget, public std::enable_shared_from_this<GameLogicLayer> {
 public:
  static constexpr int kDrawInterval = 50;             // milliseconds
  static constexpr std::int16_t kMusicRestart = 3500;  // draws

  // Both must outlive the layer.
  GameLogicLayer(ObjectWorld& world, GameHost& host);
  ~GameLogicLayer() override;

  // Reads the screen table, makes the back buffer, loads help memory and saved game (by name,
  // beside the executable).
  void Initialize(ContextHandle window_context, const std::string& saved_game);
  // Turns on "introscreen", the music, "tools" and "cursors", and starts drawing. A screen that is
  // missing is fatal.
  void TurnOn();
  // Stops drawing, writes the saved game (unless it was reset) and the help memory.
  void TurnOff();
  // Lets go of everything; safe to call again.
  void Release();

  // A press or a move of the pointer, in pixels of the frame.
  void MapMouseClick(std::int16_t x, std::int16_t y);
  void MapMouseCoords(std::int16_t x, std::int16_t y);
  // Paints and presents one frame.
  void draw();
  // Paints a frame without counting or presenting it.
  void Compose();

  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override;

  // The verification walk whose steps follow; null for none. It may be looked at between steps.
  void SetScreenWalk(std::shared_ptr<ScreenWalk> walk) { walk_ = std::move(walk); }
  // One step of the long walk: on each screen five rounds of all words, each a click on the patient
  // with the tool of that name; then the next screen; at last the walk's timer is killed and the
  // game ends itself. A step without a walk is fatal.
  void EnumerateScreenVerification();
  // One step of the short walk, which only goes to each screen.
  void EnumerateScreen2Verification();

  // The focus is lost or found: the music pauses, and goes on where it was.
  void PauseSound();
  void PlaySound();
  // What the player does is told to this recorder until Release. What content sends itself is not.
  void SetTester(std::weak_ptr<InputRecorder> tester) { m_ptrTester = std::move(tester); }
  // Keeps what play has changed in "autosave.txt". False when none was written; a failure is
  // logged.
  bool Autosave();

  const std::string& ObjectType() const { return ObjectType_; }
  void SetObjectType(std::string type) { ObjectType_ = std::move(type); }

  // The state, for tools.
  const ObjectRef& ToolsScreen() const { return m_ptrToolsScreen; }
  const ObjectRef& CursorsScreen() const { return m_ptrCursorsScreen; }
  const ObjectRef& CurrentScreen() const { return m_ptrCurrentScreen; }
  const ObjectRef& PreviousScreen() const { return m_ptrPreviousScreen; }
  const std::string& CurrentCursor() const { return m_strCurrentCursor; }
  const std::string& PreviousCursor() const { return m_strPreviousCursor; }
  const std::string& ToolsState() const { return m_strToolsState; }
  bool DialogActive() const { return m_bDialogActive; }
  bool SkipNextClick() const { return m_bSkipNextClick; }
  bool GameReset() const { return m_bGameReset; }
  std::int16_t FrameCounter() const { return m_nFrameCounter; }
  const HelpMemory& Help() const { return help_; }
  const SoundState* Music() const { return m_ptrMusic.get(); }
  ScreenKeeper* Keeper() const { return m_ptrScreenKeeper.get(); }
  // The window path's back buffer; 0 before Initialize.
  ContextHandle BackContext() const { return back_buffer_ ? back_buffer_->Context() : 0; }

 private:
  struct Call;
  void CarryOut(GameVerb verb, Call& call);
  // What a verifying call gets; some verbs act all the same.
  void Answer(GameVerb verb, Call& call);

  void CursorChange(Call& call);
  void ToolAnswer(Call& call);
  void PassToScreen(Call& call);
  void BackFromSubgame();
  void SubgameEvent(Call& call);
  void ResetAllTools();
  void ResetTools();
  void BuyNow();
  void BackOneScreen();
  void ChangeScreen(Call& call);
  void RemoveCurrentTool(Call& call);
  void ToCurrentScreen(Call& call);
  void MouseClickMessage(Call& call);
  void MouseMoveMessage(Call& call);
  void HideObject(Call& call);
  void PlayMusic();
  void StopMusic();
  void ResetGame();
  void ExitOnDemand();
  void EndExitOnDemand();
  void ExitGame();

  void TellTester(const char* action, std::int16_t x, std::int16_t y);
  ObjectRef RequireScreen(const std::string& name);
  void SendToCurrent(const std::string& message);
  void SendToTools(const std::string& message);
  void SendToCursors(const std::string& message);
  void GiveTool(const std::string& name);
  // The patients get the action.
  void EndSubgame(const std::string& action);
  void EnterScreen(const std::string& name);
  void GiveOneTimeHelp(const std::string& name);
  // A click begins at that point; nothing for its end, and whether the screen was spared it.
  void TraceClick(std::optional<Point> begin, bool skipped);
  void UpdateUpperLayers(std::int16_t x, std::int16_t y, const ActionText& action);
  void StartMusic();
  void CountDraw();
  void ReadHelpMemory();
  void WriteHelpMemory() const;
  void KillDrawTimer();
  void TakeWalkStep(const std::function<void(ScreenWalk&)>& step);
  void VisitScreen(const ScreenWalk& walk);
  void KillWalkTimer(ScreenWalk& walk);

  ObjectWorld& world_;
  GameHost& host_;
  std::string ObjectType_ = "GameLogic";

  // Valid from Initialize to Release.
  std::unique_ptr<ScreenKeeper> m_ptrScreenKeeper;
  std::optional<MemoryBitmap> back_buffer_;

  // Change in play.
  ObjectRef m_ptrToolsScreen;
  ObjectRef m_ptrCursorsScreen;
  ObjectRef m_ptrCurrentScreen;
  ObjectRef m_ptrPreviousScreen;
  ObjectRef m_ptrCursorObject;
  ObjectRef m_ptrPersonCursor;
  std::unique_ptr<SoundState> m_ptrMusic;
  std::string m_strCurrentCursor;
  std::string m_strPreviousCursor;
  std::string m_strToolsState = "off";
  std::int32_t m_nDrawTimer = 0;
  std::int16_t m_nFrameCounter = 0;
  int draws_since_autosave_ = 0;
  bool m_bGameReset = false;
  bool m_bDialogActive = false;
  bool m_bSkipNextClick = false;
  HelpMemory help_;
  bool help_is_open_ = false;  // it couldn't be read: what stands there isn't overwritten
  std::weak_ptr<InputRecorder> m_ptrTester;
  bool music_paused_ = false;  // by a loss of focus, while it played
  double music_position_ = 0;  // seconds, where it was paused
  std::shared_ptr<ScreenWalk> walk_;
};

}  // namespace quendle
