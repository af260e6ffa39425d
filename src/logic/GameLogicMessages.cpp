// The messages that no object takes: the rules of the game. GameVerbOf decides, here it is done.

#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/PlayerFiles.h"
#include "base/ProcessEnds.h"
#include "base/SF_Strings.h"
#include "base/Settings.h"
#include "base/Watch.h"
#include "logic/GameLogicLayer.h"
#include "logic/GameVerbs.h"
#include "logic/ScreenMeaning.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"

namespace quendle {

struct GameLogicLayer::Call {
  const std::string& message;
  const Words& words;
  GameObjectInterface* sender;
  bool verifying;
  bool& result;
};

void GameLogicLayer::HandleMessage(const std::string& message, GameObjectInterface* sender,
                                   bool verifying, bool& result) {
  DepthGuard guard(world_.watch.depth, Work::kMessage, message);
  if (world_.watch.tracer != nullptr) {
    world_.watch.Trace(TraceKind::kMessage, ObjectType_,
                       sender != nullptr ? sender->ObjectName() : "", message, verifying);
  }
  const Words words(message, '_');
  Call call{message, words, sender, verifying, result};
  const GameVerb verb = GameVerbOf(message, words[1]);
  if (verifying) {
    Answer(verb, call);
  } else {
    CarryOut(verb, call);
  }
}

void GameLogicLayer::Answer(GameVerb verb, Call& call) {
  switch (verb) {
    case GameVerb::kCursor:
      call.result = world_.FindGlobalObject(PointerNameOf(call.words[2])) != nullptr;
      return;
    case GameVerb::kToScreen:
    case GameVerb::kSubgame:
    case GameVerb::kChangeScreen:
      call.result = m_ptrScreenKeeper->DoesScreenExist(call.words[2]);
      return;
    case GameVerb::kSubgameDone:
    case GameVerb::kToObj:
    case GameVerb::kMouseClick:
    case GameVerb::kMouseMove:
    case GameVerb::kHideObj:
      CarryOut(verb, call);
      return;
    case GameVerb::kTool:
    case GameVerb::kResetAllTools:
    case GameVerb::kResetTools:
    case GameVerb::kBuyNow:
    case GameVerb::kScreenPrevious:
    case GameVerb::kRemoveObj:
    case GameVerb::kPlayMusic:
    case GameVerb::kStopMusic:
    case GameVerb::kResetGame:
    case GameVerb::kExitOnDemand:
    case GameVerb::kEndExitOnDemand:
    case GameVerb::kExitGame:
      call.result = true;
      return;
    case GameVerb::kNone:
      call.result = false;
  }
}

void GameLogicLayer::CarryOut(GameVerb verb, Call& call) {
  switch (verb) {
    case GameVerb::kCursor:
      return CursorChange(call);
    case GameVerb::kTool:
      return ToolAnswer(call);
    case GameVerb::kToScreen:
      return PassToScreen(call);
    case GameVerb::kSubgameDone:
      return BackFromSubgame();
    case GameVerb::kSubgame:
      return SubgameEvent(call);
    case GameVerb::kResetAllTools:
      return ResetAllTools();
    case GameVerb::kResetTools:
      return ResetTools();
    case GameVerb::kBuyNow:
      return BuyNow();
    case GameVerb::kScreenPrevious:
      return BackOneScreen();
    case GameVerb::kChangeScreen:
      return ChangeScreen(call);
    case GameVerb::kRemoveObj:
      return RemoveCurrentTool(call);
    case GameVerb::kToObj:
      return ToCurrentScreen(call);
    case GameVerb::kMouseClick:
      return MouseClickMessage(call);
    case GameVerb::kMouseMove:
      return MouseMoveMessage(call);
    case GameVerb::kHideObj:
      return HideObject(call);
    case GameVerb::kPlayMusic:
      return PlayMusic();
    case GameVerb::kStopMusic:
      return StopMusic();
    case GameVerb::kResetGame:
      return ResetGame();
    case GameVerb::kExitOnDemand:
      return ExitOnDemand();
    case GameVerb::kEndExitOnDemand:
      return EndExitOnDemand();
    case GameVerb::kExitGame:
      return ExitGame();
    case GameVerb::kNone:
      return;
  }
}

void GameLogicLayer::SendToCurrent(const std::string& message) {
  ObjectRef screen = m_ptrCurrentScreen;
  if (screen == nullptr) throw FatalError("\"" + message + "\" finds no current screen");
  screen->Send(message);
}

void GameLogicLayer::SendToTools(const std::string& message) {
  ObjectRef screen = m_ptrToolsScreen;
  if (screen == nullptr) throw FatalError("\"" + message + "\" finds no tools screen");
  screen->Send(message);
}

void GameLogicLayer::SendToCursors(const std::string& message) {
  ObjectRef screen = m_ptrCursorsScreen;
  if (screen == nullptr) throw FatalError("\"" + message + "\" finds no cursors screen");
  screen->Send(message);
}

void GameLogicLayer::CursorChange(Call& call) {
  m_strPreviousCursor = std::exchange(m_strCurrentCursor, call.words[2]);
  if (ObjectRef old = m_ptrCursorObject) {
    old->TurnOff();
    if (m_ptrCursorsScreen != nullptr) {
      ObjectRef(m_ptrCursorsScreen)->RemoveChild(old->ObjectName());
    }
  }
  m_ptrCursorObject = world_.FindGlobalObject(PointerNameOf(m_strCurrentCursor));
  // Without such an object there is no pointer until the next change.
  if (ObjectRef cursor = m_ptrCursorObject) {
    if (m_ptrCursorsScreen != nullptr) ObjectRef(m_ptrCursorsScreen)->AddChildObject(cursor);
    cursor->TurnOn();
  }
  m_bSkipNextClick = true;
}

void GameLogicLayer::ToolAnswer(Call& call) {
  const Words& words = call.words;
  if (words.Count() > kMostToolWords) return;
  switch (ToolWordOf(words[2])) {
    case ToolWord::kYes:
      return GiveTool(words[3]);
    case ToolWord::kAlreadyHave:
      return SendToCurrent(MessageTo(DoctorState::kAlreadyHaveOne));
    case ToolWord::kTooMany:
      return SendToCurrent(MessageTo(DoctorState::kTooMany));
    case ToolWord::kOffer:
      return SendToTools("Addchild?_" + words[2]);
  }
}

void GameLogicLayer::GiveTool(const std::string& name) {
  SendToCurrent(ToolWonMessage(name));
  if (help_.m_bHelpToolItem || EqualsNoCase(name, "medicalbook")) return;
  SendToCurrent(MessageTo(DoctorState::kHelpToolItem));
  help_.m_bHelpToolItem = true;
}

void GameLogicLayer::PassToScreen(Call& call) {
  const std::string& where = call.words[2];
  const std::string tail = call.words.Tail(3);
  switch (ScreenWordOf(where)) {
    case ScreenWord::kTools:
      return SendToTools(tail);
    case ScreenWord::kCursors:
      return SendToCursors(tail);
    case ScreenWord::kCurrent:
      return SendToCurrent(tail);
    case ScreenWord::kNamed: {
      // Held here: a tutorial or subgame that is built for this message has no other owner.
      const ObjectRef screen = RequireScreen(where);
      screen->Send(tail);
      m_ptrScreenKeeper->SaveScreen(screen);
    }
  }
}

void GameLogicLayer::BackFromSubgame() {
  if (m_ptrPreviousScreen == nullptr) {
    throw FatalError("\"subgamedone\" finds no previous screen to go back to");
  }
  Send("cs_" + m_ptrPreviousScreen->ObjectName());
  Send("cursor_" + m_strPreviousCursor);
}

void GameLogicLayer::SubgameEvent(Call& call) {
  const std::string& event = call.words[2];
  switch (SubgameWordOf(event)) {
    case SubgameWord::kLost:
      return EndSubgame(kGameLostAction);
    case SubgameWord::kWon:
      return EndSubgame(kGameWonAction);
    case SubgameWord::kBegins:
      if (world_.media.settings.PersonalizeOn) Send("toscreen_cursors_hideobj_personcursor");
      Send("cs_" + event);
  }
}

void GameLogicLayer::EndSubgame(const std::string& action) {
  if (world_.media.settings.PersonalizeOn) Send("toscreen_cursors_showobj_personcursor");
  Send("subgamedone");
  SendToCurrent("totype_patient_useraction_" + action);
  // Undoes what the cursor change of "subgamedone" set.
  m_bSkipNextClick = false;
}

void GameLogicLayer::ResetAllTools() {
  SendToTools("removeallchildren");
  Send("cursor_hand");
}

void GameLogicLayer::ResetTools() {
  SendToTools("removechildren");
  Send("cursor_hand");
}

void GameLogicLayer::BuyNow() {
  host_.OpenProductPage();
  host_.Deactivate();
}

void GameLogicLayer::BackOneScreen() {
  if (ObjectRef current = m_ptrCurrentScreen) {
    current->TurnOff();
    m_ptrScreenKeeper->SaveScreen(current);
    m_ptrScreenKeeper->FreeToReleaseScreen(current);
  }
  if (m_ptrPreviousScreen == nullptr) {
    throw FatalError("\"screenprevious\" finds no previous screen");
  }
  m_ptrScreenKeeper->LoadScreen(m_ptrPreviousScreen);
  m_ptrCurrentScreen = std::exchange(m_ptrPreviousScreen, nullptr);
  ObjectRef(m_ptrCurrentScreen)->TurnOn();
  Autosave();
}

void GameLogicLayer::ChangeScreen(Call& call) {
  EnterScreen(call.words[2]);
  Autosave();
}

void GameLogicLayer::EnterScreen(const std::string& name) {
  if (ObjectRef current = m_ptrCurrentScreen) {
    current->TurnOff();
    m_ptrScreenKeeper->SaveScreen(current);
  }
  m_ptrScreenKeeper->FreeToReleaseScreen(m_ptrPreviousScreen);
  m_ptrPreviousScreen = m_ptrCurrentScreen;
  m_ptrCurrentScreen = RequireScreen(name);
  world_.watch.Trace(TraceKind::kScreen, name, "", "enter");
  ObjectRef(m_ptrCurrentScreen)->TurnOn();
  if (ShowsToolBar(name)) {
    m_strToolsState = "on";
    if (m_ptrToolsScreen != nullptr) ObjectRef(m_ptrToolsScreen)->TurnOn();
  } else {
    m_strToolsState = "off";
    Send("cursor_hand");
  }
  GiveOneTimeHelp(name);
}

void GameLogicLayer::GiveOneTimeHelp(const std::string& name) {
  const std::optional<HelpPlace> place = HelpPlaceOf(name);
  if (!place) return;
  bool& given = help_.GivenAt(*place);
  if (given) return;
  SendToCurrent(MessageTo(HelpAt(*place)));
  given = true;
}

void GameLogicLayer::RemoveCurrentTool(Call& call) {
  if (!NamesCurrentTool(call.words[2])) return;
  if (ObjectRef tools = m_ptrToolsScreen) tools->RemoveChild(ToolNameOf(m_strCurrentCursor));
  m_strPreviousCursor.clear();
  m_strCurrentCursor = kBareHand;
  Send("cursor_hand");
}

void GameLogicLayer::ToCurrentScreen(Call& call) {
  if (ObjectRef screen = m_ptrCurrentScreen) {
    screen->HandleMessage(call.message, nullptr, call.verifying, call.result);
  }
  if (call.verifying) call.result = true;
}

void GameLogicLayer::MouseClickMessage(Call& call) {
  MapMouseClick(Int16FromText(call.words[2], "x of a click"),
                Int16FromText(call.words[3], "y of a click"));
}

void GameLogicLayer::MouseMoveMessage(Call& call) {
  MapMouseCoords(Int16FromText(call.words[2], "x of a move"),
                 Int16FromText(call.words[3], "y of a move"));
}

void GameLogicLayer::HideObject(Call& call) {
  ObjectRef screen = m_ptrCurrentScreen;
  // A hide that climbed from the current screen doesn't come back to it.
  if (screen != nullptr && call.sender != nullptr &&
      !EqualsNoCase(call.sender->ObjectName(), screen->ObjectName())) {
    screen->HandleMessage(call.message, nullptr, call.verifying, call.result);
  }
  if (call.verifying) call.result = true;
}

void GameLogicLayer::PlayMusic() {
  music_paused_ = false;
  if (m_ptrMusic != nullptr) m_ptrMusic->PlaySound();
}

void GameLogicLayer::StopMusic() {
  music_paused_ = false;
  if (m_ptrMusic != nullptr) m_ptrMusic->StopSound();
}

void GameLogicLayer::ResetGame() {
  DeleteSavedGame(world_.media.content);
  m_bGameReset = true;
}

void GameLogicLayer::ExitOnDemand() {
  m_bDialogActive = true;
  if (ObjectRef cursors = m_ptrCursorsScreen) cursors->Send("showtype_dialog");
}

void GameLogicLayer::EndExitOnDemand() { m_bDialogActive = false; }

void GameLogicLayer::ExitGame() {
  if (m_ptrMusic != nullptr) m_ptrMusic->StopSound();
  throw ProcessEnds{true};
}

}  // namespace quendle
