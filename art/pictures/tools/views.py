"""Diamonds of the access view, the swatches of its legend, and the black diamond
of the void.

The three colours of the view differ little for many eyes, so each diamond also
has a mark of its own, in a dark shade of its colour: a tick where the service
reaches, a cross where it does not, a bar for what is no residence.  The very
middle stays in the plain colour."""
import numpy as np
from land import *

LEGEND = {16: (159, 207, 240), 17: (255, 128, 159), 58: (192, 192, 192)}
MARK = {16: (28, 74, 132), 17: (128, 14, 46), 58: (124, 124, 124)}
OUTLINE = (128, 128, 128)
FINE = 8                    # samples a pixel each way, for marks with smooth edges


def stroke(x, y, a, b, r):
    """Inside a round-ended stroke from a to b."""
    (ax, ay), (bx, by) = a, b
    t = np.clip(((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / ((bx - ax) ** 2 + (by - ay) ** 2), 0, 1)
    return np.hypot(x - ax - t * (bx - ax), y - ay - t * (by - ay)) < r


def tick(x, y):
    return stroke(x, y, (25, 17), (30, 21.8), 1.7) | stroke(x, y, (30, 21.8), (42.5, 11.8), 1.7)


def cross(x, y):
    arms = [stroke(x, y, (32 + 9 * i, 16 + 5.6 * j), (32 + 2.9 * i, 16 + 1.8 * j), 1.7) for i in (-1, 1) for j in (-1, 1)]
    return np.logical_or.reduce(arms)


def bar(x, y):
    """Of two parts, as the middle stays plain."""
    return stroke(x, y, (24, 16), (28.6, 16), 1.5) | stroke(x, y, (35.4, 16), (40, 16), 1.5)


MARKS = {16: tick, 17: cross, 58: bar}


def marked(out, n, s, left=0, top=0):
    """The mark of diamond n on a picture, whose corner lies at left, top of the
    diamond's box; pixels at its edge are covered in part."""
    h, w = out.shape[:2]
    y, x = (np.mgrid[0:h * FINE, 0:w * FINE] + .5) / (s * FINE)
    cover = MARKS[n](x + left, y + top).reshape(h, FINE, w, FINE).mean((1, 3))[..., None]
    out[..., :3] = np.round(out[..., :3] * (1 - cover) + np.array(MARK[n]) * cover)


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
    out = plain(LEGEND[n], s)
    marked(out, n, s)
    out[outlined(s)] = OUTLINE + (255,)
    return out


def swatch(n, s):
    """The legend's chip of 26 x 14: colour, outline and mark of a diamond."""
    out = np.empty((14 * s, 26 * s, 3), np.uint8)
    out[:] = OUTLINE
    out[s:-s, s:-s] = LEGEND[n]
    marked(out, n, s, 19, 9)
    return out


def render():
    for s in SCALES:
        for n, name in ((16, 'swatchblue'), (17, 'swatchred'), (58, 'swatchgrey')):
            save_rgb('panel/' + name, swatch(n, s), s)
        for n in LEGEND:
            save_pair(n, diamond(n, s), s)
        save_pair(20, plain((0, 0, 0), s), s)
