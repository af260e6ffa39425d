#!/usr/bin/env python3
"""Checks what only the clinic's own sources can tell: that text and pictures belong together.

  content_test.py SOURCE MADE     SOURCE is the folder content/, MADE the tree that the build made
"""

import re
import shutil
import struct
import subprocess
import sys
import unittest
from functools import cache
from pathlib import Path

SOURCE, MADE = (Path(a) for a in sys.argv[1:3])
sys.path.insert(0, str(SOURCE / "sound"))
import wave_file  # noqa: E402  the measures by which the sounds were made
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


NOTHING_SEEN = (1, 1)  # the size of a frame of one transparent pixel: what is away can't be hit


class Thing:
    """One object of the game with the frames that its picture is cut into."""

    def __init__(self, path):
        head = lines(path)
        self.states, self.sounds = {}, {}
        self.path, self.kind, self.name = path, head[0], head[1]
        data = self.resolve(head[6], path.parent)
        files = lines(data)
        self.data, self.states_file, self.sounds_file, self.script_list = data, files[0], files[2], files[3]
        self.frames, self.picture, self.animations = {}, None, {}
        if files[0] != "nothing":
            records = lines(self.resolve(files[0], data.parent))
            self.states = {records[i]: records[i + 1 : i + 4] for i in range(0, len(records), 6)}
        if files[2] != "nothing":
            self.sounds = dict(self.sound_records(self.resolve(files[2], data.parent), data.parent))
        if files[1] == "nothing":
            return
        animation = lines(self.resolve(files[1], data.parent))
        self.animations = dict(animation_records(animation[2:]))
        picture = self.resolve(animation[0], data.parent)
        self.picture = picture.relative_to(SOURCE).with_suffix("").as_posix()
        records = lines(self.resolve(animation[1], data.parent))
        for i in range(0, len(records), 9):
            self.frames[records[i]] = tuple(int(v) for v in records[i + 4 : i + 8])

    def sound_records(self, path, folder):
        """Pairs of a sound's name and its file in the source tree, shared sounds included."""
        records = lines(path)
        for i in range(0, len(records), 4):
            if records[i].startswith("globalsound_"):
                name = records[i].removeprefix("globalsound_")
                yield name, SHARED_SOUNDS[name]
            else:
                yield records[i], self.resolve(records[i + 1], folder)

    def resolve(self, stored, folder):
        for token, place in (("<CurrentDirectory>", folder), ("<GlobalDirectory>", SOURCE / "Info/GlobalReferences")):
            if stored.startswith(token):
                stored = "\\" + place.relative_to(SOURCE).as_posix().replace("/", "\\") + stored[len(token) :]
        stored = stored.replace("<RootObjectName>\\", stripped(self.name) + "\\").replace("<ObjectName>", self.name)
        return SOURCE / stored.strip("\\").replace("\\", "/")


def animation_records(records):
    """Pairs of a state's name and (does it loop, its lists of frames)."""
    while records:
        last = records.index("statedone")
        yield records[0], (records[2] == "loop", [line.split() for line in records[4:last]])
        records = records[last + 1 :]


def shared_sounds():
    records = lines(SOURCE / "Info/globalsoundstates.txt")
    return {records[i]: SOURCE / records[i + 1].strip("\\").replace("\\", "/") for i in range(0, len(records), 4)}


SHARED_SOUNDS = shared_sounds()


def made_sound(path):
    """The file that is played for a path of the source tree."""
    return MADE / path.relative_to(SOURCE).with_suffix(".wma")


def captions():
    return dict(line.split(" ", 1) for line in lines(SOURCE / "Info/captions.txt"))


@cache
def heard(path):
    """The samples of a made sound, as its player gets them."""
    raw = subprocess.run(["ffmpeg", "-hide_banner", "-nostdin", "-loglevel", "error", "-i", path, "-ac", "1", "-ar", str(wave_file.RATE), "-f", "s16le", "-"], check=True, capture_output=True).stdout
    return [v / 32768 for (v,) in struct.iter_unpack("<h", raw)]


def script_lines(path):
    """A script with its subscripts put in."""
    for line in lines(path):
        if "subscript" in line.lower():
            inner = line.split()[1].replace("<GlobalDirectory>\\", "Info/GlobalReferences/").replace("\\", "/")
            yield from lines(SOURCE / inner)
        else:
            yield line


def things():
    kinds = {"hall", "overlay", "subgame", "dialog", "button", "key", "doctor", "patient", "tool"}
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
                if rectangle[2:] == NOTHING_SEEN:
                    continue
                seen += 1
                self.assertIn(rectangle, cells[thing.picture], f"{thing.path}: frame {name}")
        self.assertGreater(seen, 100)

    def test_every_cell_of_a_game_has_its_frames_and_its_sounds(self):
        cells = {}
        for line in draw("cells").splitlines():
            picture, _, *rectangle = line.split()
            cells.setdefault(picture, set()).add(tuple(int(v) for v in rectangle))
        needed = {"ball": {"bounce", "hit"}, "spray": {"fire", "hit"}, "germ1": {"hit"}, "good": {"owww"}, "tile": {"owww"}}
        seen = 0
        for path in sorted((SOURCE / "Info").glob("*screen/*data.txt")):
            files = lines(path)
            if files[1] == "nothing":
                continue
            seen += 1
            folder = path.parent
            resolved = [folder / name.replace("<CurrentDirectory>\\", "") for name in files[:3]]
            animation = lines(resolved[1])
            picture = animation[0].replace("<CurrentDirectory>\\", f"Info/{folder.name}/").removesuffix(".bmp")
            frames = lines(folder / animation[1].replace("<CurrentDirectory>\\", ""))
            for i in range(0, len(frames), 9):
                rectangle = tuple(int(v) for v in frames[i + 4 : i + 8])
                if rectangle[2:] != NOTHING_SEEN:
                    self.assertIn(rectangle, cells[picture], f"{path}: {frames[i]}")
            moves = dict(animation_records(animation[2:]))
            shown = {name for _, sets in moves.values() for one in sets for name in one}
            self.assertLessEqual(shown, set(frames[::9]), path)
            self.assertLessEqual(set(lines(resolved[0])[2::6]), set(moves), path)
            names = set() if files[2] == "nothing" else set(lines(resolved[2])[::4])
            self.assertLessEqual(needed.get(path.name.removesuffix("data.txt"), set()), names, path)
        self.assertGreater(seen, 25)

    def test_a_target_is_large_enough_for_a_small_hand(self):
        for thing in things():
            if thing.kind not in ("button", "patient", "tool") or thing.name.endswith("cursor"):
                continue
            least = (110, 190) if thing.name.endswith("door") else (64, 64)
            if thing.script_list == "nothing" or thing.name in ("Scoring1", "hearts"):
                continue  # nothing happens on a click
            for x, y, w, h in thing.frames.values():
                if (w, h) == NOTHING_SEEN:
                    continue
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
        self.assertEqual(screens, 15)

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
            body = list(script_lines(path))
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

    def test_every_sound_that_a_state_names_is_in_its_list_and_was_made(self):
        named = 0
        for thing in things():
            for state, (sound, _, _) in thing.states.items():
                if sound in ("nothing", "unchanged"):
                    continue
                named += 1
                self.assertIn(sound, thing.sounds, f"{thing.path}: state {state}")
            for sound, path in thing.sounds.items():
                self.assertTrue(made_sound(path).is_file(), f"{thing.path}: {sound} is {path}")
        self.assertGreater(named, 50)
        self.assertTrue((MADE / "Info/doodle.wma").is_file())

    def test_a_state_that_speaks_moves_until_the_sentence_is_over(self):
        doctor = next(t for t in things() if t.name == "doctor")
        self.assertEqual(doctor.states["default"][0], "nothing", "it would sound at every load of a room")
        speaking = {name: state for name, state in doctor.states.items() if state[0] != "nothing"}
        self.assertEqual({state[0] for state in speaking.values()}, set(captions()))
        for name, (_, animation, script) in speaking.items():
            loops, sets = doctor.animations[animation]
            self.assertTrue(loops, name)
            self.assertGreaterEqual(max(map(len, sets)), 2, name)
            self.assertEqual(script, "nothing", f"{name} would be left by the next move of the mouse")

    def test_what_goes_on_moving_is_mute(self):
        for thing in things():
            if not thing.sounds:
                continue
            for state, (sound, animation, _) in thing.states.items():
                if sound in ("nothing", "unchanged") and animation in thing.animations:
                    self.assertFalse(thing.animations[animation][0], f"{thing.path}: {state} would stand still after the first sound")

    def test_every_patient_has_its_steps_its_voice_and_its_hints(self):
        everything = {t.name: t for t in things()}
        patients = [t for t in everything.values() if t.kind == "patient"]
        self.assertGreaterEqual(len(patients), 4)
        for patient in patients:
            roots = [s for s in patient.states if "-" not in s]
            self.assertIn("better2", roots, patient.name)
            for root in roots:
                self.assertIn(f"info{patient.name}{root}", everything["doctor"].states)
                self.assertIn(f"{root}-highlight", patient.states)
                self.assertTrue({f"{root}-owww", f"{root}-jump"} & set(patient.states), f"{patient.name}: {root}")
                self.assertTrue({f"{root}-pet", f"{root}-jump"} & set(patient.states), f"{patient.name}: {root}")
            for voice in ("ow", "joy", "pet"):
                self.assertIn(patient.name + voice, everything["noise"].states)

    def test_the_shelf_holds_more_than_the_bar_can_carry(self):
        on_shelf = [t.name for t in things() if t.path.parent.name == "emptyroom1" and (SOURCE / f"Info/Tools/{t.name}tool.txt").is_file()]
        before = len(lines(SOURCE / "Info/Tools/toolschildren.txt")) + 1  # and the book
        self.assertGreater(before + len(on_shelf), 12)
        objects = "\n".join(lines(SOURCE / "Info/globalgameobjects.txt"))
        doctor = next(t for t in things() if t.name == "doctor")
        for name in on_shelf:
            self.assertIn(f"\\{name}tool.txt", objects)
            self.assertIn(f"\\{name}cursor.txt", objects)
            self.assertIn(f"info{name}", doctor.states)

    def test_names_hold_no_word_that_a_message_is_caught_by(self):
        screens = {Path(line.replace("\\", "/")).stem for line in lines(SOURCE / "Info/screens.txt")}
        for thing in things():
            self.assertNotRegex(thing.name, "_|subgame|won|lost|done|end|else", str(thing.path))
            if thing.kind != "tool" and thing.name != "tools":
                self.assertNotIn("tool", thing.name, str(thing.path))
            for state in thing.states:
                self.assertNotIn("_", state, str(thing.path))
        for name in screens - {"tools", "cursors"}:
            self.assertRegex(name, "hall|room|screen|elevator", "such a screen is taken for a patient's room without a tool bar")

    def test_every_sentence_is_short(self):
        for name, sentence in captions().items():
            self.assertLessEqual(len(re.findall(r"[A-Za-z']+", sentence)), 9, name)

    @unittest.skipUnless(shutil.which("ffmpeg"), "no ffmpeg to listen with")
    def test_every_sound_has_its_level_and_its_length(self):
        voice = {p.stem: heard(p) for p in sorted((MADE / "Info/Doctor/voice").glob("*.wma"))}
        self.assertEqual(set(voice), set(captions()))
        levels = {name: wave_file.loudness(samples) for name, samples in voice.items()}
        self.assertLess(max(levels.values()) - min(levels.values()), 3, levels)
        effects = {p.stem: heard(p) for p in sorted((MADE / "Info/GlobalReferences/sounds").glob("*.wma"))}
        music = heard(MADE / "Info/doodle.wma")
        for name, samples in {**voice, **effects, "doodle": music}.items():
            self.assertLess(wave_file.peak(samples), -3, name)
            self.assertLess(abs(samples[0]), 0.01, f"{name} begins with a click")
            self.assertLess(abs(samples[-1]), 0.01, f"{name} ends with a click")
        for name, samples in voice.items():
            self.assertTrue(0.8 < len(samples) / wave_file.RATE < 5, name)
        for name, samples in effects.items():
            self.assertTrue(0.2 <= len(samples) / wave_file.RATE < 1, name)
            self.assertGreater(wave_file.loudness(samples), -26, name)
        self.assertTrue(172 < len(music) / wave_file.RATE <= 175, "the engine starts it anew every 175 seconds")
        typical = sum(levels.values()) / len(levels)
        self.assertAlmostEqual(typical - wave_file.loudness(music), 9, delta=1)
        self.assertLess(wave_file.peak(music[-wave_file.RATE // 2 :]), -45, "the tune must die away")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
