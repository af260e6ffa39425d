#pragma once

#include <memory>
#include <optional>

#include "base/ContentFiles.h"
#include "base/Settings.h"
#include "base/Watch.h"
#include "media/MediaWorld.h"
#include "object/ObjectFactory.h"
#include "object/ObjectWorld.h"
#include "platform/Ports.h"
#include "script/ScriptWorld.h"
#include "shell/SavedGames.h"

namespace quendle {

class GameLogicLayer;
class TesterRun;
struct Debomb_Window;
class TestingObject;

// Everything that one game run shares, each world on the one below. Registries are created empty.
struct Globals {
  // All references must outlive the run.
  Globals(Settings& settings, Ports& ports, ContentFiles& content);
  ~Globals();
  Globals(const Globals&) = delete;
  Globals& operator=(const Globals&) = delete;

  Watch watch;
  MediaWorld media;
  ScriptWorld scripts;
  ObjectFactory factory;  // knows every type word
  ObjectWorld objects;
  std::unique_ptr<TestingObject> EventLog;
  Debomb_Window* debug_window = nullptr;       // shows the event log too, if there is one
  std::shared_ptr<GameLogicLayer> GameLogic;   // null before it is created and after its end
  std::unique_ptr<TesterRun> Tester;           // null unless the recorder is switched on
  bool forgiving = false;                      // as Application::SetForgiving
  std::optional<SavedGames::Choice> starting;  // of the start under way
};

}  // namespace quendle
