#!/usr/bin/env python3
"""Writes the manual of the tool belt: `quendle --man` for the belt and for each of its commands.

    make_man.py QUENDLE FOLDER            quendle.1, quendle-drive.1, ...
    make_man.py QUENDLE FOLDER --check    also: every page is set without a warning, where groff is
                                          there, and names every option of the help
"""
import pathlib
import re
import shutil
import subprocess
import sys


def output(*words, text=None):
    return subprocess.run(words, check=True, capture_output=True, text=True, input=text).stdout


def pages(quendle):
    """Each page's name, its roff, and the help it must agree with."""
    belt = output(quendle, "--man")
    yield "quendle", belt, output(quendle, "--help")
    for name in re.findall(r"^\\fBquendle\\-(\w+)\\fR\(1\)$", belt, re.M):
        yield f"quendle-{name}", output(quendle, "--man", name), output(quendle, name, "--help")


def faults(name, page, help_text):
    plain = page.replace("\\-", "-")
    for option in set(re.findall(r"^ +.*?(--[\w-]+)", help_text, re.M)):
        if option not in plain:
            yield f"{name}.1 doesn't name {option}"
    if shutil.which("groff"):
        set_page = subprocess.run(["groff", "-man", "-Tutf8", "-ww", "-z"], input=page,
                                  capture_output=True, text=True, check=False)
        if set_page.returncode != 0 or set_page.stderr:
            yield f"{name}.1: {set_page.stderr.strip()}"


def main():
    quendle, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    found, count = [], 0
    for name, page, help_text in pages(quendle):
        (folder / f"{name}.1").write_text(page)
        count += 1
        if "--check" in sys.argv[3:]:
            found += faults(name, page, help_text)
    print("\n".join(found) or f"{count} pages of the manual.")
    return 1 if found or count < 2 else 0


if __name__ == "__main__":
    sys.exit(main())
