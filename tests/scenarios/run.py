#!/usr/bin/env python3
"""Plays scenario files through `quendle drive` and compares the answers.

Usage: run.py QUENDLE CONTENT FILE.drive... [--update] [--keep DIR]

  --update    rewrites the values of the expected lines with those that came
  --keep DIR  leaves the pictures that the scenario saves there, and what the game wrote

Prints the first difference of each file. Exit code 0 when all answers are as expected, else 1.
The format is told in README.md beside this file.
"""

import argparse
import json
import pathlib
import shlex
import subprocess
import sys
import tempfile

REST = "..."  # at the front of an expected list: these, in this order, among others
RESTART = "---"
TIME_LIMIT = 240  # seconds a process
DATA_WORD = "{data}"  # in a command: the folder tests/data
DATA = pathlib.Path(__file__).resolve().parent.parent / "data"


class Step:
    """One command with what is expected of its answer."""

    def __init__(self, number, command):
        self.number = number  # line of the file, from 1
        self.command = command
        self.expected = []  # (line number, fields)


class Run:
    """The commands of one process."""

    def __init__(self, options):
        self.options = options
        self.steps = []


class FormatError(Exception):
    pass


def read_runs(lines):
    runs = [Run([])]
    for number, line in enumerate(lines, 1):
        text = line.strip()
        if text.startswith(RESTART):
            runs.append(Run(shlex.split(text[len(RESTART):])))
        elif text.startswith("#:"):
            runs[-1].options += shlex.split(text[2:])
        elif text.startswith(">"):
            if not runs[-1].steps:
                raise FormatError(f"{number}: an expectation without a command")
            try:
                fields = json.loads(text[1:])
            except ValueError as error:
                raise FormatError(f"{number}: {error}") from error
            runs[-1].steps[-1].expected.append((number, fields))
        elif text and not text.startswith("#"):
            runs[-1].steps.append(Step(number, text))
    return runs


def show(value):
    return json.dumps(value, ensure_ascii=False)


def difference(expected, actual, path=""):
    """The first difference as a text, or None. Fields that are not expected may be anything."""
    if isinstance(expected, dict):
        if not isinstance(actual, dict):
            return f"{path or 'answer'}: expected an object, got {show(actual)}"
        for key, value in expected.items():
            place = f"{path}.{key}" if path else key
            if key not in actual:
                return f"{place}: expected {show(value)}, there is no such field"
            found = difference(value, actual[key], place)
            if found:
                return found
        return None
    if isinstance(expected, list):
        return list_difference(expected, actual, path)
    if type(expected) is not type(actual) and not (is_number(expected) and is_number(actual)):
        return f"{path}: expected {show(expected)}, got {show(actual)}"
    return None if expected == actual else f"{path}: expected {show(expected)}, got {show(actual)}"


def is_number(value):
    return isinstance(value, (int, float)) and not isinstance(value, bool)


def list_difference(expected, actual, path):
    if not isinstance(actual, list):
        return f"{path}: expected a list, got {show(actual)}"
    if expected[:1] == [REST]:
        left = list(actual)
        for wanted in expected[1:]:
            while left and difference(wanted, left[0]) is not None:
                left.pop(0)
            if not left:
                return f"{path}: {show(wanted)} is not in {show(actual)}"
            left.pop(0)
        return None
    if len(expected) != len(actual):
        return f"{path}: expected {show(expected)}, got {show(actual)}"
    for index, wanted in enumerate(expected):
        found = difference(wanted, actual[index], f"{path}[{index}]")
        if found:
            return found
    return None


def updated(expected, actual):
    """The expected value in its own shape, with the values that came."""
    if isinstance(expected, dict) and isinstance(actual, dict):
        return {key: updated(value, actual[key]) for key, value in expected.items()
                if key in actual}
    if difference(expected, actual) is None:
        return expected
    if isinstance(expected, list) and isinstance(actual, list) and len(expected) == len(actual):
        return [updated(wanted, came) for wanted, came in zip(expected, actual)]
    return actual


def play(quendle, content, run, folder):
    """The answers of one process, and its exit code."""
    user = folder / "user"
    command = [quendle, "drive", "--content", content, "--user", str(user), *run.options]
    text = "".join(step.command.replace(DATA_WORD, str(DATA)) + "\n" for step in run.steps)
    done = subprocess.run(command, input=text, capture_output=True, encoding="utf-8", cwd=folder,
                          timeout=TIME_LIMIT, check=False)
    return done.stdout.splitlines(), done.returncode, done.stderr.strip()


def check_run(run, answers, code, errors):
    """Yields (step, answer, text of the difference)."""
    fatal = False
    for index, step in enumerate(run.steps):
        if index >= len(answers):
            yield step, None, f"no answer: the process had ended (code {code}) {errors}".rstrip()
            return
        answer = json.loads(answers[index])
        fatal = "fatal" in answer
        if not step.expected and not answer.get("ok"):
            yield step, answer, "the command was not carried out, and nothing else was expected"
        for _, fields in step.expected:
            found = difference(fields, answer)
            if found:
                yield step, answer, found
    if code != (3 if fatal else 0):
        yield run.steps[-1], None, f"the process ended with code {code} {errors}".rstrip()


def update_lines(lines, run, answers):
    for step, answer in zip(run.steps, answers):
        for number, fields in step.expected:
            wanted = updated(fields, json.loads(answer))
            if wanted != fields:
                indent = lines[number - 1][:lines[number - 1].index(">")]
                lines[number - 1] = f"{indent}> {show(wanted)}"


def run_scenario(quendle, content, file, update, folder):
    """True when all went as expected."""
    lines = file.read_text(encoding="utf-8").splitlines()
    try:
        runs = read_runs(lines)
    except FormatError as error:
        print(f"{file}:{error}")
        return False
    good, first = True, None
    for run in runs:
        if not run.steps:
            continue
        answers, code, errors = play(quendle, content, run, folder)
        if update:
            update_lines(lines, run, answers)
        for found in check_run(run, answers, code, errors):
            good, first = False, first or found
        if not good and not update:
            break
    if update:
        file.write_text("\n".join(lines) + "\n", encoding="utf-8")
        print(f"{file}: rewritten" if not good else f"{file}: as it was")
        return True
    if first:
        step, answer, text = first
        print(f"{file}:{step.number}: {step.command}\n  {text}")
        if answer is not None:
            print(f"  the answer: {show(answer)}")
    return good


def prove_that_it_compares():
    """A comparison that finds nothing wrong would be worse than none."""
    answer = {"ok": True, "screen": "hall", "list": [{"a": 1, "b": 2}, {"a": 3}], "none": None}
    for same in ({}, {"screen": "hall"}, {"list": [{"a": 1}, {"a": 3}]},
                 {"list": [REST, {"a": 3}]}, {"none": None}):
        assert difference(same, answer) is None, same
    for other in ({"screen": "Hall"}, {"nothing": None}, {"ok": 1}, {"list": [{"a": 1}]},
                  {"list": [REST, {"a": 3}, {"a": 1}]}, {"list": [{"a": 2}, {"a": 3}]}):
        assert difference(other, answer) is not None, other


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("quendle")
    parser.add_argument("content")
    parser.add_argument("files", nargs="+", type=pathlib.Path)
    parser.add_argument("--update", action="store_true")
    parser.add_argument("--keep", type=pathlib.Path)
    arguments = parser.parse_args()
    prove_that_it_compares()
    quendle = str(pathlib.Path(arguments.quendle).resolve())
    content = str(pathlib.Path(arguments.content).resolve())
    good = True
    for file in arguments.files:
        with tempfile.TemporaryDirectory() as temporary:
            folder = pathlib.Path(temporary)
            if arguments.keep:
                folder = arguments.keep.resolve() / file.stem
                folder.mkdir(parents=True, exist_ok=True)
            good = run_scenario(quendle, content, file, arguments.update, folder) and good
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
