#pragma once

#include <string>

#include "logic/GameHost.h"
#include "platform/Gdi.h"

namespace quendle {

class SettingsFiles;
struct Globals;

// What the family is told when the disk takes nothing.
inline constexpr const char* kNothingRemembered =
    "You can play, but nothing will be remembered for now: the disk is full, or it may not be "
    "written to.\nThe game keeps on trying.";

// Everything between the game window's load and the first screen. `files` marks the run as going
// on; an autosave of a run before is what is loaded.
void StartUpGame(Globals& globals, SettingsFiles& files, GameHost& host, int window,
                 ContextHandle context);

// The orderly end: marks the run as ended, saves, releases everything and gives the display back.
// A saved game that can't be written is fatal; the run is marked as ended in order by then, and
// the autosave stays for the next start.
void ShutDownGame(Globals& globals, SettingsFiles& files);

// After a fault: remembers it, if a start was under way, for the judgement on an autosave.
void NoteFailedStart(Globals& globals, const std::string& fault);

// Gives the display back without saving.
void ReleaseDisplay(Globals& globals);

}  // namespace quendle
