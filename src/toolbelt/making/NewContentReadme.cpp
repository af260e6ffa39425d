#include "toolbelt/making/NewContentReadme.h"

namespace quendle {
namespace {

constexpr std::string_view kReadme = R"(# A smallest game

Made by `quendle new`. It runs as it is: an intro with a green button that leads to a hall, and a
brown door in the hall that leads back. Everything is text and bitmaps: change a file, start the
game, see the change.

## Try it

    wumbly --window --content . --user player    play it
    quendle verify .                             look for faults with nothing played
    quendle walk .                               go through all screens
    quendle tree . hall                          what a screen is made of
    quendle render . hall hall.png               its picture

## Lists that the game reads first (`Info/`)

| file | holds |
|---|---|
| `screens.txt` | the object file of each screen: `introscreen` is where the game begins, `tools` the tool bar, `cursors` what lies above all |
| `globalgameobjects.txt` | objects that many screens share. `handcursor` is the pointer |
| `globalscriptstates.txt` | scripts that many objects share; none yet |
| `globalsoundstates.txt` | sounds that many objects share; none yet |

## Objects, a folder each

| folder | is |
|---|---|
| `introscreen`, `hall` | screens of type `hall`: a picture of 800 by 600 pixels and a list of children |
| `startbutton`, `backdoor` | buttons: they glow under the pointer and send a message when they are pressed |
| `handcursor` | the picture of the pointer |
| `tools`, `cursors` | layers over the screen, empty so far. `tools/tool.bmp` tells the colour that isn't drawn |

An object's files name each other, `NAME` being the folder's name. `<CurrentDirectory>` is the folder
of the file it stands in.

| file | lines |
|---|---|
| `NAME.txt` | type, name, 0, 0, 0, 0, the data file, the child list or `nothing`, directives |
| `NAMEdata.txt` | the files of states, animations, sounds and scripts, each or `nothing`; `unused` |
| `NAMEstates.txt` | six a state: name, sound, animation, script, and two that aren't used |
| `NAMEanimation.txt` | picture, frame file; then animations: name, milliseconds a step, `loop` or `nonloop`, a path or `nothing`, frames, `statedone` |
| `NAMEframes.txt` | nine a frame: name, region, where it is drawn (two), its rectangle in the picture (x, y, width, height), one that isn't used |
| `NAMEscripts.txt` | three a script: name, file, one that isn't used |
| `NAMEscript.txt` | what the object does: `mtp cs_hall` goes to the screen `hall` |
| `NAMEchildren.txt` | an object file a line, with its place |
| `NAME.bmp` | the picture. Red 200, green 200, blue 200 isn't drawn; `quendle picture` makes such bitmaps |

## The rest

`GlobalReferences/scripts` holds the treatments of the illnesses that the game knows, each in a form
for the normal and for the safe game (`NAMENormalMode.txt`, `NAMESafeMode.txt`). The game wants them to
be there; a patient that has the illness uses them. Here each only takes a click.

The tutorial "Your first room in ten minutes" (`docs/authors/tutorial.md`) begins with this tree.
)";

}  // namespace

std::string_view NewContentReadme() { return kReadme; }

}  // namespace quendle
