#!/usr/bin/env python3
"""Does what tutorial.md says, from its first line to its last.

    check_tutorial.py QUENDLE

Every file that the page shows is written, every command is run, and what it prints is compared with
what the page says it prints ("…" stands for anything, lines may stand between). Nothing is kept.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile

PAGE = pathlib.Path(__file__).with_name("tutorial.md")
BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.M | re.S)
FILE = re.compile(r"`(\\Info\\[\w\\]+\.txt)`:\s*$")
GAME = "mygame"
TIME_LIMIT = 240  # seconds a block


class Failed(Exception):
    pass


def write(folder, path, body, add):
    target = folder / GAME / path[1:].replace("\\", "/")
    if add:
        before = target.read_text(encoding="cp1252")
        if before and not before.endswith("\n"):
            raise Failed(f"{path} ends without a line end")
        body = before + body
    elif target.exists():
        raise Failed(f"{path} is there already")
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_text(body, encoding="cp1252")


def run(folder, quendle, commands):
    environment = dict(os.environ, PATH=f"{quendle.parent}:{os.environ['PATH']}")
    done = subprocess.run(["bash", "-e", "-c", commands], cwd=folder, env=environment, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=TIME_LIMIT,
                          check=False)
    if done.returncode != 0:
        raise Failed(f"exit code {done.returncode} of\n{commands}\n{done.stdout}")
    return done.stdout


def compare(printed, expected):
    """Each expected line comes, in this order, among others."""
    lines = iter(printed.splitlines())
    for line in expected.splitlines():
        if line == "…":
            continue
        pattern = re.compile(".*".join(re.escape(part) for part in line.split("…")))
        if not any(pattern.fullmatch(found) for found in lines):
            raise Failed(f"not printed: {line}\nbut:\n{printed}")


def follow(folder, quendle, text):
    printed, shown, before = "", 0, 0
    for block in BLOCK.finditer(text):
        kind, body = block.groups()
        lead = text[before:block.start()].rstrip()
        before = block.end()
        if kind == "sh":
            printed = run(folder, quendle, body)
        elif kind == "prints":
            compare(printed, body)
        else:
            named = FILE.search(lead)
            if not named:
                raise Failed(f"a block without a file's name:\n{body}")
            write(folder, named.group(1), body, lead.splitlines()[-1].find("Add to") >= 0)
        shown += 1
    return shown


def main():
    quendle = pathlib.Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as name:
        try:
            shown = follow(pathlib.Path(name), quendle, PAGE.read_text())
        except (Failed, subprocess.TimeoutExpired) as failure:
            print(f"tutorial.md: {failure}")
            return 1
    print(f"{shown} steps of the tutorial work.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
