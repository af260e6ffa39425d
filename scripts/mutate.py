#!/usr/bin/env python3
"""Plants one-line faults in a room and tells which of them no test notices.

Each fault stands alone. Its unit is built with the room's test executable, and the room's tests
run; what they let pass goes on to the scenarios, played by a `quendle` with the fault in it. What
passes those as well is a survivor: a rule that no test holds, or a fault that changes nothing.

The faults stand in a copy of the tree, build/mutants/tree, never in the tree itself. A fault that
was left there by a run that was stopped is gone with the next run's copy.

Exit code 0 without survivors, 1 with some, 2 when nothing could be tried.
"""

import argparse
import collections
import json
import os
import pathlib
import random
import re
import resource
import signal
import subprocess
import sys
import time

import mutations

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build/mutants"
COPY = WORK / "tree"
BUILD = COPY / "build/dev"  # as deep as any other, so that a compiler cache knows its files
NOT_COPIED = ("content/",)
MEMORY = 4 << 30  # bytes that a test may take; a fault may ask for all there is
OUTPUT = 64 << 20  # bytes that it may write
SLOWER = 5  # how much longer than without a fault tests may take
LEAST_SECONDS = 20
BUILD_SECONDS = 900
# A fault isn't the compiler's to find for want of brackets around "and" within "or".
QUIET = '#pragma GCC diagnostic ignored "-Wparentheses"\n#line 1\n'
FAILED = re.compile(r"^\[  FAILED  \] ([^\s,]+)", re.M)


class Trouble(Exception):
    """Nothing can be tried: the message tells why."""


def limit_process():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (OUTPUT, OUTPUT))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(command, seconds, log, cwd, limited=False):
    """Runs a command in a session of its own, its output in the file `log`. Gives the exit code, or
    None when its time is over; whatever it started ends with it."""
    environment = dict(os.environ, SDL_VIDEODRIVER="dummy", SDL_AUDIODRIVER="dummy",
                       ALSOFT_DRIVERS="null")
    with log.open("w") as out:
        # The limits hold for the command alone, and this program has no threads.
        process = subprocess.Popen(  # pylint: disable=consider-using-with,subprocess-popen-preexec-fn
            [str(word) for word in command], cwd=cwd, env=environment, stdin=subprocess.DEVNULL,
            stdout=out, stderr=subprocess.STDOUT, start_new_session=True,
            preexec_fn=limit_process if limited else None)
        try:
            return process.wait(seconds)
        except subprocess.TimeoutExpired:
            return None
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()


def listed_files(root):
    """Paths of the files that belong to the tree, as git knows them."""
    listing = subprocess.run(["git", "-C", root, "ls-files", "-co", "--exclude-standard", "-z"],
                             capture_output=True, text=True, check=True).stdout
    return sorted(path for path in listing.split("\0")
                  if path and not path.startswith(NOT_COPIED) and (root / path).is_file())


def refresh(source, copy, paths):
    """Makes the copy equal to its source. Files that are equal already keep their times, so that a
    build in the copy goes on where the last one ended."""
    wanted = set(paths)
    for old in list(copy.rglob("*")):
        path = str(old.relative_to(copy))
        if old.is_file() and path not in wanted and not path.startswith("build/"):
            old.unlink()
    for path in paths:
        data, target = (source / path).read_bytes(), copy / path
        if not target.exists() or target.read_bytes() != data:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(data)
            target.chmod((source / path).stat().st_mode)


class Bench:
    """Builds and tests one room in the copy."""

    def __init__(self, room, content, jobs):
        self.test = f"test_{room.split('/')[-1]}"
        self.content = content
        self.jobs = jobs
        self.log = WORK / f"{room.replace('/', '_')}.log"
        self.cwd = WORK / "cwd"
        self.cwd.mkdir(parents=True, exist_ok=True)
        self.seconds = LEAST_SECONDS
        self.scenario_seconds = LEAST_SECONDS

    def prepare(self):
        """The build without a fault, its tests green, and how long they take."""
        configure = ["cmake", "--preset", "dev", f"-DQUENDLE_CONTENT_DIR={self.content}"]
        if run(configure, BUILD_SECONDS, self.log, COPY) != 0 or not self.build("quendle"):
            raise Trouble(f"the build without a fault fails: {self.log}")
        if not self.build(self.test):
            raise Trouble(f"{self.test} can't be built: {self.log}")
        self.seconds = self.timed(self.failing_tests)
        if self.scenarios():
            self.scenario_seconds = self.timed(self.failing_scenario)

    def timed(self, check):
        started = time.monotonic()
        failed = check(BUILD_SECONDS)
        if failed:
            raise Trouble(f"without a fault this fails: {failed}")
        return max(LEAST_SECONDS, SLOWER * (time.monotonic() - started))

    def build(self, target):
        return run(["cmake", "--build", BUILD, "--target", target, "-j", self.jobs], BUILD_SECONDS,
                   self.log, COPY) == 0

    def failing_tests(self, seconds):
        """The first test of the room that fails, or how they ended; empty when all pass."""
        code = run([BUILD / "tests" / self.test, "--gtest_brief=1", "--gtest_fail_fast"], seconds,
                   self.log, self.cwd, limited=True)
        if code == 0:
            return ""
        if code is None:
            return "time is over"
        names = FAILED.findall(self.log.read_text(errors="replace"))
        return names[0] if names else f"ended with {code}"

    def scenarios(self):
        made = (self.content / "Info").is_dir() or (self.content / "info").is_dir()
        return sorted((ROOT / "tests/scenarios").glob("*.drive")) if made else []

    def failing_scenario(self, seconds):
        """The first scenario that fails; empty when all pass."""
        for scenario in self.scenarios():
            code = run([sys.executable, COPY / "tests/scenarios/run.py", BUILD / "bin/quendle",
                        self.content, scenario], seconds, self.log, self.cwd)
            if code != 0:
                return f"scenario.{scenario.stem}"
        return ""

    def fate(self):
        """(what became of the fault that stands in the copy, by which test)."""
        if not self.build(self.test):
            return "not built", ""
        failed = self.failing_tests(self.seconds)
        if failed:
            return "tests", failed
        if not self.scenarios():
            return "survived", ""
        if not self.build("quendle"):
            return "not built", ""
        failed = self.failing_scenario(self.scenario_seconds)
        return ("scenarios", failed) if failed else ("survived", "")


def chosen(sources, count, seed):
    """`count` faults of the sources {path: text}, the same for each seed: first a kind, then one of
    that kind, so that rare ones come as well. In the order of their places."""
    kinds = collections.defaultdict(list)
    for path, text in sorted(sources.items()):
        for mutant in mutations.mutants_of(text):
            kinds[mutant.operator].append((path, mutant))
    generator = random.Random(seed)
    found = []
    while kinds and len(found) < count:
        kind = generator.choice(sorted(kinds))
        found.append(kinds[kind].pop(generator.randrange(len(kinds[kind]))))
        if not kinds[kind]:
            del kinds[kind]
    return sorted(found, key=lambda entry: (entry[0], entry[1].start, entry[1].operator))


def difference(text, mutant):
    """The lines that the fault stands in, without it and with it."""
    first = mutant.line(text) - 1
    old = text.split("\n")[first:first + mutant.old.count("\n") + 1]
    new = mutant.apply(text).split("\n")[first:first + mutant.new.count("\n") + 1]
    return ["-" + line for line in old] + ["+" + line for line in new]


def plant_all(bench, sources, faults):
    """Plants one fault after the other; yields (path, mutant, fate, witness)."""
    for path, mutant in faults:
        text = sources[path]
        try:
            (COPY / path).write_text(QUIET + mutant.apply(text), encoding="latin-1")
            fate, witness = bench.fate()
        finally:
            (COPY / path).write_text(text, encoding="latin-1")
        yield path, mutant, fate, witness


def sources_of(room, wanted):
    """{path: text} of the room's sources, or of the one that is wanted."""
    folder = ROOT / "src" / room
    paths = [path for path in sorted(folder.rglob("*.cpp"))
             if wanted is None or path.name == wanted or path.stem == wanted]
    if wanted is not None and not paths:
        paths = [path for path in folder.rglob("*.h") if path.name == wanted]
    if not paths:
        raise Trouble(f"no source {wanted or ''} in src/{room}")
    return {str(path.relative_to(ROOT)): path.read_text(encoding="latin-1") for path in paths}


def report(survivors, fates):
    for entry in survivors:
        print(f"\n{entry['file']}:{entry['line']}: {entry['operator']}")
        print("\n".join(entry["diff"]))
    print("\n" + ", ".join(f"{count} {fate}" for fate, count in sorted(fates.items())))


def options(words):
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0],
                                     prog="./check mutants")
    parser.add_argument("room", help="a folder of src/ that has tests, such as logic")
    parser.add_argument("--count", type=int, default=30, help="faults to plant (30)")
    parser.add_argument("--seed", type=int, default=1, help="which ones (1)")
    parser.add_argument("--file", help="only in this source of the room; a header by its full name")
    parser.add_argument("--content", type=pathlib.Path, default=ROOT / "build/release/bin",
                        help="the made demo content, for the scenarios (build/release/bin)")
    parser.add_argument("--jobs", default=str(len(os.sched_getaffinity(0))),
                        help="compilers at once")
    return parser.parse_args(words)


def main(words):
    chosen_options = options(words)
    try:
        sources = sources_of(chosen_options.room, chosen_options.file)
        refresh(ROOT, COPY, listed_files(ROOT))
        bench = Bench(chosen_options.room, chosen_options.content.resolve(), chosen_options.jobs)
        print("building without a fault ...", flush=True)
        bench.prepare()
    except Trouble as trouble:
        print(trouble, file=sys.stderr)
        return 2
    if not bench.scenarios():
        print(f"no made content in {bench.content}: no scenario is played")
    os.environ["CCACHE_READONLY"] = "1"  # nobody builds a fault twice
    faults = chosen(sources, chosen_options.count, chosen_options.seed)
    fates = collections.Counter()
    results = []
    for path, mutant, fate, witness in plant_all(bench, sources, faults):
        line = mutant.line(sources[path])
        number = f"{len(results) + 1}/{len(faults)}"
        print(f"{number} {path}:{line}: {mutant.operator}: {fate} {witness}", flush=True)
        fates[fate] += 1
        results.append({"file": path, "line": line, "operator": mutant.operator, "fate": fate,
                        "witness": witness, "diff": difference(sources[path], mutant)})
    bench.log.with_suffix(".json").write_text(json.dumps(results, indent=1))
    report([entry for entry in results if entry["fate"] == "survived"], fates)
    return 1 if fates["survived"] else 0


if __name__ == "__main__":
    signal.signal(signal.SIGTERM, signal.default_int_handler)  # a stop from outside cleans up too
    try:
        sys.exit(main(sys.argv[1:]))
    except KeyboardInterrupt:
        print("\nstopped: the tree itself holds no fault", file=sys.stderr)
        sys.exit(130)
