#!/usr/bin/env python3
"""Searches with every fuzz target, and keeps what it finds.

    ./check fuzz [MINUTES] [TARGET...]

Builds the targets with clang and libFuzzer, runs each for MINUTES (5 if nothing is said) on seeds
from the demo content and on fuzz/corpus, and prints how many cases it ran a second. Inputs that reach
something new are merged into fuzz/corpus/TARGET, small ones only and no more than a few, so that the
corpus stays a quick test. An input that breaks something is left in build/fuzz/broken/.
"""

import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/fuzz"
CORPUS = ROOT / "fuzz/corpus"
CONTENT = ROOT / "build/release/bin"
PHOTOGRAPH = ROOT / "tests/data/photograph.jpg"
MOST_MEMORY = 512  # MB, for any case
LARGEST_KEPT = 4_000  # bytes of an input
MOST_KEPT = 12  # new inputs of one target in one run


def build():
    subprocess.run(["cmake", "--preset", "fuzz"], cwd=ROOT, check=True)
    subprocess.run(["cmake", "--build", BUILD, "--target", *(f"fuzz_{t}" for t in all_targets())],
                   cwd=ROOT, check=True)


def all_targets():
    return sorted(path.name for path in CORPUS.iterdir() if path.is_dir())


def make_seeds():
    seeds = BUILD / "seeds"
    if not (CONTENT / "Info").is_dir():
        print("   no made content in build/release/bin: only fuzz/corpus is begun with")
        return seeds
    subprocess.run([sys.executable, ROOT / "fuzz/make_seeds.py", CONTENT, seeds, "--photographs",
                    PHOTOGRAPH], cwd=ROOT, check=True)
    return seeds


def run(target, seconds, seeds):
    """Searches; gives (cases a second, whether nothing broke)."""
    found = BUILD / "found" / target
    broken = BUILD / "broken" / target
    for folder in (found, broken):
        folder.mkdir(parents=True, exist_ok=True)
    folders = [found, CORPUS / target] + [f for f in (seeds / target,) if f.is_dir()]
    log = BUILD / f"{target}.log"
    with log.open("w") as out:
        code = subprocess.run(
            ["nice", "-n", "10", BUILD / "fuzz" / f"fuzz_{target}", f"-max_total_time={seconds}",
             f"-rss_limit_mb={MOST_MEMORY}", "-timeout=10", "-print_final_stats=1",
             f"-artifact_prefix={broken}/", *folders],
            cwd=ROOT, stdout=out, stderr=subprocess.STDOUT, check=False).returncode
    rate = re.search(r"average_exec_per_sec:\s*(\d+)", log.read_text(errors="replace"))
    return int(rate.group(1)) if rate else 0, code == 0


def keep(target):
    """Merges what reaches something that fuzz/corpus doesn't; gives how many came."""
    merged = BUILD / "merged" / target
    shutil.rmtree(merged, ignore_errors=True)
    merged.mkdir(parents=True)
    for path in (CORPUS / target).iterdir():
        shutil.copy(path, merged)
    before = {path.name for path in merged.iterdir()}
    subprocess.run([BUILD / "fuzz" / f"fuzz_{target}", "-merge=1", merged, BUILD / "found" / target],
                   cwd=ROOT, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    new = [path for path in merged.iterdir()
           if path.name not in before and path.stat().st_size <= LARGEST_KEPT]
    new = sorted(new, key=lambda path: path.stat().st_size)[:MOST_KEPT]
    for path in new:
        shutil.copy(path, CORPUS / target / f"found-{path.name[:10]}")
    return len(new)


def main():
    words = sys.argv[1:]
    minutes = float(words.pop(0)) if words and re.fullmatch(r"[\d.]+", words[0]) else 5
    unknown = [word for word in words if word not in all_targets()]
    if unknown:
        print("no such target:", *unknown, "- targets:", *all_targets())
        return 2
    build()
    seeds = make_seeds()
    broken = 0
    for target in words or all_targets():
        rate, well = run(target, int(minutes * 60), seeds)
        kept = keep(target) if well else 0
        broken += not well
        print(f"{target}: {rate} cases a second, {kept} kept"
              f"{'' if well else f', BROKEN: build/fuzz/broken/{target}, build/fuzz/{target}.log'}",
              flush=True)
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main())
