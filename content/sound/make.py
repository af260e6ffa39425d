#!/usr/bin/env python3
"""Makes the sounds of the clinic as WAV files; the build encodes them afterwards.

  make.py list CAPTIONS            every sound as "KIND NAME", one a line; KIND is speech, effect or tune
  make.py words CAPTIONS NAME      the sentence of that name, for the speech synthesiser
  make.py speech SPOKEN OUT        a spoken sentence, trimmed, at the common loudness, with its pauses
  make.py babble WORDS OUT         what stands in for the sentence in the file WORDS where nothing speaks
  make.py effect NAME OUT          a noise
  make.py tune OUT                 the music

CAPTIONS is the file Info/captions.txt: a line a sentence, its first word the name of the sound.
"""

import sys

from effects import EFFECTS, mix, padded, tone
from tune import tune
from wave_file import RATE, faded, levelled, read, silence, trimmed, write

VOICE = -20.0  # loudness of every sentence, in dB of full scale
EFFECT = -21.0
MUSIC = VOICE - 9.0
CEILING = -4.5  # the encoder may overshoot by a dB
BEFORE, AFTER = 0.05, 0.35  # the bubble stands as long as the sound: a moment more to look at it


def captions(path):
    with open(path, encoding="cp1252") as lines:
        return dict(line.rstrip("\n").split(" ", 1) for line in lines if line.strip())


def spoken(samples, rate):
    body = levelled(faded(trimmed(samples), rate=rate), VOICE, CEILING)
    return silence(BEFORE, rate) + body + silence(AFTER, rate)


def babble(words):
    """A friendly murmur, one note a syllable or so."""
    parts, at = [], 0.0
    for number, word in enumerate(words.split()):
        for syllable in range(max(1, round(len(word) / 3))):
            hz = 330 + 40 * ((number * 7 + syllable * 3 + len(word)) % 5)
            parts.append((at, tone(0.15, (hz, hz * 1.08, hz * 0.94), 0.5, ((1, 1.0), (2, 0.4), (3, 0.2)), 0.02)))
            at += 0.17
        at += 0.05
    return mix(*parts)


def main(arguments):
    match arguments:
        case ["list", path]:
            for name in captions(path):
                print("speech", name)
            for name in EFFECTS:
                print("effect", name)
            print("tune doodle")
        case ["words", path, name]:
            print(captions(path)[name])
        case ["speech", source, out]:
            samples, rate = read(source)
            write(out, spoken(samples, rate), rate)
        case ["babble", path, out]:
            with open(path, encoding="cp1252") as words:
                write(out, spoken(babble(words.read()), RATE))
        case ["effect", name, out]:
            write(out, padded(levelled(faded(EFFECTS[name]()), EFFECT, CEILING)))
        case ["tune", out]:
            write(out, levelled(tune(), MUSIC, CEILING))
        case _:
            sys.stderr.write(__doc__)
            return 2
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
