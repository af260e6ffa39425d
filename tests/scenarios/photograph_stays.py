#!/usr/bin/env python3
"""Puts a photograph into the game under strace and tells what the process does with it: it opens no
connection, writes the two pictures and the settings and nothing else, and the two pictures hold
points of colour alone. `photograph_stays.py QUENDLE CONTENT`; exit code 77 where nothing can be
traced.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

DATA = pathlib.Path(__file__).resolve().parent.parent / "data"
SKIPPED = 77
TIME_LIMIT = 250

WIZARD = """start
press 3
answer {photograph}
press 5
press 3
point 335 300
point 460 180
point 590 300
point 460 495
press 3
press 17
press 3
press 1
close
"""
PLAY = "play\nmove 400 300\nclose\n"

PERSON = "Info/GlobalReferences/images/person/"
PICTURES = {PERSON + "face.bmp": (32, 32), PERSON + "doctor.bmp": (64, 128)}
# What a start of the game and the end of the wizard write.
SETTINGS = {"GameMode.txt", "DifficultyLevel.txt", "GraphicsMode.txt", "personalize.txt"}
HEADERS = 54  # bytes of the two headers of a bitmap
MARK = b"52 degrees north, taken by the camera of the family"

SOCKET = re.compile(r"\bsocket\((AF_\w+|PF_\w+)")
# -y writes the folder of a descriptor behind it: openat(4</user/Info>, "name", O_WRONLY...
OPENED = re.compile(r'\bopen(?:at)?\((?:[\w-]+(?:<([^>]*)>)?, )?"([^"]*)", ([A-Z_|]+)')
MADE = re.compile(r'\b(?:creat|mknod\w*|link\w*|symlink\w*|truncate)\(')
RENAMED = re.compile(r'\brename\w*\(.*?(?:\d+<([^>]*)>, )?"([^"]*)"(?:, RENAME\w*)?\)\s+= 0')


def traced(command, folder, text=""):
    """The lines of the trace of a command and of its children, and what it printed."""
    trace = folder / "trace"
    done = subprocess.run(["strace", "-f", "-qq", "-y", "-s", "4096", "-e", "trace=%network,%file",
                           "-o", trace, *command], input=text, capture_output=True, text=True,
                          timeout=TIME_LIMIT, check=False, cwd=folder,
                          # A leak is looked for by tracing too, and only one may trace.
                          env={**os.environ, "ASAN_OPTIONS": "detect_leaks=0"})
    return trace.read_text(errors="replace").splitlines(), done


def connections(trace):
    """The kinds of sockets that lead out of the machine."""
    kinds = {match[1] for line in trace for match in [SOCKET.search(line)] if match}
    return kinds - {"AF_UNIX", "PF_LOCAL"}


def writes(trace):
    """Paths that were opened for writing or made."""
    found = set()
    for line in trace:
        match = OPENED.search(line)
        if match and re.search("O_WRONLY|O_RDWR|O_CREAT", match[3]) and " = -1 " not in line:
            found.add(os.path.join(match[1] or "", match[2]))
        elif MADE.search(line):
            found.add(line)
    return found


def renames(trace):
    return {os.path.join(match[1] or "", match[2])
            for line in trace for match in [RENAMED.search(line)] if match}


def photograph_with_a_note(folder):
    """A photograph as a camera leaves it: with a note of where it was taken."""
    jpeg = (DATA / "photograph.jpg").read_bytes()
    note = b"Exif\0\0" + MARK
    segment = b"\xff\xe1" + (len(note) + 2).to_bytes(2, "big") + note
    path = folder / "child.jpg"
    path.write_bytes(jpeg[:2] + segment + jpeg[2:])
    return path


def prove_that_it_sees(folder):
    """Connections, writes and renames of a program that does all three are found; False where
    tracing is not permitted."""
    program = ("import socket, os; socket.socket(socket.AF_INET); open('a', 'w').close(); "
               "os.rename('a', 'b')")
    trace, done = traced([sys.executable, "-c", program], folder)
    if "Operation not permitted" in done.stderr:
        return False
    assert connections(trace) == {"AF_INET"}, trace[-5:]
    assert any(path.endswith("a") for path in writes(trace)), trace[-5:]
    assert any(path.endswith("b") for path in renames(trace)), trace[-5:]
    return True


def check(quendle, content, folder):
    user = folder / "user"
    user.mkdir()
    photograph = photograph_with_a_note(folder)
    before = photograph.read_bytes()
    command = [quendle, "drive", "--content", content, "--user", str(user)]
    trace, done = traced(command, folder, WIZARD.format(photograph=photograph))
    assert done.returncode == 0 and '"ok":false' not in done.stdout, done.stdout + done.stderr
    read = [line for line in trace if f'"{photograph}"' in line and "open" in line]
    assert read and all("O_RDONLY" in line for line in read), read
    assert not connections(trace), connections(trace)

    # Each write goes to a name of its own beside the file and is then renamed over it.
    astray = {path for path in writes(trace)
              if not path.startswith(f"{user}/") and path != "/dev/null"}
    assert not astray, astray
    names = {os.path.relpath(path, user) for path in renames(trace)}
    assert names == set(PICTURES) | SETTINGS, names
    there = {str(path.relative_to(user)) for path in user.rglob("*") if path.is_file()}
    assert there == names, there
    for name, (width, height) in PICTURES.items():
        assert (user / name).stat().st_size == HEADERS + width * height * 3, name
    assert photograph.read_bytes() == before

    trace, done = traced(command, folder, PLAY)
    assert done.returncode == 0, done.stdout + done.stderr
    assert not connections(trace), connections(trace)
    assert not any(f'"{photograph}"' in line for line in trace), "the game needs it no more"
    for path in user.rglob("*"):
        assert not path.is_file() or MARK not in path.read_bytes(), path


def main():
    if shutil.which("strace") is None:
        print("strace is not installed")
        return SKIPPED
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name).resolve()
        if not prove_that_it_sees(folder):
            print("this machine does not let processes be traced")
            return SKIPPED
        check(*(str(pathlib.Path(word).resolve()) for word in sys.argv[1:3]), folder)
    return 0


if __name__ == "__main__":
    sys.exit(main())
