#!/usr/bin/env python3
"""Kills real games at many moments and looks what the next start remembers.

    kills.py QUENDLE [ROUNDS [SEED]]

One folder of a player goes through all rounds. In each a game is started, and sometimes killed while
it starts; what it remembers must be what was last known to be kept, or newer. Then the game moves on
by a step, and the process is killed (SIGKILL) while it keeps that step, or while it ends in order.
After each kill the saved game and the autosave must be whole. Prints the number of kills; with a
fault the folder is left, and the exit code is 1.
"""
import json
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import threading
import time

ROUNDS = 100
STEPS_A_ROUND = 2
SAVES = ("userdata.txt", "autosave.txt")


class Lost(Exception):
    pass


def make_content(quendle, folder, steps):
    """A small tree whose first screen has a state for each step."""
    subprocess.run([quendle, "new", folder], check=True, stdout=subprocess.DEVNULL)
    states = folder / "Info/introscreen/introscreenstates.txt"
    lines = states.read_text().splitlines()
    animation = lines[2]
    for step in range(steps):
        lines += [f"n{step}", "nothing", animation, "nothing", "unused", "unused"]
    states.write_text("\r\n".join(lines) + "\r\n")


def check_whole(player):
    for name in SAVES:
        file = player / name
        if not file.exists():
            continue
        lines = file.read_bytes().decode("cp1252", "replace").split("\r\n")
        depth = 0
        for line in lines:
            depth += (line == "begin") - (line == "end")
        if depth != 0 or lines[0] != "begin" or lines[-2:] != ["end", ""]:
            raise Lost(f"{name} is not whole")


class Game:
    """One process of `quendle drive`."""

    def __init__(self, quendle, content, player):
        self.process = subprocess.Popen(
            [quendle, "drive", "--forgiving", "--content", content, "--user", player],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def send(self, line):
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()

    def ask(self, line):
        self.send(line)
        answer = json.loads(self.process.stdout.readline() or '{"fatal": "no answer"}')
        if not answer.get("ok"):
            raise Lost(f"{line}: {answer}")
        return answer

    def kill_after(self, line, delay):
        """Sends the line and kills the process after the delay. The seconds that an answer took
        which came before, or none."""
        timer = threading.Timer(delay, self.process.kill)
        timer.start()
        begun = time.monotonic()
        try:
            self.send(line)
            answer = self.process.stdout.readline()
        except BrokenPipeError:
            answer = ""
        took = time.monotonic() - begun
        timer.join()
        self.end()
        if not answer.endswith("\n"):
            return None
        if not json.loads(answer)["ok"]:
            raise Lost(f"{line}: {answer}")
        return took

    def end(self):
        self.process.kill()
        self.process.wait()
        for pipe in (self.process.stdin, self.process.stdout):
            try:
                pipe.close()
            except BrokenPipeError:
                pass


class Rounds:
    def __init__(self, quendle, content, player, chance):
        self.start = lambda: Game(quendle, content, player)
        self.player = player
        self.chance = chance
        self.kept = -1  # the step that was last known to be kept
        self.made = -1  # the step that was last made
        self.kills = dict.fromkeys(("start", "autosave", "end"), 0)
        self.took = {}

    def play(self):
        """Starts a game, and holds what it remembers against what is known."""
        game = self.start()
        begun = time.monotonic()
        try:
            game.ask("play")
            state = game.ask("object introscreen")["object"]["state"]
        except Lost:
            game.end()
            raise
        self.took["start"] = time.monotonic() - begun
        remembered = -1 if state == "default" else int(state.removeprefix("n"))
        if not self.kept <= remembered <= self.made:
            game.end()
            raise Lost(f"step {remembered} is remembered; {self.kept} was kept, {self.made} made")
        self.kept = self.made = remembered
        return game

    def make_step(self, game):
        self.made += 1
        game.ask(f"tell introscreen changestate_n{self.made}")

    def kill(self, game, moment, line):
        """Kills the game at that moment of a round, unless it is quicker."""
        took = game.kill_after(line, self.chance.uniform(0, 1.2 * self.took[moment]))
        if took is not None:
            self.took[moment] = took
            if moment != "start":
                self.kept = self.made
        else:
            self.kills[moment] += 1
        check_whole(self.player)

    def measure(self):
        """How long a whole step and a whole end take."""
        game = self.play()
        self.make_step(game)
        for moment, line in (("autosave", "focus off"), ("end", "close")):
            begun = time.monotonic()
            game.ask(line)
            self.took[moment] = time.monotonic() - begun
        self.kept = self.made
        game.end()

    def round(self):
        if self.chance.random() < 0.5:
            self.kill(self.start(), "start", "play")
        game = self.play()
        self.make_step(game)
        if self.chance.random() < 0.4:
            self.kill(game, "autosave", "focus off")
            return
        if self.chance.random() < 0.7:
            game.ask("focus off")
            self.kept = self.made
            self.make_step(game)
        self.kill(game, "end", "close")


def main():
    if not 2 <= len(sys.argv) <= 4:
        print(__doc__)
        return 2
    quendle = pathlib.Path(sys.argv[1]).resolve()
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else ROUNDS
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(1 << 32)
    print(f"{rounds} rounds, seed {seed}", flush=True)
    folder = pathlib.Path(tempfile.mkdtemp(prefix="kills-"))
    content, player = folder / "content", folder / "player"
    make_content(quendle, content, STEPS_A_ROUND * (rounds + 2))
    player.mkdir()
    run = Rounds(quendle, content, player, random.Random(seed))
    done = 0
    try:
        run.measure()
        for done in range(1, rounds + 1):
            run.round()
        run.play().end()
    except Lost as lost:
        print(f"round {done}: {lost}\nleft in {folder}")
        return 1
    shutil.rmtree(folder)
    kills = ", ".join(f"{count} at {moment}" for moment, count in run.kills.items())
    print(f"{sum(run.kills.values())} kills ({kills}): nothing was lost")
    return 0


if __name__ == "__main__":
    sys.exit(main())
