#!/usr/bin/env python3
"""Replays recorded sessions with `quendle replay` and checks what it says.

Usage: run.py QUENDLE CONTENT SESSION.txt... [--update]

A session must be the same as its sidecar tells. One with a file NAME.differs.txt beside it must
differ instead: the file's first line is "of OTHER.txt", the session whose sidecar it has, and the
second is what replay must say, word for word.

  --update  writes the sidecars anew, and what differing sessions say

Exit code 0 when all went as expected, else 1. The format is told in docs/recorder.md.
"""

import argparse
import pathlib
import shutil
import subprocess
import sys

TIME_LIMIT = 240  # seconds a session


def beside(session, kind):
    return session.with_name(f"{session.stem}.{kind}.txt")


def replay(quendle, content, session, *options):
    """The exit code, and what was said."""
    done = subprocess.run([quendle, "replay", content, str(session), *options],
                          capture_output=True, encoding="utf-8", timeout=TIME_LIMIT, check=False)
    return done.returncode, done.stdout.strip(), done.stderr.strip()


def read_differs(session):
    """The other session, and what must be said; None for a session that must be the same."""
    path = beside(session, "differs")
    if not path.exists():
        return None
    first, said = path.read_text(encoding="utf-8").splitlines()
    return session.with_name(first.removeprefix("of ")), said


def check(quendle, content, session):
    """True when all is as expected."""
    differs = read_differs(session)
    code, said, errors = replay(quendle, content, session)
    wanted = (1, differs[1]) if differs else (0, said)
    if (code, said) == wanted:
        return True
    print(f"{session}: code {code}, expected {wanted[0]}\n  said:     {said}")
    if differs:
        print(f"  expected: {differs[1]}")
    if errors:
        print(f"  {errors}")
    return False


def update(quendle, content, session):
    differs = read_differs(session)
    if not differs:
        code, said, errors = replay(quendle, content, session, "--update")
        print(said or errors)
        return code == 0
    other = differs[0]
    shutil.copyfile(beside(other, "sidecar"), beside(session, "sidecar"))
    code, said, errors = replay(quendle, content, session)
    beside(session, "differs").write_text(f"of {other.name}\n{said}\n", encoding="utf-8")
    print(f"{session}: {said or errors}")
    return code == 1


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("quendle")
    parser.add_argument("content")
    parser.add_argument("sessions", nargs="+", type=pathlib.Path)
    parser.add_argument("--update", action="store_true")
    arguments = parser.parse_args()
    # Differing ones last: they take the sidecars of others.
    sessions = sorted(arguments.sessions, key=lambda path: beside(path, "differs").exists())
    act = update if arguments.update else check
    good = [act(arguments.quendle, arguments.content, session) for session in sessions]
    return 0 if all(good) else 1


if __name__ == "__main__":
    sys.exit(main())
