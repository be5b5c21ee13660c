"""Wood, brass, enamel and parchment, carved in relief and lit from the upper left.

Lengths are units of scale 1.  A relief is sampled S times a unit and averaged down, so that
one source gives the pictures of both scales, the larger one with finer grain."""
import numpy as np
from iso import blur, rgb, to_lin, to_srgb

S = 8
SUN = np.array([-.46, -.58, .67])
SUN = SUN / np.linalg.norm(SUN)

WALNUT = [rgb(c) for c in ('4E3019', '72482A', '8F6039', 'A87A4C')]
BRASS = rgb('D2A24C')
PARCHMENT = rgb('F0E4C6')
SOCKET = rgb('2B1A10')                          # the gap around what is let into wood
IRON = rgb('8C8A86')


def lattice(x, y, cell, seed, wrap=None):
    """Smooth noise, -1..1, on cells of the given size; with wrap it repeats after that many units."""
    cx, cy = cell
    nx, ny = 256, 256
    if wrap is not None:
        nx, ny = max(1, int(round(wrap[0] / cx))), max(1, int(round(wrap[1] / cy)))
        cx, cy = wrap[0] / nx, wrap[1] / ny
    g = np.random.RandomState(seed).rand(ny, nx) * 2 - 1
    p, q = x / cx, y / cy
    i, j = np.floor(p).astype(int), np.floor(q).astype(int)
    f, e = p - i, q - j
    f, e = f * f * (3 - 2 * f), e * e * (3 - 2 * e)
    a, b, c, d = (g[(j + v) % ny, (i + u) % nx] for v, u in ((0, 0), (0, 1), (1, 0), (1, 1)))
    return (a * (1 - f) + b * f) * (1 - e) + (c * (1 - f) + d * f) * e


def ramp(colours, t):
    c = np.array(colours)
    p = np.clip(t, 0, 1) * (len(c) - 1)
    i = np.minimum(p.astype(int), len(c) - 2)
    return c[i] + (c[i + 1] - c[i]) * (p - i)[..., None]


def walnut(u, v, seed, light=0., wrap=None):
    """Planed wood; u runs along the grain, v across it."""
    def n(cell, k):
        return lattice(u, v + bend * (k > 1), cell, seed + k, wrap)
    bend = 0
    bend = 1.6 * n((34, 9), 0) + .5 * n((11, 4), 1)
    t = .46 + .16 * n((60, 7), 2) + .15 * n((44, 2.1), 3) + .10 * n((20, .8), 4) + .05 * n((7, .45), 6)
    t = t - .16 * np.clip(n((4.5, .35), 5) - .45, 0, 1)
    return ramp(WALNUT, t + light)


def parchment(x, y, seed, wrap=None):
    m = .5 * lattice(x, y, (22, 13), seed, wrap) + .3 * lattice(x, y, (8, 6), seed + 1, wrap) + .12 * lattice(x, y, (2.5, 2), seed + 2, wrap)
    fibre = lattice(x, y, (6, .6), seed + 3, wrap)
    return np.clip(PARCHMENT + (.020 * m + .008 * fibre)[..., None] * np.array([1, 1.1, 1.5]), 0, 1)


class Relief:
    """A picture that grows by laying shapes on one another.  A shape is a field of distances inwards
    from its rim, negative outside."""

    def __init__(self, w, h, ground):
        self.w, self.h = w, h
        self.y, self.x = (np.mgrid[0:h * S, 0:w * S] + .5) / S
        self.z = np.zeros((h * S, w * S))
        self.c = np.empty((h * S, w * S, 3))
        self.c[:] = ground
        self.gloss, self.metal = np.zeros_like(self.z), np.zeros_like(self.z)

    def box(self, x0, y0, x1, y1, r=0.):
        dx, dy = np.abs(self.x - (x0 + x1) / 2) - (x1 - x0) / 2 + r, np.abs(self.y - (y0 + y1) / 2) - (y1 - y0) / 2 + r
        return r - np.hypot(np.maximum(dx, 0), np.maximum(dy, 0)) - np.minimum(np.maximum(dx, dy), 0)

    def disc(self, cx, cy, r):
        return r - np.hypot(self.x - cx, self.y - cy)

    def lay(self, d, colour, base, rise=0., over=1., cove=False, gloss=0., metal=0.):
        """A slab of height base at its rim and base + rise from `over` units inwards; its edge is
        rounded, or with cove hollow."""
        t = np.clip(d / over, 0, 1)
        profile = t * t * (3 - 2 * t) if cove else np.sqrt(np.clip(1 - (1 - t) ** 2, 0, 1))
        m = d > 0
        self.z = np.where(m, base + rise * profile, self.z)
        self.c = np.where(m[..., None], np.clip(colour, 0, 1), self.c)
        self.gloss = np.where(m, gloss, self.gloss)
        self.metal = np.where(m, metal, self.metal)

    def tint(self, amount, factor):
        self.c = self.c * (1 + (np.asarray(factor) - 1) * np.clip(amount, 0, 1)[..., None])

    def height(self, x, y):
        return self.z[int(y * S), int(x * S)]

    # What is made of these more than once.

    def sheet(self, x0, y0, x1, y1, seed, base=.3, wrap=None):
        """Parchment let into the wood behind a line of brass."""
        d = self.box(x0, y0, x1, y1, 2.2)
        self.lay(d, BRASS, base, .75, .55, metal=1)
        self.lay(d - 1, parchment(self.x, self.y, seed, wrap), base - .35)
        self.tint(np.clip(1 - (d - 1) / 4.5, 0, 1) ** 2 * (d > 1), [.88, .82, .70])

    def rivet(self, x, y, r=1.9):
        base = self.height(x, y)
        self.lay(self.disc(x, y, r + .45), SOCKET * 1.3, base - .25)
        self.lay(self.disc(x, y, r), BRASS, base - .1, r * .72, r, metal=1)

    def light(self):
        """The picture in linear light, S samples a unit."""
        z = self.z
        gy, gx = np.gradient(z * S)
        n = np.stack([-gx, -gy, np.ones_like(z)], -1)
        n /= np.linalg.norm(n, axis=-1, keepdims=True)
        lit = np.clip(n @ SUN, 0, None) / SUN[2]
        aslant, reach = -SUN[:2] / np.hypot(*SUN[:2]), 3
        shade = np.zeros_like(z)
        for k in range(2, reach * S, 2):
            ox, oy = (int(round(a * k)) for a in aslant)
            blocker = np.pad(z, ((oy, 0), (ox, 0)), 'edge')[:z.shape[0], :z.shape[1]]
            shade = np.maximum(shade, blocker - z - k / S * SUN[2] / np.hypot(*SUN[:2]))
        lit = lit * (1 - .78 * blur(np.clip(3 * shade, 0, 1), S * .22))
        sky = np.clip(.5 + .5 * n[..., 2], 0, 1) * (1 - .38 * np.clip(blur(z, S * 1.6) - z, 0, 1))
        light = .64 * lit[..., None] * np.array([1.02, 1., .95]) + .36 * sky[..., None] * np.array([.93, .98, 1.08])
        half = SUN + np.array([0, 0, 1])
        glint = np.clip(n @ (half / np.linalg.norm(half)), 0, 1)
        albedo = to_lin(self.c)
        dull = albedo * light + (self.gloss * glint ** 26)[..., None] * np.array([1, .98, .92])
        # metal mirrors a bright sky above and a dark room below
        mirror = np.clip(.5 - .9 * (n[..., 0] + 1.25 * n[..., 1]), .12, 1.6) * (.35 + .65 * np.clip(lit, 0, 1.3))
        bright = albedo * (.25 * light + .85 * mirror[..., None]) + .55 * (glint ** 18)[..., None] * np.array([1, .93, .72])
        m = self.metal[..., None]
        return np.clip(dull * (1 - m) + bright * m, 0, 1)

    def pictures(self, scales):
        """The finished picture (sRGB floats) at each scale."""
        a = self.light()
        return [to_srgb(a.reshape(self.h * s, S // s, self.w * s, S // s, 3).mean((1, 3))) for s in scales]
