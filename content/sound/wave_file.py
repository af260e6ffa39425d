"""Samples as lists of floats from -1 to 1, one channel, and the WAV files that hold them."""

import array
import math
import sys
import wave

RATE = 22050
BLOCK = RATE // 50  # 20 ms, the grain in which loudness is measured


def read(path):
    """The samples of a WAV file of 16 bits and one channel, and its rate."""
    with wave.open(path, "rb") as source:
        if source.getsampwidth() != 2 or source.getnchannels() != 1:
            raise SystemExit(f"{path}: expected one channel of 16 bits")
        data = array.array("h", source.readframes(source.getnframes()))
        if sys.byteorder == "big":
            data.byteswap()
        return [v / 32768 for v in data], source.getframerate()


def write(path, samples, rate=RATE):
    data = array.array("h", (max(-32767, min(32767, round(v * 32767))) for v in samples))
    if sys.byteorder == "big":
        data.byteswap()
    with wave.open(path, "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(rate)
        out.writeframes(data.tobytes())


def decibels(value):
    return 20 * math.log10(max(value, 1e-9))


def peak(samples):
    return decibels(max((abs(v) for v in samples), default=0))


def loudness(samples):
    """Root mean square of the blocks that can be heard, in dB of full scale.

    Blocks 25 dB below the loudest are pauses between words and don't count.
    """
    blocks = [sum(v * v for v in samples[i : i + BLOCK]) / BLOCK for i in range(0, len(samples) - BLOCK + 1, BLOCK)]
    heard = [b for b in blocks if b > max(blocks, default=0) * 10 ** (-25 / 10)]
    return 10 * math.log10(sum(heard) / len(heard)) if heard else -180.0


def trimmed(samples, floor=0.01):
    """Without the silence at both ends."""
    loud = [i for i, v in enumerate(samples) if abs(v) > floor]
    return samples[loud[0] : loud[-1] + 1] if loud else []


def levelled(samples, target, ceiling):
    """At the loudness `target`, with the peaks bent softly so that none passes `ceiling`; both in dB."""
    top = 10 ** (ceiling / 20)
    knee = top * 0.6
    out = list(samples)
    for _ in range(4):
        gain = 10 ** ((target - loudness(out)) / 20)
        out = [bent(v * gain, knee, top) for v in out]
    return out


def bent(value, knee, top):
    size = abs(value)
    if size <= knee:
        return value
    return math.copysign(knee + (top - knee) * math.tanh((size - knee) / (top - knee)), value)


def faded(samples, start=0.004, stop=0.02, rate=RATE):
    """With a short rise and fall, so that neither end clicks."""
    out = list(samples)
    for i in range(min(int(start * rate), len(out))):
        out[i] *= i / (start * rate)
    for i in range(min(int(stop * rate), len(out))):
        out[-1 - i] *= i / (stop * rate)
    return out


def silence(seconds, rate=RATE):
    return [0.0] * int(seconds * rate)
