"""The seven road pictures and the two empty road patches of the walkers.

Across a straight road the colour is a table of 64 entries (twice as many at
scale 2).  A pixel of the
road along y takes entry px + 2 py - 32 and one of the road along x entry
2 py - px + 32, so the picture does not change at all under a shift of (2, -1)
or (2, 1): a walker's frame, which carries its own piece of road, lands on
stripes that match.  At scale 2 that shift is four pixels to the side, which
leaves room for a stone and a joint: the road is laid with setts there.  Bends
and junctions use the same table by the distance from the grass corner they
turn round.

One thing no picture can mend: the block of a walker that goes up and left
reaches 16 pixels into the cell ahead when it ends.  There it lies on road
unless the road ends there, and then those pixels stay on the meadow until the
cell is painted again."""
import numpy as np
from iso import *

# Across the road: from this part of the width on, this colour.  Side 0 is the
# one that the sun reaches, up and left.
KERBS = [
    (0.000, '6a933b'), (0.025, '557a2e'),
    (0.055, '54452f'), (0.085, 'e9dcbf'), (0.125, 'd3c4a1'), (0.150, '75634a'), (0.175, None),
    (0.835, '6c5a42'), (0.860, 'd2c19b'), (0.900, 'b5a27c'), (0.925, '483a28'),
    (0.955, '557a2e'), (0.980, '6a933b'), (1.001, '6a933b')]
# Between the kerbs colours melt into one another: two wheel tracks and a crown.
# Stripes with edges look like planks.
WORN = [(0.175, 'a09279'), (0.245, 'b0a28a'), (0.335, '9f917a'), (0.425, 'b2a58d'), (0.500, 'b8ab93'),
        (0.575, 'b2a58d'), (0.665, '9f917a'), (0.755, 'b0a28a'), (0.835, 'a09279')]
SETT = 6            # entries of the large table that a row of setts takes
STRAIGHT = .13      # so much of an arm is straight before a bend begins: a
                    # walker's block reaches a little way into the next cell

EDGES = np.array([e for e, _ in KERBS])
STONES = np.array([rgb(c) for c in ('b3a58c', 'ab9c84', 'baac94', 'afa088', 'b8a991', 'a79981')])
JOINT, LIT = rgb('998b75'), rgb('c5b79e')
THRESHOLD = np.array([rgb(c) for c in ('dccfb3', 'd3c6a9', 'e1d5ba', 'd7caae')])
COLOURS = np.array([to_lin(rgb(c or WORN[0][1])) for _, c in KERBS])


def worn(q):
    """Colour (linear) of the road between its kerbs."""
    at, colours = np.array([a for a, _ in WORN]), np.array([to_lin(rgb(c)) for _, c in WORN])
    i = np.clip(np.searchsorted(at, q, 'right') - 1, 0, len(WORN) - 2)
    t = np.clip((q - at[i]) / (at[i + 1] - at[i]), 0, 1)
    return colours[i] + (colours[i + 1] - colours[i]) * (t * t * (3 - 2 * t))[..., None]


def across(q, s):
    """Colour (linear) at part q of the width, averaged over one of the steps."""
    out = 0
    for k in range(8):
        qq = np.clip(q + ((k + .5) / 8 - .5) / (64 * s), 0, .9999)
        here = COLOURS[np.searchsorted(EDGES, qq, 'right') - 1]
        between = (qq >= WORN[0][0]) & (qq < WORN[-1][0])
        out = out + np.where(between[..., None], worn(qq), here)
    return out / 8


def setts(q):
    """Brightness of the stones at scale 2: joints between the rows and, four
    pixels apart, within them; each row is shifted and tinted a little."""
    entry = np.floor(q * 128).astype(int)
    row, x = entry // SETT, np.arange(q.shape[1])
    rnd = np.random.RandomState(5)
    shift, tint = rnd.randint(0, 4, 40)[row], 1 + .05 * (2 * rnd.rand(40)[row] - 1)
    joint = ((x + shift) % 4 == 0) | (entry % SETT < 2)
    lit = ~joint & ((x + shift) % 4 == 1)
    light = np.where(joint, .86, np.where(lit, 1.14, 1.05)) * tint
    return np.where((q > WORN[0][0] + .01) & (q < WORN[-1][0] - .01), light, 1)[..., None]


def table(q, s):
    """Colour of the straight road, snapped to the entries of the table."""
    n = 64 * s
    q = (np.round(q * n - .5) + .5) / n
    return across(q, s) * setts(q) if s == 2 else across(q, s)


def turn(a, b):
    """Distance from a grass corner with (a, b) measured along the two edges
    of the cell: straight along both edges at first, round further in."""
    e = STRAIGHT
    return np.where(np.minimum(a, b) <= e, np.maximum(a, b), e + np.hypot(a - e, b - e))


def shaded(a, b, side_a, side_b, s, limit=1.):
    """Road round a grass corner.  side_a, side_b tell on which side of the
    profile the corner lies for the arm that crosses edge a or edge b; where
    they differ the two sides melt into one another along the bend."""
    d = np.minimum(turn(a, b), limit)
    col = lambda side: table(1 - d if side else d, s)
    if side_a == side_b:
        return col(side_a)
    e = STRAIGHT
    w = np.clip(np.arctan2(b - e, a - e) / (np.pi / 2), 0, 1)
    w = np.where(b <= e, 0., np.where(a <= e, 1., w))
    w = np.where((a <= e) & (b <= e), a > b, w)
    w = (w * w * (3 - 2 * w))[..., None]
    return col(side_b) * (1 - w) + col(side_a) * w


# vertex of the cell: its (u, v), the profile side it lies on for a road along
# y (its u) and for a road along x (its v)
VERTEX = {'n': (0, 0), 'e': (1, 0), 's': (1, 1), 'w': (0, 1)}


def bend(vertex, u, v, s):
    cu, cv = VERTEX[vertex]
    return shaded(np.abs(u - cu), np.abs(v - cv), cu, cv, s)


def supersampled(paint, s, n=4):
    """Mean of paint(u, v) over n x n points of every pixel."""
    acc = 0
    for sy in range(n):
        for sx in range(n):
            acc = acc + paint(*cell_uv(dx=(sx + .5) / n, dy=(sy + .5) / n, s=s))
    return acc / (n * n)


def straight(along, s=1):
    u, v = cell_uv(s=s)
    return rgba(to_srgb(table(u if along == 'y' else v, s)), diamond_mask(1, s))


def exact_arms(img, vertex, s, only=None):
    """Near the edges that the vertex lies between, the picture is the straight
    road to the pixel (where `only` allows)."""
    cu, cv = VERTEX[vertex]
    u, v = cell_uv(s=s)
    a, b = np.abs(u - cu), np.abs(v - cv)
    for along, near in (('x', (a < STRAIGHT) & (a < b)), ('y', (b < STRAIGHT) & (b <= a))):
        src = straight(along, s)
        near = near & (src[..., 3] > 0) & (only if only is not None else True)
        img[near] = src[near]
    return img


def corner(vertex, s):
    """Bend round one vertex; beyond the outer kerb the cell is meadow."""
    cu, cv = VERTEX[vertex]
    col = supersampled(lambda u, v: bend(vertex, u, v, s), s)
    far = supersampled(lambda u, v: np.clip((turn(np.abs(u - cu), np.abs(v - cv)) - .985) / .02, 0, 1)[..., None], s)
    meadow = to_lin(pair(0, s)[..., :3] / 255.)
    img = rgba(to_srgb(col * (1 - far) + meadow * far), diamond_mask(1, s))
    return exact_arms(img, vertex, s)


def paving(at, size, tones, joint, seed, s):
    """Colour of stones laid in a grid: `at` how far along both edges, in units of
    which a stone takes `size`.  Each has a joint before it and a lit rim."""
    (a, b), (m, n) = at, size
    row, stone = np.floor(a / m).astype(int), np.floor(b / n).astype(int)
    rnd = np.random.RandomState(seed)
    tone = rnd.randint(len(tones), size=(80, 80))[row % 80, stone % 80]
    inner = np.minimum(a - row * m, b - stone * n)          # from the joint
    col = np.where((inner < 2.1 - .4 * s)[..., None], joint, tones[tone])
    lit = (inner >= 2.1 - .4 * s) & (inner < 4. - .7 * s)
    return np.where(lit[..., None], col + .5 * (LIT - col), col)


def junction(s):
    """Four arms: a kerb round each vertex, small setts between them, and across
    each mouth a row of larger stones.  The picture also stands where three arms
    meet: on an open side that row is a step over which the road goes on, on a
    closed one it is the kerb."""
    u, v = cell_uv(s=s)
    a, b = u * 64, v * 64
    small = paving((a, b + 4 * (np.floor(a / 8) % 2)), (8, 8), STONES, JOINT, 37, s)
    mouth = np.minimum(np.minimum(u, 1 - u), np.minimum(v, 1 - v))
    along = np.where(np.minimum(u, 1 - u) < np.minimum(v, 1 - v), b, a)
    step = paving((np.full_like(a, 5.), along - 11.2), (99, 8.32), THRESHOLD, JOINT, 38, s)
    img = np.where((mouth < .078)[..., None], step, small)
    img = np.where(((mouth >= .078) & (mouth < .094))[..., None], rgb('8a7a60'), img)
    img = np.where((mouth < .016)[..., None], rgb('85765d'), img)

    def kerbs(u, v):
        out = np.zeros(u.shape + (3,))
        for cu, cv in VERTEX.values():
            here = ((u > .5) == bool(cu)) & ((v > .5) == bool(cv))
            p, q = np.minimum(np.abs(u - cu), .499), np.minimum(np.abs(v - cv), .499)
            out[here] = shaded(p, q, cu, cv, s, .185)[here]
        return out

    far = supersampled(lambda u, v: (turn(np.minimum(u, 1 - u), np.minimum(v, 1 - v)) > .175).astype(float)[..., None], s)
    img = rgba(to_srgb(to_lin(img) * far + supersampled(kerbs, s) * (1 - far)), diamond_mask(1, s))
    for name, (cu, cv) in VERTEX.items():
        quarter = ((u > .5) == bool(cu)) & ((v > .5) == bool(cv))
        kerb = np.maximum(np.abs(u - cu), np.abs(v - cv)) < .17
        walked = (u > 1 - STRAIGHT) & (v < .31)
        exact_arms(img, name, s, quarter & (kerb | walked))
    return img


def plane(along, w, h, x0, y0, s):
    """Block (x0, y0, w, h) of the straight road continued for ever, in the
    units of the flat box."""
    t = straight(along, s)
    out = np.zeros((h * s, w * s, 4), np.uint8)
    for k in range(-3, 4):
        for j in range(-1, 2):
            a, b = (k, j) if along == 'x' else (j, k)
            blit(out, t, s * (32 * (a - b) - x0), s * (16 * (a + b) - y0))
    return out


def patch(along, s=1):
    """The piece of road that a walker carries: 12 x 17 units."""
    return plane(along, 12, 17, *{'y': (20, 6), 'x': (24, 2)}[along], s)


def render():
    for s in SCALES:
        save_pair(1, straight('y', s), s)
        save_pair(2, straight('x', s), s)
        save_pair(37, junction(s), s)
        save_pair(49, corner('n', s), s)
        save_pair(50, corner('e', s), s)
        save_pair(51, corner('w', s), s)
        save_pair(52, corner('s', s), s)
        save_tile(56, patch('y', s), s)
        save_tile(57, patch('x', s), s)
