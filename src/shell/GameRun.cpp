#include "shell/GameRun.h"

#include <memory>
#include <string>

#include "base/PlayerFiles.h"
#include "base/Settings.h"
#include "diagnostics/TestingObject.h"
#include "logic/GameLogicLayer.h"
#include "logic/IllnessFiles.h"
#include "media/Graphics.h"
#include "shell/AutosaveFiles.h"
#include "shell/Globals.h"
#include "shell/Registries.h"
#include "shell/SettingsFiles.h"
#include "shell/TesterRun.h"

namespace quendle {
namespace {

constexpr std::int16_t kLogThreshold = 10;

void SelectIllness(const Globals& globals) {
  Settings& settings = globals.media.settings;
  const bool easy = EqualsNoCase(settings.DifficultyLevel, "Easy");
  const bool known_edition = settings.GameEdition == 1 || settings.GameEdition == 2;
  settings.FullIllnessScripts = !(easy && known_edition);
  SelectIllnessFiles(globals.media.content, settings.GameEdition, settings.FullIllnessScripts);
}

void CreateEventLog(Globals& globals) {
  globals.EventLog = std::make_unique<TestingObject>(
      globals.media.ports.files, globals.media.settings.BaseDirectory, &globals.watch);
  globals.EventLog->SetMirror(globals.debug_window);
  globals.EventLog->Initialize("general", kEventLogFile, nullptr, kLogThreshold);
  globals.media.log = globals.EventLog.get();
  globals.objects.log = globals.EventLog.get();
}

}  // namespace

void StartUpGame(Globals& globals, SettingsFiles& files, GameHost& host, int window,
                 ContextHandle context) {
  // Asked before this run marks itself: afterwards the answer is gone.
  const bool ended_in_order = files.LastRunEndedInOrder();
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
  const AutosaveFiles autosave(globals.media.content);
  const std::string saved_game = autosave.ChooseSavedGame(ended_in_order);
  globals.GameLogic->Initialize(context, saved_game);
  if (globals.Tester != nullptr) globals.Tester->Start(globals.GameLogic, saved_game);
  globals.GameLogic->TurnOn();
  // The start went well: what it recovered must outlive the next crash, too.
  if (AutosaveFiles::IsSetAside(saved_game) && globals.GameLogic->Autosave()) {
    autosave.ForgetSetAside();
  }
}

void ShutDownGame(Globals& globals, SettingsFiles& files) {
  files.WriteGameRunning(false);
  if (globals.GameLogic != nullptr) {
    globals.GameLogic->TurnOff();
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
  globals.media.log = nullptr;
  globals.objects.log = nullptr;
  globals.EventLog.reset();
  ReleaseDisplay(globals);
}

void ReleaseDisplay(Globals& globals) {
  if (globals.media.UseDirectX) {
    ReleaseDirectDraw(globals.media);
  } else {
    RestoreDisplaySettings(globals.media);
  }
}

}  // namespace quendle
