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


def grass(seed, tufts=70, flowers=0, dark=0.0):
    """One ground cell.  Slow mottling is each variant's own but dies out
    towards the rim, so any two variants meet without an edge and no lattice
    shows; grain and tufts are finer than an edge can be seen."""
    r = np.random.RandomState(seed)
    u, v = cell_uv()
    rim = np.clip(np.minimum(np.minimum(u, 1 - u), np.minimum(v, 1 - v)) / .3, 0, 1)
    mot = torus_noise(4, seed + 50) * .65 + torus_noise(9, seed + 60) * .35 - .5
    t = 2.35 + 1.5 * mot * rim + r.randn(32, 64) * .40 - dark

    def put(px, py, val):
        x, y = wrap(px, py)
        t[y, x] = val

    for _ in range(tufts):                       # little V-shaped blades
        x, y = r.randint(0, 64), r.randint(0, 32)
        top = r.uniform(3.4, 4.9) - dark
        put(x, y, top)
        put(x, y + 1, top - 1.1)
        if r.rand() < .6:
            put(x + r.choice([-1, 1]), y + 1, top - .4)
        put(x + 1, y + 2, .7 + r.rand() * .5)    # its shade, lower right
        if r.rand() < .5:
            put(x, y + 2, 1.1)
    lut = np.array(GRASS)
    t = np.clip(t, 0, len(lut) - 1.001)
    i = np.floor(t).astype(int)
    f = (t - i)[..., None]
    img = lut[i] * (1 - f) + lut[i + 1] * f
    for k in range(flowers):
        x, y = r.randint(14, 50), r.randint(8, 24)
        img[y, x] = rgb(['dfe0bc', 'e3cf5e', 'd8d6c4'][k % 3])
        img[y + 1, x] = img[y + 1, x] * .7
    return rgba(img, diamond_mask())


def render():
    save_pair(0, grass(11, 64))
    save_pair(28, grass(12, 84, flowers=3))
    save_pair(29, grass(13, 100, dark=.35))
    high = np.zeros((64, 64, 4), np.uint8)
    high[32:] = grass(11, 64)
    save_pair(27, high)
