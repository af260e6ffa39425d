#!/usr/bin/env python3
"""Every test of the project, step by step. Called by ./check, which installs what this needs.

Each step prints what it does and how long it took; the output of a step that failed is shown, and
all of it is kept in build/check/. The last line is `N passed, N failed`: one for each unit test and
scenario (in release and again under the sanitizers) and one for each other step.
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
LOGS = ROOT / "build/check"
BIN = ROOT / "build/release/bin"
JOBS = str(len(os.sched_getaffinity(0)))
SHOWN_LINES = 120
QUIET_SECONDS = 30


def run(name, *command):
    """Runs a command into build/check/NAME.log; prints a sign of life now and then.
    Returns whether it succeeded; shows the end of the log if it didn't."""
    log = LOGS / f"{name}.log"
    spoke = time.monotonic()
    with log.open("a") as out:
        process = subprocess.Popen([str(word) for word in command], cwd=ROOT, text=True,
                                   errors="replace", stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT)
        for line in process.stdout:
            out.write(line)
            if time.monotonic() - spoke > QUIET_SECONDS:
                spoke = time.monotonic()
                print("   ...", line.rstrip()[:100], flush=True)
    if process.wait() != 0:
        show(log)
    return process.returncode == 0


def show(log):
    lines = log.read_text(errors="replace").splitlines()
    first = next((i for i, line in enumerate(lines) if line.startswith("FAILED:")), 0)
    shown = lines[first:first + SHOWN_LINES] if first else lines[-SHOWN_LINES:]
    print("\n".join("   | " + line for line in shown))


def sources(*tops, suffixes=(".h", ".cpp")):
    return sorted(p for top in tops for p in (ROOT / top).rglob("*") if p.suffix in suffixes)


def step_format():
    """Formatting, compared with what clang-format makes"""
    files = sources("src", "apps", "tests", "bench", "fuzz")
    return run("format", "clang-format", "--dry-run", "--Werror", *files), 1


def step_python():
    """Python: names, imports, layout"""
    files = sorted(p for p in ROOT.rglob("*.py") if not p.is_relative_to(ROOT / "build"))
    # A line that draws a shape is as long as the shape; operators and slices stand as they read.
    return (run("python", "pyflakes3", *files)
            and run("python", "pycodestyle", "--ignore=E203,E501,W503,W504", *files)), 1


def step_rooms():
    """The include rule between rooms"""
    script = ROOT / "scripts/check_rooms.py"
    return (run("rooms", sys.executable, script, "--self-test")
            and run("rooms", sys.executable, script)), 1


def step_includes():
    """Each file includes what it names, each header compiles by itself"""
    script = ROOT / "scripts/check_includes.py"
    return (run("includes", sys.executable, script, "--self-test")
            and run("includes", sys.executable, script, "--compile", "c++")), 1


def step_packages():
    """Each package that is installed has its reason in the README"""
    setup = (ROOT / "scripts/setup.sh").read_text()
    names = " ".join(re.findall(r"packages=\((.*?)\)", setup, re.S)).split()
    readme = (ROOT / "README.md").read_text()
    missing = [name for name in names if f"`{name}`" not in readme]
    if missing:
        print("   not in the README's table:", *missing)
    return not missing, 1


def step_clang():
    """The engine and the backends with another compiler and standard library: clang, libc++"""
    libraries = ("sdl2", "SDL2_ttf", "openal", "libavformat", "libavcodec", "libavutil")
    found = subprocess.run(["pkg-config", "--cflags", *libraries], capture_output=True, text=True,
                           check=True)
    toolbelt = ROOT / "src/toolbelt"
    listing = LOGS / "clang.files"
    listing.write_text("\n".join(str(p) for p in sources("src", suffixes=(".cpp",))
                                 if not p.is_relative_to(toolbelt)))
    return run("clang", "xargs", "-a", listing, "-P", JOBS, "-n", "1", "clang++", "-fsyntax-only",
               "-std=c++20", "-stdlib=libc++", "-Wall", "-Wextra", "-Werror",
               '-DQUENDLE_VERSION="0"', f"-I{ROOT / 'src'}", *found.stdout.split()), 1


def step_build():
    """The release build, warnings as errors, and the demo content"""
    return (run("build", "cmake", "--preset", "release")
            and run("build", "cmake", "--build", "--preset", "release", "-j", JOBS)
            and run("build", "cmake", "--build", "--preset", "release", "--target", "content")), 1


def step_tidy():
    """clang-tidy, the checks of .clang-tidy"""
    database = json.loads((ROOT / "build/release/compile_commands.json").read_text())
    built = {entry["file"] for entry in database}
    files = [str(p) for p in sources("src", "apps", suffixes=(".cpp",)) if str(p) in built]
    listing = LOGS / "tidy.files"
    listing.write_text("\n".join(files))
    return run("tidy", "xargs", "-a", listing, "-P", JOBS, "-n", "4",
               "clang-tidy", "-p", "build/release", "--quiet"), 1


def step_tests():
    """Unit tests and scenarios, release build"""
    return run_tests("release")


def step_content():
    """The demo content, verified"""
    return run("content", BIN / "quendle", "verify", BIN), 1


def step_docs():
    """The pages: links, tests that they name, and the examples, played and broken"""
    return (run("docs", sys.executable, ROOT / "docs/check_docs.py")
            and run("docs", sys.executable, ROOT / "docs/formats/check_examples.py",
                    BIN / "quendle", BIN)), 1


def step_faults():
    """Real games, killed at many moments: the next start has all that was kept"""
    return run("faults", sys.executable, ROOT / "tests/faults/kills.py", BIN / "quendle", 400), 1


def step_sanitizers():
    """Unit tests and scenarios under the address and undefined-behaviour sanitizers"""
    if not (run("asan-build", "cmake", "--preset", "asan")
            and run("asan-build", "cmake", "--build", "--preset", "asan", "-j", JOBS)):
        return False, 1
    return run_tests("asan")


STEPS = {function.__name__.removeprefix("step_"): function for function in (
    step_format, step_python, step_rooms, step_includes, step_packages, step_clang, step_build,
    step_tidy, step_tests, step_content, step_docs, step_faults, step_sanitizers)}
NEED_BUILD = {"tidy", "tests", "content", "docs", "faults", "sanitizers"}


def run_tests(preset):
    """Runs ctest; returns (all well, (passed, failed)) counted test by test."""
    reports = ROOT / "build" / preset / "reports"
    shutil.rmtree(reports, ignore_errors=True)
    summary = LOGS / f"{preset}-tests.xml"
    summary.unlink(missing_ok=True)
    well = run(f"{preset}-tests", "ctest", "--preset", preset, "-j", JOBS,
               "--output-junit", summary)
    if not summary.exists():
        return False, 1
    passed = failed = units = 0
    for case in ElementTree.parse(summary).getroot().iter("testcase"):
        if case.find("skipped") is not None:
            print("   skipped:", case.get("name"))
            continue
        good = case.get("status") == "run"
        counted = unit_counts(reports / f"{case.get('name')}.json")
        units += counted is not None
        if counted is None:
            counted = (1, 0) if good else (0, 1)
        elif not good and counted[1] == 0:
            counted = (counted[0], 1)  # all tests passed, and the process failed: a leak, say
        passed += counted[0]
        failed += counted[1]
    if failed == 0 and not (well and units):
        failed = 1  # the runner itself failed, or no unit tests were built
    return well and failed == 0, (passed, failed)


def unit_counts(report):
    """(passed, failed) of one test executable's own report, or None without one."""
    try:
        told = json.loads(report.read_text())
    except (OSError, ValueError):
        return None
    failed = told["failures"] + told["errors"]
    return told["tests"] - told["disabled"] - failed, failed


def main():
    if sys.argv[1:2] == ["mutants"]:
        return subprocess.call([sys.executable, ROOT / "scripts/mutate.py", *sys.argv[2:]])
    wanted = sys.argv[1:] or list(STEPS)
    unknown = [word for word in wanted if word not in STEPS]
    if unknown:
        print("no such step:", *unknown, "- steps:", *STEPS)
        return 2
    if NEED_BUILD.intersection(wanted):
        wanted.append("build")
    shutil.rmtree(LOGS, ignore_errors=True)
    LOGS.mkdir(parents=True)
    passed, failed, built = 0, 0, True
    for name, function in ((n, f) for n, f in STEPS.items() if n in wanted):
        print(f"== {name}: {function.__doc__}", flush=True)
        started = time.monotonic()
        if name in NEED_BUILD and not built:
            print("   FAILED: the build failed")
            failed += 1
            continue
        well, counts = function()
        if name == "build":
            built = well
        gained, lost = counts if isinstance(counts, tuple) else (int(well), int(not well))
        passed, failed = passed + gained, failed + lost
        print(f"   {'ok' if well else 'FAILED'}: {gained} passed, {lost} failed, "
              f"{time.monotonic() - started:.0f} s", flush=True)
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
