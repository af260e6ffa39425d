// The messages that no object takes: the rules of the game. The order of the rows, and whether a
// row compares the verb or looks for its word anywhere in the message, is part of the format.

#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/PlayerFiles.h"
#include "base/ProcessEnds.h"
#include "base/SF_Strings.h"
#include "base/Settings.h"
#include "base/Watch.h"
#include "logic/GameLogicLayer.h"
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

struct GameLogicLayer::Row {
  enum class Test { kVerb, kAnywhere };
  // What a verifying call gets: a fixed true, an answer about word 2, or the row itself.
  enum class Verify { kTrue, kCursor, kScreen, kActs };
  Test test;
  std::string_view word;
  void (GameLogicLayer::*handle)(Call&);
  Verify verify;

  bool Takes(const Call& call) const {
    return test == Test::kVerb ? EqualsNoCase(call.words[1], word)
                               : ContainsNoCase(call.message, word);
  }
};

const std::vector<GameLogicLayer::Row>& GameLogicLayer::MessageTable() {
  using enum Row::Test;
  using enum Row::Verify;
  using Layer = GameLogicLayer;
  static const std::vector<Row> kRows = {
      {kVerb, "cursor", &Layer::CursorChange, kCursor},
      {kVerb, "tool", &Layer::ToolAnswer, kTrue},
      {kVerb, "toscreen", &Layer::PassToScreen, kScreen},
      {kAnywhere, "subgamedone", &Layer::BackFromSubgame, kActs},
      {kVerb, "subgame", &Layer::SubgameEvent, kScreen},
      {kAnywhere, "resetalltools", &Layer::ResetAllTools, kTrue},
      {kAnywhere, "resettools", &Layer::ResetTools, kTrue},
      {kAnywhere, "buynow", &Layer::BuyNow, kTrue},
      {kAnywhere, "screenprevious", &Layer::BackOneScreen, kTrue},
      {kVerb, "cs", &Layer::ChangeScreen, kScreen},
      {kVerb, "removeobj", &Layer::RemoveCurrentTool, kTrue},
      {kVerb, "toobj", &Layer::ToCurrentScreen, kActs},
      {kVerb, "mouseclick", &Layer::MouseClickMessage, kActs},
      {kVerb, "mousemove", &Layer::MouseMoveMessage, kActs},
      {kVerb, "hideobj", &Layer::HideObject, kActs},
      {kVerb, "playmusic", &Layer::PlayMusic, kTrue},
      {kVerb, "stopmusic", &Layer::StopMusic, kTrue},
      {kVerb, "resetgame", &Layer::ResetGame, kTrue},
      {kVerb, "exitondemand", &Layer::ExitOnDemand, kTrue},
      {kVerb, "endexitondemand", &Layer::EndExitOnDemand, kTrue},
      {kVerb, "exitgame", &Layer::ExitGame, kTrue},
  };
  return kRows;
}

void GameLogicLayer::HandleMessage(const std::string& message, GameObjectInterface* sender,
                                   bool verifying, bool& result) {
  DepthGuard guard(world_.watch.depth, Work::kMessage, message);
  if (world_.watch.tracer != nullptr) {
    world_.watch.Trace(TraceKind::kMessage, ObjectType_,
                       sender != nullptr ? sender->ObjectName() : "", message, verifying);
  }
  const Words words(message, '_');
  Call call{message, words, sender, verifying, result};
  for (const Row& row : MessageTable()) {
    if (!row.Takes(call)) continue;
    if (verifying && row.verify != Row::Verify::kActs) {
      result = VerifyRow(row, call);
    } else {
      (this->*row.handle)(call);
    }
    return;
  }
  if (verifying) result = false;
}

bool GameLogicLayer::VerifyRow(const Row& row, const Call& call) const {
  switch (row.verify) {
    case Row::Verify::kCursor:
      return world_.FindGlobalObject(call.words[2] + "cursor") != nullptr;
    case Row::Verify::kScreen:
      return m_ptrScreenKeeper->DoesScreenExist(call.words[2]);
    case Row::Verify::kTrue:
    case Row::Verify::kActs:
      return true;
  }
  return true;
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

void GameLogicLayer::CursorChange(Call& call) {
  m_strPreviousCursor = std::exchange(m_strCurrentCursor, call.words[2]);
  if (ObjectRef old = m_ptrCursorObject) {
    old->TurnOff();
    if (m_ptrCursorsScreen != nullptr) {
      ObjectRef(m_ptrCursorsScreen)->RemoveChild(old->ObjectName());
    }
  }
  m_ptrCursorObject = world_.FindGlobalObject(m_strCurrentCursor + "cursor");
  // Without such an object there is no pointer until the next change.
  if (ObjectRef cursor = m_ptrCursorObject) {
    if (m_ptrCursorsScreen != nullptr) ObjectRef(m_ptrCursorsScreen)->AddChildObject(cursor);
    cursor->TurnOn();
  }
  m_bSkipNextClick = true;
}

void GameLogicLayer::ToolAnswer(Call& call) {
  const Words& words = call.words;
  if (words.Count() > 3) return;
  const std::string& answer = words[2];
  if (EqualsNoCase(answer, "yes")) {
    const std::string& name = words[3];
    SendToCurrent("toobj_" + name + "_runscript_toolwon");
    if (!help_.m_bHelpToolItem && !EqualsNoCase(name, "medicalbook")) {
      SendToCurrent("toobj_doctor_runstate_helptoolitem");
      help_.m_bHelpToolItem = true;
    }
  } else if (EqualsNoCase(answer, "alreadyhavetool")) {
    SendToCurrent("toobj_doctor_runstate_alreadyhaveone");
  } else if (EqualsNoCase(answer, "toomany")) {
    SendToCurrent("toobj_doctor_runstate_toomany");
  } else {
    SendToTools("Addchild?_" + answer);
  }
}

void GameLogicLayer::PassToScreen(Call& call) {
  const std::string& where = call.words[2];
  const std::string tail = call.words.Tail(3);
  if (EqualsNoCase(where, "tools")) {
    SendToTools(tail);
  } else if (EqualsNoCase(where, "cursors")) {
    ObjectRef cursors = m_ptrCursorsScreen;
    if (cursors == nullptr) throw FatalError("\"" + tail + "\" finds no cursors screen");
    cursors->Send(tail);
  } else if (EqualsNoCase(where, "currentscreen")) {
    SendToCurrent(tail);
  } else {
    // Held here: a tutorial or subgame that is built for this message has no other owner.
    ObjectRef screen = RequireScreen(where);
    screen->Send(tail);
    m_ptrScreenKeeper->SaveScreen(screen);
  }
}

void GameLogicLayer::BackFromSubgame(Call&) {
  if (m_ptrPreviousScreen == nullptr) {
    throw FatalError("\"subgamedone\" finds no previous screen to go back to");
  }
  Send("cs_" + m_ptrPreviousScreen->ObjectName());
  Send("cursor_" + m_strPreviousCursor);
}

void GameLogicLayer::SubgameEvent(Call& call) {
  const std::string& event = call.words[2];
  if (EqualsNoCase(event, "lost")) {
    EndSubgame("totype_patient_useraction_gamelost");
  } else if (EqualsNoCase(event, "won")) {
    EndSubgame("totype_patient_useraction_gamewon");
  } else {
    if (world_.media.settings.PersonalizeOn) Send("toscreen_cursors_hideobj_personcursor");
    Send("cs_" + event);
  }
}

void GameLogicLayer::EndSubgame(const char* patient_message) {
  if (world_.media.settings.PersonalizeOn) Send("toscreen_cursors_showobj_personcursor");
  Send("subgamedone");
  SendToCurrent(patient_message);
  // Undoes what the cursor change of "subgamedone" set.
  m_bSkipNextClick = false;
}

void GameLogicLayer::ResetAllTools(Call&) {
  SendToTools("removeallchildren");
  Send("cursor_hand");
}

void GameLogicLayer::ResetTools(Call&) {
  SendToTools("removechildren");
  Send("cursor_hand");
}

void GameLogicLayer::BuyNow(Call&) {
  host_.OpenProductPage();
  host_.Deactivate();
}

void GameLogicLayer::BackOneScreen(Call&) {
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
  if (ContainsNoCase(name, "hall") || ContainsNoCase(name, "room")) {
    m_strToolsState = "on";
    if (m_ptrToolsScreen != nullptr) ObjectRef(m_ptrToolsScreen)->TurnOn();
  } else {
    m_strToolsState = "off";
    Send("cursor_hand");
  }
  GiveOneTimeHelp(name);
}

void GameLogicLayer::GiveOneTimeHelp(const std::string& name) {
  auto holds = [&name](std::string_view word) { return ContainsNoCase(name, word); };
  const bool patient_room =
      !holds("empty") && !holds("hall") && !holds("elevator") && !holds("screen");
  const bool tool_room = holds("empty") && !holds("general");
  struct Help {
    bool& given;
    bool applies;
    const char* message;
  };
  for (const Help& help : {
           Help{help_.m_bHelpMedicalBook, EqualsNoCase(name, "floor1hall1"),
                "toobj_doctor_runstate_helpmedicalbook"},
           Help{help_.m_bHelpPatientRoom, patient_room, "toobj_doctor_runstate_helppatientroom"},
           Help{help_.m_bHelpToolRoom, tool_room, "toobj_doctor_runstate_helptoolroom"},
           Help{help_.m_bHelpElevator, EqualsNoCase(name, "elevator"),
                "toobj_doctor_runstate_helpelevator"},
       }) {
    if (help.given || !help.applies) continue;
    SendToCurrent(help.message);
    help.given = true;
  }
}

void GameLogicLayer::RemoveCurrentTool(Call& call) {
  if (!ContainsNoCase(call.words[2], "currenttool")) return;
  if (ObjectRef tools = m_ptrToolsScreen) tools->RemoveChild(m_strCurrentCursor + "tool");
  m_strPreviousCursor.clear();
  m_strCurrentCursor = "hand";
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

void GameLogicLayer::PlayMusic(Call&) {
  music_paused_ = false;
  if (m_ptrMusic != nullptr) m_ptrMusic->PlaySound();
}

void GameLogicLayer::StopMusic(Call&) {
  music_paused_ = false;
  if (m_ptrMusic != nullptr) m_ptrMusic->StopSound();
}

void GameLogicLayer::ResetGame(Call&) {
  DeleteSavedGame(world_.media.content);
  m_bGameReset = true;
}

void GameLogicLayer::ExitOnDemand(Call&) {
  m_bDialogActive = true;
  if (ObjectRef cursors = m_ptrCursorsScreen) cursors->Send("showtype_dialog");
}

void GameLogicLayer::EndExitOnDemand(Call&) { m_bDialogActive = false; }

void GameLogicLayer::ExitGame(Call&) {
  if (m_ptrMusic != nullptr) m_ptrMusic->StopSound();
  throw ProcessEnds{true};
}

}  // namespace quendle
