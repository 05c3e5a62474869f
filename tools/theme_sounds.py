"""A small synthesiser for the themes' menu sounds: short notes made of a few partials,
glides and a breath of filtered noise, each with a soft attack and release, written as
PCM wave files (16-bit, 22050 Hz, mono). Plain Python; the same voice gives the same
bytes. The seven files are named after the sound events as the preferences list them."""
import math
import struct

RATE = 22050
PEAK = 0.42  # the loudest sample, as a part of full scale: soft beside system sounds

# The sound events in their order (SoundFx0 to SoundFx6).
EVENTS = ["Open Menu", "Close Menu", "Execute Item", "Roll Menu Up", "Roll Menu Down", "Menu Always on Top",
          "Rotate Menu"]

# What each event plays, as gestures a voice colours: (start s, length s, pitch from, pitch
# to, loudness), pitches in semitones above the voice's root. Opening rises and closing
# falls; choosing an item is one bright note; rolling glides; on-top is a dyad; rotating
# runs up a chord.
GESTURES = {
    "Open Menu": [(0.0, 0.16, 0, 0, 0.8), (0.07, 0.2, 7, 7, 1.0)],
    "Close Menu": [(0.0, 0.16, 7, 7, 0.9), (0.07, 0.2, 0, 0, 0.8)],
    "Execute Item": [(0.0, 0.24, 12, 12, 1.0)],
    "Roll Menu Up": [(0.0, 0.2, -5, 7, 0.9)],
    "Roll Menu Down": [(0.0, 0.2, 7, -5, 0.9)],
    "Menu Always on Top": [(0.0, 0.26, 0, 0, 0.7), (0.0, 0.26, 12, 12, 0.6)],
    "Rotate Menu": [(0.0, 0.12, 0, 0, 0.7), (0.05, 0.12, 4, 4, 0.8), (0.1, 0.2, 7, 7, 0.9)],
}


def wav_bytes(samples):
    data = b"".join(struct.pack("<h", max(-32767, min(32767, int(round(v * 32767))))) for v in samples)
    fmt = struct.pack("<HHIIHH", 1, 1, RATE, RATE * 2, 2, 16)
    return (b"RIFF" + struct.pack("<I", 4 + 8 + len(fmt) + 8 + len(data)) + b"WAVE" + b"fmt " +
            struct.pack("<I", len(fmt)) + fmt + b"data" + struct.pack("<I", len(data)) + data)


def envelope(i, n, attack, decay):
    """A raised-cosine attack, an exponential decay and a raised-cosine release over the
    last fifth: starts and ends at zero, so nothing clicks."""
    t = i / RATE
    a = 0.5 - 0.5 * math.cos(math.pi * min(t / attack, 1.0))
    release = n * 0.2
    r = 1.0 if i < n - release else 0.5 - 0.5 * math.cos(math.pi * (n - i) / release)
    return a * r * math.exp(-decay * t)


class Noise:
    """Deterministic white noise (a linear congruential generator)."""

    def __init__(self, start):
        self.state = start

    def next(self):
        self.state = (self.state * 1103515245 + 12345) & 0x7FFFFFFF
        return self.state / 0x3FFFFFFF - 1.0


def note(voice, length, pitch_from, pitch_to, loudness):
    """One note of a voice: its partials, each (ratio, level, extra decay), follow a glide
    from one pitch to another; square voices add odd partials that stay under the
    Nyquist limit; a breath voice adds low-passed noise."""
    n = int(length * RATE)
    f0 = voice["root"] * 2 ** (pitch_from / 12.0)
    f1 = voice["root"] * 2 ** (pitch_to / 12.0)
    out = [0.0] * n
    for ratio, level, extra in voice["partials"]:
        phase = 0.0
        for i in range(n):
            u = i / n
            f = (f0 * (f1 / f0) ** min(u * 1.6, 1.0)) * ratio
            if voice.get("chirp"):  # a little drop into the note, as a tap on glass
                f *= 1.0 + voice["chirp"] * math.exp(-i / (0.012 * RATE))
            phase += 2.0 * math.pi * f / RATE
            if f < RATE / 2.2:
                e = envelope(i, n, voice["attack"], voice["decay"] * (1.0 + extra))
                out[i] += level * e * math.sin(phase)
    if voice.get("breath"):
        noise, low, amount = Noise(int(f0 * 7) + n), 0.0, voice["breath"]
        for i in range(n):
            low += 0.08 * (noise.next() - low)
            out[i] += amount * envelope(i, n, 0.02, voice["decay"] * 0.6) * low
    return [v * loudness for v in out]


def render(voice, gesture):
    length = max(start + dur for start, dur, _, _, _ in gesture)
    mixed = [0.0] * int(length * RATE)
    for start, dur, p0, p1, loud in gesture:
        offset = int(start * RATE)
        for i, v in enumerate(note(voice, dur, p0, p1, loud)):
            mixed[offset + i] += v
    peak = max(abs(v) for v in mixed) or 1.0
    return [v * voice.get("peak", PEAK) / peak for v in mixed]


def write_sounds(folder, voice, write):
    """Writes "<event>.wav" for every event with write(folder, name, bytes)."""
    for event in EVENTS:
        write(folder, event + ".wav", wav_bytes(render(voice, GESTURES[event])))


# The voices: a square wave is its odd partials at 1/n.
SQUARE = [(k, 1.0 / k, 0.0) for k in (1, 3, 5, 7, 9)]

VOICES = {
    # Glass: a bell's inharmonic partials, the high ones fading first.
    "glass": {"root": 659.3, "partials": [(1.0, 1.0, 0.0), (2.76, 0.28, 1.5), (5.4, 0.08, 3.0)], "attack": 0.006,
              "decay": 9.0},
    # Wood: a soft marimba bar with a breath of paper.
    "wood": {"root": 392.0, "partials": [(1.0, 1.0, 0.0), (3.93, 0.22, 2.5), (9.2, 0.05, 5.0)], "attack": 0.006,
             "decay": 14.0, "breath": 0.18},
    # Tap: a short round blip that drops into its pitch.
    "tap": {"root": 880.0, "partials": [(1.0, 1.0, 0.0), (2.0, 0.15, 2.0)], "attack": 0.005, "decay": 22.0,
            "chirp": 0.35},
    # Beep: a soft square wave, as an old terminal's speaker; quieter, as it sustains.
    "beep": {"root": 523.3, "partials": SQUARE, "attack": 0.01, "decay": 4.0, "peak": 0.26},
}
