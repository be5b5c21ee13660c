"""The growing and the ripe field.  The ploughed one is a scene; these two are
painted to the pixel, since tufts and ears of a few pixels blur in a render.

Each is a piece of an endless field that repeats with the cell, so that cells
join without a line.  Rows run along map x, which climbs a pixel in two; they
waver, and no two plants are alike, for a field is no cloth."""
import numpy as np
from iso import *
from grounds import torus_noise

ROWS = 5            # of tufts in a cell: the ridges of the ploughed field
TUFTS = 7           # in a row of a cell
EARS = 13, 26       # rows of ears in a cell, ears in a row

# Tufts from small to large: L lit, B leaf, D in shade, s their shadow on the soil.
SHAPES = {
    1: [('.LB.', 'BBB.', '.BD.', '..s.'),
        ('.LB.', 'BBBB', '.BBD', '..s.'),
        ('.LB.', 'LBBB', 'BBBB', '.BBD', '..s.'),
        ('L.B.', 'BBBB', 'LBBB', '.BDD', '..s.'),
        ('.BB.', 'LBBB', 'BBBD', '.BD.', '..s.'),
        ('.L.B.', 'LBBBB', 'BBBBB', '.BBDD', '..ss.')],
    2: [('..LL....', 'L.LBB.B.', 'LBBBBBB.', '.LBBBBD.', 'BBBBDDB.', '.BBBDD..', '..DDDDs.', '...sss..'),
        ('...L..L.', '.LLB.LB.', 'LBBBBBB.', '.LBBBBBD', 'LBBBBBD.', 'BBBBBDDB', '.BBDDDs.', '..DDsss.'),
        ('..L..L...', 'L.LB.LB..', 'LBBBLBBB.', '.LBBBBBBD', 'LLBBBBBD.', 'BBBBBBDDB', '.BBBDDDD.', 'B.BDDDss.', '...Dssss.'),
        ('...LL....', '.L.LBB.B.', '.LBLBBBB.', 'L.LBBBBDD', 'LLBBBBBB.', 'BBBBBBDDB', '.BBBDDDs.', '..DDDsss.', '...ssss..'),
        ('....L..L.', '.LL.LB.B.', 'L.BLBBBB.', 'LBBBBBBDB', '.BBLBBDD.', 'LBBBBDDBB', '.BBBDDDs.', '..DDssss.', '...ssss..'),
        ('..L..L..L.', '.LLB.LBLB.', 'L.BBLBBBB.', 'LLBBBBBBDD', '.LBBLBBBB.', 'LBBBBBBDDB', 'BBBBBDDDD.', '.BBDDDDss.', '..DDDssss.', '....ssss..')]}
LEAF = {'L': '9adc60', 'B': '50a63c', 'D': '27632e'}
SOIL, SHADOW = rgb('7e5a36'), .74
EAR, STRAW, SHADE = ([rgb(c) for c in tones] for tones in (
    ('f4d878', 'eccb66', 'f8e194', 'e6c25e'), ('d9ae48', 'cfa443', 'e0b853'), ('a87834', 'b3833b')))


def endless(plants, s):
    """The plants of a cell, (y, x, what) in pixels of its box, and of the cells
    around it, from back to front."""
    for i in range(-2, 3):
        for j in range(-2, 3):
            for y, x, what in plants:
                yield y + s * 16 * (i + j), x + s * 32 * (i - j), what


def growing(s):
    """Rows of single tufts, large and small, with soil between."""
    rnd = np.random.RandomState(541)
    mask = diamond_mask(1, s)
    furrows = pair(13, s)[..., :3] / 255.
    furrows = furrows / furrows[mask].mean(0) - 1
    img = SOIL * (1 + .75 * furrows)
    tufts = []
    for row in range(ROWS):
        phase = 6.28 * rnd.rand()
        for k in range(TUFTS):
            u = (k + .4 * row + .36 * (rnd.rand() - .5)) / TUFTS
            v = (row + .5) / ROWS + .012 * np.sin(6.28 * u + phase) + .020 * (rnd.rand() - .5)
            size = int(len(SHAPES[s]) * rnd.rand() ** .8)
            tone = 1 + .14 * (2 * rnd.rand() - 1)
            if rnd.rand() > .04:                                # a few did not come up
                shape = SHAPES[s][size]
                x, y = int(round(s * 32 * (1 + u - v))), int(round(s * 16 * (u + v)))
                tufts.append((y - len(shape) + 2 * s, x - len(shape[0]) // 2, (shape, tone * np.array([1, 1, .94 + .1 * rnd.rand()]))))
    for y, x, (shape, tone) in sorted(endless(tufts, s), key=lambda t: t[0] + len(t[2][0])):
        for dy, line in enumerate(shape):
            for dx, c in enumerate(line):
                px, py = x + dx, y + dy
                if c == '.' or not (0 <= px < TW * s and 0 <= py < TH * s):
                    continue
                img[py, px] = img[py, px] * SHADOW if c == 's' else rgb(LEAF[c]) * tone
    return rgba(np.clip(img, 0, 1), mask)


def ripe(s):
    """Ear before ear, each on its straw, lighter and darker as the wind lies on
    the field; along the furrows they stand thinner."""
    rnd = np.random.RandomState(551)
    wind = .92 + .16 * (.6 * torus_noise(3, 552, s) + .4 * torus_noise(5, 553, s))
    img = np.empty((TH * s, TW * s, 3))
    img[:] = SHADE[0]
    ears = []
    rows, n = EARS[0], EARS[1] * s
    for row in range(rows):
        for k in range(n):
            u, v = (k + rnd.rand()) / n, (row + .5 + .9 * (rnd.rand() - .5)) / rows
            thin = abs((v * ROWS) % 1 - .5) < .14 + .05 * np.sin(6.28 * u + row)
            if rnd.rand() < (.62 if thin else .04):
                continue
            x, y = int(s * 32 * (1 + u - v)), int(s * 16 * (u + v))
            ears.append((y, x, (rnd.randint(4), rnd.randint(3), rnd.randint(2), rnd.rand(), rnd.choice([-1, 0, 1]))))
    for y, x, (e, t, d, high, lean) in sorted(endless(ears, s), key=lambda ear: ear[0]):
        head, straw = (2, 2) if s == 1 else (3 + int(high * 2), 4)
        stalk = [EAR[e]] * head + [STRAW[t]] * straw + [SHADE[d]] * s
        if s == 2:
            stalk[0] = stalk[0] * 1.05
        for k, colour in enumerate(stalk):
            px = x + (lean if s == 2 and k < head else 0)
            py = y + k - len(stalk)
            if 0 <= px < TW * s and 0 <= py < TH * s:
                img[py, px] = colour
            if s == 2 and 0 < k < head and 0 <= px + 1 < TW * s and 0 <= py < TH * s:
                img[py, px + 1] = colour * .90                  # the ear's shaded side
    return rgba(np.clip(img * wind[..., None], 0, 1), diamond_mask(1, s))


def render():
    for s in SCALES:
        save_pair(54, growing(s), s)
        save_pair(55, ripe(s), s)
