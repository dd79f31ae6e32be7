#!/usr/bin/env python3
"""Makes the six sounds of the program as WAV files: make_sounds.py [folder], by default the folder of this script.

Each is a list of samples from -1 to 1, given by a function of the time in seconds. The same script makes the same
bytes: the only noise comes from a generator of our own.
"""
import math
import struct
import sys
import wave
from pathlib import Path

RATE = 44100
PEAK = 0.5  # -6 dBFS
SILENCE = 0.5  # seconds at the end: Qt ends a sound when its last sample has been handed over, not when it was heard
FADE = 0.004  # seconds at both ends, so that no sound begins or ends with a click


def tone(frequency, time):
    return math.sin(2 * math.pi * frequency * time)


def beep(time):
    """A soft knock on wood: an action was refused. It stands in for a desktop's bell that nobody hears."""
    return math.exp(-30 * time) * (tone(660, time) + 0.5 * tone(1320, time))


def bip(time):
    """A short high blip: the list was copied."""
    return tone(1760, time) + 0.2 * tone(3520, time)


def whit(time):
    """A whistle that rises from 900 to 2300 Hz: the text occurs only once."""
    length = SOUNDS["Whit"][1]
    phase = 900 * time + 1400 * time * time / (2 * length)
    return math.sin(math.pi * time / length) * (tone(1, phase) + 0.1 * tone(2, phase))


def glass(time):
    """A struck glass, whose partials are no multiples of each other: the text was not found."""
    partials = [(1.0, 1.0, 7), (2.32, 0.6, 10), (4.25, 0.35, 16), (6.63, 0.2, 24)]
    return sum(level * math.exp(-decay * time) * tone(1174.7 * ratio, time) for ratio, level, decay in partials)


def noise(time):
    """White noise from -1 to 1 that depends on nothing but the number of the sample."""
    value = (round(time * RATE) * 2654435761 + 12345) & 0xFFFFFFFF
    value = ((value ^ (value >> 15)) * 2246822519) & 0xFFFFFFFF
    return ((value ^ (value >> 13)) & 0xFFFF) / 32768 - 1


def stapler(time):
    """The press and the release of a stapler: the text was found."""
    def clack(start, pitch):
        past = time - start
        return 0 if past < 0 else math.exp(-90 * past) * (noise(time) + tone(pitch, past))

    return clack(0.003, 180) + 0.6 * clack(0.075, 320)


def message(time):
    """Two friendly notes, a fourth apart: the text was saved."""
    def note(start, pitch):
        past = time - start
        return 0 if past < 0 else math.exp(-6 * past) * (tone(pitch, past) + 0.25 * tone(2 * pitch, past))

    return note(0, 587.3) + note(0.16, 784.0)


SOUNDS = {
    "Beep": (beep, 0.1),
    "Bip": (bip, 0.12),
    "Whit": (whit, 0.25),
    "Glass_t": (glass, 0.65),
    "Agrafeuse_t": (stapler, 0.18),
    "Msg": (message, 0.6),
}


def samples(function, length):
    count = round(length * RATE)
    values = [function(index / RATE) for index in range(count)]
    fade = FADE * RATE
    values = [value * min(1, index / fade, (count - 1 - index) / fade) for index, value in enumerate(values)]
    loudest = max(map(abs, values))
    return [round(value / loudest * PEAK * 32767) for value in values] + [0] * round(SILENCE * RATE)


def write(path, values):
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(struct.pack(f"<{len(values)}h", *values))


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parent
    for name, (function, length) in SOUNDS.items():
        write(folder / f"{name}.wav", samples(function, length))


if __name__ == "__main__":
    main()
