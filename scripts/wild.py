#!/usr/bin/env python3
"""Plays the game wildly in its window, without a display, for hours that pass in minutes.

    ./check wild [HOURS] [SEED]

24 hours if nothing is said. Built with the address sanitizer, whose leak check runs at the end; the
memory in use is told each hour and must not grow. Meant for a machine with nothing else to do.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
CONTENT = ROOT / "build/release/bin"
BUILD = ROOT / os.environ.get("WILD_BUILD", "build/asan")
QUIET = {"SDL_VIDEODRIVER": "dummy", "SDL_AUDIODRIVER": "dummy", "ALSOFT_DRIVERS": "null",
         "ASAN_OPTIONS": "detect_leaks=1"}


def main():
    hours, seed = (sys.argv[1:] + ["24", "1"][len(sys.argv) - 1:])[:2]
    content = pathlib.Path(os.environ.get("WILD_CONTENT", CONTENT))
    if not (content / "Info").is_dir():
        print(f"{content} holds no content: ./play --build makes it")
        return 2
    if BUILD.name == "asan":
        subprocess.run(["cmake", "--preset", "asan"], cwd=ROOT, check=True)
    subprocess.run(["cmake", "--build", BUILD, "--target", "wild_window"], cwd=ROOT, check=True)
    program = next(BUILD.rglob("wild_window"))
    with tempfile.TemporaryDirectory() as folder:
        return subprocess.run([program, content, folder, hours, seed], cwd=folder, check=False,
                              env=os.environ | QUIET).returncode


if __name__ == "__main__":
    sys.exit(main())
