"""The noises of the clinic: doors, tools, cures, hurts and the calls of the patients.

Each function gives the samples of one noise of 0.2 to 0.8 seconds. `EFFECTS` maps the name of the
sound to its function.
"""

import math
import random

from wave_file import RATE, silence


def tone(seconds, pitch, volume=1.0, partials=((1, 1.0),), attack=0.01, decay=None, wobble=(0, 0)):
    """A note. `pitch` is a number in Hz or a list of points that it glides along; `decay` is the time
    in which it loses two thirds, or None for a note that holds; `wobble` is (times a second, share)."""
    points = pitch if isinstance(pitch, (list, tuple)) else (pitch, pitch)
    count = int(seconds * RATE)
    out, phase = [], 0.0
    for i in range(count):
        at = i / count * (len(points) - 1)
        low = min(int(at), len(points) - 2)
        hz = points[low] + (points[low + 1] - points[low]) * (at - low)
        t = i / RATE
        if wobble[0]:
            hz *= 1 + wobble[1] * math.sin(2 * math.pi * wobble[0] * t)
        phase += 2 * math.pi * hz / RATE
        level = min(1.0, t / attack) * min(1.0, (count - i) / (0.03 * RATE))
        if decay:
            level *= math.exp(-t / decay)
        out.append(volume * level * sum(share * math.sin(phase * k) for k, share in partials))
    return out


def noise(seconds, volume=1.0, low=0.3, decay=None, seed=1):
    """A rustle. `low` from 0 to 1 is how dull it is."""
    chance = random.Random(seed)
    count = int(seconds * RATE)
    out, last = [], 0.0
    for i in range(count):
        last += (chance.uniform(-1, 1) - last) * (1 - low)
        t = i / RATE
        level = min(1.0, t / 0.01) * min(1.0, (count - i) / (0.03 * RATE))
        out.append(volume * last * level * (math.exp(-t / decay) if decay else 1))
    return out


def mix(*parts):
    """Parts as (start in seconds, samples), laid over each other."""
    out = [0.0] * max(int(start * RATE) + len(samples) for start, samples in parts)
    for start, samples in parts:
        at = int(start * RATE)
        for i, v in enumerate(samples):
            out[at + i] += v
    return out


BELL = ((1, 1.0), (2.76, 0.35), (5.4, 0.12))
REED = ((1, 1.0), (2, 0.6), (3, 0.45), (4, 0.25), (5, 0.15))
SOFT = ((1, 1.0), (2, 0.25), (3, 0.1))


def bell(seconds, pitch, volume=1.0, decay=0.18):
    return tone(seconds, pitch, volume, BELL, 0.003, decay)


def click():
    return mix((0, tone(0.2, (900, 500), 1.0, SOFT, 0.002, 0.03)), (0.03, tone(0.12, (1300, 800), 0.5, SOFT, 0.002, 0.02)))


def door():
    creak = tone(0.26, (180, 260, 220), 0.35, REED, 0.03, None, (23, 0.06))
    knock = tone(0.22, (150, 70), 1.0, SOFT, 0.003, 0.06)
    return mix((0, creak), (0.26, knock), (0.26, noise(0.14, 0.4, 0.85, 0.04)))


def take():
    return mix((0, bell(0.3, 784, 0.8)), (0.09, bell(0.4, 1175)))


def back():
    return mix((0, bell(0.3, 1047, 0.8)), (0.09, bell(0.3, 784, 0.8)), (0.2, tone(0.25, (180, 90), 0.9, SOFT, 0.003, 0.06)))


def page():
    return mix((0, noise(0.3, 0.9, 0.35, 0.12, 3)), (0.14, noise(0.2, 0.7, 0.55, 0.07, 4)))


def cure():
    return mix(*((i * 0.09, bell(0.45, hz, 0.7 + i * 0.06)) for i, hz in enumerate((659, 784, 988, 1319))))


def dogow():
    return mix((0, tone(0.3, (620, 900, 560), 0.8, SOFT, 0.03, None, (11, 0.02))), (0.34, tone(0.34, (560, 720, 420), 0.6, SOFT, 0.03, None, (11, 0.02))))


def bark(low=1.0):
    return mix((0, tone(0.16, (210 * low, 480 * low, 240 * low), 1.0, REED, 0.008)), (0, noise(0.14, 0.5, 0.5, 0.05, 7)))


def dogjoy():
    return mix((0, bark()), (0.22, bark(1.12)), (0.46, bark(1.2)))


def catow():
    return tone(0.62, (520, 760, 690, 430), 0.9, REED, 0.05, None, (9, 0.03))


def catjoy():
    meow = tone(0.42, (480, 700, 880, 640), 0.8, ((1, 1.0), (2, 0.5), (3, 0.18)), 0.05)
    purr = [v * (0.6 + 0.4 * math.sin(2 * math.pi * 26 * i / RATE)) for i, v in enumerate(tone(0.36, 92, 0.9, REED, 0.03))]
    return mix((0, meow), (0.42, purr))


def rabbitow():
    return mix((0, tone(0.18, (1250, 1650, 1300), 0.8, SOFT, 0.02)), (0.24, tone(0.26, (1200, 1450, 950), 0.7, SOFT, 0.02)))


def rabbitjoy():
    thump = tone(0.12, (170, 80), 1.0, SOFT, 0.003, 0.05)
    squeak = tone(0.14, (1100, 1700), 0.6, SOFT, 0.02)
    return mix((0, thump), (0.14, thump), (0.3, squeak), (0.5, squeak))


def turtleow():
    """A small hollow honk that sinks."""
    return mix((0, tone(0.2, (330, 390, 300), 0.8, REED, 0.03)), (0.22, tone(0.36, (310, 350, 210), 0.8, REED, 0.04, None, (7, 0.03))))


def turtlejoy():
    """Two knocks on the shell and a merry honk upwards."""
    knock = tone(0.1, (420, 250), 0.9, SOFT, 0.002, 0.03)
    return mix((0, knock), (0.12, knock), (0.28, tone(0.16, (300, 420), 0.7, REED, 0.02)), (0.46, tone(0.28, (380, 560, 500), 0.7, REED, 0.03)))


def dogpet():
    """A contented little whine, panting."""
    pant = noise(0.1, 0.5, 0.45, 0.05, 9)
    return mix((0, tone(0.3, (520, 640, 480), 0.5, SOFT, 0.05, None, (8, 0.02))), (0.34, pant), (0.5, pant), (0.66, pant))


def catpet():
    """A purr."""
    return [v * (0.55 + 0.45 * math.sin(2 * math.pi * 25 * i / RATE)) for i, v in enumerate(tone(0.8, (88, 96, 90), 0.9, REED, 0.08))]


def rabbitpet():
    """Two soft, low squeaks: the teeth are ground in comfort."""
    return mix((0, tone(0.2, (700, 820), 0.6, SOFT, 0.04)), (0.24, tone(0.26, (760, 900, 780), 0.6, SOFT, 0.05)))


def turtlepet():
    """A long, low hum."""
    return tone(0.7, (190, 230, 200), 0.8, SOFT, 0.1, None, (6, 0.02))


def pop():
    """Something small bursts."""
    return mix((0, tone(0.09, (320, 1150), 1.0, SOFT, 0.002, 0.05)), (0.05, noise(0.1, 0.6, 0.2, 0.02, 5)), (0.07, bell(0.2, 1568, 0.4, 0.08)))


def spray():
    """A puff of the bottle."""
    return mix((0, noise(0.2, 0.9, 0.15, 0.07, 6)), (0, tone(0.06, (700, 400), 0.4, SOFT, 0.002, 0.02)))


def boing():
    """The bubble bounces."""
    return tone(0.22, (280, 520, 440), 0.9, SOFT, 0.004, 0.09, (18, 0.05))


def splat():
    """A lump of mud comes off."""
    return mix((0, tone(0.16, (260, 110), 0.9, SOFT, 0.003, 0.06)), (0.01, noise(0.16, 0.8, 0.6, 0.05, 8)), (0.09, bell(0.25, 1319, 0.4, 0.09)))


def lift():
    """The elevator hums and rings."""
    return mix((0, tone(0.45, (90, 130, 120), 0.5, REED, 0.06)), (0.42, bell(0.36, 1319, 0.9)), (0.42, bell(0.36, 1047, 0.4)))


def oops():
    """Something went wrong, and it isn't bad: two notes going down."""
    return mix((0, tone(0.2, (523, 494), 0.8, SOFT, 0.01, 0.14)), (0.18, tone(0.34, (392, 330), 0.8, SOFT, 0.01, 0.18, (7, 0.02))))


EFFECTS = {f.__name__: f for f in (
    click, door, take, back, page, cure, dogow, dogjoy, dogpet, catow, catjoy, catpet, rabbitow, rabbitjoy, rabbitpet,
    turtleow, turtlejoy, turtlepet,
    pop, spray, boing, splat, lift, oops,
)}  # fmt: skip


def padded(samples):
    """With a moment of silence at both ends, where the encoder smears, and at least 0.25 seconds long."""
    out = silence(0.02) + samples + silence(0.03)
    return out + silence(max(0.0, 0.25 - len(out) / RATE))
