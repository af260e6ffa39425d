// The checks of `quendle verify`, each group in a source of its own.
#pragma once

#include "toolbelt/verify/ContentFlow.h"
#include "toolbelt/verify/ContentModel.h"
#include "toolbelt/verify/FileGate.h"

namespace quendle {

class Progress;

// What checks look at. All outlive the checks.
struct CheckContext {
  const ContentModel& model;
  const ContentFlow& flow;
  FileGate& gate;
  Findings& findings;
  Progress& progress;

  void Tell(Check check, const ModelObject& object, const FilePlace& place,
            std::string text) const {
    findings.Add(check, ModelPath(object), place, std::move(text));
  }
};

// Sounds, animations and scripts that states name; frames that animations name.
void CheckStates(const CheckContext& context);
// Numbers of frames, placements, paths and regions.
void CheckFrames(const CheckContext& context);
// Where child lists put objects, and what they hold.
void CheckObjects(const CheckContext& context);
// How deep and how many objects stand inside one another.
void CheckTrees(const CheckContext& context);
// Pictures as they are on the disk, and the rectangles cut out of them.
void CheckPictures(const CheckContext& context);
// Sound files, decoded.
void CheckSounds(const CheckContext& context);
// States that speak and what goes on moving meanwhile.
void CheckSpeech(const CheckContext& context);
// Block words that are hit by accident, lines that do nothing.
void CheckScripts(const CheckContext& context);
// Conditions and their patterns.
void CheckPatterns(const CheckContext& context);
// What statements and messages lead to.
void CheckMessages(const CheckContext& context);
// Names of everything.
void CheckNames(const CheckContext& context);
// Screens: their names, and whether play comes there.
void CheckScreens(const CheckContext& context);
// Patients, the doctor, the surgery machine.
void CheckPatients(const CheckContext& context);
// Files that nothing names, and files that differ only in case.
void CheckFiles(const CheckContext& context);

// True for the word "nothing", case ignored.
bool SaysNothing(const std::string& name);

}  // namespace quendle
