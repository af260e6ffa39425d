#!/usr/bin/env python3
"""Holds the include graph of src/, apps/ and tests/ against the table in cmake/rooms.txt.

Rules:
  floor    a room includes only rooms of its own or a lower floor
  circle   rooms of one floor don't include each other in a circle
  backend  backends see floor 0 and each other; only toolbelt/, apps/ and tests/ see them
  library  a header that is neither ours nor the standard library's stands only where the table
           allows its prefix; in apps/ and tests/ everything the table knows is allowed
  system   headers of the operating system stand only in sources (not headers) of backends/,
           toolbelt/, apps/ and tests/
  room     every source of src/ stands in a room of the table, and every include of ours exists

Usage: check_rooms.py [ROOT]     findings on standard output, exit code 1 if there are any
       check_rooms.py --self-test
"""

import pathlib
import re
import sys
import tempfile

STANDARD = set("""
algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono
cinttypes climits clocale cmath codecvt compare complex concepts condition_variable coroutine
csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque
exception execution filesystem format forward_list fstream functional future initializer_list
iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource
mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string
string_view strstream syncstream system_error thread tuple type_traits typeindex typeinfo
unordered_map unordered_set utility valarray variant vector version
""".split())
SYSTEM = re.compile(r"(sys|linux|netinet|arpa)/|(unistd|fcntl|dirent|dlfcn|errno|signal|spawn|poll"
                    r"|pwd|termios|pthread|sched|malloc)\.h$")
TEST_LIBRARIES = ("gtest/", "gmock/")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
SOURCES = (".h", ".cpp")


class Rooms:
    """The table: floor and allowed third-party prefixes of each room."""

    def __init__(self, text):
        self.floor, self.libraries = {}, {}
        for line in text.splitlines():
            words = line.split("#")[0].split()
            if words:
                floor, room, *libraries = words
                self.floor[room] = floor if floor == "side" else int(floor)
                self.libraries[room] = tuple(libraries)
        self.all_libraries = tuple(p for ps in self.libraries.values() for p in ps)

    def room_of(self, path):
        """The room of a path below src/, the longest match first; None for no room."""
        fits = [r for r in self.floor
                if path.startswith(r + "/") or (self.is_class(r) and self.names_class(r, path))]
        return max(fits, key=len, default=None)

    @staticmethod
    def is_class(room):
        return room.split("/")[-1][0].isupper()

    @staticmethod
    def names_class(room, path):
        return path.startswith(room)

    def why_unseen(self, room, other):
        """The rule that keeps `room` from including `other`, or None when it may."""
        mine, theirs = self.floor[room], self.floor[other]
        if mine == "side":
            return None if theirs in (0, "side") else "backend: backends see floor 0 only"
        if theirs == "side":
            return None if room == "toolbelt" else "backend: the engine knows only the ports"
        if room == "platform" and other != "platform":
            return "floor: platform/ includes nothing of ours"
        return None if theirs <= mine else f"floor: {other} is on floor {theirs}, {room} on {mine}"


def includes(path):
    text = path.read_text(encoding="utf-8", errors="replace")
    for match in INCLUDE.finditer(text):
        yield text.count("\n", 0, match.start(2)) + 1, match.group(1), match.group(2)


def library_finding(rooms, where, name, is_header):
    """Why the foreign header `name` may not stand in `where` (a room, "apps" or "tests")."""
    if name in STANDARD:
        return None
    if SYSTEM.match(name):
        allowed = where in ("apps", "tests", "toolbelt") or where.startswith("backends/")
        if allowed and (where == "tests" or not is_header):
            return None
        return f"system: <{name}> stands only in sources of backends/, toolbelt/, apps/ and tests/"
    if where == "tests":
        prefixes = rooms.all_libraries + TEST_LIBRARIES
    elif where == "apps":
        prefixes = rooms.all_libraries
    else:
        prefixes = rooms.libraries[where]
    if name.startswith(prefixes):
        return None
    return f"library: <{name}> is not allowed in {where}"


def find_circles(edges):
    """Circles among rooms; `edges`: room -> {other: place of one include}."""
    findings, done = [], set()

    def visit(room, path):
        if room in path:
            circle = path[path.index(room):] + [room]
            place = edges[circle[-2]][room]
            findings.append(f"{place}: circle: {' -> '.join(circle)}")
            return
        if room not in done:
            for other in sorted(edges.get(room, ())):
                visit(other, path + [room])
            done.add(room)

    for room in sorted(edges):
        visit(room, [])
    return findings


def check(root):
    """All findings, as `FILE:LINE: rule: text`."""
    rooms = Rooms((root / "cmake/rooms.txt").read_text())
    findings, edges = [], {}
    for top in ("src", "apps", "tests"):
        for path in sorted((root / top).rglob("*")):
            if path.suffix not in SOURCES or not path.is_file():
                continue
            relative = path.relative_to(root).as_posix()
            where = rooms.room_of(path.relative_to(root / top).as_posix()) if top == "src" else top
            if where is None:
                findings.append(f"{relative}:1: room: stands in no room of cmake/rooms.txt")
                continue
            for line, kind, name in includes(path):
                place = f"{relative}:{line}"
                finding = None
                if kind == "<":
                    finding = library_finding(rooms, where, name, path.suffix == ".h")
                elif (root / "src" / name).is_file():
                    finding = our_finding(rooms, top, where, name, place, edges)
                elif not (top == "tests" and (root / "tests" / name).is_file()):
                    finding = f'room: no file "{name}" below src/; other headers take <...>'
                if finding:
                    findings.append(f"{place}: {finding}")
    return findings + find_circles(edges)


def our_finding(rooms, top, where, name, place, edges):
    other = rooms.room_of(name)
    if other is None:
        return f'room: "{name}" stands in no room of cmake/rooms.txt'
    if top == "tests":
        return tests_finding(rooms, place, other)
    if top == "apps" or other == where:
        return None
    why = rooms.why_unseen(where, other)
    if why is None:
        edges.setdefault(where, {}).setdefault(other, place)
    return why


def tests_finding(rooms, place, other):
    """A test sees what its room sees, and the backends as its platform."""
    path = place.removeprefix("tests/")
    room = rooms.room_of(path)
    if room is None or room == other or rooms.floor[other] == "side":
        return None
    return rooms.why_unseen(room, other)


def self_test():
    """Plants one violation of each rule in a small tree and wants exactly those reported."""
    table = ("0 platform\n0 base\n1 media\n1 screens/Record\n2 object\n3 screens\n4 logic\n"
             "4 dialogs\nside backends/desktop SDL.h\n7 toolbelt CLI/\n")
    sound = {
        "platform/Clock.h": "#include <string>\n",
        "base/Text.h": '#include "platform/Clock.h"\n',
        "media/Picture.h": '#include "base/Text.h"\n',
        "screens/Record.h": '#include "base/Text.h"\n',
        "object/Object.h": '#include "media/Picture.h"\n#include "screens/Record.h"\n',
        "screens/Keeper.h": '#include "object/Object.h"\n#include "screens/Record.h"\n',
        "logic/Layer.h": '#include "screens/Keeper.h"\n',
        "dialogs/Form.h": '#include "logic/Layer.h"\n',
        "backends/desktop/Window.cpp":
            '#include <SDL.h>\n#include <unistd.h>\n#include "platform/Clock.h"\n',
        "toolbelt/drive/Drive.cpp": '#include <CLI/CLI.hpp>\n#include "backends/desktop/Window.h"\n',
        "backends/desktop/Window.h": "",
    }
    planted = {
        "floor": ("src/base/Bad.h", '#include "media/Picture.h"\n'),
        "floor ": ("src/platform/Bad.h", '#include "base/Text.h"\n'),
        "floor  ": ("tests/media/BadTest.cpp", '#include "screens/Keeper.h"\n'),
        "circle": ("src/logic/Bad.h", '#include "dialogs/Form.h"\n'),
        "backend": ("src/logic/Bad.h", '#include "backends/desktop/Window.h"\n'),
        "backend ": ("src/backends/desktop/Bad.h", '#include "media/Picture.h"\n'),
        "library": ("src/object/Bad.cpp", "#include <SDL.h>\n"),
        "library ": ("src/media/Bad.h", "#include <gtest/gtest.h>\n"),
        "system": ("src/base/Bad.cpp", "#include <sys/stat.h>\n"),
        "system ": ("src/backends/desktop/Bad.h", "#include <unistd.h>\n"),
        "room": ("src/cellar/Bad.h", "\n"),
        "room ": ("src/base/Bad.h", '#include "base/Nowhere.h"\n'),
    }
    failures = []
    for rule, plant in [(None, None), *planted.items()]:
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            files = {f"src/{name}": text for name, text in sound.items()}
            files["cmake/rooms.txt"] = table
            files |= dict([plant] if plant else [])
            for name, text in files.items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(text)
            found = check(root)
        wanted = 0 if rule is None else 1
        if len(found) != wanted or any(f": {rule.strip()}: " not in f for f in found):
            failures.append(f"planted {rule and rule.strip()}: wanted {wanted} finding, got {found}")
    for failure in failures:
        print(failure)
    print(f"self-test: {1 + len(planted) - len(failures)} passed, {len(failures)} failed")
    return 1 if failures else 0


def main():
    if sys.argv[1:] == ["--self-test"]:
        return self_test()
    root = pathlib.Path(sys.argv[1] if sys.argv[1:] else __file__).resolve()
    findings = check(root if sys.argv[1:] else root.parent.parent)
    for finding in findings:
        print(finding)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
