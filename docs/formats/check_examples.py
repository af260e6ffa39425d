#!/usr/bin/env python3
"""Plays the examples of these pages, and breaks them as the pages say.

    check_examples.py QUENDLE CONTENT

QUENDLE is the tool belt, CONTENT the made demo content. Every block that follows a line naming a
file becomes that file in a folder that lies over the content. The pond is played; then each of
CASES changes one file, and the game must end with the message that the page quotes.
"""
import json
import pathlib
import re
import struct
import subprocess
import sys
import tempfile

PAGES = pathlib.Path(__file__).parent
POND = "\\Info\\Pond\\"
LINE, CUT, ADD, GONE = "line", "cut", "add", "gone"
ENTER = ["play", "send cs_pondroom"]
CLICK = ENTER + ["click 310 420"]
WINDOW = "window"

# Page, file, how it is changed, the message, and what is played if not ENTER.
CASES = [
    ("object-file.md", POND + "duck.txt", (LINE, 1, "buton"),
     '"buton" is no type word; did you mean "button"?'),
    ("object-file.md", POND + "duck.txt", (LINE, 3, "deep"), '"deep" is not a number (depth)'),
    ("object-file.md", POND + "duck.txt", (CUT, 8),
     "the file ends where the directive line should stand"),
    ("object-file.md", POND + "duck.txt", (LINE, 7, "<CurrentDirectory>\\duckdatta.txt"),
     "File …\\Info\\Pond\\duckdatta.txt not found"),
    ("object-file.md", POND + "duckstates.txt", (LINE, 1, "sleep"),
     'object "pondroom/duck" is turned on without a current state: it has no state "default" and '
     "no directive names another"),
    ("README.md", POND + "duck.txt", (GONE,), "File …\\Info\\Pond\\duck.txt not found"),
    ("README.md", POND + "duck.txt", (CUT, 6),
     "the file ends where the path of the data file should stand"),
    ("README.md", POND + "duckstates.txt", (LINE, 3, "flota"),
     'object "pondroom/duck" has no animation "flota"; did you mean "float"?'),
    ("data-file.md", POND + "duckdata.txt", (CUT, 4),
     "the file ends where line 5 of a data file should stand"),
    ("data-file.md", POND + "duckdata.txt", (LINE, 1, "<CurrentDirectory>\\duckstate.txt"),
     "File …\\Info\\Pond\\duckstate.txt not found"),
    ("data-file.md", POND + "duckdata.txt", (LINE, 1, "<CurentDirectory>\\duckstates.txt"),
     "File …<CurentDirectory>\\duckstates.txt not found"),
    ("child-list.md", POND + "pondroomchildren.txt", (ADD, ""),
     "a child list holds a blank line"),
    ("child-list.md", POND + "pondroomchildren.txt", (LINE, 1, "<CurrentDirectory>\\duk.txt"),
     "File …\\Info\\Pond\\duk.txt not found"),
    ("child-list.md", POND + "pondroomchildren.txt", (ADD, "<CurrentDirectory>\\duck.txt"),
     'there are two child entries named "duck"'),
    ("child-list.md", POND + "pondroomchildren.txt", (LINE, 1, "<CurrentDirectory>\\duck.txt xpos"),
     'the directive "xpos" needs a value behind an underscore'),
    ("child-list.md", POND + "pondroomchildren.txt", (LINE, 1, "<CurrentDirectory>\\duck.txt __"),
     'the directive "__" has no key'),
    ("child-list.md", POND + "pondroomchildren.txt",
     (LINE, 1, "<CurrentDirectory>\\duck.txt xpos_left"), '"left" is not a number (xpos)'),
    ("child-list.md", POND + "pondroomchildren.txt", (LINE, 2, "GlobalObject"),
     '"GlobalObject" names no global object; it has the form GlobalObject_name'),
    ("README.md", POND + "pondroomchildren.txt",
     (LINE, 1, "<CurrentDirectory>\\duck.txt xpos_99999"), "xpos is out of range for 16 bits"),
    ("state-file.md", POND + "duckstates.txt", (LINE, 13, "default"),
     'there are two state entries named "default"'),
    ("state-file.md", POND + "duckstates.txt", (CUT, 17),
     'the file ends where line 6 of state "swim" should stand'),
    ("state-file.md", POND + "duckstates.txt", (LINE, 2, "quak"),
     'object "pondroom/duck" has no sound "quak"; did you mean "quack"?'),
    ("state-file.md", POND + "duckstates.txt", (LINE, 3, "flota"),
     'object "pondroom/duck" has no animation "flota"; did you mean "float"?'),
    ("sound-file.md", POND + "ducksounds.txt", (CUT, 3),
     'the file ends where line 4 of sound "quack" should stand'),
    ("sound-file.md", POND + "ducksounds.txt", (LINE, 5, "quack"),
     'there are two sound state entries named "quack"'),
    ("sound-file.md", POND + "ducksounds.txt", (LINE, 5, "globalsound_dong"),
     'there is no global sound "dong"; did you mean "ding"?'),
    ("animation-file.md", POND + "duckanimation.txt", (LINE, 4, "fast"),
     '"fast" is not a number (interval of animation "float")'),
    ("animation-file.md", POND + "duckanimation.txt", (CUT, 19),
     'the file ends where frame names or "statedone" of animation "swim" should stand'),
    ("animation-file.md", POND + "duckanimation.txt", (LINE, 9, "float"),
     'there are two animation entries named "float"'),
    ("animation-file.md", POND + "duckanimation.txt", (LINE, 7, "blinc"),
     'animation "float" of object "pondroom/duck" shows the frame "blinc", which isn\'t there; did '
     'you mean "blink"?'),
    ("animation-file.md", POND + "duckanimation.txt", (LINE, 7, ""),
     'animation "float" has an empty line of frame names'),
    ("frame-file.md", POND + "duckframes.txt", (LINE, 3, "middle"),
     '"middle" is not a number (placement)'),
    ("frame-file.md", POND + "duckframes.txt", (LINE, 3, "30/wide"),
     '"wide" is not a number (draw size)'),
    ("frame-file.md", POND + "duckframes.txt", (LINE, 3, "stable+far"),
     '"far" is not a number (step of a placement)'),
    ("frame-file.md", POND + "duckframes.txt", (LINE, 3, "stable + 00"),
     "Error: Cannot have the line 'stable+0'"),
    ("frame-file.md", POND + "duckframes.txt", (LINE, 7, "wide"),
     '"wide" is not a number (source width of frame "sit")'),
    ("frame-file.md", POND + "duckframes.txt", (CUT, 44),
     'the file ends where the separator line of frame "swim2" should stand'),
    ("frame-file.md", POND + "duckframes.txt", (LINE, 3, "stable+32000"),
     "xpos is out of range for 16 bits", ENTER + ["tick 60000"]),
    ("region-file.md", POND + "duckregions.txt", (LINE, 2, "left"),
     '"left" is not a number (X1 of region "body")'),
    ("region-file.md", POND + "duckregions.txt", (CUT, 9),
     'the file ends where Y2 of region "head" should stand'),
    ("directive-file.md", POND + "duckpath.txt", (CUT, 9),
     "the file ends where the last line of a path should stand"),
    ("directive-file.md", POND + "duckpath.txt", (LINE, 6, "slow"),
     '"slow" is not a number (the speed of a path)'),
    ("directive-file.md", POND + "duckpath.txt", (LINE, 7, "here 300 500"),
     '"here" is not a number (x value of a path)'),
    ("directive-file.md", POND + "duckpath.txt", (LINE, 7, "100"),
     "a path goes past its last point: its list of x values has 1, and a path needs two points or "
     "more", ENTER + ["tell current/duck useraction_splash", "tick 1000"]),
    ("pictures.md", POND + "duckanimation.txt", (LINE, 1, "<CurrentDirectory>\\duk.bmp"),
     "File …\\Info\\Pond\\duk.bmp not found"),
    ("pictures.md", POND + "duckanimation.txt", (LINE, 1, "<CurrentDirectory>\\duck.txt"),
     "the picture can't be read: it is not a bitmap file"),
    ("scripts.md", POND + "duckscripts.txt", (LINE, 4, "globalscript_toolwom"),
     'there is no global script "toolwom"; did you mean "toolwon"?'),
    ("scripts.md", POND + "duckscripts.txt",
     (LINE, 1, "duck", "<CurrentDirectory>\\duckscript.txt", "unused", "duck"),
     'there are two script entries named "duck"'),
    ("scripts.md", POND + "duckscripts.txt", (CUT, 5),
     'the file ends where the third line of the record of script "globalscript_toolwon" should '
     "stand"),
    ("scripts.md", POND + "duckscript.txt", (CUT, 0), 'script "duck" has no lines'),
    ("scripts.md", POND + "duckscript.txt", (LINE, 5, ""),
     "a blank line stands where a statement is expected"),
    ("scripts.md", POND + "duckscript.txt", (CUT, 8),
     "the script ends inside a block that isn't closed (a block needs one statement and a line "
     '"end" or "endif")'),
    ("scripts.md", POND + "duckscript.txt", (LINE, 9, "subscript"),
     "a subscript line needs a file as its second word"),
    ("scripts.md", POND + "duckscript.txt", (LINE, 2, "if action ="),
     'a condition needs three words, as in "if action = *mouseclick", and " action =" has 2',
     CLICK),
    ("scripts.md", POND + "duckscript.txt", (LINE, 2, "if mood = good"),
     'a condition can only test the variable "action": " mood = good"', CLICK),
    ("scripts.md", POND + "duckscript.txt", (LINE, 5, "    change"),
     'the statement "    change" needs a second word', CLICK),
    ("scripts.md", POND + "duckscript.txt", (LINE, 5, "    runsound quak"),
     'object "pondroom/duck" has no sound "quak"; did you mean "quack"?', CLICK),
    ("global-lists.md", "\\Info\\globalgameobjects.txt", (ADD, POND + "leaf.txt"),
     'there are two global object entries named "leaf"'),
    ("global-lists.md", "\\Info\\globalscriptstates.txt",
     (ADD, "toolwon", POND + "splashscript.txt", "unused"),
     'there are two global script entries named "toolwon"'),
    ("global-lists.md", "\\Info\\globalsoundstates.txt", (ADD, "ding", "x.wma", "noloop", "unused"),
     'there are two sound state entries named "ding"'),
    ("global-lists.md", "\\Info\\globalgameobjects.txt", (ADD, ""),
     "the line is blank where the path of a global object should stand"),
    ("screens.md", "\\Info\\screens.txt", (ADD, POND + "pondrom.txt"),
     "File …\\Info\\Pond\\pondrom.txt not found"),
    ("screens.md", "\\Info\\screens.txt", (ADD, POND + "pondroom.txt"),
     'there are two screen entries named "pondroom"'),
    ("screens.md", "\\Info\\screens.txt", (ADD, ""),
     "the line is blank where the path of a screen should stand"),
    ("screens.md", "\\Info\\Pond\\duck.txt", (LINE, 3, "0"),
     'there is no screen "pondrom"; did you mean "pondroom"?', ["play", "send cs_pondrom"]),
    ("saved-game.md", "\\userdata.txt", (LINE, 5, "here"),
     '"here" is not a number (x of a saved object)'),
    ("saved-game.md", "\\userdata.txt", (LINE, 7, "yes"), '"yes" is neither "True" nor "False"'),
    ("saved-game.md", "\\userdata.txt", (CUT, 15),
     'the file ends where "begin" or "end" of a saved game should stand'),
    ("saved-game.md", "\\userdata.txt",
     (LINE, 16, "begin", "pondroom", "default", "0", "0", "True", "end", "end"),
     'there are two saved screen entries named "pondroom"'),
    ("saved-game.md", "\\userdata.txt",
     (LINE, 15, "begin", "duck", "swim", "0", "0", "True", "end", "end"),
     'two saved objects named "duck" in "pondroom"'),
    ("../messages.md", POND + "duck.txt", (ADD,), '"toobj" needs word 2 and has 1', ENTER + ["send toobj"]),
    ("../messages.md", POND + "duck.txt", (ADD,),
     '"subgamedone" finds no previous screen to go back to', ["play", "send subgamedone"]),
    ("../messages.md", POND + "duck.txt", (ADD,), '"screenprevious" finds no previous screen',
     ENTER + ["send screenprevious", "send screenprevious"]),
    ("README.md", POND + "duck.txt", (LINE, 4, "0" * 4_000_001),
     "the file has more than 4 million bytes: no text of a game is that long"),
    ("README.md", POND + "pondroomchildren.txt",
     (LINE, 1, "<CurrentDirectory>\\pondroom.txt"),
     "more than 60 objects inside one another: the content goes round in circles at object file "
     '"Info\\Pond\\pondroom.txt"'),
    ("settings.md", "\\GameMode.txt", (CUT, 0),
     "the file ends where the game mode should stand", ["start"]),
    ("settings.md", "\\GameRunning.txt", (CUT, 0),
     "the file ends where the word On or Off should stand", ["start"]),
]


def read_examples(content):
    """The files of all pages, by path, as lists of lines."""
    files = {}
    for page in sorted(PAGES.glob("*.md")):
        text = page.read_text()
        pattern = re.compile(r"^([^\n]*)`(\\?[\w\\]+\.txt)`[^\n`]*:\n\n```\n(.*?)```", re.M | re.S)
        for lead, name, body in pattern.findall(text):
            path = name if name.startswith("\\") else "\\" + name
            lines = body.split("\n")[:-1]
            if lead.startswith("Add to"):
                base = (content / path[1:].replace("\\", "/")).read_text(encoding="cp1252")
                lines = base.splitlines() + lines
            if path in files:
                sys.exit(f"{page.name}: {path} stands in two pages")
            files[path] = lines
    return files


def changed(lines, change):
    kind, *rest = change
    if kind == LINE:
        return lines[: rest[0] - 1] + rest[1:] + lines[rest[0]:]
    if kind == CUT:
        return lines[: rest[0]]
    return lines + rest


def bitmap(width, height):
    """A 24-bit bitmap of one colour."""
    row = b"\x20\xc0\xf0" * width
    row += b"\0" * (-len(row) % 4)
    size = 54 + len(row) * height
    head = struct.pack("<2sIHHI", b"BM", size, 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(row) * height, 0, 0, 0, 0)
    return head + info + row * height


def play(quendle, content, files, commands):
    """Plays the commands over the content; gives the answers."""
    with tempfile.TemporaryDirectory() as folder:
        user = pathlib.Path(folder)
        for path, lines in files.items():
            target = user / path[1:].replace("\\", "/")
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_text("".join(line + "\r\n" for line in lines), encoding="cp1252")
        (user / "Info/Pond/duck.bmp").write_bytes(bitmap(192, 48))
        run = subprocess.run(
            [quendle, "drive", "--content", content, "--user", user],
            input="\n".join(commands), capture_output=True, text=True, timeout=60, check=False)
        return [json.loads(line) for line in run.stdout.splitlines()]


def expect(what, condition, detail=""):
    if not condition:
        print(f"FAILED: {what} {detail}")
    return bool(condition)


def play_pond(quendle, content, files):
    """The examples as they are."""
    saved = dict(files)
    files = {path: lines for path, lines in files.items() if path != "\\userdata.txt"}
    answers = play(quendle, content, files, [
        "play", "send cs_pondroom", "object current/duck", "peek current/duck 340 400 x", "event current/duck 350 390 handmouseclick",
        "object current/duck", "tick 2000", "object current/duck",
        "send toscreen_currentscreen_toobj_duck_useraction_splash", "tick 100",
        "object current/duck", "tick 10000", "object current/duck",
        "asktell current showtype_duck", "inspect current/duck", "send addglobalobj_leaf"])
    good = expect("all commands", all(a["ok"] for a in answers), answers[-1])
    if not good:
        return [False]
    states = [answers[i]["object"] for i in (2, 5, 7, 10, 12)]
    places = [(s["state"], s["x"], s["y"]) for s in states]
    good = [
        expect("start", places[0] == ("default", 300, 380), places[0]),
        expect("click on the head", places[1][0] == "default-quack", places[1]),
        expect("going back", places[2][0] == "default", places[2]),
        expect("swimming", places[3][0] == "swim" and 100 < places[3][1] < 200, places[3]),
        expect("end of the path", places[4] == ("swim", 500, 420), places[4]),
        expect("the later region", answers[3]["text"] == "headx", answers[3]),
    ]
    answers = play(quendle, content, saved, ENTER + ["object current/duck"])
    duck = answers[-1].get("object", {})
    good.append(expect("saved game", duck.get("state") == "default" and duck.get("x") == 500, duck))
    return good


def play_case(quendle, content, files, case):
    page, path, change, message, *rest = case
    commands = rest[0] if rest else ENTER
    broken = dict(files)
    if path not in ("\\userdata.txt",):
        broken.pop("\\userdata.txt", None)
    if change[0] == GONE:
        del broken[path]
    else:
        broken[path] = changed(broken.get(path, []), change)
    answers = play(quendle, content, broken, commands)
    fatal = answers[-1].get("fatal", "no fault") if answers else "no answer"
    pattern = ".*".join(re.escape(part) for part in message.split("…"))
    told = expect(f"{page} {path} {change}", re.fullmatch(pattern, fatal), f"-> {fatal}")
    page_text = (PAGES / page).read_text()
    quoted = expect(f"{page} quotes", all(part in page_text for part in message.split("…")), message)
    return told and quoted


def main():
    quendle, content = sys.argv[1], pathlib.Path(sys.argv[2])
    files = read_examples(content)
    results = play_pond(quendle, content, files)
    results += [play_case(quendle, content, files, case) for case in CASES]
    failed = results.count(False)
    print(f"{len(results) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
