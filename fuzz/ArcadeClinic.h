// Screens of the four arcade games for the small clinic.
#pragma once

#include <string>
#include <vector>

#include "backends/files/MemoryFileSystem.h"
#include "logic/SmallClinic.h"
#include "support/ObjectText.h"

namespace quendle {

// A screen "subgameNAME" with its play area and its buttons. `sixth_line` leads to the game's data.
inline void PutArcadeScreen(MemoryFileSystem& files, const std::string& name,
                            const std::string& sixth_line) {
  const std::string area = name + "area";
  PutObject(files, {.type = "playarea" + name, .name = area});
  const std::string data = "\\Info\\" + area + "\\data.txt";
  files.Put(data, files.Get(data).value_or("") + sixth_line + "\n");
  const std::string play = name + "play";
  PutObject(files, ClickButton(play, "mtp toobj_" + area + "_startgame\n"));
  PutScreen(files, {.type = "subgame",
                    .name = "subgame" + name,
                    .children = {ObjectPath(area), ObjectPath(play) + " xpos_700 ypos_500"}});
}

// The games' files: one cell serves for all of them.
inline void PutArcadeScreens(MemoryFileSystem& files) {
  PutObject(files, {.type = "button",
                    .name = "cell",
                    .width = 60,
                    .height = 40,
                    .states = {{.name = "default"}, {.name = "bad"}},
                    .sounds = {"hit", "fire", "owww", "bounce"}});
  const std::string cell = "\\Info\\cell\\";
  const std::string data =
      cell + "states.txt\n" + cell + "animation.txt\n" + cell + "sounds.txt\nnothing\n0\n";
  for (const char* game : {"subgameblinker", "subgamebobbler"}) {
    for (const char* file :
         {"cell1", "cell2", "cell3", "cell4", "cell5", "cell6", "good", "ball", "paddle"}) {
      files.Put(std::string("\\info\\") + game + "\\" + file + "data.txt", data);
    }
  }
  files.Put("\\info\\cell.txt", data);
  files.Put("\\info\\cells.txt", "\\info\\cell.txt\n\\info\\cell.txt\n\\info\\cell.txt\n");
  files.Put("\\info\\header.txt", "game\n0\n0\n\\info\\cells.txt\n-\n-\n");
  files.Put("\\info\\shooterdata.txt", "100 40 200 40 300 40 * 150 90 250 90 *\n");
  files.Put("\\info\\board.txt",
            "\\info\\cell.txt\n5\n3\n60\n100\n100\ndefault\nbad\nc\nd\ne\nf\ng\nh\n");
  PutArcadeScreen(files, "square", "\\info\\board.txt");
  for (const char* name : {"shooter", "blinker", "bobbler"}) {
    PutArcadeScreen(files, name, "\\info\\header.txt");
  }
}

}  // namespace quendle
