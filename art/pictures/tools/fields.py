"""The growing and the ripe field.  The ploughed one is a scene; these two are
painted to the pixel, since tufts and ears of a few pixels blur in a render.

Each is a piece of an endless field that repeats with the cell, so that cells
join without a line.  Rows run along map x, which climbs a pixel in two."""
import numpy as np
from iso import *

ROWS = 5            # of tufts in a cell: the ridges of the ploughed field
TUFTS = 7           # in a row of a cell
BANDS = 6           # of ears in a cell, 5 1/3 pixels each

# Tufts: L lit, B leaf, D in shade, s their shadow on the soil.
SHAPES = {
    1: [('.LB.', 'LBBB', 'BBBB', '.BBD', '..s.'),
        ('.LB.', 'BBBB', 'BBBB', '.BDD', '..s.'),
        ('.BB.', 'LBBB', 'BBBD', '.BD.', '..s.'),
        ('.LB.', 'BBBB', '.BBD', '..s.')],
    2: [('...L....', '.L.LB.B.', '.LBLBBB.', '..LBBBBD', 'LLBBDBB.', '.BBBBDDB', '..BBDDB.', '...DDDs.', '...ssss.'),
        ('..L..L..', '..LB.LB.', 'L.BBLBB.', '.LBBBBDB', '.BBLBBD.', 'BBBBBDDD', '..BBDDs.', '...DDss.', '....ss..'),
        ('....L...', '.LL.LB..', '..BLBBB.', 'LBBBBBDB', '.BBLBDD.', '..BBBDBB', '.BBDDDs.', '...Dsss.', '...sss..'),
        ('..L.....', '..LL.L..', 'L.BB.B..', '.LBBBBD.', '..BBBDD.', '.BBDDD..', '...Dsss.', '....ss..')]}
LEAF = {'L': '9adc60', 'B': '50a63c', 'D': '27632e'}
SOIL, SHADOW = rgb('7e5a36'), .74
EARS, BODY, GAP = rgb('f4d878'), rgb('d9ae48'), rgb('94692e')


def growing(s):
    """Rows of single tufts with clean soil between."""
    rnd = np.random.RandomState(541)
    mask = diamond_mask(1, s)
    furrows = pair(13, s)[..., :3] / 255.
    furrows = furrows / furrows[mask].mean(0) - 1
    img = SOIL * (1 + .55 * furrows)
    tufts = []
    for row in range(ROWS):
        for k in range(TUFTS):
            u = (k + .4 * row + .14 * (rnd.rand() - .5)) / TUFTS
            v = (row + .5) / ROWS
            x, y = int(round(s * (32 + 32 * (u - v)))) - 2 * s, int(round(s * 16 * (u + v))) - 2 * s
            tufts.append((y, x, SHAPES[s][rnd.randint(len(SHAPES[s]))], 1 + .09 * (2 * rnd.rand() - 1)))
    for i in range(-2, 3):
        for j in range(-2, 3):
            for y, x, shape, tone in sorted(tufts, key=lambda t: t[:2]):
                for dy, line in enumerate(shape):
                    for dx, c in enumerate(line):
                        px, py = x + dx + s * 32 * (i - j), y + dy + s * 16 * (i + j)
                        if c == '.' or not (0 <= px < TW * s and 0 <= py < TH * s):
                            continue
                        img[py, px] = img[py, px] * SHADOW if c == 's' else rgb(LEAF[c]) * tone
    return rgba(img, mask)


def ripe(s):
    """Bands along the furrows: a light line of ears, the straw below it and a
    narrow gap, each with a little grain."""
    rnd = np.random.RandomState(551)
    y, x = np.mgrid[0:TH * s, 0:TW * s] / s
    down = (2 * y - x + 32) % 64 * BANDS / 64 % 1 * 32 / BANDS     # units below the band's top
    grain = rnd.rand(TH * s, TW * s)[..., None]
    down = down[..., None]
    ears = EARS * np.where(grain < .22, .91, 1.)
    body = BODY * np.where(grain < .30, .90, np.where(grain > .86, 1.09, 1.))
    gap = np.where(grain < .25, BODY * .80, GAP)
    return rgba(np.where(down < 2, ears, np.where(down < 4, body, gap)), diamond_mask(1, s))


def render():
    for s in SCALES:
        save_pair(54, growing(s), s)
        save_pair(55, ripe(s), s)
