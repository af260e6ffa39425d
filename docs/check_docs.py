#!/usr/bin/env python3
"""Checks the pages: every link leads somewhere, every test that oddities.md names exists, and
automation.md names the operations that can be made to fail."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LINK = re.compile(r"\[[^\]]*\]\(([^)]+)\)", re.S)
TEST = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+)\s*,\s*(\w+)\s*\)")


def anchor(heading):
    return re.sub(r"[^\w\- ]", "", heading.strip().lower()).replace(" ", "-")


def anchors(page):
    text = re.sub(r"```.*?```", "", page.read_text(), flags=re.S)
    return {anchor(heading) for heading in re.findall(r"^#+ (.*)$", text, re.M)}


def broken_links(page):
    text = re.sub(r"```.*?```", "", page.read_text(), flags=re.S)
    for link in LINK.findall(text):
        link = "".join(link.split()) if "\n" not in link else re.sub(r"\s+", "", link)
        if link.startswith(("http:", "https:", "mailto:")):
            continue
        name, _, part = link.partition("#")
        target = (page.parent / name).resolve() if name else page
        if not target.exists():
            yield f"{page.relative_to(ROOT)}: {link} leads nowhere"
        elif part and target.suffix == ".md" and part not in anchors(target):
            yield f"{page.relative_to(ROOT)}: {link}: no such heading"


def missing_tests():
    known = set()
    for source in (ROOT / "tests").rglob("*.cpp"):
        known |= {f"{suite}.{name}" for suite, name in TEST.findall(source.read_text())}
    page = (ROOT / "docs/oddities.md").read_text()
    for line in page.splitlines():
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if not line.startswith("|") or len(cells) < 3 or cells[2] in ("test", "---"):
            continue
        if not cells[1]:
            yield f"docs/oddities.md: no reason: {cells[0][:60]}"
        names = re.findall(r"`([\w.]+)`", cells[-1])
        if not names:
            yield f"docs/oddities.md: no test: {cells[0][:60]}"
        for name in names:
            if name not in known:
                yield f"docs/oddities.md: {name} is no test"


def operations_told_wrong():
    listed = (ROOT / "src/platform/Faults.h").read_text().split("kOperationsThatCanFail = {")[1]
    known = set(re.findall(r'"(\w+)"', listed.split("};")[0]))
    page = (ROOT / "docs/automation.md").read_text()
    table = page.split("Operations that can fail:")[1].split("##")[0]
    told = set(re.findall(r"`(\w+)`", table))
    for name in sorted(known ^ told):
        yield f"docs/automation.md: {name} is {'not told' if name in known else 'no operation'}"


def main():
    pages = sorted(p for p in ROOT.glob("*.md")) + sorted((ROOT / "docs").rglob("*.md"))
    problems = [problem for page in pages for problem in broken_links(page)]
    problems += missing_tests()
    problems += operations_told_wrong()
    print("\n".join(problems) or "All links lead somewhere, all tests exist.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
