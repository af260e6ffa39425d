#!/usr/bin/env python3
"""Enters every screen of a made content tree in both editions, through `quendle drive`.

Each screen is loaded, turned on, stepped for a moment and composed into a frame; whatever the game
finds fatal in its files shows here with file and line. The tool bar and the cursors are live from
the start, so that starting alone checks them.

Usage: visit_screens.py BIN     BIN holds `quendle` and the content
"""

import json
import pathlib
import subprocess
import sys
import tempfile

LIVE_FROM_THE_START = {"tools", "cursors"}


class Drive:
    """A running `quendle drive`; told one command, it gives the answer as a dictionary."""

    def __init__(self, folder, edition, user):
        self.process = subprocess.Popen(
            [folder / "quendle", "drive", "--content", folder, "--user", user,
             "--edition", str(edition)],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def tell(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        line = self.process.stdout.readline()
        return json.loads(line) if line else {"ok": False, "error": "drive ended"}

    def close(self):
        self.process.stdin.close()
        self.process.wait(timeout=60)


def visit(folder, edition, name=None):
    """Plays up to the first screen, then goes to `name`. Returns (finding or None, last state)."""
    with tempfile.TemporaryDirectory() as user:
        drive = Drive(folder, edition, user)
        try:
            state = {}
            for command in ["play", f"send cs_{name}" if name else None, "tick 1000", "draw",
                            "hash", "state"]:
                state = drive.tell(command) if command else state
                if not state.get("ok"):
                    return f"{command}: {json.dumps(state)}", state
            if name and state["screen"].lower() != name.lower():
                return f"cs_{name} led to {state['screen']}", state
            return None, state
        finally:
            drive.close()


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    visited, findings = 0, []
    for edition in (1, 2):
        finding, state = visit(folder, edition)
        results = [("the start", finding)]
        for name in state.get("screens", []):
            if name.lower() not in LIVE_FROM_THE_START:
                results.append((name, visit(folder, edition, name)[0]))
        visited += len(results)
        findings += [f"edition {edition}, {name}: {found}" for name, found in results if found]
    print(f"{visited} visits")
    for finding in findings:
        print(finding)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
