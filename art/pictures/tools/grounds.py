"""The two meadow grounds and the spare ground of picture 27, painted on the
pixel grid because they must meet to the pixel.  The third ground is a scene,
heath.pov, that stands on the second.

A map shows the two by the thousand in an even mixture, so whatever both have
in common shows as a lattice.  They therefore have nothing in common: where one
is lighter than the middle green the other is darker by as much.  Blades, tufts
and patches of the one are the gaps, shadows and hollows of the other, and any
mixture of the two is without a pattern."""
import numpy as np
from iso import *

GRASS = [rgb(c) for c in ('4f752a', '5c8432', '6a933b', '78a146', '8aaf54', '9fbf66')]
MIDDLE = 2.4                # of the ramp above, one step about 14 of luma
BLADES, TUFTS = 170, 10     # in a cell, half of them light and half dark in either ground
PATCH = .22                 # how far patches leave the middle


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


class Turf:
    """How far each pixel of a cell lies above or below the middle green."""

    def __init__(self, s, seed):
        self.s, self.r = s, np.random.RandomState(seed)
        self.t = np.zeros((32 * s, 64 * s))

    def put(self, px, py, value):
        x, y = wrap(px, py, self.s)
        self.t[y, x] = value

    def blade(self, u, v, sign, length, lean=0):
        """One blade, its root at (u, v): its tip catches the light, at its foot
        on the right lies its shade."""
        n, s = length * self.s, self.s
        x, y = int(s * (32 + 32 * (u - v))), int(s * 16 * (u + v))
        for k in range(n):
            self.put(x + int(round(lean * k / 2)), y - k, sign * (.10 + .62 * (k + 1) / n))
        self.put(x + 1, y, -sign * .30)
        if s == 2:
            self.put(x + 1, y + 1, -sign * .22)

    def tuft(self, u, v, sign):
        """A few longer blades out of one root."""
        for k in range(-2, 3):
            self.blade(u + .017 * k, v - .017 * k, sign * (1.25 if k % 2 else .9), 3 if k else 4, .6 * k)

    def level(self, sigma):
        """Take the coarse part out, as of the cell repeated for ever."""
        h, w = self.t.shape
        at = np.array([[wrap(x, y, self.s) for x in range(w)] for y in range(h)])
        endless = self.t[at[..., 1], at[..., 0]]         # the box holds two cells
        pad = int(3 * sigma) + 1
        self.t -= blur(np.pad(endless, pad, 'wrap'), sigma)[pad:-pad, pad:-pad]


def grasses(s):
    """Grain, blades and tufts.  They stand at the same places at both scales."""
    turf = Turf(s, 11)
    turf.t += blur(turf.r.randn(*turf.t.shape), .5) * (.30 if s == 1 else .36)
    r = np.random.RandomState(12)
    for k in range(BLADES):
        turf.blade(r.rand(), r.rand(), 1 - 2 * (k % 2), 2 if r.rand() < .7 else 3, r.choice([-1, 0, 0, 1]))
    for k in range(TUFTS):
        turf.tuft(r.rand(), r.rand(), 1 - 2 * (k % 2))
    turf.level(3. * s)
    return turf.t


def patches(s):
    """Three soft patches that flow together and end raggedly before the rim of
    the cell.  Cells of one ground beside each other make a larger patch."""
    u, v = cell_uv(s=s)
    edge = np.minimum(np.minimum(u, 1 - u), np.minimum(v, 1 - v))
    rough = torus_noise(11, 23, s) * .6 + torus_noise(19, 24, s) * .4 - .5
    spot = lambda cu, cv, ru, rv: np.exp(-((u - cu) / ru) ** 2 - ((v - cv) / rv) ** 2)
    # so placed that no row or column of the screen is darker than another
    p = 1.33 * spot(.68, .79, .31, .12) + 1.61 * spot(.66, .39, .17, .27) + 1.46 * spot(.21, .50, .12, .19)
    rim = np.clip((edge + .10 * rough) / .16, 0, 1)
    return (p - .15 + .6 * rough) * rim * rim * (3 - 2 * rim)


def ground(s, sign):
    turf, p = grasses(s), patches(s)
    t = np.clip(MIDDLE + sign * (turf - PATCH * p), 0, len(GRASS) - 1.001)
    i = np.floor(t).astype(int)
    lut, f = np.array(GRASS), (t - i)[..., None]
    img = lut[i] * (1 - f) + lut[i + 1] * f
    warm = -sign * PATCH * p[..., None] * np.array([.16, .02, -.14])     # light patches are dry
    return rgba(np.clip(img * (1 + warm), 0, 1), diamond_mask(1, s))


def render():
    for s in SCALES:
        save_pair(0, ground(s, 1), s)
        save_pair(28, ground(s, -1), s)
        high = np.zeros((64 * s, 64 * s, 4), np.uint8)
        high[32 * s:] = ground(s, 1)
        save_pair(27, high, s)
