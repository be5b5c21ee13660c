"""The countryside around the map: band of missions 1 to 3, coast of 4 to 6.

A World holds, on a grid of map cells, the height of the land, its colour, and a
list of things standing on it.  It is written out for pov/country.pov."""
from scene import *

R = 64                                          # grid points per cell


def hx(s):
    return np.array([int(s[i:i + 2], 16) for i in (0, 2, 4)]) / 255.


GRASS = [hx(c) for c in ('4F752A', '5C8432', '6A933B', '78A146', '8AAF54', '9FBF66')]
WATER = [hx(c) for c in ('2D5F86', '356F98', '4181A8', '5A9CBD', '6FB0CA', 'B9DFE6')]


def ramp(colours, t):
    t = np.clip(t, 0, 1) * (len(colours) - 1.001)
    i = t.astype(int)
    c = np.array(colours)
    return c[i] + (c[i + 1] - c[i]) * (t - i)[..., None]


def smooth(a, b, v):
    t = np.clip((v - a) / (b - a), 0, 1)
    return t * t * (3 - 2 * t)


class World:
    def __init__(self, x0, y0, size, seed):
        self.x0, self.y0, self.size = x0, y0, size
        n = int(size * R)
        j, i = np.mgrid[0:n, 0:n] + .5          # doubles, as are all exponentials and sines of places
        self.X, self.Y = x0 + i / R, y0 + j / R
        self.Z = np.zeros((n, n), np.float32)
        self.C = np.zeros((n, n, 3), np.float32)
        self.busy = np.zeros((n, n), bool)      # no wild plants here
        self.things = []
        self.rim = None                         # distance to the end of the land
        self.r = np.random.RandomState(seed)

    def noise(self, scale, seed, sx=1, sy=1):
        """Smooth noise, about -1..1, with waves of `scale` cells."""
        r = np.random.RandomState(seed)
        n = int(self.size / scale) + 4
        g = (r.rand(n, n) * 2 - 1).astype(np.float32)
        p, q = (self.X[0] - self.x0) / scale, (self.Y[:, 0] - self.y0) / scale
        i, j = p.astype(int), q.astype(int)
        f, e = (p - i).astype(np.float32), (q - j).astype(np.float32)[:, None]
        f, e = f * f * (3 - 2 * f), e * e * (3 - 2 * e)
        rows = g[j] * (1 - e) + g[j + 1] * e
        return rows[:, i] * (1 - f) + rows[:, i + 1] * f

    def fbm(self, scale, seed, octaves=4):
        a, s, out = 1., 0., 0
        for k in range(octaves):
            out = out + a * self.noise(scale / 2 ** k, seed + k)
            s += a
            a *= .55
        return out / s

    def at(self, a, x, y):
        i = int(np.clip((x - self.x0) * R, 0, a.shape[1] - 1))
        j = int(np.clip((y - self.y0) * R, 0, a.shape[0] - 1))
        return a[j, i]

    def hill(self, x, y, rx, ry, h):
        self.Z += h * np.exp(-((self.X - x) / rx) ** 2 - ((self.Y - y) / ry) ** 2)

    def put(self, name, x, y, scale=1., turn=0., sink=0., z=None):
        if self.rim is not None and self.at(self.rim, x, y) < .06:
            return                                      # beyond the end of the land
        z = self.at(self.Z, x, y) - sink if z is None else z
        self.things.append('object { %s rotate z*%.1f scale %.3f translate <%.3f,%.3f,%.3f> }' % (name, turn, scale, x, y, z))

    def paint(self, colour, alpha):
        a = np.clip(alpha, 0, 1)[..., None]
        self.C += (colour - self.C) * a

    # ---- ground
    def meadow(self, seed):
        t = .46 + .16 * self.fbm(5, seed, 3) + .10 * self.noise(.9, seed + 9) + .07 * self.noise(.3, seed + 10)
        self.C[:] = ramp(GRASS, t)
        dry = smooth(.25, .7, self.fbm(6, seed + 20, 3))
        self.paint(hx('A9B45A'), dry * .55)
        lush = smooth(.25, .7, self.fbm(4, seed + 30, 3))
        self.paint(hx('5C8A34'), lush * .5)

    def grain(self, seed):
        r = np.random.RandomState(seed)
        n = r.randn(*self.Z.shape).astype(np.float32)
        n = .5 * n + .7 * blur(n, 1.0) + 1.6 * blur(n, 2.0)
        self.C *= (1 + .055 * n)[..., None]

    def rim_green(self, d):
        """Near the map the meadow takes the colour of the map's own ground."""
        self.paint(np.array([112, 153, 65]) / 255., .85 * smooth(1.3, .1, d) * (~self.busy))

    def garden(self, x, y, turn, seed):
        """Beds and a fence behind a house."""
        r = np.random.RandomState(seed)
        a = np.radians(turn)
        self.field(x, y, .70, .46, turn, ('vine', 'corn')[seed % 2], 1, 0)
        for k in range(4):
            t = (k - 1.5) * .19
            self.put('Rail', x + t * np.cos(a) - .27 * np.sin(a) - .1 * np.cos(a), y + t * np.sin(a) + .27 * np.cos(a) - .1 * np.sin(a), .19, turn)

    def flock(self, x, y, n, spread):
        for _ in range(n):
            self.put('Sheep', x + spread * self.r.randn(), y + spread * self.r.randn(), .17 + .04 * self.r.rand(), 360 * self.r.rand())

    def flowers(self, mask, seed, colours, n):
        r = np.random.RandomState(seed)
        ys, xs = np.nonzero(mask)
        for k in r.permutation(len(ys))[:n]:
            j, i = ys[k], xs[k]
            self.C[j:j + R // 24, i:i + R // 24] = colours[r.randint(len(colours))]

    # ---- lines: roads, streams
    def along(self, pts, n=60, reach=2.5):
        """Distance of every grid point to a smooth curve through the points."""
        p = np.array(pts, float)
        q = []
        for i in range(len(p) - 1):
            a, b, c, d = p[max(i - 1, 0)], p[i], p[i + 1], p[min(i + 2, len(p) - 1)]
            for t in np.arange(n) / n:
                q.append(.5 * (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t + (3 * b - a - 3 * c + d) * t ** 3))
        q.append(p[-1])
        q = np.array(q)
        best = np.full(self.Z.shape, 9., np.float32)
        for x, y in q:
            i0, i1 = int((x - reach - self.x0) * R), int((x + reach - self.x0) * R)
            j0, j1 = int((y - reach - self.y0) * R), int((y + reach - self.y0) * R)
            i0, j0 = max(i0, 0), max(j0, 0)
            if i1 <= i0 or j1 <= j0:
                continue
            s = best[j0:j1, i0:i1]
            np.minimum(s, np.hypot(self.X[j0:j1, i0:i1] - x, self.Y[j0:j1, i0:i1] - y), out=s)
        return best, q

    def track(self, pts, width=.13):
        d, q = self.along(pts)
        d = d + .03 * self.noise(.25, 77)
        self.paint(hx('C7B184'), smooth(width + .05, width - .03, d) * .95)
        self.paint(hx('9DA45A'), smooth(.05, .01, d) * .5)
        self.busy |= d < width + .12
        return q

    # ---- fields
    KINDS = {'wheat': ('D9B75C', 'EBCF78'), 'corn': ('6F9C3A', '8DB84C'), 'plough': ('6A4A30', '84603E'), 'rape': ('C9BE3C', 'DCD04E'),
             'hay': ('A4B45C', 'B6C068'), 'vine': ('8C8A50', '4F7A30'), 'clover': ('5C9440', '6AA24A')}

    def field(self, cx, cy, w, h, turn, kind, along=0, hedge=1.):
        a = np.radians(turn)
        u = (self.X - cx) * np.cos(a) + (self.Y - cy) * np.sin(a)
        v = -(self.X - cx) * np.sin(a) + (self.Y - cy) * np.cos(a)
        d = np.minimum(w / 2 - np.abs(u), h / 2 - np.abs(v)) + .02 * self.noise(.3, 5)
        lo, hi = (hx(c) for c in self.KINDS[kind])
        s = v if along == 0 else u
        pitch = .22 if kind == 'vine' else .15
        wave = .5 + .5 * np.sin(2 * np.pi * (s + .012 * self.noise(.4, 6)) / pitch)
        if kind in ('hay', 'clover'):
            wave = .5 + .4 * np.sin(2 * np.pi * s / .42)
        if kind == 'vine':
            wave = smooth(.35, .65, wave)
        col = lo + (hi - lo) * wave[..., None]
        col = col * (1 + .06 * self.noise(.7, 8))[..., None]
        self.paint(hx('7C8A44'), smooth(-.06, .0, d))
        self.paint(col, smooth(.03, .07, d))
        if kind in ('wheat', 'corn'):
            self.Z += (.05 if kind == 'wheat' else .03) * smooth(.03, .08, d)
        self.busy |= d > -.10
        r = self.r
        for side in range(4):
            L = w if side % 2 == 0 else h
            gap = r.rand() * L
            for k in range(int(L / .13)):
                t = (k + .5) * .13
                if abs(t - gap) < .16 or r.rand() > hedge:
                    continue
                pu, pv = ((t - w / 2, -h / 2), (w / 2, t - h / 2), (t - w / 2, h / 2), (-w / 2, t - h / 2))[side]
                pu, pv = pu + .03 * r.randn(), pv + .03 * r.randn()
                x, y = cx + pu * np.cos(a) - pv * np.sin(a), cy + pu * np.sin(a) + pv * np.cos(a)
                if r.rand() < .035:
                    self.put('OakD', x, y, .38 + .12 * r.rand(), 360 * r.rand())
                else:
                    self.put('ShrA' if r.rand() < .75 else 'ShrB', x, y, .20 + .10 * r.rand(), 360 * r.rand(), .01)
        if kind == 'hay':
            for k in range(int(w * h * 1.6)):
                pu, pv = (r.rand() - .5) * (w - .4), (r.rand() - .5) * (h - .4)
                self.put('Hay', cx + pu * np.cos(a) - pv * np.sin(a), cy + pu * np.sin(a) + pv * np.cos(a), .32 + .08 * r.rand())

    def patchwork(self, cx, cy, turn, cols, rows, kinds, hedge=.9):
        """A block of fields side by side: widths, heights, and what grows."""
        a = np.radians(turn)
        W, H = sum(cols), sum(rows)
        k, v = 0, -H / 2
        for h in rows:
            u = -W / 2
            for w in cols:
                pu, pv = u + w / 2, v + h / 2
                if kinds[k % len(kinds)]:
                    self.field(cx + pu * np.cos(a) - pv * np.sin(a), cy + pu * np.sin(a) + pv * np.cos(a), w, h, turn, kinds[k % len(kinds)], k % 2, hedge)
                u += w
                k += 1
            v += h

    def thin_out(self, reach=.34, wild=1):
        """The ground darkens towards the end of the land (unevenly where wild), and
        beyond it falls away into the black."""
        ragged = self.rim + wild * (.07 * self.noise(.16, 91) + .04 * self.noise(.07, 92))
        self.C *= (smooth(0, reach, ragged) * (self.rim > .015))[..., None]
        self.Z = np.where(self.rim < 0, self.Z + 3.0 * np.clip(self.rim, -2, 0), self.Z).astype(np.float32)

    # ---- plants
    def ceiling(self, x, y, top, scale):
        if callable(top):
            top = top(x - y)
        """Does a tree of this size still fit under the upper rim of a picture?"""
        return 32 + 16 * (x + y) - 39.2 * (self.at(self.Z, x, y) + 1.32 * scale) > top

    def wood(self, density, pitch, kinds, size, top):
        """Plants on a shaken grid where density (0..1) wins the draw."""
        r = self.r
        n = int(self.size / pitch)
        for j in range(n):
            for i in range(n):
                x = self.x0 + (i + .5 + .8 * (r.rand() - .5)) * pitch
                y = self.y0 + (j + .5 + .8 * (r.rand() - .5)) * pitch
                p, s, k, t = r.rand(), size[0] + (size[1] - size[0]) * r.rand(), r.rand(), 360 * r.rand()
                if p >= self.at(density, x, y) or self.at(self.busy, x, y) or not self.ceiling(x, y, top, s):
                    continue
                kind = kinds(x, y, k) if callable(kinds) else kinds[int(k * len(kinds))]
                self.put(kind, x, y, s * (.8 if kind.startswith('Fir') else 1), t, .01)

    def write(self):
        os.makedirs(OUT, exist_ok=True)
        lo, hi = float(self.Z.min()), float(self.Z.max()) + 1e-3
        z = np.round((self.Z - lo) / (hi - lo) * 65535).astype(np.uint16)
        Image.fromarray(z).save(OUT + '/heights.png')
        c = np.round(np.clip(self.C, 0, 1) * 255).astype(np.uint8)
        Image.fromarray(c[::-1].copy(), 'RGB').save(OUT + '/colours.png')
        with open(OUT + '/things.inc', 'w') as f:
            f.write('Land("heights.png", "colours.png", %g, %g, %g, %g, %g)\n' % (self.x0, self.y0, self.size, lo, hi - lo))
            f.write('\n'.join(self.things) + '\n')
        print('%d things' % len(self.things))


def band():
    E, F = 6., 25.
    w = World(-5, -5, 31, 1)
    X, Y = w.X, w.Y
    d = np.maximum(E - X, E - Y)                        # cells behind the back edges
    rim = np.minimum(np.minimum(X, Y) + 3.6, (X + Y) * .62 - 1.1)    # to the outer edge
    rim = np.minimum(rim, (26.9 - np.abs(X - Y - .4 * (X < Y))) * .7)
    rim = np.minimum(rim, F - np.maximum(X, Y)) + .35 * w.noise(1.7, 3) + .12 * w.noise(.5, 4)
    rise = smooth(.4, 5.5, d)
    w.Z = (rise * (.35 + .55 * w.fbm(5.5, 11, 3)) + .06 * smooth(.2, 1, d) * w.noise(1.6, 15)).astype(np.float32)
    for x, y, rx, ry, h in ((-2, 20.5, 1.8, 2.6, 1.5), (-2.2, 15, 1.7, 2.4, 1.1), (-1.6, 9.5, 1.6, 2.8, 1.3), (-1.0, 4.0, 1.5, 2, .6),
                            (4.5, -1.2, 2, 1.4, .6), (9.5, -2, 2.6, 1.6, 1.3), (15, -2.2, 2.2, 1.7, 1.5), (21, -2, 2.8, 1.8, 1.2), (1.4, 23.5, 1.6, 1.5, .5), (23.4, .8, 1.6, 1.6, .5)):
        w.hill(x, y, rx, ry, h)
    w.Z *= smooth(.15, 1.6, d)
    # a pond in the right wing, fed by a brook from the hills
    pond = np.hypot((X - 16.6) / 1.9, (Y - 2.9) / 1.05) + .10 * w.noise(.9, 21) - 1
    brook, _ = w.along([(13.4, -3.2), (13.8, -1.6), (14.9, -.6), (14.8, .8), (15.6, 2.3)])
    lake = np.minimum(pond, (brook - .10) * .8)
    w.Z = (w.Z * smooth(-.02, 1.0, pond) - .06 * smooth(.12, -.1, pond) - .10 * smooth(.25, .0, brook) * smooth(.05, .4, pond)).astype(np.float32)
    w.rim = rim
    w.meadow(30)
    # village on the left, tracks
    w.track([(6.4, 12.4), (4.6, 12.2), (2.9, 12.9), (1.2, 13.8), (-.4, 16), (.4, 19.5), (2.2, 22.5), (3.4, 25.2)])
    w.track([(2.9, 12.9), (2.4, 11.2), (2.6, 8.6), (3.4, 5.6), (5.4, 3.6), (8.5, 3.1), (11.5, 3.5), (13.2, 1.6), (13.0, -.4)])
    w.track([(11.5, 3.5), (13.6, 4.4), (16.5, 4.6), (19.5, 3.6), (22.4, 3.0), (25.2, 3.8)])
    for n, x, y, s, t in (('Church', 2.1, 13.5, .98, 8), ('HouA', 3.55, 13.75, .76, 95), ('HouB', 4.1, 11.45, .78, 4), ('HouC', 3.0, 11.75, .72, -80), ('HouA', 1.75, 11.9, .74, 92),
                          ('HouB', 1.5, 14.8, .76, 20), ('HouC', .55, 13.1, .70, 65), ('HouA', .3, 15.2, .74, 25), ('HouB', 3.1, 14.9, .74, 88), ('HouA', 4.75, 13.35, .70, 5),
                          ('Barn', 2.1, 10.1, .76, 95), ('HouC', 4.5, 10.2, .70, 100), ('HouB', -.5, 14.3, .66, 70), ('Well', 2.95, 12.75, .5, 20),
                          ('Barn', 20.5, 2.3, .74, 5), ('HouA', 19.2, 2.7, .74, 10), ('HouC', 12.2, 2.5, .72, 30), ('HouB', 8.0, 2.1, .70, 10), ('Barn', .7, 18.5, .70, 75),
                          ('HouA', 21.6, 2.1, .66, 92), ('Mill', 10.2, .4, 1.0, 0), ('Mill', -1.6, 18.3, .95, 0)):
        w.put(n, x, y, s, t, .02)
        w.busy |= np.hypot(X - x, Y - y) < .55 * s + .12
    for k, (x, y, t) in enumerate(((4.6, 12.65, 5), (3.85, 14.6, 5), (1.0, 11.9, 0), (1.0, 14.2, 20), (3.7, 10.75, 5), (19.95, 3.0, 10))):
        w.garden(x, y, t, k)
    w.flock(5.0, 7.2, 9, .35)
    w.flock(12.6, 1.0, 8, .35)
    w.flock(22.8, 1.6, 6, .3)
    # fields
    w.patchwork(3.3, 18.3, 4, (1.5, 1.3), (1.5, 1.3, 1.6), ('wheat', 'corn', 'clover', 'plough', 'corn', 'wheat'))
    w.patchwork(3.6, 8.4, -3, (1.5,), (1.4, 1.5), ('corn', 'wheat'))
    w.patchwork(.6, 8.6, 8, (1.6,), (1.5, 1.4), ('hay', 'vine'))
    w.patchwork(9.6, 4.6, 2, (1.4, 1.5, 1.4), (1.3,), ('plough', 'wheat', 'clover'))
    w.patchwork(17.6, .1, -6, (1.5, 1.6, 1.4), (1.3, 1.2), ('wheat', 'corn', 'hay', 'clover', 'plough', 'rape'))
    w.patchwork(22.3, 4.6, 2, (1.6, 1.5), (1.3,), ('corn', 'wheat'))
    w.patchwork(8.0, -.2, 5, (1.4, 1.2), (1.2,), ('vine', 'wheat'))
    # water colours
    deep = smooth(.02, -.75, pond)
    w.paint(hx('B8A878'), smooth(.16, .05, lake))
    w.paint(ramp(WATER, .60 - .40 * deep + .06 * w.noise(.5, 41)), smooth(.03, -.02, lake))
    ripple(w, lake < -.08, 42, 130)
    w.busy |= lake < .1
    w.rim_green(d)
    w.grain(50)
    w.flowers((w.fbm(3, 60, 2) > .3) & ~w.busy & (d > .2), 61, [hx('F4EEDF'), hx('F2D14A'), hx('E8607A'), hx('F4EEDF')], 900)
    # woods: dense on the outer hills, clumps inside, an open belt along the map
    r, patch = w.r, w.fbm(3.6, 70, 3)
    edge = smooth(1.5, .5, rim)
    dens = np.clip(1.25 * edge + smooth(.10, .34, patch) * smooth(.9, 1.8, d), 0, 1) * smooth(.3, .9, d)
    ends = smooth(1.6, .6, F - np.maximum(X, Y)) * smooth(.35, .8, d)
    dens = np.maximum(dens, ends * .95) * smooth(.12, .3, rim)
    firs = w.fbm(4.5, 80, 2)
    leafy = ('OakA', 'OakB', 'OakD', 'OakA', 'OakC', 'OakB', 'OakE')
    kind = lambda x, y, k: ('FirA', 'FirB')[k < .4] if w.at(firs, x, y) + .35 * (k - .5) > .16 else leafy[int(k * 7)]
    w.wood(dens, .30, kind, (.42, .68), 33)
    w.wood(np.where(rim > .3, .035 * smooth(.3, .8, d), 0), .34, ('OakA', 'OakD', 'OakC', 'ShrA', 'PopA', 'ShrB', 'ShrA'), (.34, .55), 33)
    w.wood(np.where(rim > .15, .06 * smooth(.15, .5, d) + .5 * smooth(.05, .3, dens) * (dens < .8), 0), .26, ('ShrA', 'ShrB'), (.16, .30), 33)
    w.wood(np.where((np.abs(pond - .02) < .05) & (brook > .3) & (w.noise(1.1, 90) > -.1), .75, 0), .17, ('Reeds',), (.32, .5), 33)
    w.put('BoatA', 16.9, 2.6, .5, -20, z=-.05)
    w.thin_out()
    w.write()
    X0, Y0, W, H = BAND
    for s, img in shot('country', W, H, 992 - X0, 32 - Y0, 4, 14).items():
        img[box(square(18, s), *BAND, s)] = 0
        save_land('mask/48', img, s)


P = 3.8125                                      # the water pictures repeat every P cells along y
Y1 = 1 / 64.                                    # where the first of them begins


def waves(w):
    """Slow light and dark of moving water; repeats every P cells along y."""
    r = np.random.RandomState(5)
    out = 0
    for k in range(26):
        n, m = r.randint(-5, 6), r.uniform(-1.6, 1.6)
        out = out + np.cos(2 * np.pi * (n * w.Y / P + m * w.X) + 6.28 * r.rand()) / (1 + .35 * (abs(n) + abs(m)))
    return out / 6


def coast(harbour=False):
    E, F = 4., 27.
    w = World(-5.5, -5.5, 34, 2)
    X, Y = w.X, w.Y
    d = np.maximum(E - X, E - Y)
    bend = smooth(4.2, 3.2, Y)                          # 0 where the river must repeat
    per = .10 * np.sin(2 * np.pi * Y / P + 1) + .05 * np.sin(4 * np.pi * Y / P + 4) + .03 * np.sin(10 * np.pi * Y / P)
    free = .16 * w.noise(1.3, 3) + .06 * w.noise(.4, 4)
    bank = per * (1 - bend) + free * bend
    line, _ = w.along([(1.42, 5.0), (1.42, 3.6), (1.62, 2.6), (2.12, 2.05), (2.9, 1.75), (4.0, 1.62), (5.6, 1.55), (7.5, 1.15), (10, .70), (13, 1.05), (16, .75), (19, 1.15), (22, .7), (25, 1.0), (29, .9)])
    line = np.where(Y > 3.6, np.abs(X - 1.42), np.where(line > 2.4, 3, line))
    half = 1.72 - .42 * smooth(3.5, 7, X) - .95 * smooth(23.2, 26.2, X) - .9 * smooth(25.2, 26.9, X)    # its upper end lies in a wood
    sd = (line - half + bank).astype(np.float32)        # negative in the river
    far = (X < 1.42) & (Y > 3.2) | (Y < 1.0)
    rim = np.minimum(np.minimum(X, Y) + 3.7, (X + Y) * .62 + .2)
    rim = np.where(Y > .3, np.minimum(rim, X + .92 + per * .8), rim)
    rim = np.minimum(rim, (28.6 - (X - Y)) * .7)
    # its right end: a rounded head that reaches the map's corner and draws back from there
    wild = smooth(3.9, 3.0, Y)
    head = F + .32 - X - .75 * smooth(3.9, 2.6, Y) + .55 * smooth(1.6, -.2, Y)
    rim = np.minimum(rim, head) + .35 * w.noise(1.7, 3) * smooth(1.5, -.5, Y) + (.10 + .30 * smooth(22.5, 25, X)) * w.noise(.9, 4) * wild * (X > 6)
    inland = np.maximum(-Y, 0)
    w.Z = (smooth(.3, 3.2, -Y) * (.30 + .5 * w.fbm(5, 11, 3))).astype(np.float32)
    for x, y, rx, ry, h in ((2.0, -2.0, 1.8, 1.2, .35), (7, -2.8, 2.2, 1.2, .9), (12, -2.6, 2.6, 1.2, 1.1), (18, -2.9, 2.4, 1.3, 1.5), (23.5, -2.4, 2.2, 1.3, 1.1)):
        w.hill(x, y, rx, ry, h)
    w.Z *= smooth(.15, 1.4, sd) * smooth(.6, -.4, Y)
    w.Z = (w.Z + .05 * smooth(.0, .22, sd) - .07 * smooth(.05, -.05, sd)).astype(np.float32)
    top = 2.3 * smooth(2.4, 3.7, X - Y)                 # the picture on the right begins lower
    rim = np.minimum(rim, 3 * smooth(-.2, .7, Y) + ((X + Y) - top - .5 - .55 * smooth(3.2, 2.2, X - Y) - 2.45 * w.Z + .3 * w.noise(.8, 6)) * .5)
    w.rim = rim
    w.meadow(31)
    # the bank of the strip repeats
    t = .44 + .05 * np.sin(2 * np.pi * Y / P + 2 * X) + .04 * np.sin(6 * np.pi * Y / P - 3 * X)
    w.paint(ramp(GRASS, t), smooth(2.6, 3.6, Y))
    road = [(15.0, 4.6), (15.0, 2.9), (15.0, -1.0), (13.4, -1.5), (11.6, -1.05), (9.2, -1.7), (6.5, -1.4), (4.0, -2.4)]
    w.track([(9.2, -1.7), (8.6, -.9)], .10)
    w.track(road)
    w.track([(15.0, -1.0), (16.8, -1.6), (19.2, -1.5), (22.4, -1.9), (24.6, -1.3), (27.5, -1.8)])
    for n, x, y, s, t in (('Church', 11.8, -1.8, .95, 5), ('HouA', 10.1, -1.0, .74, 5), ('HouB', 12.2, -.85, .74, 95), ('HouC', 12.9, -2.4, .70, 8), ('HouA', 9.2, -2.5, .70, 92),
                          ('HouB', 8.1, -1.9, .72, 10), ('HouC', 11.1, -.45, .70, 4), ('HouA', 13.7, -.8, .70, 92), ('HouB', 7.3, -.9, .70, 5), ('Barn', 6.0, -2.2, .72, 8),
                          ('HouA', 14.1, -2.2, .66, 70), ('Well', 10.7, -1.55, .5, 20), ('Barn', 21.6, -2.6, .72, 5), ('HouC', 22.8, -1.2, .70, 10), ('HouB', 2.9, -1.7, .70, 5),
                          ('HouA', 16.9, 3.0, .72, 4), ('Mill', 17.6, -2.9, 1.0, 0)):
        w.put(n, x, y, s, t, .02)
        w.busy |= np.hypot(X - x, Y - y) < .55 * s + .12
    for k, (x, y, t) in enumerate(((10.0, -.45, 5), (8.1, -1.35, 5), (17.7, 3.1, 5))):
        w.garden(x, y, t, k)
    w.put('Arch', 15.0, .92, 1., 0, z=.02)
    w.patchwork(20.2, -1.55, 3, (1.4, 1.3), (1.1, 1.0), ('wheat', 'corn', 'clover', 'wheat'))
    w.patchwork(25.0, -2.6, 0, (1.4, 1.2), (1.1,), ('rape', 'corn'))
    w.patchwork(4.9, -1.2, 4, (1.3, 1.2), (1.0,), ('wheat', 'corn'))
    w.patchwork(16.3, -2.4, -4, (1.2,), (1.1,), ('vine',))
    w.patchwork(22.4, 3.15, 0, (1.4, 1.5), (.85,), ('corn', 'wheat'))
    w.patchwork(8.9, 3.2, 0, (1.5, 1.3), (.8,), ('wheat', 'clover'))
    w.flock(12.2, 3.2, 9, .25)
    w.flock(1.4, -1.6, 7, .25)
    # water: light and sandy at the banks, deep in the middle, slow waves
    deep = smooth(-.05, -1.25, sd)
    tone = .66 - .42 * deep + .050 * waves(w)
    sand = hx('C9B685') * (1 + .05 * w.noise(.3, 44) * bend)[..., None]
    w.paint(sand, smooth(.20, .10, sd))
    w.paint(hx('9C9468'), smooth(.06, .0, sd))
    w.paint(ramp(WATER, tone), smooth(.01, -.05, sd))
    w.paint(hx('CFE6E6'), .40 * np.exp(-((sd + .065) / .022) ** 2))
    w.paint(hx('A9D2DC'), .16 * np.exp(-((sd + .22 + .03 * np.sin(6 * np.pi * Y / P)) / .03) ** 2))
    r = np.random.RandomState(42)
    for k in range(620):
        cx, cy, n = r.uniform(-.5, 28), r.uniform(-1.2, 3.3), r.uniform(.08, .30)
        c, a = (hx('DDF0F2'), .42) if r.rand() < .55 else (hx('2F6490'), .45)
        if w.at(sd, cx, cy) < -.14:
            dash(w, cx, cy, n, c, a * (.5 + .5 * r.rand()))
    for k in range(60):
        cx, cy, n = r.uniform(-.2, 3.0), r.uniform(3.3, 3.3 + P), r.uniform(.08, .30)
        c, a = (hx('DDF0F2'), .42) if r.rand() < .55 else (hx('2F6490'), .45)
        a *= .5 + .5 * r.rand()
        if w.at(sd, cx, cy) < -.14:
            for i in range(7):
                dash(w, cx, cy + i * P, n, c, a)
    w.busy |= sd < .16
    w.rim_green(d)
    w.grain(51)
    w.flowers((w.fbm(3, 60, 2) > .3) & ~w.busy & (Y < 2.4) & (sd > .3), 61, [hx('F4EEDF'), hx('F2D14A'), hx('E8607A'), hx('F4EEDF')], 450)
    # woods
    lid = lambda u: 21 if u < 3 else 70
    patch, firs = w.fbm(3.2, 72, 3), w.fbm(4.5, 80, 2)
    edge = smooth(1.4, .5, rim)
    land = (Y < .6) | (X > 3.6) & (Y < 3.9)
    dens = np.clip(1.25 * edge + smooth(.12, .36, patch) * smooth(.8, 1.6, sd), 0, 1) * smooth(.25, .7, sd) * (Y < .2)
    ends = smooth(1.9, .8, F - X) * smooth(.2, .9, rim) * smooth(.25, .6, sd) * (Y < 3.3)
    dens = np.maximum(dens, .8 * ends) * smooth(.10, .5, rim)
    leafy = ('OakA', 'OakB', 'OakD', 'OakA', 'OakC', 'OakB', 'OakE')
    kind = lambda x, y, k: ('FirA', 'FirB')[k < .4] if w.at(firs, x, y) + .35 * (k - .5) > .16 else leafy[int(k * 7)]
    w.wood(dens, .30, kind, (.42, .66), lid)
    open_ = (rim > .25) & land
    w.wood(np.where(open_ & (Y < 3.3), .05 * smooth(.2, .5, sd), 0), .34, ('OakA', 'OakD', 'OakC', 'ShrA', 'PopA', 'ShrB', 'ShrA'), (.34, .52), lid)
    w.wood(np.where(open_, .07 * smooth(.15, .3, sd), 0), .26, ('ShrA', 'ShrB'), (.16, .28), lid)
    w.wood(np.where(land & (np.abs(sd - .03) < .07) & (w.noise(1.3, 90) > .05), .8, 0), .16, ('Reeds',), (.30, .5), lid)
    # trees on all of the far bank but the stretch where a picture has no room above
    for k, (y, x, n, s) in enumerate(((.55, -.64, 'OakD', .34), (.86, -.60, 'ShrA', .32), (1.08, -.66, 'ShrB', .28), (1.30, -.58, 'ShrA', .34), (1.56, -.66, 'OakD', .38), (1.84, -.60, 'OakB', .42),
                                      (2.14, -.68, 'OakA', .40), (2.36, -.54, 'ShrB', .28), (2.60, -.64, 'OakE', .38), (2.92, -.60, 'OakB', .46), (3.22, -.68, 'OakA', .40), (3.42, -.54, 'ShrA', .28),
                                      (3.66, -.64, 'OakC', .44), (4.00, -.62, 'OakB', .40),
                                      (1.75, -.34, 'Reeds', .40), (1.9, -.36, 'Reeds', .34), (3.0, -.34, 'Reeds', .40), (3.6, -.33, 'Reeds', .36), (3.75, -.35, 'Reeds', .42),
                                      (.9, 3.30, 'Reeds', .36), (1.05, 3.28, 'Reeds', .42), (2.6, 3.14, 'Reeds', .38), (2.45, 3.52, 'ShrA', .20), (1.4, 3.62, 'ShrB', .17), (3.7, 3.60, 'ShrA', .18))):
        for i in range(-1, 8):
            yy = y + Y1 + i * P
            if yy > 3.55 or x < 0 and yy > 1.6 and n[:3] != 'Oak':
                if not (harbour and 3 * P + .69 < yy - Y1 < 3 * P + 3.81 and x < 0 and n[:3] == 'Oak'):
                    w.put(n, x, yy, s, 77 * k, .02)
    w.put('BoatA', 11.8, .95, .62, -8, z=-.06)
    w.put('BoatB', 19.5, 1.2, .58, 12, z=-.06)
    w.put('BoatA', 1.7, 2.7, .60, -75, z=-.06)
    w.put('Jetty', 6.2, 2.9, .5, -90, z=-.02)
    w.put('Row', 6.55, 2.15, .55, 70, z=-.06)
    w.put('Row', 9.6, -.2, .5, 5, z=-.06)
    if harbour:
        cy = Y1 + 3 * P + 2.25
        isle = np.hypot((X - 1.42) / 1.02, (Y - cy) / 1.12) - 1 + .12 * w.noise(.6, 8)
        w.paint(hx('5A9CBD'), .75 * smooth(.55, .05, isle))
        w.paint(hx('CFE6E6'), .5 * np.exp(-((isle - .05) / .03) ** 2))
        w.paint(hx('8F6E44'), smooth(.04, -.02, isle))
        w.paint(hx('B08A58') * (1 + .10 * w.noise(.25, 9))[..., None], smooth(-.04, -.14, isle))
        w.paint(hx('7C9A46'), smooth(-.5, -.7, isle + .15 * w.noise(.4, 12)) * .8)
        w.Z = (w.Z + .13 * smooth(.10, -.35, isle)).astype(np.float32)
        for n, x, y, s, t in (('HouB', 1.25, cy - .30, .62, 8), ('Goods', 1.9, cy + .22, .7, 10), ('Goods', 1.15, cy + .42, .6, 70), ('ShrA', .78, cy - .25, .22, 0), ('ShrB', .72, cy + .25, .18, 0),
                              ('OakD', .85, cy - .62, .36, 0), ('Reeds', 1.9, cy - .82, .34, 0)):
            w.put(n, x, y, s, t, .02)
        w.put('Jetty', 2.05, cy + .12, .42, 8, z=.0)
        w.put('Jetty', 1.35, cy + .75, .40, 92, z=.0)
        w.put('BoatA', 2.45, cy + .85, .58, -78, z=-.06)
        w.put('Row', .85, cy + 1.15, .5, 60, z=-.06)
    w.thin_out(.30, smooth(3.6, 2.6, Y))
    w.write()
    return w


def water_pictures():
    """One landscape, cut into the river pictures and the countryside to the right."""
    X0, Y0, W, H = 577 - 8, 11, 1992 - 569, 520         # from the third water picture to the right end
    x0, y0 = 455 - 8, 202 - 8                           # about the landing place
    coast()
    whole = shot('country', W, H, 992 - X0, 32 - Y0, 4, 14)
    coast(True)
    landing = shot('country', 288 + 16, 144 + 16, 992 - x0, 32 - y0, 4, 14)
    for s in SCALES:
        cut_water(whole[s], X0, Y0, landing[s], x0, y0, s)


def cut_water(img, X0, Y0, img2, x0, y0, s):
    at = lambda x, y, w, h: box(img, x - X0, y - Y0, w, h, s)
    # what repeats: the columns 699..820 of the second picture, moved by steps
    px, py, ww, hh = 333, -100, 900, 700
    y, x = np.mgrid[py * s:(py + hh) * s, px * s:(px + ww) * s]
    k = np.floor_divide(x - 699 * s, 122 * s)
    sx, sy = x - 122 * s * k, y + 61 * s * k - Y0 * s
    ok = (sy >= 0) & (sy < len(img))
    strip = np.where(ok[..., None], img[np.clip(sy, 0, len(img) - 1), sx - X0 * s], 0)
    per = lambda x, y: box(strip, x - px, y - py, 288, 144, s)
    inside = square(22, s)

    def cells(x, y):
        u, v = cell_xy(x, y, 288, 144, s)
        return u, v - Y1 - P * round((821 - x) / 122)
    # the water picture that repeats: one slice of the river
    u, v = cells(699, 80)
    free = ~box(inside, 699, 80, 288, 144, s)
    # The last one ends with the map and darkens towards its end.  The others are
    # whole all the same: the neighbour of each begins before that, and the two are
    # ORed.
    r = np.random.RandomState(61)
    ragged = blur(r.randn(*v.shape), 3 * s) * 3 * s + .5 * blur(r.randn(*v.shape), s) * s
    plain = np.where(((v > 0) & free)[..., None], per(699, 80), 0)
    plain = np.round(np.clip(plain, 0, 1) * 255).astype(np.uint8)
    plain = dimmed(plain, np.where(v < P + .05, 1, smooth(4.42, 3.92, v + .05 * np.clip(ragged, -1.5, 1.5))), 63)
    save_land('mask/53', plain, s)
    # the first one: the bend; its lower tip is as in the others
    u, v = cells(821, 19)
    free = ~box(inside, 821, 19, 288, 144, s)
    shape = (v < 4.5) & free
    bendp = np.where((v < P)[..., None], at(821, 19, 288, 144), per(821, 19))
    bendp = np.where(shape[..., None], bendp, 0)
    save_land('tile/53', bendp, s)
    own = np.zeros(inside.shape, bool)
    box(own, 821, 19, 288, 144, s)[:] = load_rgb('tile/53', s).any(-1)
    box(own, 699, 80, 288, 144, s)[:] |= plain.any(-1)
    c = at(*COAST).copy()
    c[box(inside, *COAST, s) | box(own, *COAST, s)] = 0
    save_land('tile/48', c, s)
    # the landing place
    u, v = cells(455, 202)
    free = ~box(inside, 455, 202, 288, 144, s)
    own = (v > 4.5 - P) & (v < P)
    p = np.where(own[..., None], box(img2, 455 - x0, 202 - y0, 288, 144, s), per(455, 202))
    save_land('mask/22', np.where(((v > 0) & (v < 4.5) & free)[..., None], p, 0), s)


def dimmed(img, f, seed):
    """Colours times f with no bits but their own, so that a dimmed pixel ORed with
    the whole one gives the whole one.  Of the two nearest such values one is drawn,
    so that a few pixels together have the right colour."""
    low = np.zeros_like(img)
    for bit in (128, 64, 32, 16, 8, 4, 2, 1):           # the largest not above
        low |= np.where((img & bit > 0) & (low + bit <= img * f[..., None]), bit, 0).astype(np.uint8)
    rest = img & ~low
    step = rest & (~rest + 1)                           # its lowest bit not yet taken,
    high = (low | step) & ~(low & (step - 1))           # for all those below: the next one
    share = (img * f[..., None] - low) / np.maximum(high.astype(int) - low, 1)
    return np.where(np.random.RandomState(seed).rand(*f.shape)[..., None] < share, high, low)


def ripple(w, mask, seed, n, size=(.10, .34), bright=.5):
    """Short light and dark dashes lying level on the screen."""
    r = np.random.RandomState(seed)
    ys, xs = np.nonzero(mask)
    for k in range(n):
        m = r.randint(len(ys))
        cx, cy = w.X[ys[m], xs[m]], w.Y[ys[m], xs[m]]
        dash(w, cx, cy, size[0] + (size[1] - size[0]) * r.rand(), hx('DDF0F2') if r.rand() < .6 else WATER[1], bright * (.5 + .5 * r.rand()))


def dash(w, cx, cy, length, colour, alpha):
    i0, i1 = int((cx - length - w.x0) * R) - 2, int((cx + length - w.x0) * R) + 3
    j0, j1 = int((cy - length - w.y0) * R) - 2, int((cy + length - w.y0) * R) + 3
    i0, j0 = max(i0, 0), max(j0, 0)
    X, Y = w.X[j0:j1, i0:i1] - cx, w.Y[j0:j1, i0:i1] - cy
    s, t = (X - Y) / 1.414, (X + Y) / 1.414
    t = t - .02 * np.cos(s / length * 3)
    a = np.clip(1 - np.abs(s) / length, 0, 1) ** .7 * np.exp(-(t / .022) ** 2) * alpha
    w.C[j0:j1, i0:i1] += (colour - w.C[j0:j1, i0:i1]) * a[..., None]


def render(parts=None):
    for name in parts or ['band', 'water_pictures']:
        globals()[name]()


if __name__ == '__main__':
    for name in sys.argv[1:] or ['band', 'water_pictures']:
        globals()[name]()
