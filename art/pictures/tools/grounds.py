"""The two meadow grounds and the spare ground of picture 27, painted on the
pixel grid because they must meet to the pixel.  The third ground is a scene,
heath.pov, that stands on the second."""
import numpy as np
from iso import *

GRASS = [rgb(c) for c in ('4f752a', '5c8432', '6a933b', '78a146', '8aaf54', '9fbf66')]


def wrap(px, py, s):
    """A pixel of the box, shifted by whole cells into the cell's diamond."""
    u = (((px + .5) / s - 32) / 32 + (py + .5) / s / 16) / 2
    v = ((py + .5) / s / 16 - ((px + .5) / s - 32) / 32) / 2
    u, v = u - np.floor(u), v - np.floor(v)
    return (int(np.floor(s * (32 * (u - v) + 32))), int(np.floor(s * 16 * (u + v))))


def torus_noise(n, seed, s):
    """Smooth noise over one cell, period one cell, n knots per side, 0..1."""
    u, v = cell_uv(s=s)
    g = np.random.RandomState(seed).rand(n, n)
    a, b = u * n, v * n
    i, j = np.floor(a).astype(int), np.floor(b).astype(int)
    f, h = a - i, b - j
    f, h = f * f * (3 - 2 * f), h * h * (3 - 2 * h)
    at = lambda p, q: g[p % n, q % n]
    return ((at(i, j) * (1 - f) + at(i + 1, j) * f) * (1 - h) +
            (at(i, j + 1) * (1 - f) + at(i + 1, j + 1) * f) * h)



class Meadow:
    """One ground cell in the making: a height on the grass ramp per pixel.

    Slow mottling is each variant's own but dies out towards the rim, so any
    two variants meet without an edge and no lattice shows; grain and tufts are
    finer than an edge can be seen, and they run on over the cell's border.
    Whatever of grain and tufts is coarser than a few pixels is taken out
    again: a map repeats the cell a thousand times, and a cluster of blades
    would show as a pattern."""

    def __init__(self, s, seed, tufts, tone=0.0, mottle=.5):
        """tone: how much lighter and yellower than the middle of the ramp;
        towards the rim the pixels of that tone thin out, so that two tones
        melt into one another."""
        self.r = r = np.random.RandomState(seed)
        self.s, h, w = s, 32 * s, 64 * s
        u, v = cell_uv(s=s)
        edge = np.minimum(np.minimum(u, 1 - u), np.minimum(v, 1 - v))
        rim = np.clip(edge / .3, 0, 1)
        mot = torus_noise(4, seed + 50, s) * .65 + torus_noise(9, seed + 60, s) * .35 - .5
        self.tone = tone * (r.rand(h, w) < .5 + .5 * np.clip(edge / .24, 0, 1))
        self.t = 2.4 + r.randn(h, w) * .20
        for _ in range(tufts * s):               # little blades, longer at scale 2
            self.blade(r.randint(0, w), r.randint(0, h))
        self.level()
        self.t += mottle * mot * rim + self.tone

    def blade(self, x, y):
        r = self.r
        top = 2.4 + r.uniform(.15, .65)
        for k in range(self.s):
            self.put(x, y - k, top + .1 * k)
        self.put(x, y + 1, top - .45)
        if r.rand() < .6:
            self.put(x + r.choice([-1, 1]), y + 1, top - .2)
        self.put(x + 1, y + 2, 1.95 + r.rand() * .25)     # its shade, lower right

    def put(self, px, py, val):
        x, y = wrap(px, py, self.s)
        self.t[y, x] = val

    def level(self):
        """Take the coarse part out, as of the cell repeated for ever."""
        h, w = self.t.shape
        at = np.array([[wrap(x, y, self.s) for x in range(w)] for y in range(h)])
        endless = self.t[at[..., 1], at[..., 0]]         # the box holds two cells
        coarse = blur(np.pad(endless, 16, 'wrap'), 2.5 * self.s)[16:-16, 16:-16]
        self.t += endless.mean() - coarse

    def colours(self):
        lut = np.array(GRASS)
        t = np.clip(self.t, 0, len(lut) - 1.001)
        i = np.floor(t).astype(int)
        f = (t - i)[..., None]
        self.img = lut[i] * (1 - f) + lut[i + 1] * f
        self.img = np.clip(self.img * (1 + self.tone[..., None] * np.array([.10, .03, -.06])), 0, 1)
        return self

    def done(self):
        return rgba(self.img, diamond_mask(1, self.s))


def plain(s):
    return Meadow(s, 11, 55, tone=0., mottle=.35).colours().done()


def clover(s):
    return Meadow(s, 12, 60, tone=.12, mottle=.15).colours().done()


def render():
    for s in SCALES:
        save_pair(0, plain(s), s)
        save_pair(28, clover(s), s)
        high = np.zeros((64 * s, 64 * s, 4), np.uint8)
        high[32 * s:] = plain(s)
        save_pair(27, high, s)
