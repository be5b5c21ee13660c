"""Diamonds of the access view, the swatches of its legend, and the black diamond
of the void.

The three colours of the view differ little for many eyes, so each diamond also
has a mark of its own: a tick where the service reaches, a cross where it does
not, a bar for what is no residence.  The very middle stays in the plain colour."""
import numpy as np
from land import *

LEGEND = {16: (159, 207, 240), 17: (255, 128, 159), 58: (192, 192, 192)}
OUTLINE = (128, 128, 128)


def stroke(x, y, a, b, r):
    """Inside a round-ended stroke from a to b."""
    (ax, ay), (bx, by) = a, b
    t = np.clip(((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / ((bx - ax) ** 2 + (by - ay) ** 2), 0, 1)
    return np.hypot(x - ax - t * (bx - ax), y - ay - t * (by - ay)) < r


def tick(x, y):
    return stroke(x, y, (25, 16.5), (30, 21.5), 1.25) | stroke(x, y, (30, 21.5), (42, 11.5), 1.25)


def cross(x, y):
    arms = [stroke(x, y, (32 + 9 * i, 16 + 6 * j), (32 + 2.8 * i, 16 + 1.9 * j), 1.25) for i in (-1, 1) for j in (-1, 1)]
    return np.logical_or.reduce(arms)


def bar(x, y):
    outer = (np.abs(x - 32) < 10) & (np.abs(y - 16) < 3)
    return outer & ~((np.abs(x - 32) < 9) & (np.abs(y - 16) < 2))


MARKS = {16: tick, 17: cross, 58: bar}


def plain(colour, s):
    out = np.zeros((32 * s, 64 * s, 4), np.uint8)
    out[diamond_mask(1, s)] = tuple(colour) + (255,)
    return out


def outlined(s):
    """The outermost pixels of each row, one unit: beside the next cell's they
    make one even line and not two."""
    m = diamond_mask(1, s)
    return m & ~(np.roll(m, s, 1) & np.roll(m, -s, 1))


def diamond(n, s):
    y, x = (np.mgrid[0:32 * s, 0:64 * s] + .5) / s
    out = plain(LEGEND[n], s)
    out[outlined(s) | MARKS[n](x, y)] = OUTLINE + (255,)
    return out


def swatch(n, s):
    """The legend's chip of 26 x 14: colour, outline and mark of a diamond."""
    y, x = (np.mgrid[0:14 * s, 0:26 * s] + .5) / s
    rim = np.minimum(np.minimum(x, 26 - x), np.minimum(y, 14 - y)) < 1
    out = np.empty(x.shape + (3,), np.uint8)
    out[:] = LEGEND[n]
    out[rim | MARKS[n](x + 19, y + 9)] = OUTLINE
    return out


def render():
    for s in SCALES:
        for n, name in ((16, 'swatchblue'), (17, 'swatchred'), (58, 'swatchgrey')):
            save_rgb('panel/' + name, swatch(n, s), s)
        for n in LEGEND:
            save_pair(n, diamond(n, s), s)
        save_pair(20, plain((0, 0, 0), s), s)
