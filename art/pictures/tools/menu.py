"""The picture behind the menus: a town, its castle and river, seen in perspective.

The land and what stands on it are laid out here and rendered by pov/menu.pov; sky,
mountains and the haze of the distance are painted here."""
import country
import wordmark
from country import *

W, H = 800, 600
SUN = np.array([-.78, -.30, .46])


def land():
    w = World(-48, -24, 96, 7)
    X, Y = w.X, w.Y
    line = [(4.2, -12), (4.4, -6), (4.9, -2), (6.3, 4), (8.3, 9), (11.2, 15), (11.2, 21), (8.4, 27), (4.2, 34), (1.5, 42), (3, 52), (7, 62), (9, 72)]
    river, q = w.along(line, 40, 8.)
    half = 1.25 + .012 * np.clip(Y, 0, 60)
    sd = river - half + .22 * w.noise(2.2, 3) + .08 * w.noise(.7, 4)
    w.Z = (.35 + .5 * w.fbm(9, 11, 4) + .10 * w.fbm(2.2, 15, 2)).astype(np.float32)
    for x, y, rx, ry, h in ((-12.5, 18, 5.2, 5.0, 3.9), (-13, 11, 7, 5, 1.2), (-26, 24, 9, 9, 4), (19.4, 26, 5, 5, 2.6), (27, 36, 9, 9, 5.5), (-22, 44, 12, 10, 5), (-2, 56, 12, 8, 4.2),
                            (-36, 58, 14, 10, 8), (24, 60, 14, 9, 7.5), (12, 70, 10, 5, 4), (40, 52, 10, 12, 9), (-14, 68, 12, 6, 5), (-9, -11, 4, 4, .8), (9.5, -10, 3, 4, .7), (20, 6, 5, 6, .9)):
        w.hill(x, y, rx, ry, h)
    flat = smooth(.2, 5.5, sd)
    w.Z = (w.Z * flat + .22 * smooth(.0, .5, sd) * (1 - flat) - .35 * smooth(.15, -.3, sd)).astype(np.float32)
    top = np.hypot((X + 12.5) / 5.2, (Y - 18.2) / 3.6)
    w.Z = (w.Z + (4.15 - w.Z) * smooth(1.25, .85, top)).astype(np.float32)
    # colours
    t = .50 + .20 * w.fbm(6, 31, 3) + .10 * w.noise(1.1, 35) + .07 * w.noise(.4, 36)
    w.C[:] = ramp([hx(c) for c in ('5C8432', '6A933B', '7FA146', '94AC50', 'AEB95E')], t)
    w.paint(hx('C2B866'), .5 * smooth(.2, .7, w.fbm(7, 41, 3)))
    fields(w, sd)
    for pts, width in (([(-1.2, -14), (-1.6, -8), (-2.2, -3), (-3.6, 1.5), (-5.0, 5.0), (-6.4, 9.0), (-9.5, 11.5), (-13.5, 12.0), (-14.2, 14.0), (-12.5, 15.8)], .42),
                       ([(-5.0, 5.0), (-1.0, 6.6), (3.0, 8.4), (6.6, 9.4), (11.5, 10.0), (14.5, 12.5), (17, 17), (18.5, 22), (24, 27)], .36), ([(14.5, 12.5), (18, 10), (24, 9), (32, 12)], .30)):
        d, _ = w.along(pts)
        d = d + .10 * w.noise(.6, 77)
        w.paint(hx('CDB486'), smooth(width + .12, width - .08, d))
        w.paint(hx('A7A45E'), .4 * smooth(.12, .02, d))
        w.busy |= d < width + .35
    w.paint(hx('BCA676'), smooth(.30, .08, sd))
    deep = smooth(0, -1.1, sd)
    w.paint(hx('7FA9B8') * (1 - .42 * deep[..., None]) + np.array([-.10, -.03, .05]) * deep[..., None], smooth(.04, -.04, sd))
    for k in range(900):
        n = w.r.randint(len(q))
        cx, cy = q[n] + w.r.randn(2) * .8
        if w.at(sd, cx, cy) < -.2 and cy > -9:
            i0, j0, L = int((cx - w.x0) * 20), int((cy - w.y0) * 20), w.r.randint(3, 12)
            w.C[j0:j0 + 1, i0:i0 + L] += (hx('F6E2BC') if w.r.rand() < .6 else hx('3F6F8E')) * .5 - .5 * w.C[j0:j0 + 1, i0:i0 + L]
    w.busy |= sd < .45
    r = np.random.RandomState(51)
    w.C *= (1 + .07 * r.randn(*w.Z.shape).astype(np.float32))[..., None]
    w.things.append('object { Castle() translate <-12.5,18,4.1> }')
    walls(w)
    town(w)
    w.things.append('object { Bridge(4.7, 1.15) scale <1,1,1.5> rotate z*-82 translate <8.25,9.5,0.26> }')
    for n, x, y, s, a in (('Mill', 20.4, 25.6, 2.6, 180), ('Church', 12.9, 14.6, 2.3, 195), ('Barn', 19.5, 13.5, 1.6, 170), ('Barn', 8.8, -1.8, 1.5, 200)):
        w.put(n, x, y, s, a, .05)
        w.busy |= np.hypot(X - x, Y - y) < .7 * s
    for n, x, y, s, a in (('BoatA', 5.6, 1.4, 1.25, 20), ('BoatB', 11.2, 17.6, 1.1, 200), ('Row', 4.4, -2.7, 1.2, 60), ('BoatA', 10.4, 22.0, 1.2, 10)):
        w.put(n, x, y, s, a, z=-.05)
    for _ in range(9):
        w.put('Sheep', 1.9 + .8 * w.r.randn(), -.8 + .7 * w.r.randn(), .58 + .12 * w.r.rand(), 360 * w.r.rand())
    for k in range(3):                                  # a fence before the sheep
        w.put('Rail', -.5 + .93 * k, -3.0 + .10 * k, .95, 6)
    plants(w, sd)
    w.write()


def fields(w, sd):
    """Strips of crops on the farther slopes, in blocks that lean with the land."""
    r = np.random.RandomState(61)
    kinds = ['D9B75C', 'EBCF78', '7FAE48', '97B858', '8A6440', 'C9BE4C', '6A9A40', 'B6C068']
    for cx, cy, bw, bh, turn in ((20, 53.5, 13, 9, 6), (12, 50, 9, 9, -8), (29, 51, 10, 9, 12), (21.5, 45, 11, 7, 3), (28.5, 31, 10, 8, 12), (13.5, 38, 9, 8, -6), (-3.5, 28, 9, 7, 4), (-3.5, 41, 10, 7, 5), (-10, 48.5, 13, 8, -6),
                             (2, 60, 9, 8, 4), (-21, 29, 11, 9, 10), (-25, 42, 12, 10, -12), (-35, 52, 13, 9, 6), (22.5, 20.5, 7, 5, 4), (15.5, 23.6, 5, 4, 6), (24, 14, 7, 5, 4), (12.8, 4.4, 5, 4.4, -6), (-24, 4, 7, 6, 4)):
        a = np.radians(turn)
        u = (w.X - cx) * np.cos(a) + (w.Y - cy) * np.sin(a) + .15 * w.noise(2, 62)
        v = -(w.X - cx) * np.sin(a) + (w.Y - cy) * np.cos(a)
        n, m = max(2, int(bw / 3.4)), max(2, int(bh / 3.0))
        for i in range(n):
            for j in range(m):
                d = np.minimum(bw / n / 2 - np.abs(u + bw / 2 - (i + .5) * bw / n), bh / m / 2 - np.abs(v + bh / 2 - (j + .5) * bh / m))
                if r.rand() < .12 or w.at(sd, cx, cy) < 1:
                    continue
                c = hx(kinds[r.randint(len(kinds))])
                s = (.5 + .5 * np.sin(2 * np.pi * (u if (i + j) % 2 else v) / .5))[..., None]
                w.paint(c * (.90 + .12 * s), smooth(.10, .22, d))
                w.busy |= d > .05
                for k in range(int((bw / n + bh / m) * 2.2)):      # hedges on two sides
                    p, qq = (((r.rand() - .5) * bw / n, -bh / m / 2) if k % 2 else (-bw / n / 2, (r.rand() - .5) * bh / m))
                    pu, pv = (i + .5) * bw / n - bw / 2 + p, (j + .5) * bh / m - bh / 2 + qq
                    x, y = cx + pu * np.cos(a) - pv * np.sin(a), cy + pu * np.sin(a) + pv * np.cos(a)
                    if w.at(sd, x, y) > .6:
                        w.put('ShrA' if r.rand() < .75 else 'OakD', x, y, .55 + .35 * r.rand(), 360 * r.rand(), .05)


def walls(w):
    """The town wall with its towers, and the gate where the road goes in."""
    ring = [(-22.5, 9.5), (-19.0, 5.6), (-14.5, 3.6), (-9.5, 2.6), (-5.6, 2.9), (-3.0, 3.6), (1.2, 5.8), (3.0, 10.2), (2.2, 15.5), (-1.6, 20.0)]
    z = lambda p: float(w.at(w.Z, *p))
    for k, (a, b) in enumerate(zip(ring, ring[1:])):
        n = 3
        for i in range(n):
            p = [a[0] + (b[0] - a[0]) * i / n, a[1] + (b[1] - a[1]) * i / n]
            s = [a[0] + (b[0] - a[0]) * (i + 1) / n, a[1] + (b[1] - a[1]) * (i + 1) / n]
            if k == 4 and i == 1:
                continue
            h = (z(p) + z(s)) / 2
            w.things.append('CWall(<%.2f,%.2f,%.2f>, <%.2f,%.2f,%.2f>, 0.95, %d)' % (p[0], p[1], h, s[0], s[1], h, 900 + 7 * k + i))
    for k, p in enumerate(ring):
        w.things.append('RTower(<%.2f,%.2f,%.2f>, 0.52, 1.75, %s, cRoofC, %d)' % (p[0], p[1], z(p), '1.05' if k % 2 else '0', 960 + k))
    for dx in (-.62, .62):
        w.things.append('RTower(<%.2f,%.2f,%.2f>, 0.42, 2.0, 0.95, cTileRed, %d)' % (-4.3 + dx, 3.2 + .2 * dx, z((-4.3, 3.2)), 980))
    w.things.append('difference { box { <-4.9,2.9,-0.5>, <-3.7,3.4,1.65> } box { <-4.65,2,-1>, <-3.95,4,0.75> } cylinder { <-4.3,2,0.75>, <-4.3,4,0.75>, 0.35 } mPlain(Sc) translate z*%.2f }' % z((-4.3, 3.2)))
    d, _ = w.along(ring)
    w.busy |= d < .75


def town(w):
    """Houses in rows up the slope inside the wall, then loose ones beyond the river."""
    r = np.random.RandomState(71)
    kinds, taken = ['HouA', 'HouB', 'HouC', 'HouA', 'HouC', 'HouB'], []
    ring = [(-22.5, 9.5), (-19.0, 5.6), (-14.5, 3.6), (-9.5, 2.6), (-5.6, 2.9), (-3.0, 3.6), (1.2, 5.8), (3.0, 10.2), (2.2, 15.5), (-1.6, 20.0), (-6, 22), (-20, 20)]

    def inside(x, y):
        c = False
        for (ax, ay), (bx, by) in zip(ring, ring[1:] + ring[:1]):
            if (ay > y) != (by > y) and x < (bx - ax) * (y - ay) / (by - ay) + ax:
                c = not c
        return c
    for y in np.arange(4.4, 19, 1.28):
        for x in np.arange(-22, 3, 1.55):
            px, py = x + .3 * r.randn() + .7 * (int(y * 2) % 2), y + .16 * r.randn()
            a, s, k, skip = 180 + 16 * r.randn() + (90 if r.rand() < .22 else 0), 1.28 + .22 * r.rand(), r.randint(6), r.rand() < .08
            if skip or not inside(px, py) or w.at(w.busy, px, py) or np.hypot((px + 12.5) / 6.2, (py - 18.2) / 4.6) < 1:
                continue
            w.put(kinds[k], px, py, s, a, .10)
            taken.append((px, py))
    w.put('Church', -2.0, 12.4, 2.7, 190, .1)
    for x, y in ((12.8, 12.2), (14.6, 13.9), (22.4, 19.0), (13.4, 17.6), (15.4, 16.0), (16.4, 11.6), (13.2, 8.6), (15.2, 9.2), (18.2, 15.6), (14.9, 19.2), (16.8, 18.9), (11.2, 8.0), (18.6, 11.3), (17.5, 9.2), (20.5, 17.2),
                 (-8.2, -.6), (-10.4, .2), (9.4, .6), (11.4, -.4)):
        w.put(kinds[r.randint(6)], x, y, 1.3 + .25 * r.rand(), 180 + 25 * r.randn() + (90 if r.rand() < .25 else 0), .08)
        taken.append((x, y))
    for x, y in taken:
        w.busy |= np.hypot(w.X - x, w.Y - y) < .95


def plants(w, sd):
    X, Y = w.X, w.Y
    r, patch, firs = w.r, w.fbm(7, 81, 3), w.fbm(9, 85, 2)
    seen = np.abs(X) < .55 * (Y + 20) + 1.5
    town_zone = (Y > 2) & (Y < 20) & (X > -22) & (X < 3)
    dens = smooth(.08, .30, patch) * (Y > -1) * seen * np.where(town_zone, .25, 1)
    leafy = ('OakA', 'OakB', 'OakD', 'OakC', 'OakB', 'OakE', 'OakA')
    kind = lambda x, y, k: 'NearOak' if y < 3.5 and k < .7 else ('FirA', 'FirB')[k < .4] if w.at(firs, x, y) + .3 * (k - .5) > .20 else leafy[int(k * 7)]
    w.ceiling = lambda *a: True
    w.wood(dens * (Y < 34), .95, kind, (1.1, 1.9), 0)
    w.wood(dens * (Y >= 34), 1.5, kind, (1.5, 2.6), 0)
    w.wood(.06 * seen * (Y > -1) * (Y < 45) * (sd > .5), 1.2, ('OakA', 'OakD', 'PopA', 'ShrA', 'OakC', 'ShrB', 'PopA', 'OakE'), (.9, 1.6), 0)
    w.wood(np.where((np.abs(sd - .5) < .25) & seen & (Y > -6), .30, 0), .6, ('ShrA', 'ShrB', 'Reeds', 'OakD', 'Reeds'), (.45, .9), 0)
    w.wood(.10 * seen * (Y < 2) * (Y > -8) * (sd > .5), .55, ('NearBush', 'ShrB', 'NearBush'), (.35, .75), 0)
    for n, x, y, s, a in (('FrontOak', -7.7, -6.2, 4.3, 0), ('FrontOak', 7.9, -6.0, 4.3, 220), ('FrontOak', 10.6, -3.0, 4.2, 40), ('NearBush', -5.0, -6.6, 1.7, 0), ('NearBush', -7.1, -7.6, 1.9, 30), ('NearBush', 7.6, -7.4, 1.7, 70), ('NearBush', -3.9, -7.0, 1.1, 80),
                          ('NearBush', 6.3, -7.0, 1.5, 10), ('NearBush', 5.5, -7.4, 1.0, 60), ('NearBush', -6.2, -4.9, 1.5, 200), ('NearBush', 8.0, -4.0, 1.5, 100)):
        w.put(n, x, y, s, a, .05)
    for k in range(1100):
        x, y = r.uniform(-6.6, 6.6), r.uniform(-8.2, -1.5)
        if w.at(sd, x, y) > .5 and not w.at(w.busy, x, y) and w.at(patch, x * 3, y * 3) + .3 * r.randn() > .1:
            w.put(('BloomA', 'BloomB', 'BloomC', 'BloomD')[r.randint(4)], x, y, .13 + .09 * r.rand(), 0, .01)


def sky(s):
    """Evening light low over blue mountains, and clouds lit from the left."""
    y, x = np.mgrid[0:H * s, 0:W * s] / s
    t = np.clip(y / 235, 0, 1)
    stops = [(0, '5C8FC8'), (.28, '86AEDA'), (.52, 'B7CBDD'), (.72, 'F0DDB8'), (.88, 'FBDDA2'), (1, 'F8CE90')]
    img = np.zeros((H * s, W * s, 3))
    for c in range(3):
        img[..., c] = np.interp(t, [at for at, _ in stops], [hx(h)[c] for _, h in stops])
    glow = np.exp(-((x + 60) / 330) ** 2 - ((y - 190) / 120) ** 2)[..., None]
    img += glow * np.array([.10, .06, -.04])

    def field(sx, sy, seed, n):
        r = np.random.RandomState(seed)
        out, amp, tot = 0, 1., 0
        for k in range(n):
            gx, gy = int(W * 1.2 / sx) + 4, int(H * 1.2 / sy) + 4
            g = r.rand(gy, gx)
            p, q = x / sx, y / sy
            i, j = p.astype(int), q.astype(int)
            f, e = p - i, q - j
            f, e = f * f * (3 - 2 * f), e * e * (3 - 2 * e)
            out = out + amp * ((g[j, i] * (1 - f) + g[j, i + 1] * f) * (1 - e) + (g[j + 1, i] * (1 - f) + g[j + 1, i + 1] * f) * e)
            tot += amp
            amp *= .56
            sx, sy = max(2, sx / 2), max(2, sy / 2)
        return out / tot
    def moved(a, n, m):                                 # by whole pixels, the rim repeated
        return np.pad(a, ((m * s, 0), (n * s, 0)), 'edge')[:H * s, :W * s]
    for sx, sy, seed, level, y0, y1, strength in ((380, 26, 5, .56, 60, 225, .65), (250, 105, 17, .525, -40, 190, 1.)):
        d = field(sx, sy, seed, 7)
        d = d - level - .09 * np.abs((y - (y0 + y1) / 2) / (y1 - y0) * 2) ** 2
        a = smooth(0, .10, d)
        lit = blur(np.clip(.62 + 4.5 * (d - moved(blur(d, 3 * s), 11, 9)) - 1.5 * smooth(.06, .24, d), 0, 1), .8 * s)[..., None]
        warm = np.clip(y / 200, 0, 1)[..., None]
        top = hx('FFFBF0') * (1 - warm) + hx('FFEBC6') * warm
        low = hx('B4BCD2') * (1 - warm) + hx('E6C0A8') * warm
        img += ((low + (top - low) * lit) - img) * (a * strength * .95)[..., None]
    r = np.random.RandomState(21)
    for base, amp, rough, colour, light, seed in ((196, 62, 1.0, 'A9B4D2', 'E2CFC6', 31), (208, 46, .9, '8FA3C2', 'C9C4BE', 32), (220, 28, .7, '84A0A8', 'B4BC9E', 33)):
        r = np.random.RandomState(seed)
        xs = np.arange(W * s) / s
        p = np.zeros(W * s)
        step, a = 150., 1.
        while step > 2 / s:
            n = int(W / step) + 3
            p += a * np.interp(xs, np.arange(n) * step - r.rand() * step, r.rand(n))
            step, a = step / 2, a * .5 * rough ** .5
        p = (p - p.min()) / (p.max() - p.min())
        edge = base - amp * p * (.55 + .45 * np.abs(xs - 400) / 400)
        depth = y - edge[None, :]
        # lit as uneven slopes: spurs run out aslant, and none keeps its course downwards
        lie = blur(field(46, 22, seed + 7, 4) + .35 * field(90, 60, seed + 9, 2), 1.4 * s)
        sunny = np.clip(.48 + 5.5 * (lie - moved(lie, 4, 3)), 0, 1)[..., None]
        c = hx(colour) + (hx(light) - hx(colour)) * sunny
        c = c + (hx('F3D9B0') - c) * np.clip(depth / 70, 0, .65)[..., None]
        img += (c - img) * np.clip(depth + .5, 0, 1)[..., None]
    return np.clip(img, 0, 1)


def main():
    fine, country.R = country.R, 20             # a wider land, fewer points a unit
    land()
    country.R = fine
    ss, dome = (2, 5) if DRAFT else (4, 12)
    t = time.time()
    b = povray('menu', 0, W, H, ss, ['DomeN=%d' % dome]) * 2
    aux = povray('menu', 1, W, H, ss)
    hit, obj = (aux[..., 2] > .5).astype(np.float32), (aux[..., 1] > .5).astype(np.float32)
    dist = aux[..., 0].astype(float) * 120
    far = np.where(hit > 0, dist, 200.)
    line = np.clip((outline_rel(far, ss) - .035) / .05, 0, 1) * obj
    b = b * (1 - line[..., None] * .38 * np.exp(-dist / 45)[..., None])
    haze = (1 - np.exp(-(np.clip(dist - 8, 0, None) / 135) ** 1.5))[..., None]
    b = b * (1 - haze) + to_lin(np.array([.84, .80, .76])) * haze
    pictures = []
    for s in SCALES:
        cov = box_down(hit, ss // s)[..., None]
        col = box_down(b * hit[..., None], ss // s) / np.maximum(cov, 1e-6)
        col = grade(col, 1.02, 1.03, 1.12, .48)
        img = to_srgb(cov * to_lin(col) + (1 - cov) * to_lin(sky(s)))
        img = unsharp(img, np.ones(img.shape[:2], bool), .35, .8)
        pictures.append(img)
    for s, img in zip(SCALES, wordmark.paint(pictures, SCALES)):
        save_large('panel/menu', img, s)
    print('menu: %.0f s' % (time.time() - t))


def outline_rel(d, ss):
    """How much farther the neighbours are, relative to the distance."""
    far = np.zeros_like(d)
    for dy, dx in ((0, 1), (0, -1), (1, 0), (-1, 0)):
        far = np.maximum(far, np.roll(d, (dy, dx), (0, 1)) - d)
    return far / np.maximum(d, 1)


def render(parts=None):
    main()


if __name__ == '__main__':
    main()
