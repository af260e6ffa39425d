#!/usr/bin/env python3
"""Writes a seed corpus for the fuzz targets, taken from a content tree.

usage: make_seeds.py CONTENT OUT [--small] [--photographs FILE...]

CONTENT is the folder that holds `Info`; OUT gets a folder for each target. With --small only a
few small ones of each kind are kept: that is what fuzz/corpus was begun with.
"""

import argparse
import io
import pathlib
import struct
import wave

TYPES = {"hall", "overlay", "dialog", "button", "key", "doctor", "patient", "tool", "bodyview",
         "menu", "subgame", "pointsystem", "playareasquare", "playareablinker",
         "playareabobbler", "playareashooter"}
LARGEST = 100_000  # bytes of a seed
LARGEST_SMALL = 9_000
KEPT_SMALL = 3  # of each kind


class Tree:
    """Files of a content tree by their paths, `\\`-separated and without regard to case."""

    def __init__(self, root):
        self.files = {}
        for path in sorted(p for p in root.rglob("*") if p.is_file()):
            self.files["\\" + str(path.relative_to(root)).replace("/", "\\").lower()] = path

    def read(self, path):
        file = self.files.get(path.lower())
        return file.read_bytes() if file else None

    def lines(self, path):
        data = self.read(path)
        return data.decode("cp1252", "replace").splitlines() if data is not None else []

    def resolve(self, folder, stored):
        for token, place in (("<CurrentDirectory>\\", folder),
                             ("<PreviousDirectory>\\", folder[:folder.rstrip("\\").rfind("\\") + 1]),
                             ("<GlobalDirectory>\\", "\\Info\\GlobalReferences\\")):
            if token.lower() in stored.lower():
                at = stored.lower().index(token.lower())
                return place + stored[:at] + stored[at + len(token):]
        return stored


def folder_of(path):
    return path[:path.rfind("\\") + 1]


class Seeds:
    def __init__(self, out, small):
        self.out, self.small = out, small
        self.counts = {}

    def add(self, target, kind, data):
        count = self.counts.get((target, kind), 0)
        if len(data) > (LARGEST_SMALL if self.small else LARGEST):
            return
        if self.small and count >= KEPT_SMALL:
            return
        self.counts[target, kind] = count + 1
        folder = self.out / target
        folder.mkdir(parents=True, exist_ok=True)
        (folder / f"{kind}-{count + 1}").write_bytes(data)


def parts_of(tree, path):
    """[(letter of the format, path)] of an object and what its data file names."""
    lines = tree.lines(path)
    if len(lines) < 8 or lines[0].strip().lower() not in TYPES:
        return []
    data = tree.resolve(folder_of(path), lines[6])
    parts = [("o", path), ("d", data)]
    children = tree.resolve(folder_of(path), lines[7])
    if children.lower() != "nothing":
        parts.append(("c", children))
    for letter, stored in zip("sanl", tree.lines(data)):
        part = tree.resolve(folder_of(data), stored)
        if part.lower() != "nothing":
            parts.append((letter, part))
            if letter == "a" and len(tree.lines(part)) > 1:
                parts.append(("f", tree.resolve(folder_of(data), tree.lines(part)[1])))
            if letter == "l":
                for script in tree.lines(part)[1::3]:
                    parts.append(("script", tree.resolve(folder_of(data), script)))
    if len(tree.lines(data)) > 5:
        parts.append(("game", tree.resolve(folder_of(data), tree.lines(data)[5])))
    return [(letter, part) for letter, part in parts if tree.read(part) is not None]


GLOBAL_LISTS = ("\\Info\\globalsoundstates.txt", "\\Info\\globalscriptstates.txt")


def all_parts_of(tree, path):
    """Paths of the files of an object and of all objects below it, with the global lists."""
    found = {}
    todo = [path]

    def add_named_in(part):
        # Subscripts, regions, boards and cells are named somewhere in a line.
        for word in (word for line in tree.lines(part) for word in line.split() if "\\" in word):
            named = tree.resolve(folder_of(part), word)
            if (tree.read(named) is not None and named.lower() not in found
                    and not named.lower().endswith((".bmp", ".wma"))):
                found[named.lower()] = named
                todo.append(named)
                add_named_in(named)

    for part in GLOBAL_LISTS:
        if tree.read(part) is not None:
            found[part.lower()] = part
            add_named_in(part)
    seen = set()
    while todo:
        current = todo.pop()
        if current.lower() in seen:
            continue
        seen.add(current.lower())
        folder = ""
        if tree.lines(current) and tree.lines(current)[0].lower().startswith("playarea"):
            # A game finds its cells by their names.
            for file in tree.files:
                if file == "\\info\\shooterdata.txt" or (
                        folder_of(file) == folder_of(current).lower() and file.endswith(".txt")):
                    found.setdefault(file, file)
        for letter, part in parts_of(tree, current):
            found.setdefault(part.lower(), part)
            if letter == "d":
                folder = folder_of(part)
            elif letter == "c":
                todo += [tree.resolve(folder, line.split()[0])
                         for line in tree.lines(part) if line.strip()]
            elif letter in ("script", "f", "game"):
                add_named_in(part)
    return list(found.values())


ACTIONS = b"handmouseclick\nhandmouseovernot\nbandaidmouseclick\nuseraction_gamewon\n==\n"

MESSAGES = {
    "way": "cs_floor1hall1\ncs_dogroom\n>110 110\n~120\nscreenprevious\nscreenback\n",
    "tools": "toscreen_tools_addglobalobj_bandaidtool\ninctoolcounter\naddchild?_bandaid\n"
             "toscreen_tools_removeallchildren\ncursor_bandaid\n>110 110\n",
    "ask": "?toobj_doctor_runstate_tryagain\n?cs_nowhere\n?toscreen_tools_addchild?_hand\n",
    "square": "cs_subgamesquare\n>710 510\n~40\n>110 110\n~120\n>230 230\n~120\n"
              "toobj_squarearea_stopgame\ntoobj_squarearea_endgame\n",
    "shooter": "subgame_subgameshooter\n>710 510\n^300 500\n~400\n>300 500\n~400\n"
               "toobj_shooterarea_selectcell21-x\ntoobj_shooterarea_acceptedcell\nscreenprevious\n",
    "blinker": "cs_subgameblinker\n>710 510\n^300 500\n~400\n~400\ntoobj_blinkerarea_replaygame\n"
               "toobj_blinkerarea_restartgame\n~400\n",
    "bobbler": "cs_subgamebobbler\n>710 510\n>300 300\n~400\n>100 100\nsubgame_won\n~100\n",
}

SAVED_GAME = ("begin\nbegin\nfloor1hall1\ndefault\n0\n0\nTrue\nbegin\ndoctor\ndefault\n5\n6\n"
              "True\nend\nend\nend\n")

FORMATS = {
    "v": "visible_off xpos_5 ypos_-7 state_better1 runstate_talk\n",
    "p": "120\nstable\nstable+5\n30+5\nstable/100\n30\\100\n-1\n",
    "r": "nose\n1\n2\n30\n40\near\n5\n6\n7\n8\n",
    "i": "path\n5\nloop\n10 20 30\n5 6 7\n0\n0\n0\n0\n",
    "h": "game\n1\n1\n\\info\\cells.txt\n-\n-\n",
    "q": "\\info\\tile.txt\n60\n3\n100\n50\n50\none\ntwo\nthree\nfour\nfive\nsix\nseven\neight\n",
    "e": "\\info\\a.txt\n<CurrentDirectory>\\b.txt\n\\info\\c.txt\n",
    "m": "100 40 200 40 300 40 * 150 90 250 90 *\n",
    "6": "playareasquare\narea\n0\n0\n0\n\\info\\board.txt\n\\info\\data.txt\nnothing\n\n",
    "7": "button\ncell\n0\n0\n0\n0\n<CurrentDirectory>\\data.txt\nnothing\n\n",
}


# One black point.
GIF = (b"GIF89a\x01\x00\x01\x00\x80\x00\x00\x00\x00\x00\xff\xff\xff,\x00\x00\x00\x00"
       b"\x01\x00\x01\x00\x00\x02\x02D\x01\x00;")


def wave_file(width):
    """A short wave of `width` bytes a sample."""
    out = io.BytesIO()
    with wave.open(out, "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(width)
        file.setframerate(8000)
        samples = range(0, 4000, 20)
        file.writeframes(b"".join(struct.pack("<h" if width == 2 else "<B", sample % (256 ** width))
                                  for sample in samples))
    return out.getvalue()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("content", type=pathlib.Path)
    parser.add_argument("out", type=pathlib.Path)
    parser.add_argument("--small", action="store_true")
    parser.add_argument("--photographs", type=pathlib.Path, nargs="*", default=[])
    arguments = parser.parse_args()
    tree, seeds = Tree(arguments.content), Seeds(arguments.out, arguments.small)

    for letter, text in FORMATS.items():
        seeds.add("text_formats", letter, (letter + text).encode())
    for name, text in MESSAGES.items():
        seeds.add("messages", name, text.encode())
    seeds.add("photographs", "gif", GIF)
    for photograph in sorted(arguments.photographs):
        seeds.add("photographs", "jpeg", photograph.read_bytes())
    for width in 1, 2:
        seeds.add("sounds", "wave", wave_file(width))
    seeds.add("saved_game", "hall", SAVED_GAME.encode())
    for path in tree.files:
        parts = parts_of(tree, path)
        if not parts:
            continue
        for letter, part in parts:
            data = tree.read(part)
            if letter == "script":
                seeds.add("scripts", "script", ACTIONS + data)
            elif letter != "game":
                seeds.add("text_formats", letter, letter.encode() + data)
        whole = path.encode() + b"\n"
        for part in all_parts_of(tree, path):
            data = tree.read(part)
            whole += b"== " + part.encode() + b"\n" + data
            if not data.endswith(b"\n"):
                whole += b"\n"
        seeds.add("content_trees", tree.lines(path)[0].strip().lower(), whole)
    for path, file in sorted(tree.files.items(), key=lambda entry: entry[1].stat().st_size):
        data = file.read_bytes()
        if path.endswith(".bmp"):
            seeds.add("bitmaps", "content", data)
            seeds.add("photographs", "bitmap", data)
        elif path.endswith(".wma"):
            seeds.add("sounds", "content", data)
    for name, count in sorted(seeds.counts.items()):
        print(*name, count)


if __name__ == "__main__":
    main()
