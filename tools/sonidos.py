#!/usr/bin/env python3
"""Synthesises the sound effects of Corvanda.

This script owns every file in the Sonidos folder: change a sound here and run
it again, never edit the files by hand.

    python3 tools/sonidos.py [folder]

Without a folder it writes into the Sonidos folder beside tools/. Each sound has
a generator with its own fixed seed, so a second run gives the same bytes and a
change to one sound leaves the others alone.
"""

import math
import random
import struct
import sys
import wave
from pathlib import Path

RATE = 44100
TARGET_DB = -18.5     # loudest 100 ms of every file, A-weighted
CEILING_DB = -1.5     # leaves room for players that resample between the samples


def seconds(t):
    return int(round(t * RATE))


def biquad(kind, freq, q=0.7071):
    """Normalised coefficients (b0, b1, b2, a1, a2) of one second-order section."""
    w = 2 * math.pi * freq / RATE
    c, alpha = math.cos(w), math.sin(w) / (2 * q)
    b = {"low": ((1 - c) / 2, 1 - c, (1 - c) / 2),
         "high": ((1 + c) / 2, -1 - c, (1 + c) / 2),
         "band": (alpha, 0.0, -alpha)}[kind]
    return tuple(x / (1 + alpha) for x in b + (-2 * c, 1 - alpha))


def run(samples, section):
    b0, b1, b2, a1, a2 = section
    x1 = x2 = y1 = y2 = 0.0
    out = []
    for x in samples:
        y = b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2
        x2, x1, y2, y1 = x1, x, y1, y
        out.append(y)
    return out


def mix(track, samples, start, amp=1.0):
    first = seconds(start)
    for i in range(min(len(samples), len(track) - first)):
        track[first + i] += amp * samples[i]


def struck(modes, attack):
    """A struck solid: damped sines given as (frequency, decay time, level).

    The attack is the time striker and body stay in touch. A longer one is a
    softer striker, so the onset is rounded instead of starting at once.
    """
    out = [0.0] * seconds(max(decay for _, decay, _ in modes) * 7)
    for freq, decay, amp in modes:
        w = 2 * math.pi * freq / RATE
        for i in range(seconds(decay * 7)):
            out[i] += amp * math.exp(-i / (decay * RATE)) * math.sin(w * i)
    for i in range(seconds(attack)):
        out[i] *= 0.5 - 0.5 * math.cos(math.pi * i / seconds(attack))
    return out


def noise_burst(rng, decay, *sections):
    """Noise that starts at once and dies away, through the given filters."""
    out = [rng.uniform(-1, 1) * math.exp(-i / (decay * RATE)) for i in range(seconds(decay * 7))]
    for section in sections:
        out = run(out, section)
    return out


def dice():
    """Two dice of slightly different size, each hopping to rest on the wood."""
    rng = random.Random(11)
    out = [0.0] * seconds(0.42)
    hits = ((0.004, 0, 1.0), (0.043, 1, 0.92), (0.112, 0, 0.55), (0.139, 1, 0.60),
            (0.178, 0, 0.27), (0.201, 1, 0.30), (0.219, 0, 0.12), (0.238, 1, 0.14))
    for start, die, force in hits:
        # A die lands on another edge each time, which shifts what rings in it.
        turn = (1.0, 1.09)[die] * rng.uniform(0.96, 1.04)
        body = [(f * turn, d, a) for f, d, a in ((2850, 0.0060, 0.75), (4380, 0.0045, 0.55),
                                                 (6710, 0.0028, 0.35), (9400, 0.0018, 0.18))]
        wood = [(f * rng.uniform(0.98, 1.02), d, a) for f, d, a in
                ((415, 0.024, 0.40), (905, 0.016, 0.38), (1490, 0.010, 0.32))]
        mix(out, struck(body + wood, 0.0003), start, force)
        mix(out, noise_burst(rng, 0.0012, biquad("high", 1800)), start, 0.45 * force)
    return [out]


def chip():
    """A wooden chip put down. The rebound is weaker and, being slower, duller."""
    rng = random.Random(22)
    out = [0.0] * seconds(0.30)
    for start, force, dull in ((0.004, 1.0, 1.0), (0.098, 0.33, 0.6)):
        modes = ((182, 0.030, 0.45), (318, 0.026, 0.60), (655, 0.017, 0.85),
                 (1240, 0.010, 0.55 * dull), (2210, 0.006, 0.30 * dull),
                 (3470, 0.0035, 0.15 * dull))
        mix(out, struck(modes, 0.0010), start, force)
        touch = noise_burst(rng, 0.0025, biquad("low", 2600 * dull), biquad("high", 300))
        mix(out, touch, start, 0.5 * force)
    return [out]


def cannon():
    """A boom that sinks in pitch under a crack of powder that darkens as it dies."""
    rng = random.Random(33)
    out, phase = [0.0] * seconds(0.62), 0.0
    for i in range(len(out) - seconds(0.004)):
        t = i / RATE
        phase += 2 * math.pi * (58 + 150 * math.exp(-t / 0.040)) / RATE
        # The overdrive gives harmonics, or small loudspeakers would play nothing.
        level = min(1.0, t / 0.002) * math.exp(-t / 0.17)
        out[i + seconds(0.004)] = 0.8 * level * math.tanh(4.5 * level * math.sin(phase))
    # The crack lies where small loudspeakers are best; the boom follows it.
    mix(out, noise_burst(rng, 0.010, biquad("high", 1500), biquad("low", 9000)), 0.003, 2.2)
    mix(out, noise_burst(rng, 0.030, biquad("band", 1800, 0.6)), 0.004, 2.8)
    mix(out, noise_burst(rng, 0.070, biquad("low", 1500), biquad("high", 250)), 0.006, 2.2)
    mix(out, noise_burst(rng, 0.150, biquad("low", 420, 1.1), biquad("high", 60)), 0.010, 1.8)
    return [out]


def pop():
    """A cork: the neck of the bottle opens, so its note shoots up as it dies."""
    rng = random.Random(44)
    out, phase = [0.0] * seconds(0.17), 0.0
    for i in range(len(out) - seconds(0.004)):
        t = i / RATE
        phase += 2 * math.pi * (330 + 900 * (1 - math.exp(-t / 0.022))) / RATE
        level = (1 - math.exp(-t / 0.0015)) * math.exp(-t / 0.021)
        out[i + seconds(0.004)] = level * (math.sin(phase) + 0.18 * math.sin(2 * phase))
    mix(out, struck(((165, 0.018, 1.0),), 0.002), 0.004, 0.35)
    mix(out, noise_burst(rng, 0.004, biquad("band", 2400, 0.6)), 0.004, 0.60)
    return [out]


def strike():
    """Two muted bar notes a tritone apart, falling: a refusal, not an alarm."""
    rng = random.Random(55)
    out = [0.0] * seconds(0.52)
    for start, root, force in ((0.004, 466.2, 0.85), (0.154, 329.6, 1.0)):
        # A hand on the bar stops the high partials first.
        modes = ((root / 2, 0.050, 0.35), (root, 0.058, 1.0), (root * 2.02, 0.044, 0.70),
                 (root * 2.76, 0.032, 0.50), (root * 5.40, 0.012, 0.22),
                 (root * 8.93, 0.005, 0.08))
        mix(out, struck(modes, 0.003), start, force)
        mix(out, noise_burst(rng, 0.006, biquad("low", 1400)), start, 0.6 * force)
    return [out]


def applause():
    """A small crowd. Everybody has a seat, a pair of hands and a tempo of their own."""
    rng = random.Random(66)
    length, people = 2.90, 64
    dry = [[0.0] * seconds(length), [0.0] * seconds(length)]
    for _ in range(people):
        seat = rng.uniform(0.08, 0.92)
        near = rng.uniform(0.35, 1.0)
        hands = rng.uniform(750, 2100)
        air = biquad("low", 3500 + 8000 * near)
        beat = 1 / rng.uniform(3.4, 5.2)
        t, stop = abs(rng.gauss(0.05, 0.28)), rng.uniform(1.8, 2.85)
        while t < stop:
            palm = biquad("band", hands * rng.uniform(0.9, 1.1), rng.uniform(1.0, 2.2))
            clap = noise_burst(rng, rng.uniform(0.004, 0.009), palm, air)
            # Hands tire a little before they stop.
            force = near * rng.uniform(0.65, 1.0) * min(1.0, 0.35 + (stop - t))
            mix(dry[0], clap, t, force * math.cos(seat * math.pi / 2))
            mix(dry[1], clap, t, force * math.sin(seat * math.pi / 2))
            t += beat * rng.gauss(1.0, 0.06)
    # Different walls on either side place the crowd in a room.
    walls = (((0.013, 0.30), (0.029, 0.24), (0.047, 0.17), (0.071, 0.11)),
             ((0.017, 0.30), (0.023, 0.24), (0.053, 0.17), (0.067, 0.11)))
    out = []
    for side in (0, 1):
        wet, far = list(dry[side]), run(dry[1 - side], biquad("low", 3200))
        for delay, amp in walls[side]:
            mix(wet, far, delay, amp)
        times = [i / RATE for i in range(len(wet))]
        level = [min(1.0, 0.15 + t / 0.6, (length - t) / 1.2) for t in times]
        out.append([x * math.sin(math.pi / 2 * v) for x, v in zip(wet, level)])
    return out


def first_order(kind, freq):
    """One first-order section, in the form that run takes."""
    k = math.tan(math.pi * freq / RATE)
    b0, b1 = {"low": (k, k), "high": (1.0, -1.0)}[kind]
    return b0 / (1 + k), b1 / (1 + k), 0.0, (k - 1) / (k + 1), 0.0


def as_heard(samples):
    """The A-weighted wave: the ear hears little of the bass."""
    for kind, freq in (("high", 20.6), ("high", 20.6), ("high", 107.7), ("high", 737.9),
                       ("low", 12194), ("low", 12194)):
        samples = run(samples, first_order(kind, freq))
    return [1.2589 * x for x in samples]   # 0 dB at 1000 Hz


def loudness_db(channels):
    """Level of the loudest 100 ms, A-weighted.

    The channels are averaged, not summed, since a mono file comes out of both
    loudspeakers anyway.
    """
    power = [0.0] * len(channels[0])
    for samples in channels:
        power = [p + x * x / len(channels) for p, x in zip(power, as_heard(samples))]
    width = seconds(0.1)
    total = best = sum(power[:width])
    for old, new in zip(power, power[width:]):
        total += new - old
        best = max(best, total)
    return 10 * math.log10(best / width)


def limited(x):
    """Bends what exceeds half scale so that nothing reaches the ceiling."""
    room = 10 ** (CEILING_DB / 20) - 0.5
    over = room * math.tanh(max(0.0, abs(x) - 0.5) / room)
    return math.copysign(min(abs(x), 0.5) + over, x)


def finished(channels):
    """Centres the wave, silences both ends and brings it to the common level."""
    n = len(channels[0])
    up, down = seconds(0.002), min(seconds(0.12), n // 3)
    window = [math.sin(math.pi / 2 * min(1.0, i / up, (n - 1 - i) / down)) ** 2 for i in range(n)]
    ready = []
    for samples in channels:
        samples = [x * w for x, w in zip(run(samples, biquad("high", 28)), window)]
        offset = sum(samples) / sum(window)
        ready.append([x - offset * w for x, w in zip(samples, window)])
    gain, out = 1.0, ready
    for _ in range(6):   # the limiter takes some level away, so ask again
        gain *= 10 ** ((TARGET_DB - loudness_db(out)) / 20)
        out = [[limited(x * gain) for x in samples] for samples in ready]
    return out


def save(path, channels):
    pcm = [round(x * 32767) for frame in zip(*channels) for x in frame]
    with wave.open(str(path), "wb") as out:
        out.setparams((len(channels), 2, RATE, 0, "NONE", "not compressed"))
        out.writeframes(struct.pack(f"<{len(pcm)}h", *pcm))


def main():
    folder = Path(*sys.argv[1:2] or [Path(__file__).resolve().parent.parent / "Sonidos"])
    folder.mkdir(parents=True, exist_ok=True)
    for name, sound in (("click1", dice), ("bounce", chip), ("cannon", cannon),
                        ("Pop2", pop), ("strike", strike), ("applaus", applause)):
        save(folder / f"{name}.Wav", finished(sound()))


if __name__ == "__main__":
    main()
