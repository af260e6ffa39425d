#!/usr/bin/env python3
"""Starts the game after a run that did not end in order, so that it asks for the safe mode, and ends
it by a signal while that question stands: it ends at once and in order, and the question is not
answered. `ended_by_the_system.py GAME CONTENT`.
"""

import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

TIME_LIMIT = 60


def text_of(path):
    return path.read_text().strip() if path.is_file() else "(none)"


def wait_for(path, game):
    """True when the file is there before the game has ended."""
    end = time.monotonic() + TIME_LIMIT
    while time.monotonic() < end and game.poll() is None:
        if path.is_file():
            return True
        time.sleep(0.02)
    return False


def problems(game_path, content, user):
    (user / "GameRunning.txt").write_text("On\r\n")
    game = subprocess.Popen([game_path, "--content", content, "--user", user],
                            env={**os.environ, "SDL_VIDEODRIVER": "dummy"})
    try:
        # Written on the way to the question.
        if not wait_for(user / "GameMode.txt", game):
            return ["the game did not come to its question"]
        game.send_signal(signal.SIGTERM)
        code = game.wait(TIME_LIMIT)
    except subprocess.TimeoutExpired:
        return ["the signal did not end the game"]
    finally:
        game.kill()
        game.wait()
    found = []
    if code != 0:
        found.append(f"the game ended with {code}")
    for name, wanted in [("GameMode.txt", "Normal"), ("GameRunning.txt", "On"),
                         ("DifficultyLevel.txt", "Normal")]:
        if text_of(user / name) != wanted:
            found.append(f"{name} holds {text_of(user / name)}, not {wanted}")
    return found


def main():
    game_path, content = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        found = problems(game_path, content, pathlib.Path(folder))
    print("\n".join(found) or "the game ends when the system says so, and answers nothing")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
