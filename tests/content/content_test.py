#!/usr/bin/env python3
"""Checks what only the clinic's own sources can tell: that text and pictures belong together.

  content_test.py SOURCE MADE     SOURCE is the folder content/, MADE the tree that the build made
"""

import struct
import subprocess
import sys
import unittest
from pathlib import Path

SOURCE, MADE = (Path(a) for a in sys.argv[1:3])
KEY = (200, 200, 200)
EDITIONS = {
    1: "antiseptantPatientIllnessState ColdPatientSecondToLastIllnessState bandaidPatientIllnessState "
    "bandaidPatientSecondToLastIllnessState calaminePatientIllnessState soapPatientIllnessState waterPatientIllnessState",
    2: "antiseptantPatientIllnessState fleapowderPatientIllnessState FootAndMouthVaccinePatientIllnessState "
    "GrapesPatientIllnessState FleaCollarPatientSecondToLastIllnessState CalciumShotPatientSecondToLastIllnessState "
    "RabiesVaccinePatientSecondToLastIllnessState AntibioticPatientSecondToLastIllnessState",
}


def lines(path):
    return path.read_text(encoding="cp1252").splitlines()


def draw(*arguments):
    return subprocess.run([sys.executable, "-B", SOURCE / "art/draw.py", *arguments], check=True, capture_output=True, text=True).stdout


def stripped(name):
    """An object's name without its first "tool" and its first "cursor"."""
    for word in ("tool", "cursor"):
        head, found, tail = name.partition(word)
        name = head + tail
    return name


class Thing:
    """One object of the game with the frames that its picture is cut into."""

    def __init__(self, path):
        head = lines(path)
        self.path, self.kind, self.name = path, head[0], head[1]
        data = self.resolve(head[6], path.parent)
        files = lines(data)
        self.data, self.states_file, self.sounds_file, self.script_list = data, files[0], files[2], files[3]
        self.frames, self.picture, self.animations = {}, None, {}
        if files[1] == "nothing":
            return
        animation = lines(self.resolve(files[1], data.parent))
        picture = self.resolve(animation[0], data.parent)
        self.picture = picture.relative_to(SOURCE).with_suffix("").as_posix()
        records = lines(self.resolve(animation[1], data.parent))
        for i in range(0, len(records), 9):
            self.frames[records[i]] = tuple(int(v) for v in records[i + 4 : i + 8])

    def resolve(self, stored, folder):
        for token, place in (("<CurrentDirectory>", folder), ("<GlobalDirectory>", SOURCE / "Info/GlobalReferences")):
            if stored.startswith(token):
                stored = "\\" + place.relative_to(SOURCE).as_posix().replace("/", "\\") + stored[len(token) :]
        stored = stored.replace("<RootObjectName>\\", stripped(self.name) + "\\").replace("<ObjectName>", self.name)
        return SOURCE / stored.strip("\\").replace("\\", "/")


def things():
    kinds = {"hall", "overlay", "dialog", "button", "key", "doctor", "patient", "tool"}
    for path in sorted((SOURCE / "Info").rglob("*.txt")):
        head = lines(path)
        if len(head) == 9 and head[0] in kinds and not head[6].isdigit():
            yield Thing(path)


class Bitmap:
    def __init__(self, path):
        data = path.read_bytes()
        start, self.width, self.height = (struct.unpack_from("<i", data, at)[0] for at in (10, 18, 22))
        assert data[:2] == b"BM" and struct.unpack_from("<H", data, 28)[0] == 24, f"{path} isn't a bitmap of 24 bits"
        pitch = (self.width * 3 + 3) // 4 * 4
        rows = [data[start + i * pitch : start + i * pitch + self.width * 3] for i in range(abs(self.height))]
        self.rows = rows[::-1] if self.height > 0 else rows
        self.height = abs(self.height)

    def holds(self, colour):
        pixel = bytes(reversed(colour))
        return any(pixel == row[i : i + 3] for row in self.rows if pixel in row for i in range(0, len(row), 3))


class ClinicTest(unittest.TestCase):
    def test_every_frame_is_a_cell_of_its_picture(self):
        cells = {}
        for line in draw("cells").splitlines():
            picture, _, *rectangle = line.split()
            cells.setdefault(picture, set()).add(tuple(int(v) for v in rectangle))
        seen = 0
        for thing in things():
            for name, rectangle in thing.frames.items():
                if name == "corner":
                    continue  # one transparent pixel that holds the tool bar at 0,0
                seen += 1
                self.assertIn(rectangle, cells[thing.picture], f"{thing.path}: frame {name}")
        self.assertGreater(seen, 100)

    def test_a_target_is_large_enough_for_a_small_hand(self):
        for thing in things():
            if thing.kind not in ("button", "patient", "tool") or thing.name.endswith("cursor"):
                continue
            least = (110, 190) if thing.name.endswith("door") else (64, 64)
            if thing.script_list == "nothing":
                continue  # nothing happens on a click
            for x, y, w, h in thing.frames.values():
                self.assertGreaterEqual((w >= least[0], h >= least[1]), (True, True), f"{thing.path}: {w} by {h}")

    def test_a_picture_is_the_same_text_on_every_run(self):
        import tempfile

        for picture in ("Info/Floor1/dogroom/dog", "Info/Intro/intro"):
            with tempfile.TemporaryDirectory() as folder:
                texts = []
                for run in "12":
                    draw("svg", picture, str(Path(folder) / run))
                    texts.append((Path(folder) / run).read_bytes())
                self.assertEqual(texts[0], texts[1])

    def test_the_colour_key_stands_where_it_must_and_nowhere_in_a_full_screen(self):
        corner = Bitmap(MADE / "Info/Tools/tool.bmp").rows[0][:3]
        self.assertEqual(tuple(corner), KEY)
        screens = 0
        for line in draw("cells").splitlines():
            picture, name, _, _, w, h = line.split()
            if (w, h) == ("800", "600"):
                screens += 1
                self.assertFalse(Bitmap(MADE / f"{picture}.bmp").holds(KEY), picture)
        self.assertEqual(screens, 8)

    def test_every_edition_finds_its_treatments_in_both_variants(self):
        folder = SOURCE / "Info/GlobalReferences/scripts"
        for names in EDITIONS.values():
            for name in names.split():
                for variant in ("", "SafeMode", "NormalMode"):
                    self.assertTrue((folder / f"{name}{variant}.txt").is_file(), f"{name}{variant}")

    def test_no_statement_of_a_script_is_taken_for_a_block_word(self):
        scripts = [p for p in (SOURCE / "Info").rglob("*.txt") if lines(p)[:1] == ["begin"]]
        self.assertGreater(len(scripts), 50)
        for path in scripts:
            body = lines(path)
            self.assertEqual(body[-1], "end", path)
            inside = 0
            for line in body[1:-1]:
                words = line.split()
                self.assertTrue(words, f"{path}: a blank line")
                inside += (words[0] == "if") - (words[0] == "endif")
                if words[0] in ("if", "elseif"):
                    self.assertFalse("end" in words[3] or "else" in words[3], f"{path}: {line}")
                elif words[0] not in ("else", "endif"):
                    self.assertIn(words[0], ("mtp", "change", "runstate", "runsound"), f"{path}: {line}")
                    self.assertFalse(any(w in line for w in ("else", "endif", "subscript")), f"{path}: {line}")
                    self.assertTrue(inside or "end" not in line, f"{path}: {line}")
            self.assertEqual(inside, 0, path)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
