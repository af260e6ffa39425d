// The smallest whole game: an intro, two halls, rooms, tools, cursors and a doctor, as text.
#pragma once

#include <string>
#include <vector>

#include "backends/files/MemoryFileSystem.h"
#include "logic/IllnessFiles.h"
#include "support/ObjectText.h"

namespace quendle {

// Names of the tools beside the hand, the medical book and the bandaid.
inline std::vector<std::string> SpareTools() {
  std::vector<std::string> names;
  for (char letter = 'a'; letter <= 'l'; ++letter)
    names.push_back(std::string(1, letter) + "spare");
  return names;
}

// A button of 50 by 50 pixels that carries out statements when it is clicked with the hand.
inline ObjectText ClickButton(const std::string& name, const std::string& statements) {
  return {.type = "button",
          .name = name,
          .width = 50,
          .height = 50,
          .states = {{.name = "default", .script = "click"}, {.name = "better1"}},
          .scripts = {{"click", OnClick(statements)}}};
}

// Adds an object, and its line to a list of "\Info\".
inline void PutListed(MemoryFileSystem& files, const char* list, const ObjectText& object) {
  PutObject(files, object);
  const std::string path = std::string("\\Info\\") + list;
  files.Put(path, files.Get(path).value_or("") + ObjectPath(object.name) + "\n");
}

inline void PutScreen(MemoryFileSystem& files, const ObjectText& object) {
  PutListed(files, "screens.txt", object);
}

inline void PutGlobal(MemoryFileSystem& files, const ObjectText& object) {
  PutListed(files, "globalgameobjects.txt", object);
}

inline void PutGlobals(MemoryFileSystem& files) {
  ObjectText doctor{.type = "doctor", .name = "doctor"};
  for (const char* state : {"helpmedicalbook", "helppatientroom", "helptoolroom", "helpelevator",
                            "helptoolitem", "alreadyhaveone", "toomany", "tryagain", "startover"}) {
    doctor.states.push_back({.name = state});
  }
  PutGlobal(files, doctor);
  for (const char* cursor : {"handcursor", "bandaidcursor", "personcursor"}) {
    PutGlobal(files, {.type = "button", .name = cursor, .width = 32, .height = 32});
  }
  std::vector<std::string> tools = {"hand", "medicalbook", "bandaid"};
  for (const std::string& name : SpareTools()) tools.push_back(name);
  for (const std::string& tool : tools) {
    PutGlobal(files, {.type = "tool",
                      .name = tool + "tool",
                      .width = 80,
                      .height = 90,
                      .states = {{.name = "default", .script = "pick"}},
                      .scripts = {{"pick", OnClick("mtp cursor_" + tool + "\n")}}});
  }
}

inline void PutRooms(MemoryFileSystem& files) {
  PutObject(files, ClickButton("start", "mtp cs_floor1hall1\n"));
  PutScreen(files, {.type = "hall",
                    .name = "introscreen",
                    .children = {ObjectPath("start") + " xpos_100 ypos_100"}});
  PutObject(files, ClickButton("dogdoor", "mtp cs_dogroom\n"));
  PutObject(files, ClickButton("tooldoor", "mtp cs_emptyroom1\n"));
  PutScreen(files,
            {.type = "hall",
             .name = "floor1hall1",
             .children = {"GlobalObject_doctor", ObjectPath("dogdoor") + " xpos_100 ypos_100",
                          ObjectPath("tooldoor") + " xpos_200 ypos_100"}});
  PutScreen(files, {.type = "hall", .name = "floor1hall2", .children = {"GlobalObject_doctor"}});
  PutObject(files, {.type = "patient",
                    .name = "dog",
                    .width = 60,
                    .height = 60,
                    .states = {{.name = "default", .script = "ill"},
                               {.name = "won", .script = "ill"},
                               {.name = "lost", .script = "ill"}},
                    .scripts = {{"ill",
                                 "if action = gamewon\nchange won\nelseif action = gamelost\n"
                                 "change lost\nelseif action = *bandaidmouseclick\n"
                                 "mtp subgame_maze\nendif\n"}}});
  PutScreen(files, {.type = "hall",
                    .name = "dogroom",
                    .children = {"GlobalObject_doctor", ObjectPath("dog") + " xpos_300 ypos_300"}});
  ObjectText bandaid = ClickButton("bandaid", "mtp tool_bandaid\n");
  bandaid.scripts.push_back({"toolwon", "mtp toscreen_tools_addglobalobj_bandaidtool\n"});
  PutObject(files, bandaid);
  PutScreen(files,
            {.type = "hall",
             .name = "emptyroom1",
             .children = {"GlobalObject_doctor", ObjectPath("bandaid") + " xpos_300 ypos_300"}});
  for (const char* name : {"emptygeneralroom", "elevator", "emptyelevator", "credits"}) {
    PutScreen(files, {.type = "hall", .name = name, .children = {"GlobalObject_doctor"}});
  }
  PutScreen(files, {.type = "subgame", .name = "maze"});
  PutScreen(files, {.type = "subgame", .name = "mazeroom"});
  PutScreen(files, {.type = "hall", .name = "tutorial1"});
}

inline void PutFixtures(MemoryFileSystem& files) {
  PutObject(files, ClickButton("leftarrow", "mtp toscreen_tools_dectoolcounter\n"));
  PutObject(files, ClickButton("rightarrow", "mtp toscreen_tools_inctoolcounter\n"));
  PutScreen(files, {.type = "overlay",
                    .name = "tools",
                    .children = {"GlobalObject_handtool", ObjectPath("leftarrow"),
                                 ObjectPath("rightarrow"), "GlobalObject_medicalbooktool"}});
  ObjectText exit_button = ClickButton("exitbutton", "mtp exitgame\n");
  PutObject(files, exit_button);
  PutObject(files,
            {.type = "dialog",
             .name = "exitdialog",
             .width = 200,
             .height = 100,
             .states = {{.name = "default", .script = "answer"}},
             .scripts = {{"answer", OnClick("mtp hidetype_dialog\nmtp endexitondemand\n")}}});
  PutScreen(files, {.type = "overlay",
                    .name = "cursors",
                    .children = {ObjectPath("exitdialog") + " visible_off xpos_300 ypos_200",
                                 ObjectPath("exitbutton") + " visible_off xpos_600 ypos_10"}});
}

// Everything that a start needs.
inline void PutSmallClinic(MemoryFileSystem& files) {
  files.Put("\\Info\\globalsoundstates.txt", "");
  files.Put("\\Info\\globalscriptstates.txt", "");
  files.Put("\\info\\doodle.wma", "music");
  files.Put("\\info\\tools\\tool.bmp", Filled(1, 1, 'k'));
  PutGlobals(files);
  PutRooms(files);
  PutFixtures(files);
  for (std::int16_t edition : {1, 2}) {
    for (std::string_view name : IllnessNames(edition)) {
      const std::string stem = "\\Info\\GlobalReferences\\scripts\\" + std::string(name);
      files.Put(stem + "SafeMode.txt", "begin\nchange safe\nend\n");
      files.Put(stem + "NormalMode.txt", "begin\nchange normal\nend\n");
    }
  }
}

}  // namespace quendle
