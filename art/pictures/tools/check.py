"""Checks of the map pictures in data/; art/render runs them at its end.

Each check takes a scale and returns the lines of what is wrong there."""
import numpy as np
from iso import *
import buildings
import roads
import views
import walkers

FLAT = [0, 1, 2, 4, 7, 11, 13, 15, 16, 17, 19, 20, 28, 29, 30, 33, 34, 35, 37,
        47, 49, 50, 51, 52, 54, 55, 58]
TALL = [3, 8, 9, 10, 12, 14, 18, 25, 26, 27, 31, 32, 44, 45, 46, 59, 60, 61]
BLOCKS = sorted(n for _, _, _, f in walkers.WALKS.values() for n in f) + [56, 57]
SIZES = {**{n: (64, 32) for n in FLAT}, **{n: (64, 64) for n in TALL}, 5: (63, 33), 6: (63, 33)}
WHOLE = [n for n in FLAT if n not in (7, 11, 15, 19, 30, 33, 34, 35, 47)]   # alone on their cell
DIAMOND = {s: diamond_mask(1, s) for s in SCALES}


def formats(s):
    for n, size in sorted(SIZES.items()):
        im = Image.open(path('pair/%02d' % n, s))
        a = np.array(im)
        if im.mode != 'RGBA' or im.size != (size[0] * s, size[1] * s):
            yield 'pair %02d is %s %s, not RGBA %s' % (n, im.mode, im.size, size)
            continue
        if not np.isin(a[..., 3], (0, 255)).all():
            yield 'pair %02d has half-transparent pixels' % n
        if a[a[..., 3] == 0][:, :3].any():
            yield 'pair %02d has colour under transparent pixels' % n
    for n in BLOCKS:
        im = Image.open(path('tile/%02d' % n, s))
        if im.mode != 'RGB' or im.size != (12 * s, 17 * s):
            yield 'tile %02d is %s %s, not RGB 12 x 17' % (n, im.mode, im.size)


def diamonds(s):
    """Cells partition the plane, flat pictures fill exactly their diamond and
    the one-cell tall ones at least theirs."""
    count = np.zeros((32 * 4 * s, 64 * 4 * s), int)
    for X in range(-1, 8):
        for Y in range(-8, 8):
            x, y = 96 + 32 * (X - Y), 16 * (X + Y)
            if 0 <= x <= 192 and 0 <= y <= 96:
                box(count, x, y, 64, 32, s)[:] += DIAMOND[s]
    if DIAMOND[s].sum() != 1024 * s * s or (box(count, 64, 32, 128, 64, s) != 1).any():
        yield 'the diamonds do not partition the plane'
    for n in WHOLE:
        if ((pair(n, s)[..., 3] > 0) != DIAMOND[s]).any():
            yield 'pair %02d is not exactly a diamond' % n
    for n in (12, 27, 59, 60, 61):
        if not (pair(n, s)[32 * s:, :, 3] > 0)[DIAMOND[s]].all():
            yield 'pair %02d leaves holes in its cell' % n


def footprints(s):
    """Pieces of one drawing: no pixel twice, the whole footprint covered, none
    below it, and the odd boxes lose nothing in a 64 x 32 box (but for the
    two pixels of the building's right tip at scale 2)."""
    whole = np.zeros((96 * s, 128 * s), bool)
    whole[32 * s:] = diamond_mask(2, s)
    for name, (_, kind, _, numbers) in buildings.DRAWINGS.items():
        if len(numbers) == 1:
            continue
        count = np.zeros((160 * s, 256 * s), int)
        for n, (key, (px, py), tall) in zip(numbers, {'tall': PIECES_TALL, 'apt': PIECES_APT, 'flat': PIECES_FLAT}[kind]):
            p = pair(n, s)
            if n in buildings.ODD_BOX and p[32 * s:, :, 3].any():
                yield 'pair %02d has pixels in the row that is never drawn' % n
            if (p.shape[0] == 64 * s) != tall:
                yield 'pair %02d has the wrong height for its place' % n
            count[py * s:py * s + p.shape[0], px * s:px * s + p.shape[1]] += p[..., 3] > 0
        if (count > 1).any():
            yield '%s: %d pixels drawn by two pieces' % (name, (count > 1).sum())
        holes = (box(count, 0, 0, 128, 96, s)[whole] == 0).sum()
        if holes > (2 * (s - 1) if kind == 'apt' else 0):
            yield '%s: %d pixels of the footprint left open' % (name, holes)
        under = ~whole
        under[:64 * s] = False
        if count[96 * s:].any() or box(count, 0, 0, 128, 96, s)[under].any():
            yield '%s draws below its footprint' % name


def endless(n, along, w, h, x0, y0, s):
    """Block of the straight road picture n repeated along and across, as read
    back from its file."""
    t = pair(n, s)
    out = np.zeros((h * s, w * s, 4), np.uint8)
    for k in range(-4, 5):
        for j in range(-1, 2):
            a, b = (k, j) if along == 'x' else (j, k)
            blit(out, t, s * (32 * (a - b) - x0), s * (16 * (a + b) - y0))
    return out


def stripes(s):
    """The straight roads do not change under a walker's step; patches are
    pieces of them at every step; frames keep the road free on every side."""
    for n, along, patch, (x, y), (dx, dy) in ((1, 'y', 56, (20, 6), (2, -1)), (2, 'x', 57, (24, 2), (2, 1))):
        here = endless(n, along, 64, 32, 0, 0, s)
        moved = endless(n, along, 64, 32, dx, dy, s)
        if (here != moved)[DIAMOND[s]].any():
            yield 'picture %d changes under its step' % n
        want = tile(patch, s)
        for k in range(-16, 17):
            if (endless(n, along, 12, 17, x + k * dx, y + k * dy, s) != want).any():
                yield 'patch %d does not match picture %d at step %d' % (patch, n, k)
                break
        for person, heading, road, frames in walkers.WALKS.values():
            if road != along:
                continue
            for f in frames:
                a = tile(f, s)
                if (a != want)[~walkers.free(s)].any():
                    yield 'frame %d: no free road around the figure' % f
                if (a != want).any(-1).sum() < 40 * s * s:
                    yield 'frame %d shows nobody' % f


def trail(s):
    """Walks every direction over a straight road with the next frame at each
    step and the patch at the end: nothing of the figure may stay."""
    steps = {0: (2, -1), 1: (-2, 1), 2: (2, 1), 3: (-2, -1)}
    for d, (_, _, along, frames) in walkers.WALKS.items():
        n, patch = (1, 56) if along == 'y' else (2, 57)
        clean = endless(n, along, 96, 80, -16, -24, s)
        road = clean.copy()
        x, y = (36, 30) if along == 'y' else (40, 26)
        dx, dy = steps[d]
        for k in range(-6, 7):
            blit(road, tile(list(frames)[k % len(frames)], s), s * (x + k * dx), s * (y + k * dy))
        blit(road, tile(patch, s), s * (x + 6 * dx), s * (y + 6 * dy))
        if (road != clean).any():
            yield 'direction %d leaves %d pixels on the road' % (d, (road != clean).any(-1).sum())


def joints(s):
    """Every road picture shows, at the edge of each of its arms, the pixels of
    the straight road; and the bit of the next cell that a walker's block
    reaches at its last step is straight road as well."""
    arms = {37: ('y-', 'x-', 'x+', 'y+'), 49: ('y-', 'x-'), 50: ('y-', 'x+'), 51: ('x-', 'y+'), 52: ('x+', 'y+')}
    u, v = cell_uv(s=s)
    for n, sides in arms.items():
        a = pair(n, s)[..., :3].astype(int)
        for side in sides:
            ref = pair(1 if side[0] == 'y' else 2, s)[..., :3].astype(int)
            rim = DIAMOND[s] & ({'y-': v, 'y+': 1 - v, 'x-': u, 'x+': 1 - u}[side] < .035)
            across = u if side[0] == 'y' else v
            kerb = rim & ((across < .16) | (across > .84))
            if np.abs(a - ref)[kerb].max() > 26:
                yield 'picture %d: kerb broken at %s (%d)' % (n, side, np.abs(a - ref)[kerb].max())
        if 'x+' in sides:
            # a block of direction 3 at (22, 1) of the next cell along x
            reach = np.zeros((32 * s, 64 * s), bool)
            box(reach, 22 + 32, 1 + 16, 10, 15, s)[:] = True
            reach &= DIAMOND[s]
            bad = (pair(n, s) != pair(2, s))[reach].any(-1).sum()
            if bad:
                yield 'picture %d: a walker would leave %d pixels' % (n, bad)


def colours(s):
    for n, colour in views.LEGEND.items():
        p = pair(n, s)
        if tuple(p[16 * s, 32 * s, :3]) != colour:
            yield 'pair %d has not the colour of the legend' % n
        inside = DIAMOND[s] & ~views.outlined(s)
        plain = (p[..., :3] == colour).all(-1) & inside
        if plain.sum() < .75 * inside.sum():
            yield 'pair %d leaves too little to its colour' % n
        shades = p[inside & ~plain][:, :3].astype(int)
        lo, hi = np.minimum(colour, views.MARK[n]), np.maximum(colour, views.MARK[n])
        if (shades < lo).any() or (shades > hi).any():
            yield 'pair %d has colours beside those of its mark' % n
        if tuple(p[0, 32 * s - 1, :3]) != views.OUTLINE or tuple(p[16 * s - 1, 1, :3]) != views.OUTLINE:
            yield 'pair %d has no outline' % n
    if pair(20, s)[DIAMOND[s]][:, :3].any():
        yield 'pair 20 does not blacken'


DEUTAN = np.array([[.367, .861, -.228], [.280, .673, .047], [-.012, .043, .969]])   # of linear colours


def lab(linear):
    xyz = np.clip(linear, 0, 1) @ np.array([[.4339, .2126, .0178], [.3762, .7152, .1096], [.1899, .0722, .8726]])
    f = np.where(xyz > .008856, np.cbrt(xyz), 7.787 * xyz + 16 / 116)
    return np.stack([116 * f[..., 1] - 16, 500 * (f[..., 0] - f[..., 1]), 200 * (f[..., 1] - f[..., 2])], -1)


def marks(s):
    """The diamonds of the views differ by form, and the form is seen by eyes
    that do not tell red from green."""
    shape = {}
    for n, colour in views.LEGEND.items():
        away = np.abs(pair(n, s)[..., :3].astype(int) - colour).sum(-1)
        whole = np.abs(np.subtract(colour, views.MARK[n])).sum()
        shape[n] = DIAMOND[s] & ~views.outlined(s) & (away * 2 > whole)
        seen = lab(to_lin(np.array([colour, views.MARK[n]]) / 255.) @ DEUTAN.T)
        if np.linalg.norm(seen[0] - seen[1]) < 14:
            yield 'the mark of pair %d is faint: %.1f' % (n, np.linalg.norm(seen[0] - seen[1]))
    for a, b in ((16, 17), (16, 58), (17, 58)):
        if (shape[a] ^ shape[b]).sum() < 60 * s * s:
            yield 'the marks of %d and %d are much alike' % (a, b)


def meadow(s):
    """A random mixture of the two grounds shows no lattice: its brightness at a
    place says nothing about that of the next cells, neither pixel by pixel nor
    seen from afar; and it is neither a billiard cloth nor restless."""
    r, n = np.random.RandomState(5), 48
    out = np.zeros((32 * n * s, 64 * n * s, 4), np.uint8)
    grounds = pair(0, s), pair(28, s)
    for x in range(n):
        for y in range(n):
            blit(out, grounds[r.randint(2)], s * (32 * (x - y) + 32 * n - 32), s * 16 * (x + y))
    luma = box(out, 16 * n, 8 * n, 32 * n, 16 * n, s)[..., :3] @ [.299, .587, .114]
    for what, a in (('pixel by pixel', luma), ('from afar', blur(luma, 3 * s))):
        a = a - a.mean()
        for dx, dy in ((32 * s, 16 * s), (32 * s, -16 * s), (64 * s, 0), (0, 32 * s)):
            p, q = a[max(0, -dy):len(a) - max(0, dy), :a.shape[1] - dx], a[max(0, dy):len(a) + min(0, dy), dx:]
            if abs((p * q).mean() / a.var()) > .08:
                yield 'meadow repeats at %d, %d %s: %.3f' % (dx, dy, what, (p * q).mean() / a.var())
    if not 4 < luma.std() < 7:
        yield 'meadow deviates by %.1f' % luma.std()


def fields(s):
    """Told apart by colour alone: bare and dark, green, light straw."""
    mean = {n: pair(n, s)[DIAMOND[s]][:, :3].mean(0) for n in (13, 54, 55, 0)}
    luma = {n: float(m @ [.299, .587, .114]) for n, m in mean.items()}
    if not luma[13] + 30 < luma[54] < luma[55] - 25:
        yield 'field stages do not brighten: %s' % luma
    if mean[54][1] < mean[54][0] or mean[55][0] < mean[55][1] or mean[13][0] < mean[13][1]:
        yield 'field stages have wrong hues: %s' % mean


def finer(s):
    """No picture of scale 2 is its small one enlarged, whatever the filter."""
    small, large = SIZES.keys() - {20}, 'pair/%02d'
    for name in [large % n for n in sorted(small)] + ['tile/%02d' % n for n in BLOCKS] + LARGE:
        a = Image.open(path(name)).convert('RGB')
        b = np.asarray(Image.open(path(name, 2)).convert('RGB'), int)
        size = b.shape[1::-1]
        for how in (Image.NEAREST, Image.BILINEAR, Image.BICUBIC, Image.LANCZOS):
            if np.abs(np.asarray(a.resize(size, how), int) - b).mean() < .25:
                yield '%s is the small one enlarged' % name


CHECKS = [formats, diamonds, footprints, stripes, trail, joints, colours, marks, meadow, fields]
LARGE = ['mask/48', 'tile/48', 'tile/62', 'mask/53', 'tile/53', 'mask/22', 'panel/menu']


def main():
    wrong = ['%dx: %s' % (s, line) for s in SCALES for check in CHECKS for line in check(s)] + list(finer(2))
    for line in wrong:
        print('wrong: ' + line)
    print('check: %d checks at %d scales, %d faults' % (len(CHECKS) + 1, len(SCALES), len(wrong)))
    return 1 if wrong else 0


if __name__ == '__main__':
    raise SystemExit(main())
