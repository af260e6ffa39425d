#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "toolbelt/drive/DriveSession.h"

namespace quendle {

// `quendle render`.
struct RenderSettings {
  std::string content;              // native path of the content tree
  std::string screen;               // a screen of the table
  std::string picture;              // the PNG file to write
  std::string folder;               // instead of both: every screen as SCREEN.png in this folder
  std::vector<std::string> states;  // OBJECT=STATE, set when the screen has been entered
  long after = 0;                   // milliseconds of the game between that and the picture
  bool pointer = true;              // the pointer is in the picture
  DriveOptions options;
};

// Plays to a screen of the content tree and writes its picture; nothing is written into the tree. A
// fault is told on `errors`. Gives the exit code: 0, or 3 when a game ended fatally; the other
// screens of a folder are drawn all the same.
// Throws CommandRefused or PictureError when there is no such screen, object or state, or a file
// can't be written.
int RenderScreens(const RenderSettings& settings, std::ostream& errors);

}  // namespace quendle
