"""The four cues, computed from a handful of numbers; mono, 44.1 kHz, 16 bit.

Plain Python and one seeded generator per cue, so that changing one cue leaves
the bytes of the others alone.
"""
import math
import random
import struct
import wave

RATE = 44100


def silence(seconds):
    return [0.0] * int(seconds * RATE)


def noise(rng, seconds):
    return [rng.uniform(-1, 1) for _ in range(int(seconds * RATE))]


def fade(sound, seconds):
    """Lead the end to rest, so that no step is heard where a sound stops."""
    last = min(len(sound), int(seconds * RATE))
    for i in range(last):
        sound[len(sound) - 1 - i] *= i / last
    return sound


def fall(sound, decay, attack=.001):
    """Shape a sound by a short attack and an exponential decay, both in seconds."""
    out = [v * min(1, i / RATE / attack) * math.exp(-i / RATE / decay) for i, v in enumerate(sound)]
    return fade(out, .004)


def mix(into, sound, at, gain=1.0):
    first = int(at * RATE)
    for i, v in enumerate(sound[:len(into) - first]):
        into[first + i] += gain * v


def low_pass(sound, hertz):
    a, state, out = 1 - math.exp(-2 * math.pi * hertz / RATE), 0.0, []
    for v in sound:
        state += a * (v - state)
        out.append(state)
    return out


def band_pass(sound, hertz, q):
    w = 2 * math.pi * hertz / RATE
    alpha = math.sin(w) / (2 * q)
    x1 = x2 = y1 = y2 = 0.0
    out = []
    for v in sound:
        y = (alpha * (v - x2) + 2 * math.cos(w) * y1 - (1 - alpha) * y2) / (1 + alpha)
        x2, x1, y2, y1 = x1, v, y1, y
        out.append(y)
    return out


def modes(seconds, partials):
    """A struck body: damped sines of (hertz, gain, decay, phase)."""
    out = silence(seconds)
    for hertz, gain, decay, phase in partials:
        wave_ = [math.sin(2 * math.pi * hertz * i / RATE + phase) for i in range(len(out))]
        mix(out, fall(wave_, decay, .0008), 0, gain)
    return out


def pluck(rng, hertz, seconds):
    """A plucked string: a burst of noise going round a loop that loses its edge each turn."""
    size = int(RATE / hertz)
    loop = low_pass(noise(rng, (size + 1) / RATE)[:size], 3800)
    mean = sum(loop) / size
    loop = [v - mean for v in loop]
    out = []
    for i in range(int(seconds * RATE)):
        k = i % size
        out.append(loop[k] * min(1, i / RATE / .002))
        loop[k] = .993 * (loop[k] + loop[(k + 1) % size]) / 2
    return out


def knock(rng, iron=1):
    """A hammer on a wooden peg, with some of the iron in it."""
    out = modes(.16, [(410, 1, .022, 0), (660, .7, .016, .7), (1130, .45, .011, .2),
                      (2710, .12 * iron, .026, .3), (4180, .07 * iron, .020, 1)])
    mix(out, band_pass(fall(noise(rng, .05), .004), 2200, .8), 0, .6 * iron)
    return out


def click():
    """soft click of a button"""
    rng, out = random.Random(11), silence(.09)
    mix(out, modes(.085, [(1250, 1, .010, 0), (2140, .5, .007, .4), (3380, .2, .004, 1.1)]), .001)
    mix(out, band_pass(fall(noise(rng, .02), .003), 4200, 1.2), 0, .4)
    return finish(out, -7)


def tick():
    """wooden tick of a tool picked: two bars of wood, with a breath of a string after them"""
    rng, out = random.Random(12), silence(.20)
    mix(out, modes(.12, [(880, 1, .018, 0), (1480, .5, .011, .5), (2370, .3, .007, 1.2)]), .001)
    mix(out, modes(.12, [(1175, 1, .014, .3), (1980, .4, .008, 0)]), .034, .45)
    mix(out, band_pass(fall(noise(rng, .03), .003), 3000, 1), 0, .35)
    mix(out, fall(pluck(rng, 440, .19), .05, .006), .002, .25)
    return finish(out, -8)


def build():
    """thump of a building set down, a stroke of the hammer and a softer one"""
    rng, out = random.Random(13), silence(.62)
    thump, phase = [], 0.0
    for i in range(int(.42 * RATE)):
        phase += 2 * math.pi * (62 + 90 * math.exp(-i / RATE / .025)) / RATE
        thump.append(math.sin(phase))
    mix(out, fall(thump, .05, .002), 0)
    mix(out, fall(low_pass(noise(rng, .22), 500), .03), 0, .35)
    mix(out, knock(rng), .20, .58)
    mix(out, knock(rng, .5), .40, .26)
    return finish(out, -9.2)


def crumble():
    """stones that crumble, falling in pitch and thinning out over a low rumble"""
    rng, out = random.Random(14), silence(.68)
    mix(out, fall(low_pass(noise(rng, .66), 140), .16, .006), 0, 2)
    mix(out, fall(low_pass(noise(rng, .2), 1500), .05, .002), 0, .7)
    at = .01
    while at < .60:
        hertz = rng.uniform(350, 1500) * (1 - .45 * at / .68)
        gain = .85 * math.exp(-at / .30) * rng.uniform(.4, 1)
        grain = fall(band_pass(noise(rng, .06), hertz, 2.5), rng.uniform(.006, .016))
        mix(out, grain, at, 4.2 * gain)
        # Grains close together would be one hiss: the gaps grow so that stones can be told apart.
        at += rng.expovariate(1 / .014) + .010 + at * .045
    out = [v * min(1, (.68 - i / RATE) / .18) ** .7 for i, v in enumerate(out)]
    return finish(out, -6.6)


def finish(sound, peak):
    """Start and end at rest and scale to the peak, given in dBFS."""
    fade(sound, .005)
    for i in range(8):
        sound[i] *= i / 8
    loudest = max(abs(v) for v in sound)
    return [v / loudest * 10 ** (peak / 20) for v in sound]


def save(path, sound):
    with wave.open(path, 'wb') as out:
        out.setparams((1, 2, RATE, 0, 'NONE', ''))
        out.writeframes(struct.pack(f'<{len(sound)}h', *(round(v * 32767) for v in sound)))


CUES = (click, tick, build, crumble)
