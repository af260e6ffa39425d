#pragma once

#include "logic/GameHost.h"
#include "platform/Gdi.h"

namespace quendle {

class SettingsFiles;
struct Globals;

// Everything between the game window's load and the first screen. `files` marks the run as going
// on; a run that ended badly before gets its autosave back, once.
void StartUpGame(Globals& globals, SettingsFiles& files, GameHost& host, int window,
                 ContextHandle context);

// The orderly end: marks the run as ended, saves, releases everything and gives the display back.
// A file that can't be written is fatal; the run is marked as ended in order by then.
void ShutDownGame(Globals& globals, SettingsFiles& files);

// Gives the display back without saving.
void ReleaseDisplay(Globals& globals);

}  // namespace quendle
