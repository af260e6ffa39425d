#!/usr/bin/env python3
"""Tells how fair the clinic's games are to a child: plays them with a plain bot, many seeds each.

Usage: fairness.py QUENDLE CONTENT [--game NAME] [--level LEVEL] [--seeds N] [--first N]
                   [--click MS] [--look MS] [--aim PIXELS] [--verbose]

The bot plays the made content through `quendle drive`, as a child of three to eight would: one
click in 400 ms, never nearer to its aim than chance leaves it within 20 pixels, and a hand that
follows what it sees five times a second. It doesn't reckon ahead. Only the sliding picture is
solved by search, since whether a board can be won at all is the question there.

Prints one line a game: how many were won, how long a won game took, and why the others were lost.
Nothing is asserted: the numbers are for whoever changes the layout of a game.
"""

import argparse
import collections
import heapq
import json
import pathlib
import random
import statistics
import subprocess
import sys
import tempfile

GAMES = {
    # game: its screen, the room and the patient that lead to it, the state in which it is offered
    # (on Easy the clinic offers no germs; they are played all the same)
    "germs": ("shooterscreen", "dogroom", "dog", "default"),
    "mud": ("brickscreen", "turtleroom", "turtle", "default"),
    "fleas": ("bobblescreen", "catroom", "cat", "default"),
    "picture": ("squarescreen", "rabbitroom", "rabbit", "better1"),
}
LEVELS = {"Easy": "optEasy", "Normal": "optMedium", "Hard": "optHard"}
PLAY = (400, 300)  # the green button, and the orange one of a new bubble
LONGEST = 15 * 60 * 1000  # milliseconds; a game that isn't over then is given up
PATIENCE = 5000  # milliseconds in which a child waits for a clear shot
FORGET = 5000  # milliseconds after which what was traced is dropped
STEP = 50  # milliseconds from one look at the clock to the next


class Session:
    """One process of `quendle drive`, asked command by command."""

    def __init__(self, quendle, content, seed, folder):
        self.process = subprocess.Popen(
            [quendle, "drive", "--content", content, "--user", folder, "--seed", str(seed)],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding="utf-8")

    def ask(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        answer = json.loads(self.process.stdout.readline())
        if not answer["ok"]:
            raise RuntimeError(f"{command}: {answer}")
        return answer

    def close(self):
        self.process.stdin.close()
        self.process.wait()


class Player:
    """A child at one game: the clock, the hand, and what it looks at."""

    def __init__(self, session, skill, game, seed):
        self.session, self.skill, self.game = session, skill, game
        self.screen, self.room, self.patient, self.state = GAMES[game]
        self.hand = random.Random(seed)
        self.now, self.next_click, self.next_look = 0, 0, 0
        self.notes = collections.Counter()

    def enter(self, level):
        for command in ("start", "press Picture1 1", f"set {LEVELS[level]} on", "press Picture1 1",
                        f"send cs_{self.room}",
                        f"tell current/{self.patient} changestate_{self.state}",
                        f"interpret current/{self.patient} mtp subgame_{self.screen}"):
            self.session.ask(command)
        state = self.session.ask("state")
        if state["skipNextClick"]:
            self.session.ask(f"click {PLAY[0]} {PLAY[1]}")
        if state["screen"] != self.screen or state["difficulty"] != level:
            raise RuntimeError(f"no way to {self.screen} on {level}: {state}")
        self.session.ask(f"click {PLAY[0]} {PLAY[1]}")
        self.session.ask("trace on")

    def wait(self):
        """Lets a moment pass; tells whether the game goes on."""
        self.session.ask(f"tick {STEP}")
        self.now += STEP
        if self.session.ask("state")["screen"] != self.screen:
            return False
        if self.now % FORGET == 0:
            self.session.ask("events")
        return True

    def error(self):
        return self.hand.uniform(-self.skill.aim, self.skill.aim)

    def at(self, x, y):
        return f"{min(max(x, 0), 799):.0f} {min(max(y, 0), 599):.0f}"

    def click(self, x, y):
        self.session.ask(f"click {self.at(x + self.error(), y + self.error())}")
        self.next_click = self.now + self.skill.click
        self.notes["clicks"] += 1

    def point(self, x, y):
        self.session.ask(f"move {self.at(x + self.error(), y)}")

    def field(self):
        return self.session.ask("object current/playfield")["object"]

    def cells(self):
        screen = self.session.ask("tree")["object"]
        field = next(child for child in screen["children"] if child["name"] == "playfield")
        return [cell for cell in field["children"] if cell["visible"]]

    def play(self):
        """Plays to the end; gives "won", or why it was lost."""
        act = getattr(self, f"act_{self.game}")
        while self.now < LONGEST:
            if not self.wait():
                break
            act()
        else:
            return f"not over after {LONGEST // 60000} minutes"
        told = self.session.ask("events")["events"]
        won = any(event["kind"] == "message" and event["text"] == "subgame_won" for event in told)
        return "won" if won else self.reason()

    def reason(self):
        reason = self.notes.get("why", "")
        return reason or {"germs": "two drops fell on the bottle", "mud": "three bubbles fell",
                          "fleas": "five butterflies were clicked",
                          "picture": "the time was over"}[self.game]

    # Each of these is what the child does when it looks at the game once more.

    def act_germs(self):
        """Sprays right below the lowest germ; steps aside when a drop is near the bottle."""
        if self.now < self.next_look:
            return
        self.next_look = self.now + self.skill.look
        cells = self.cells()
        germs = [cell for cell in cells if cell["type"] in ("cell2", "cell3", "cell4")]
        bottle = next(cell for cell in cells if cell["name"] == "cell111")
        falling = self.falling(cells)
        if self.now >= self.next_click and germs:
            target = max(germs, key=lambda cell: cell["y"])
            self.click(target["x"] + 21, 540)
        near = [drop for drop in falling
                if drop["y"] > 330 and bottle["x"] - 40 < drop["x"] < bottle["x"] + 80]
        if near:
            drop = max(near, key=lambda cell: cell["y"])
            left = drop["x"] - 110
            self.point(left if left > 0 else drop["x"] + 70, 540)

    def falling(self, cells):
        """The drops that come down: lower than when they were last seen."""
        drops = {cell["name"]: cell for cell in cells if cell["name"].startswith("shot")}
        before, self.drops = getattr(self, "drops", {}), drops
        return [drop for name, drop in drops.items()
                if name in before and drop["y"] > before[name]["y"]]

    def act_mud(self):
        """Holds the soap below the bubble."""
        if self.now < self.next_look:
            return
        self.next_look = self.now + self.skill.look
        field = self.field()
        if field["m_nRunState"] == 2:
            if self.now >= self.next_click:
                self.click(*PLAY)
            return
        bubble = self.session.ask("object current/playfield/shot1")["object"]
        self.point(bubble["x"] + 18 - 75, 540)

    def act_fleas(self):
        """Clicks the flea that is farthest from all butterflies; one that never comes away from its
        butterfly is clicked all the same, after a while, and costs a life."""
        if self.now < self.next_click:
            return
        cells = self.cells()
        good = [cell for cell in cells if cell["type"] == "good"]
        fleas = [cell for cell in cells if cell["type"] == "bad" and 0 <= cell["x"] + 32 < 800
                 and 0 <= cell["y"] + 30 < 600]

        def room(flea):
            return min((max(abs(flea["x"] - cell["x"]), abs(flea["y"] - cell["y"]))
                        for cell in good), default=999)

        if fleas:
            best = max(fleas, key=room)
            if room(best) > 40 or self.now > self.next_click + PATIENCE:
                self.click(best["x"] + 32, best["y"] + 30)

    def act_picture(self):
        """Clicks the tiles of the shortest way; without one it waits for the end."""
        if self.now < self.next_click:
            return
        field = self.field()
        if field["m_bAnimating"] or field["m_bSolved"]:
            return
        board = tuple(int(place) for place in field["m_aBoard"].split())
        if not solvable(board):
            self.notes["why"] = "the board can't be solved"
            self.session.ask("tick 5000")
            return
        place = next_click(board)
        self.click(205 + place % 3 * 130 + 63, 66 + place // 3 * 130 + 63)


def solvable(board):
    tiles = [tile for tile in board if tile]
    turned = sum(a > b for i, a in enumerate(tiles) for b in tiles[i + 1:])
    return turned % 2 == 0


def away(board):
    return sum(abs((tile - 1) % 3 - place % 3) + abs((tile - 1) // 3 - place // 3)
               for place, tile in enumerate(board) if tile)


def next_click(board):
    """The place, from 0, of the tile that comes next on a shortest way to the finished picture."""
    goal = (1, 2, 3, 4, 5, 6, 7, 8, 0)
    heap, seen = [(away(board), 0, board, None)], set()
    while heap:
        _, moves, now, first = heapq.heappop(heap)
        if now == goal:
            return first
        if now in seen:
            continue
        seen.add(now)
        gap = now.index(0)
        for step in (-3, 3, -1, 1):
            tile = gap + step
            if not 0 <= tile < 9 or (abs(step) == 1 and tile // 3 != gap // 3):
                continue
            after = list(now)
            after[gap], after[tile] = after[tile], 0
            after = tuple(after)
            if after not in seen:
                heapq.heappush(heap, (moves + 1 + away(after), moves + 1, after,
                                      tile if first is None else first))
    return None


def play_once(arguments, game, level, seed):
    with tempfile.TemporaryDirectory() as folder:
        session = Session(arguments.quendle, arguments.content, seed, folder)
        try:
            player = Player(session, arguments, game, seed)
            player.enter(level)
            return player.play(), player.now / 1000
        finally:
            session.close()


def report(game, level, results):
    won = [seconds for outcome, seconds in results if outcome == "won"]
    lost = collections.Counter(outcome for outcome, _ in results if outcome != "won")
    line = f"{game:8} {level:7} won {len(won):3} of {len(results)}"
    if won:
        line += f", in {statistics.median(won):.0f} s (half of them), {max(won):.0f} s at most"
    for outcome, count in lost.most_common():
        line += f"; lost {count}: {outcome}"
    print(line, flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("quendle", type=lambda path: str(pathlib.Path(path).resolve()))
    parser.add_argument("content", type=lambda path: str(pathlib.Path(path).resolve()))
    parser.add_argument("--game", choices=GAMES)
    parser.add_argument("--level", choices=LEVELS)
    parser.add_argument("--seeds", type=int, default=100)
    parser.add_argument("--first", type=int, default=1)
    parser.add_argument("--click", type=int, default=400, help="milliseconds between two clicks")
    parser.add_argument("--look", type=int, default=200, help="milliseconds between two looks")
    parser.add_argument("--aim", type=float, default=20, help="pixels off the aim, at most")
    parser.add_argument("--verbose", action="store_true", help="each game of its own")
    arguments = parser.parse_args()
    for game in [arguments.game] if arguments.game else GAMES:
        # Only the shooter's pace knows the difficulty.
        levels = LEVELS if game == "germs" else ("Normal",)
        for level in [arguments.level] if arguments.level else levels:
            results = []
            for seed in range(arguments.first, arguments.first + arguments.seeds):
                results.append(play_once(arguments, game, level, seed))
                if arguments.verbose:
                    print(f"  {game} {level} seed {seed}: {results[-1][0]}, "
                          f"{results[-1][1]:.0f} s", flush=True)
            report(game, level, results)
    return 0


if __name__ == "__main__":
    sys.exit(main())
