#include "shell/GameRun.h"

#include <memory>
#include <string>

#include "base/PlayerFiles.h"
#include "base/Settings.h"
#include "diagnostics/TestingObject.h"
#include "logic/GameLogicLayer.h"
#include "logic/IllnessFiles.h"
#include "media/Graphics.h"
#include "platform/Boxes.h"
#include "shell/Globals.h"
#include "shell/Registries.h"
#include "shell/SavedGames.h"
#include "shell/SettingsFiles.h"
#include "shell/TesterRun.h"

namespace quendle {
namespace {

constexpr const char* kLogCategory = "general";
constexpr std::int16_t kLogThreshold = 10;

void SelectIllness(const Globals& globals) {
  Settings& settings = globals.media.settings;
  const bool easy = EqualsNoCase(settings.DifficultyLevel, "Easy");
  const bool known_edition = settings.GameEdition == 1 || settings.GameEdition == 2;
  settings.FullIllnessScripts = !(easy && known_edition);
  SelectIllnessFiles(globals.media.content, settings.GameEdition, settings.FullIllnessScripts);
}

void UseLog(Globals& globals, EventSink* log) {
  globals.media.log = log;
  globals.objects.log = log;
  globals.media.content.SetLog(log);
}

// The log is used once it is whole: a fault on the way must not be told to half a log. A disk that
// has refused other files, too, is told of once; by itself, a log that can't be made is a fault.
void CreateEventLog(Globals& globals) {
  auto log = std::make_unique<TestingObject>(globals.media.ports.files,
                                             globals.media.settings.BaseDirectory, &globals.watch);
  log->SetMirror(globals.debug_window);
  if (!globals.forgiving || !globals.media.content.HasUnsaved()) {
    log->Initialize(kLogCategory, kEventLogFile, nullptr, kLogThreshold);
  } else if (!log->TryInitialize(kLogCategory, kEventLogFile, kLogThreshold)) {
    log->InitializeWithoutFile(kLogCategory, kLogThreshold);
  }
  globals.EventLog = std::move(log);
  UseLog(globals, globals.EventLog.get());
}

void TellFamily(Globals& globals, const std::string& sentence) {
  if (sentence.empty()) return;
  globals.media.ports.boxes.MessageBox(globals.media.settings.ProductName, sentence);
}

}  // namespace

void StartUpGame(Globals& globals, SettingsFiles& files, GameHost& host, int window,
                 ContextHandle context) {
  files.WriteGameRunning(true);
  globals.media.UseDirectX = true;
  globals.media.FullScreen = true;
  globals.objects.ReleasingGlobals = false;
  globals.objects.GameActive = true;
  SelectIllness(globals);
  CreateEventLog(globals);
  InitializeDirectDraw(globals.media, window);
  LoadGlobalSounds(globals);
  globals.GameLogic = std::make_shared<GameLogicLayer>(globals.objects, host);
  LoadGlobalScripts(globals);
  LoadGlobalObjects(globals, context);
  const SavedGames saves(globals.media.content, globals.forgiving);
  SavedGames::Choice choice = saves.Choose();
  globals.starting = choice;
  globals.GameLogic->Initialize(context, choice.file);
  if (globals.Tester != nullptr) globals.Tester->Start(globals.GameLogic, choice.file);
  globals.GameLogic->TurnOn();
  globals.starting.reset();
  saves.StartHasGoneWell(choice);
  // What only a kept save remembers must outlive the next crash, too.
  if (choice.file != kAutosaveFile && choice.file != kSavedGameFile) globals.GameLogic->Autosave();
  TellFamily(globals, choice.sentence);
  if (globals.media.content.HasUnsaved()) TellFamily(globals, kNothingRemembered);
}

void ShutDownGame(Globals& globals, SettingsFiles& files) {
  files.WriteGameRunning(false);
  if (globals.GameLogic != nullptr) {
    const bool saved = globals.GameLogic->Keeper() != nullptr && !globals.GameLogic->GameReset();
    globals.GameLogic->TurnOff();
    const SavedGames saves(globals.media.content, globals.forgiving);
    if (saved) saves.KeepGood(kSavedGameFile);
    globals.GameLogic->Release();
    globals.GameLogic.reset();
  }
  globals.objects.ReleasingGlobals = true;
  for (std::size_t i = 1; i <= globals.objects.GlobalObjects.Count(); ++i) {
    ObjectRef object = globals.objects.GlobalObjects.Item(i);
    object->Release(true);
  }
  globals.objects.ReleasingGlobals = false;
  globals.objects.DropGlobalObjects();
  globals.media.GlobalSounds.Clear();
  globals.scripts.GlobalScripts.Clear();
  globals.media.PictureRegistry.Clear();
  globals.objects.TimedObjects.Clear();
  UseLog(globals, nullptr);
  globals.EventLog.reset();
  ReleaseDisplay(globals);
}

void NoteFailedStart(Globals& globals, const std::string& fault) {
  if (!globals.starting) return;
  const SavedGames saves(globals.media.content, globals.forgiving);
  saves.StartHasFailed(*globals.starting, fault);
}

void ReleaseDisplay(Globals& globals) {
  if (globals.media.UseDirectX) {
    ReleaseDirectDraw(globals.media);
  } else {
    RestoreDisplaySettings(globals.media);
  }
}

}  // namespace quendle
