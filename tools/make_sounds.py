#!/usr/bin/env python3
"""Make the sound cues of TallyStrata.

Usage: make_sounds.py [target folder]

The analyst keeps the eyes on the microscope and follows the count by ear, for
hours.  So the cues are short, soft, and differ in more than one way (pitch,
timbre, rhythm), and the rarer a cue, the more it may stand out.
"""

import math
import struct
import sys
import wave
from pathlib import Path

RATE = 44100

# Partials as (frequency ratio, strength, decay speed relative to the first).
# A marimba bar is tuned so that its second mode lies two octaves up.
BAR = [(1.0, 1.0, 1.0), (4.0, 0.22, 2.5), (9.2, 0.05, 5.0)]
# The minor third over the strike note is what makes a bell sound like a bell.
BELL = [(0.5, 0.25, 0.5), (1.0, 1.0, 1.0), (1.19, 0.35, 1.2), (1.5, 0.2, 1.4),
        (2.0, 0.45, 1.6), (2.66, 0.18, 2.5), (4.0, 0.08, 4.0)]
HOLLOW = [(1.0, 1.0, 1.0), (3.0, 0.28, 1.0), (5.0, 0.10, 1.0)]
SOFT = [(1.0, 1.0, 1.0), (2.0, 0.12, 1.5)]
# Small loudspeakers drop a low fundamental; the overtones carry it to the ear.
BUZZ = [(n, 1.0 / n, 1.0) for n in range(1, 8)]


def tone(pitch, length, partials, attack=0.001, decay=0.0, release=0.01):
    """One note: summed partials under a smooth attack and release.

    decay is the time in which the first partial falls to 1/e; 0 holds it.
    """
    count = round(length * RATE)
    samples = []
    for i in range(count):
        t = i / RATE
        value = 0.0
        for ratio, strength, speed in partials:
            fade = math.exp(-t * speed / decay) if decay else 1.0
            value += strength * fade * math.sin(2 * math.pi * pitch * ratio * t)
        remaining = (count - 1 - i) / RATE
        samples.append(value * ramp(t / attack) * ramp(remaining / release))
    return samples


def ramp(x):
    """Half a cosine from 0 to 1: without corners, hence without clicks."""
    return 0.5 - 0.5 * math.cos(math.pi * min(x, 1.0))


def sequence(*notes):
    """Mix notes given as (start in seconds, strength, samples)."""
    total = max(round(start * RATE) + len(note) for start, _, note in notes)
    mix = [0.0] * total
    for start, strength, note in notes:
        first = round(start * RATE)
        for i, value in enumerate(note):
            mix[first + i] += strength * value
    return mix


def key(pitch, length):
    return tone(pitch, length, BAR, decay=length / 4)


def opening():
    pitches = [349.23, 440.00, 523.25, 698.46]
    return sequence(*((0.11 * n, 0.8 + 0.07 * n,
                       tone(pitch, 0.40, BAR, attack=0.003, decay=0.12, release=0.1))
                      for n, pitch in enumerate(pitches)))


def undo():
    return sequence(
        (0.000, 1.0, tone(622.25, 0.075, HOLLOW, attack=0.006, release=0.02)),
        (0.080, 0.9, tone(415.30, 0.100, HOLLOW, attack=0.006, release=0.05)))


def save():
    return sequence(
        (0.000, 0.8, tone(783.99, 0.100, SOFT, attack=0.015, release=0.05)),
        (0.085, 1.0, tone(1046.50, 0.135, SOFT, attack=0.015, release=0.09)))


def alarm():
    return sequence(
        (0.00, 0.8, tone(1174.66, 0.45, BELL, attack=0.002, decay=0.13, release=0.1)),
        (0.15, 1.0, tone(1174.66, 0.45, BELL, attack=0.002, decay=0.16, release=0.15)))


def error():
    thud = tone(130.81, 0.13, BUZZ, attack=0.008, decay=0.07, release=0.04)
    return sequence((0.0, 1.0, thud), (0.16, 1.0, thud))


# Name, peak level in dBFS, samples.  The ear grows more sensitive towards
# 3 kHz, so the higher key cues are taken back to sound as loud as the lowest;
# held tones sound louder than clicks of the same peak, so they stay below them.
CUES = [
    ("Key-1", -11.0, key(523.25, 0.065)),
    ("Key-2", -12.0, key(880.00, 0.055)),
    ("Key-3", -13.0, key(1396.91, 0.045)),
    ("Opening", -10.0, opening()),
    ("Undo", -15.0, undo()),
    ("Save", -14.0, save()),
    ("Alarm", -6.0, alarm()),
    ("Error", -9.0, error()),
]


def write_cue(path, level, samples):
    scale = 32767 * 10 ** (level / 20) / max(abs(value) for value in samples)
    frames = [round(value * scale) for value in samples]
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(struct.pack(f"<{len(frames)}h", *frames))


def main():
    beside_tools = Path(__file__).resolve().parent.parent / "Sound files"
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else beside_tools
    folder.mkdir(parents=True, exist_ok=True)
    for name, level, samples in CUES:
        write_cue(folder / f"{name}.wav", level, samples)


if __name__ == "__main__":
    main()
