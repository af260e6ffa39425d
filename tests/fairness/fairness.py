#!/usr/bin/env python3
"""Tells how fair the clinic's games are: models of children play them, many times each.

Usage: fairness.py QUENDLE CONTENT [--game NAME] [--child NAME] [--level LEVEL] [--games N] [--first N]
                   [--edition N] [--at-once N] [--verbose]

Each game is played as in the clinic, through `quendle drive` in virtual time: the right tool in the
hand, a click on the patient, a click on the green button. Who loses touches the patient again, with
the tool that is still in the hand, until the step is taken. The models are told in child.py.

Prints a table of who won at the first try, and how often the step was taken after at most two losses;
then how long a won game took. Exit code 1 where a step was not taken. The rest is not asserted: the
numbers are for whoever changes a game.
"""

import argparse
import collections
import concurrent.futures
import json
import pathlib
import statistics
import subprocess
import sys
import tempfile

from child import CHILDREN, Hand
from games import GAMES

LEVELS = {"Easy": "optEasy", "Normal": "optMedium", "Hard": "optHard"}
IN_ONE_PROCESS = 10  # games; then another process goes on, with another seed
TRIES = 3  # of one step: after two losses the doctor takes it


class Session:
    """One process of `quendle drive`, asked command by command."""

    def __init__(self, quendle, content, seed, edition, folder):
        self.process = subprocess.Popen(
            [quendle, "drive", "--content", content, "--user", folder, "--seed", str(seed), "--edition", str(edition)],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding="utf-8")

    def ask(self, *commands):
        """Carries the commands out; gives the answer to the last."""
        self.process.stdin.write("\n".join(commands) + "\n")
        self.process.stdin.flush()
        for command in commands:
            answer = json.loads(self.process.stdout.readline())
            if not answer["ok"]:
                raise RuntimeError(f"{command}: {answer}")
        return answer

    def close(self):
        self.process.stdin.close()
        self.process.wait()


def play_some(arguments, game, child, level, seed, count):
    """Plays so many steps in one process; gives a list of `Played`."""
    results = []
    with tempfile.TemporaryDirectory() as folder:
        session = Session(arguments.quendle, arguments.content, seed, arguments.edition, folder)
        try:
            session.ask("start", "press Picture1 1", f"set {LEVELS[level]} on", "press Picture1 1", "send cs_floor1hall1")
            for number in range(count):
                step = GAMES[game](session, Hand(child, 1000 * seed + number))
                step.prepare()
                results.append(step.take(TRIES))
        finally:
            session.close()
    return results


def measure(arguments, pool, game, child):
    """All games of one child; gives the list of `Played`."""
    level = arguments.level or child.level
    chunks = [min(IN_ONE_PROCESS, arguments.games - done) for done in range(0, arguments.games, IN_ONE_PROCESS)]
    jobs = [pool.submit(play_some, arguments, game, child, level, arguments.first + number, count)
            for number, count in enumerate(chunks)]
    return [played for job in jobs for played in job.result()]


def cell(results):
    if all(played.seconds is None for played in results):
        return "no game"
    return f"{sum(played.lost == 0 and played.taken for played in results)} of {len(results)}"


def told(game, child, results):
    """One line of detail: how long the won games took, and how the others ended."""
    won = [played.seconds for played in results if played.seconds is not None and played.lost == 0]
    line = f"{game:8} {child.name:15} taken after two losses at most {sum(played.taken for played in results)} of {len(results)}"
    if won:
        line += f"; won in {statistics.median(won):.0f} s (half of them), {max(won):.0f} s at most"
    for reason, count in collections.Counter(played.reason for played in results if played.reason).most_common():
        line += f"; {count} {reason}"
    return line


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("quendle", type=lambda path: str(pathlib.Path(path).resolve()))
    parser.add_argument("content", type=lambda path: str(pathlib.Path(path).resolve()))
    parser.add_argument("--game", choices=GAMES)
    parser.add_argument("--child", choices=[child.name for child in CHILDREN])
    parser.add_argument("--level", choices=LEVELS, help="instead of the level of each child")
    parser.add_argument("--games", type=int, default=100)
    parser.add_argument("--first", type=int, default=1, help="seed of the first process")
    parser.add_argument("--edition", type=int, default=2)
    parser.add_argument("--at-once", type=int, default=2, help="processes")
    parser.add_argument("--verbose", action="store_true", help="each game of its own")
    arguments = parser.parse_args()
    children = [child for child in CHILDREN if arguments.child in (None, child.name)]
    games = [arguments.game] if arguments.game else list(GAMES)
    rows, details, stuck = [], [], False
    with concurrent.futures.ThreadPoolExecutor(arguments.at_once) as pool:
        for game in games:
            row = [game]
            for child in children:
                results = measure(arguments, pool, game, child)
                row.append(cell(results))
                details.append(told(game, child, results))
                stuck = stuck or not all(played.taken for played in results)
                print(details[-1], flush=True)
                if arguments.verbose:
                    for number, played in enumerate(results):
                        print(f"  {number}: {played}")
            rows.append(row)
    print()
    print("| won at the first try | " + " | ".join(f"{child.name}, {arguments.level or child.level}" for child in children) + " |")
    print("|---|" + "---|" * len(children))
    for row in rows:
        print("| " + " | ".join(row) + " |")
    return 1 if stuck else 0


if __name__ == "__main__":
    sys.exit(main())
