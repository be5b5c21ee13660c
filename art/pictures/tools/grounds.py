"""The three grounds and the spare ground of picture 27, painted on the pixel
grid because they must meet to the pixel."""
import numpy as np
from iso import *

GRASS = [rgb(c) for c in ('4f752a', '5c8432', '6a933b', '78a146', '8aaf54', '9fbf66')]


def wrap(px, py):
    """A pixel of the box, shifted by whole cells into the cell's diamond."""
    u = ((px - 31.5) / 32 + (py + .5) / 16) / 2
    v = ((py + .5) / 16 - (px - 31.5) / 32) / 2
    u, v = u - np.floor(u), v - np.floor(v)
    return (int(np.floor(32 * (u - v) + 32)), int(np.floor(16 * (u + v))))


def torus_noise(n, seed):
    """Smooth noise over one cell, period one cell, n knots per side, 0..1."""
    u, v = cell_uv()
    g = np.random.RandomState(seed).rand(n, n)
    a, b = u * n, v * n
    i, j = np.floor(a).astype(int), np.floor(b).astype(int)
    f, h = a - i, b - j
    f, h = f * f * (3 - 2 * f), h * h * (3 - 2 * h)
    at = lambda p, q: g[p % n, q % n]
    return ((at(i, j) * (1 - f) + at(i + 1, j) * f) * (1 - h) +
            (at(i, j + 1) * (1 - f) + at(i + 1, j + 1) * f) * h)


HEATH = [rgb(c) for c in ('2f5522', '3d6a2a', '4d7f33', '62943d', '7fab4c', 'a3c463')]


class Meadow:
    """One ground cell in the making: a height on the grass ramp per pixel.

    Slow mottling is each variant's own but dies out towards the rim, so any
    two variants meet without an edge and no lattice shows; grain and tufts are
    finer than an edge can be seen, and they run on over the cell's border."""

    def __init__(self, seed, tufts, dark=0.0, mottle=1.5):
        self.r = r = np.random.RandomState(seed)
        u, v = cell_uv()
        rim = np.clip(np.minimum(np.minimum(u, 1 - u), np.minimum(v, 1 - v)) / .3, 0, 1)
        mot = torus_noise(4, seed + 50) * .65 + torus_noise(9, seed + 60) * .35 - .5
        self.t = 2.45 + mottle * mot * rim + r.randn(32, 64) * .30 - dark * (.35 + .65 * rim)
        for _ in range(tufts):                   # little V-shaped blades
            x, y = r.randint(0, 64), r.randint(0, 32)
            top = r.uniform(3.1, 4.3) - dark
            self.put(x, y, top)
            self.put(x, y + 1, top - 1.1)
            if r.rand() < .6:
                self.put(x + r.choice([-1, 1]), y + 1, top - .4)
            self.put(x + 1, y + 2, 1.15 + r.rand() * .5)    # its shade, lower right
            if r.rand() < .5:
                self.put(x, y + 2, 1.5)

    def put(self, px, py, val):
        x, y = wrap(px, py)
        self.t[y, x] = val

    def colours(self):
        lut = np.array(GRASS)
        t = np.clip(self.t, 0, len(lut) - 1.001)
        i = np.floor(t).astype(int)
        f = (t - i)[..., None]
        self.img = lut[i] * (1 - f) + lut[i + 1] * f
        return self

    def flowers(self, n, kinds, spread=18):
        """Single blossoms with a darker pixel below, off the rim."""
        r = self.r
        for k in range(n):
            a, b = r.uniform(-1, 1), r.uniform(-1, 1)
            x, y = int(32 + spread * (a - b) / 1.2), int(16 + spread * (a + b) / 2.4)
            self.img[y, x] = rgb(kinds[k % len(kinds)])
            self.img[y + 1, x] *= .72
        return self

    def shrub(self, cx, cy, rad):
        """A round bush of a few pixels, lit from the upper left, with its
        shade on the grass to the right."""
        r = self.r
        for y in range(int(cy - rad - 1), int(cy + rad + 3)):
            for x in range(int(cx - 1.4 * rad - 1), int(cx + 1.4 * rad + 4)):
                X, Y = wrap(x, y)
                d = np.hypot((x - cx) / 1.25, y - cy) / rad
                s = np.hypot((x - cx - rad * .7) / 1.4, (y - cy - rad * .55) / .7) / rad
                if d <= 1:
                    lit = (-(x - cx) * .5 - (y - cy) * .9) / rad
                    k = np.clip(2.4 + 1.7 * lit + r.uniform(-.9, .9), 0, 4.99)
                    i = int(k)
                    self.img[Y, X] = HEATH[i] * (1 - k + i) + HEATH[i + 1] * (k - i)
                elif s <= 1:
                    self.img[Y, X] = self.img[Y, X] * .74
        return self

    def done(self):
        return rgba(self.img, diamond_mask())


def plain():
    """The meadow that the buildings' plots are blended into."""
    return Meadow(11, 64).colours().done()


def clover():
    return Meadow(12, 80).colours().flowers(5, ['c9d29c', 'd8c95c', 'b9c98a']).done()


def heath():
    """Taller, darker growth: the border of the square, clumps in the meadow."""
    m = Meadow(13, 96, dark=.95, mottle=1.9).colours()
    for x, y, rad in ((32, 6.5, 2.8), (19, 13.5, 3.4), (44, 12.5, 2.6), (31, 16.5, 2.5), (26, 24.5, 3.0), (42, 20.5, 3.3),
                      (9, 16, 1.9), (55, 17, 2.0), (35, 27, 1.8), (24, 9, 1.7)):
        m.shrub(x, y, rad)
    return m.flowers(4, ['c9a6dd', 'e6d26a'], 15).done()


def render():
    save_pair(0, plain())
    save_pair(28, clover())
    save_pair(29, heath())
    high = np.zeros((64, 64, 4), np.uint8)
    high[32:] = plain()
    save_pair(27, high)
