// A small clean content tree for the tests of `quendle verify`, in which faults are planted: a dog
// that is treated with soap, a doctor who speaks, a board of tiles.
#pragma once

#include <algorithm>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

#include "backends/files/MemoryFileSystem.h"
#include "backends/raster/BitmapWriter.h"
#include "support/WaveFiles.h"
#include "toolbelt/Progress.h"
#include "toolbelt/making/SmallestContent.h"
#include "toolbelt/verify/Report.h"
#include "toolbelt/verify/SideList.h"
#include "toolbelt/verify/VerifyContent.h"

namespace quendle {

class VerifyClinic {
 public:
  VerifyClinic() {
    for (const ContentPiece& piece : SmallestContent()) files_[piece.path] = piece.bytes;
    // One picture for all screens is quick to look at.
    files_["\\Info\\room.bmp"] = Bitmap(800, 600);
    for (const std::string screen : {"introscreen", "hall"}) {
      ShareRoom(screen);
    }
    MakeRooms();
    MakeDog();
    MakeDoctor();
    MakeTools();
    MakeBoard();
  }

  // Replaces or adds a file.
  void Put(const std::string& path, const std::string& bytes) { files_[path] = bytes; }
  void Append(const std::string& path, const std::string& bytes) { Text(path) += bytes; }
  void Remove(const std::string& path) {
    if (files_.erase(path) == 0) throw std::logic_error("no file " + path);
  }
  std::vector<std::string> LinesOf(const std::string& path) {
    std::istringstream text(Text(path));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }
  // Replaces the first `from` in a file, which must be there.
  void Edit(const std::string& path, const std::string& from, const std::string& to) {
    std::string& text = Text(path);
    const std::size_t at = text.find(from);
    if (at == std::string::npos) throw std::logic_error(path + " doesn't hold " + from);
    text.replace(at, from.size(), to);
  }

  void CopyTo(MemoryFileSystem& files) const {
    for (const auto& [path, bytes] : files_) files.Put(path, bytes);
  }
  Findings Verify(const std::string& side_list = "") const {
    MemoryFileSystem files;
    CopyTo(files);
    VerifiedTree tree{files, "", Listing()};
    std::ostringstream unseen;
    Progress progress(unseen, false);
    const SideList list(side_list, "verify.txt");
    return VerifyContent(tree, side_list.empty() ? nullptr : &list, progress);
  }
  // The findings as `FILE:LINE CODE`, one a line, without those that are silenced.
  std::string Found(const std::string& side_list = "") const {
    std::string found;
    const Findings findings = Verify(side_list);
    for (const Finding& finding : findings.All()) {
      if (!finding.silenced.empty()) continue;
      found += finding.place.file + ":" + std::to_string(finding.place.line) + " " +
               std::string(RowOf(finding.check).code) + " " + finding.text + "\n";
    }
    return found;
  }
  ContentListing Listing() const {
    std::vector<std::string> paths;
    for (const auto& [path, bytes] : files_) paths.push_back(path);
    return ContentListing(paths);
  }

 private:
  std::string& Text(const std::string& path) {
    const auto found = files_.find(path);
    if (found == files_.end()) throw std::logic_error("no file " + path);
    return found->second;
  }

  static std::string Lines(std::initializer_list<std::string> lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
  }
  static std::string State(const std::string& name, const std::string& sound,
                           const std::string& animation, const std::string& script) {
    return Lines({name, sound, animation, script, "unused", "unused"});
  }
  static std::string Animation(const std::string& name, const std::string& loop,
                               const std::string& frames) {
    return Lines({name, "100", loop, "nothing", frames, "statedone"});
  }
  static std::string Frame(const std::string& name, const std::string& regions, int x) {
    return Lines({name, regions, "stable", "stable", std::to_string(x), "0", "64", "64", "unused"});
  }
  static std::string Bitmap(int width, int height) {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * height), 0xC8C8C8);
    std::fill(pixels.begin() + width, pixels.begin() + 2 * width - 1, 0x804020U);
    return WriteBitmapFile(width, height, pixels.data());
  }

  // An object in a folder of its own, whose files bear its name. "" for a part that it hasn't.
  struct Parts {
    std::string states = {};
    std::string animation = {};
    std::string frames = {};
    std::string sounds = {};
    std::string scripts = {};
    std::string children = {};
    std::string directives = "state_default";
    std::string sixth = {};  // of the data file
  };
  void Object(const std::string& type, const std::string& name, const Parts& parts) {
    const std::string stem = "\\Info\\" + name + "\\" + name;
    const auto own = [&](const std::string& text, const char* what) {
      if (text.empty()) return std::string("nothing\n");
      files_[stem + what] = text;
      return "<CurrentDirectory>\\" + name + what + "\n";
    };
    const std::string states = own(parts.states, "states.txt");
    const std::string animation = own(parts.animation, "animation.txt");
    const std::string sounds = own(parts.sounds, "sounds.txt");
    const std::string scripts = own(parts.scripts, "scripts.txt");
    own(parts.frames, "frames.txt");
    files_[stem + "data.txt"] = states + animation + sounds + scripts + "unused\n" + parts.sixth;
    files_[stem + ".txt"] = type + "\n" + name + "\n0\n0\n0\n0\n<CurrentDirectory>\\" + name +
                            "data.txt\n" + own(parts.children, "children.txt") + parts.directives +
                            "\n";
    if (!parts.animation.empty()) files_[stem + ".bmp"] = Bitmap(192, 64);
  }
  static std::string Head(const std::string& name) {
    return "<CurrentDirectory>\\" + name + ".bmp\n<CurrentDirectory>\\" + name + "frames.txt\n";
  }
  static std::string Script(const std::string& name) {
    return name + "\n<CurrentDirectory>\\" + name + "script.txt\nunused\n";
  }
  // A button that sends a message when it is pressed.
  void Button(const std::string& name, const std::string& message) {
    Object("button", name,
           {.states = State("default", "nothing", "rest", "press"),
            .animation = Head(name) + Animation("rest", "nonloop", "rest"),
            .frames = Frame("rest", "nothing", 0),
            .scripts = Script("press")});
    files_["\\Info\\" + name + "\\pressscript.txt"] =
        Lines({"begin", "if action = *mouseclick", "mtp " + message, "endif", "end"});
  }

  void ShareRoom(const std::string& screen) {
    const std::string stem = "\\Info\\" + screen + "\\" + screen;
    Edit(stem + "animation.txt", "<CurrentDirectory>\\" + screen + ".bmp", "\\Info\\room.bmp");
    Remove(stem + ".bmp");
  }
  // A screen that shows one picture of the whole frame.
  void Screen(const std::string& type, const std::string& name, const std::string& children) {
    Object(type, name,
           {.states = State("default", "nothing", "room", "nothing"),
            .animation = Head(name) + Animation("room", "nonloop", "room"),
            .frames = Lines({"room", "nothing", "0", "0", "0", "0", "800", "600", "unused"}),
            .children = children});
    ShareRoom(name);
  }

  void MakeRooms() {
    Append("\\Info\\screens.txt",
           "\\Info\\dogroom\\dogroom.txt\n\\Info\\emptyroom\\emptyroom.txt\n"
           "\\Info\\squarescreen\\squarescreen.txt\n");
    Append("\\Info\\hall\\hallchildren.txt",
           "\\Info\\dogdoor\\dogdoor.txt xpos_200 ypos_300\n"
           "\\Info\\shelfdoor\\shelfdoor.txt xpos_400 ypos_300\n");
    Button("dogdoor", "cs_dogroom");
    Button("shelfdoor", "cs_emptyroom");
    Button("halldoor", "cs_hall");
    Button("leave", "subgamedone");
    Screen("hall", "dogroom",
           "\\Info\\halldoor\\halldoor.txt xpos_20 ypos_300\n"
           "\\Info\\dog\\dog.txt xpos_200 ypos_100\n"
           "GlobalObject_doctor xpos_600\n");
    Screen("hall", "emptyroom",
           "\\Info\\halldoor\\halldoor.txt xpos_20 ypos_300\n"
           "\\Info\\soap\\soap.txt xpos_200 ypos_100\n"
           "GlobalObject_doctor xpos_600\n");
  }

  void MakeDog() {
    Object("patient", "dog",
           {.states = State("default", "nothing", "sit", "treat") +
                      State("default-owww", "nothing", "ow", "nothing") +
                      State("better1", "nothing", "sit", "well") +
                      State("better1-owww", "nothing", "ow", "nothing"),
            .animation = Head("dog") + Animation("sit", "loop", "sit blink") +
                         Animation("ow", "nonloop", "blink sit"),
            .frames = Frame("sit", "<CurrentDirectory>\\dogregions.txt", 0) +
                      Frame("blink", "nothing", 64),
            .scripts = Script("treat") + Script("well")});
    Put("\\Info\\dog\\dogregions.txt", Lines({"head", "0", "0", "30", "30"}));
    Put("\\Info\\dog\\treatscript.txt",
        Lines({"begin", "if action = *soapmouseclick", "change better1",
               "mtp toobj_doctor_runstate_tryagain", "elseif action = headhandmouseclick",
               "mtp subgame_squarescreen", "elseif action = *mouseclick", "runstate default-owww",
               "elseif action = gamewon", "change <incrementstate>", "endif", "end"}));
    Put("\\Info\\dog\\wellscript.txt",
        Lines({"begin", "if action = hop", "mtp cs_<objectname>room", "endif", "end"}));
  }

  void MakeDoctor() {
    Put("\\Info\\globalgameobjects.txt",
        Lines({"\\Info\\doctor\\doctor.txt", "\\Info\\handcursor\\handcursor.txt",
               "\\Info\\soaptool\\soaptool.txt", "\\Info\\soapcursor\\soapcursor.txt"}));
    std::string states = State("default", "nothing", "stand", "ask");
    for (const char* name : {"tryagain", "startover", "toomany", "alreadyhaveone", "helptoolitem",
                             "helppatientroom", "helptoolroom"}) {
      states += State(name, "voice", "talk", "nothing");
    }
    states += State("soapinfo", "voice", "talk", "nothing");
    Object("doctor", "doctor",
           {.states = states,
            .animation = Head("doctor") + Animation("stand", "nonloop", "stand") +
                         Animation("talk", "loop", "talk stand"),
            .frames = Frame("stand", "nothing", 0) + Frame("talk", "nothing", 64),
            .sounds = Lines({"voice", "<CurrentDirectory>\\voice.wav", "noloop", "unused",
                             "globalsound_click", "unused", "unused", "unused"}),
            .scripts = Script("ask")});
    Put("\\Info\\doctor\\askscript.txt",
        Lines({"begin", "if action = *mouseclick", "runsound click",
               "mtp toscreen_currentscreen_useraction_hop", "endif", "end"}));
    const std::string wave = MonoWave();
    Put("\\Info\\doctor\\voice.wma", wave);
    Put("\\Info\\globalsoundstates.txt",
        Lines({"click", "\\Info\\doctor\\click.wma", "noloop", "unused"}));
    Put("\\Info\\doctor\\click.wma", wave);
  }

  void MakeTools() {
    Object("button", "soap",
           {.states = State("default", "nothing", "rest", "offer") +
                      State("default-taken", "nothing", "taken", "nothing"),
            .animation = Head("soap") + Animation("rest", "nonloop", "rest") +
                         Animation("taken", "nonloop", "taken rest"),
            .frames = Frame("rest", "nothing", 0) + Frame("taken", "nothing", 64),
            .scripts = Script("offer") + "globalscript_toolwon\nunused\nunused\n"});
    Put("\\Info\\soap\\offerscript.txt",
        Lines({"begin", "if action = *mouseclick", "mtp tool_<objectname>", "endif", "end"}));
    Put("\\Info\\globalscriptstates.txt",
        Lines({"toolwon", "\\Info\\soap\\toolwonscript.txt", "unused"}));
    Put("\\Info\\soap\\toolwonscript.txt",
        Lines({"begin", "mtp toscreen_tools_addglobalobj_<objectname>tool",
               "runstate default-taken", "mtp toobj_doctor_runstate_<objectname>info", "end"}));
    Button("soaptool", "cursor_soap");
    Edit("\\Info\\soaptool\\soaptool.txt", "button", "tool");
    Object("button", "soapcursor",
           {.states = State("default", "nothing", "rest", "nothing"),
            .animation = Head("soapcursor") + Animation("rest", "nonloop", "rest"),
            .frames = Frame("rest", "nothing", 0)});
  }

  void MakeBoard() {
    Screen("subgame", "squarescreen",
           "\\Info\\board\\board.txt xpos_0 ypos_0\n"
           "\\Info\\leave\\leave.txt xpos_700 ypos_10\n"
           "\\Info\\Play1\\Play1.txt xpos_300 ypos_10\n");
    Button("Play1", "toobj_board_startgame");
    Object("playareasquare", "board",
           {.states = State("default", "nothing", "nothing", "nothing"),
            .sixth = "<CurrentDirectory>\\puzzle.txt\n"});
    Put("\\Info\\board\\puzzle.txt",
        Lines({"<CurrentDirectory>\\tiledata.txt", "180", "3", "64", "100", "100", "t1", "t1", "t1",
               "t1", "t1", "t1", "t1", "t1"}));
    Put("\\Info\\board\\tiledata.txt",
        Lines({"<CurrentDirectory>\\tilestates.txt", "nothing", "nothing", "nothing", "unused"}));
    Put("\\Info\\board\\tilestates.txt", State("default", "nothing", "nothing", "nothing") +
                                             State("t1", "nothing", "nothing", "nothing"));
  }

  static std::string MonoWave() {
    std::string bytes;
    for (const std::int16_t sample : Tone(0.2, 8000)) {
      AppendNumber(bytes, static_cast<std::uint16_t>(sample), 2);
    }
    return WaveOf(bytes, 8000, 1, 16);
  }

  std::map<std::string, std::string> files_;
};

}  // namespace quendle
