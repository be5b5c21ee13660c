"""Diamonds of the access view and the black diamond of the void."""
import numpy as np
from iso import *

LEGEND = {16: (159, 207, 240), 17: (255, 128, 159), 58: (192, 192, 192)}
OUTLINE = (128, 128, 128)


def plain(colour, outline=None, s=1):
    m = diamond_mask(1, s)
    out = np.zeros((32 * s, 64 * s, 4), np.uint8)
    out[m] = tuple(colour) + (255,)
    if outline:
        inner = m
        for _ in range(s):
            p = np.pad(inner, 1)
            inner = inner & p[:-2, 1:-1] & p[2:, 1:-1] & p[1:-1, :-2] & p[1:-1, 2:]
        out[m & ~inner] = tuple(outline) + (255,)
    return out


def render():
    for s in SCALES:
        for n, colour in LEGEND.items():
            save_pair(n, plain(colour, OUTLINE, s), s)
        save_pair(20, plain((0, 0, 0), s=s), s)
