"""The tune of the clinic: bells, a bass and soft percussion, 100 beats a minute, some 175 seconds.

Three parts and a return of the first, between four bars that begin and four that close. The engine
starts the piece anew every 175 seconds, so it is a little shorter and dies away at its end.
"""

import math
import operator
import random

from wave_file import RATE

BEAT = 60 / 100
LENGTH = 174.6

# A bar is its chord and its melody. The melody is words of a note and its length in eighths; "-" rests.
CHORDS = {
    "C": (48, (60, 64, 67)), "F": (41, (60, 65, 69)), "G": (43, (59, 62, 67)), "a": (45, (60, 64, 69)),
    "d": (50, (62, 65, 69)), "e": (40, (59, 64, 67)),
}  # fmt: skip
NAMES = {"c": 0, "d": 2, "e": 4, "f": 5, "g": 7, "a": 9, "b": 11}

PART_A = (
    ("C", "e5:2 g5:1 e5:1 c5:2 g4:2"), ("C", "e5:1 f5:1 g5:2 e5:4"), ("F", "a5:2 f5:1 a5:1 c6:2 a5:2"), ("C", "g5:3 e5:1 c5:4"),
    ("a", "c5:2 e5:2 a5:2 g5:2"), ("d", "f5:1 e5:1 d5:2 f5:4"), ("G", "d5:2 e5:1 f5:1 g5:2 b4:2"), ("C", "c5:4 -:4"),
    ("C", "e5:2 g5:1 e5:1 c5:2 g4:2"), ("C", "e5:1 f5:1 g5:2 c6:4"), ("F", "a5:2 c6:1 a5:1 f5:2 a5:2"), ("C", "g5:2 e5:2 c5:4"),
    ("a", "a5:1 g5:1 e5:2 c5:2 e5:2"), ("d", "f5:2 d5:2 a5:4"), ("G", "g5:1 f5:1 e5:1 d5:1 b4:2 d5:2"), ("C", "c5:6 -:2"),
)  # fmt: skip
PART_B = (
    ("a", "a4:2 c5:2 e5:3 c5:1"), ("e", "b4:2 e5:2 g5:4"), ("F", "f5:2 a5:2 g5:2 f5:2"), ("C", "e5:6 -:2"),
    ("d", "d5:2 f5:2 a5:3 f5:1"), ("a", "e5:2 c5:2 a4:4"), ("G", "b4:2 d5:2 g5:2 d5:2"), ("G", "g4:4 -:4"),
    ("a", "a4:2 c5:2 e5:3 c5:1"), ("e", "b4:2 e5:2 g5:4"), ("F", "a5:1 g5:1 f5:2 a5:2 c6:2"), ("C", "g5:6 -:2"),
    ("d", "f5:2 a5:2 f5:2 d5:2"), ("F", "c5:2 f5:2 a5:4"), ("G", "g5:2 f5:2 e5:2 d5:2"), ("C", "c5:6 -:2"),
)  # fmt: skip
PART_C = (
    ("F", "c5:1 f5:1 a5:1 f5:1 c6:2 a5:2"), ("F", "f5:2 a5:2 c6:4"), ("C", "e5:1 g5:1 c6:1 g5:1 e5:2 c5:2"), ("C", "g5:6 -:2"),
    ("G", "b4:1 d5:1 g5:1 d5:1 b5:2 g5:2"), ("G", "d5:2 g5:2 b5:4"), ("C", "c6:1 b5:1 a5:1 g5:1 e5:2 g5:2"), ("C", "c6:4 -:4"),
    ("F", "a5:2 a5:1 g5:1 f5:2 c5:2"), ("F", "a5:2 c6:2 f5:4"), ("e", "g5:2 g5:1 f5:1 e5:2 b4:2"), ("a", "e5:2 a5:2 c5:4"),
    ("d", "d5:1 e5:1 f5:1 g5:1 a5:2 f5:2"), ("G", "g5:2 b4:2 d5:4"), ("C", "e5:2 c5:2 g4:2 e5:2"), ("G", "d5:6 -:2"),
)  # fmt: skip
OPENING = (("C", "-:8"), ("F", "c6:2 -:6"), ("G", "b5:2 -:6"), ("C", "c6:2 g5:2 e5:2 -:2"))
CLOSING = (("F", "a5:4 f5:4"), ("G", "g5:4 d5:4"), ("C", "e5:4 c5:4"), ("C", "c6:8"))
BARS = OPENING + PART_A + PART_B + PART_C + PART_A + CLOSING


def hertz(key):
    return 440 * 2 ** ((key - 69) / 12)


def key_of(word):
    return 12 * (int(word[1]) + 1) + NAMES[word[0]]


def sounded(cache, kind, key, seconds):
    """One note of an instrument, made once for all the places where it is played."""
    if (kind, key, seconds) in cache:
        return cache[kind, key, seconds]
    decay, partials, rise = {
        "bell": (0.45, ((1, 0.6), (2, 0.18), (3.01, 0.12), (5.4, 0.05)), 0.004),
        "chime": (0.3, ((1, 0.16), (4, 0.04)), 0.01),
        "bass": (0.5, ((1, 0.55), (2, 0.2), (3, 0.05)), 0.015),
    }[kind]
    count, hz = int(seconds * RATE), hertz(key)
    parts = [(share, 2 * math.pi * hz * k / RATE) for k, share in partials if hz * k < RATE / 2.2]
    out = []
    for i in range(count):
        t = i / RATE
        level = min(1.0, t / rise) * math.exp(-t / decay) * min(1.0, (count - i) / (0.05 * RATE))
        out.append(level * sum(share * math.sin(step * i) for share, step in parts))
    cache[kind, key, seconds] = out
    return out


def shaker(seed, volume, seconds, dull):
    chance = random.Random(seed)
    out, last = [], 0.0
    for i in range(int(seconds * RATE)):
        last += (chance.uniform(-1, 1) - last) * (1 - dull)
        out.append(volume * last * math.exp(-i / RATE / (seconds / 4)))
    return out


def drum():
    return [0.4 * math.exp(-i / RATE / 0.05) * math.sin(2 * math.pi * (55 + 60 * math.exp(-i / RATE / 0.03)) * i / RATE) for i in range(RATE // 5)]


def tune():
    out = [0.0] * int(LENGTH * RATE)
    cache = {}

    def play(samples, start):
        at = int(start * RATE)
        stop = min(at + len(samples), len(out))
        out[at:stop] = map(operator.add, out[at:stop], samples)

    kick, hiss, brush = drum(), shaker(1, 0.10, 0.09, 0.1), shaker(2, 0.16, 0.16, 0.5)
    for number, (chord, melody) in enumerate(BARS):
        bar = number * 4 * BEAT
        root, tones = CHORDS[chord]
        last = number == len(BARS) - 1
        for beat, key in ((0, root), (2, root + 7 if chord != "F" else root + 12)):
            if not (last and beat):
                play(sounded(cache, "bass", key, 1.1), bar + beat * BEAT)
        for beat in range(1, 4, 2):
            for key in () if last else tones:
                play(sounded(cache, "chime", key + 12, 0.7), bar + beat * BEAT)
        if 2 <= number < len(BARS) - 3:
            for beat in range(4):
                play(kick if beat % 2 == 0 else brush, bar + beat * BEAT)
                play(hiss, bar + (beat + 0.5) * BEAT)
        eighth = 0
        for word in melody.split():
            note, length = word.split(":")
            if note != "-":
                play(sounded(cache, "bell", key_of(note), 1.6), bar + eighth * BEAT / 2)
            eighth += int(length)
    tail = int(4 * RATE)
    for i in range(tail):
        out[-1 - i] *= min(1.0, i / tail)
    return out
