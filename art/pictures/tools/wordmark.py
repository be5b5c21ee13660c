"""The name of the game in chiselled, gilded capitals of our own, for the sky of the menu.

A letter is a union of strokes; a stroke is the distance inwards from its rim, so that the strokes
meet in ridges as if cut with a chisel.  y runs down from the top of the capitals, 1 to their foot."""
import numpy as np
from iso import blur, rgb, to_lin, to_srgb
from joinery import Relief, S

GOLD, UMBER = rgb('E3AE42'), rgb('3A2410')
THICK, THIN, SERIF = .195, .085, .085
HEIGHT, TOP, GAP = 45, 15, 7.5                  # in units: capitals, their place, between letters


def convex(x, y, *points):
    """Inside a convex polygon given clockwise."""
    d = np.full(x.shape, np.inf)
    for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
        d = np.minimum(d, ((bx - ax) * (y - ay) - (by - ay) * (x - ax)) / np.hypot(bx - ax, by - ay))
    return d


def ellipse(x, y, cx, cy, rx, ry):
    u, v = (x - cx) / rx, (y - cy) / ry
    f = np.maximum(np.hypot(u, v), 1e-6)
    return (1 - f) * f / np.maximum(np.hypot(u / rx, v / ry), 1e-6)


def union(*d):
    return np.maximum.reduce(d)


def foot(x, y, x0, x1, top):
    """A serif at the head or the foot of a stem, bracketed."""
    a, b, h = (0, .05, .13) if top else (1, .95, .87)
    order = slice(None) if top else slice(None, None, -1)
    slab = [(x0 - SERIF, a), (x1 + SERIF, a), (x1 + SERIF * .8, b), (x0 - SERIF * .8, b)][order]
    knee = [(x0 - SERIF * .5, a), (x1 + SERIF * .5, a), (x1, h), (x0, h)][order]
    return union(convex(x, y, *slab), convex(x, y, *knee))


def stem(x, y, x0, w, serifs='tb'):
    parts = [convex(x, y, (x0, 0), (x0 + w, 0), (x0 + w, 1), (x0, 1))]
    parts += [foot(x, y, x0, x0 + w, end == 't') for end in serifs]
    return union(*parts)


def slant(x, y, x0, x1, w, y0=0., y1=1.):
    """A diagonal from (x0, y0) to (x1, y1), w wide along the line."""
    return convex(x, y, (x0, y0), (x0 + w, y0), (x1 + w, y1), (x1, y1))


def arm(x, y, x0, x1, at, tip):
    """A bar with a tip that reaches up or down at its end."""
    a, b = at, at + THIN
    end = convex(x, y, (x1 - .04, min(a, a + tip)), (x1 + .02, min(a, a + tip)), (x1 + .02, max(b, b + tip)), (x1 - .10, max(b, b + tip))) if tip > 0 else \
        convex(x, y, (x1 - .10, min(a, a + tip)), (x1 + .02, min(a, a + tip)), (x1 + .02, max(b, b + tip)), (x1 - .04, max(b, b + tip)))
    return union(convex(x, y, (x0, a), (x1, a), (x1, b), (x0, b)), end)


def letter_v(x, y):
    return union(slant(x, y, .09, .44, .22), slant(x, y, .80, .49, .095), foot(x, y, .09, .31, True), foot(x, y, .795, .895, True))


def letter_e(x, y):
    return union(stem(x, y, .09, THICK), arm(x, y, .2, .60, 0, .15), arm(x, y, .2, .52, .455, .07), arm(x, y, .2, .52, .455, -.07), arm(x, y, .2, .64, 1 - THIN, -.17))


def letter_l(x, y):
    return union(stem(x, y, .09, THICK), arm(x, y, .2, .62, 1 - THIN, -.19))


def letter_m(x, y):
    return union(slant(x, y, .13, .09, THIN + .01), slant(x, y, .13, .49, .20), slant(x, y, .90, .535, .09), slant(x, y, .90, .93, THICK),
                 foot(x, y, .09, .185, False), foot(x, y, .93, .93 + THICK, False), foot(x, y, .13, .24, True), foot(x, y, .94, 1.07, True))


def letter_o(x, y):
    out, hole = ellipse(x, y, .49, .5, .475, .525), ellipse(x, y, .49, .5, .475 - THICK - .015, .525 - THIN)
    return np.minimum(out, -hole)


def letter_r(x, y):
    bowl = np.minimum(np.minimum(ellipse(x, y, .36, .28, .365, .28), -ellipse(x, y, .34, .28, .365 - THICK, .28 - THIN + .005)), x - .3)
    bars = union(convex(x, y, (.2, 0), (.38, 0), (.38, THIN), (.2, THIN)), convex(x, y, (.2, .56 - THIN), (.40, .56 - THIN), (.40, .56), (.2, .56)))
    leg = union(slant(x, y, .36, .66, .20, .52, 1), convex(x, y, (.64, .95), (.96, .95), (.99, 1), (.62, 1)))
    return union(stem(x, y, .09, THICK), bowl, bars, leg)


def letter_a(x, y):
    return union(slant(x, y, .45, .14, .095), slant(x, y, .42, .74, .215), convex(x, y, (.27, .62), (.66, .62), (.66, .62 + THIN), (.27, .62 + THIN)),
                 foot(x, y, .135, .235, False), foot(x, y, .74, .955, False))


def letter_n(x, y):
    return union(stem(x, y, .12, THIN + .01), slant(x, y, .06, .74, .215), stem(x, y, .845, THIN + .01, 't'), foot(x, y, .06, .24, True))


LETTERS = ((letter_v, .96), (letter_e, .72), (letter_l, .70), (letter_l, .70), (letter_m, 1.20), (letter_o, .98), (letter_r, .95), (letter_a, 1.04), (letter_n, 1.02))


def shape(r, middle):
    """Distance inwards from the rim of the word and its two ornaments, in units."""
    width = sum(w for _, w in LETTERS) * HEIGHT + GAP * (len(LETTERS) - 1)
    d, at = np.full(r.x.shape, -99.), middle - width / 2
    for draw, w in LETTERS:
        i0, i1 = int((at - 8) * S), int((at + w * HEIGHT + 8) * S)
        x, y = (r.x[:, i0:i1] - at) / HEIGHT, (r.y[:, i0:i1] - TOP) / HEIGHT
        d[:, i0:i1] = np.maximum(d[:, i0:i1], draw(x, y) * HEIGHT)
        at += w * HEIGHT + GAP
    cy = TOP + HEIGHT / 2
    for side in (-1, 1):
        cx = middle + side * (width / 2 + 20)
        out = (r.x - cx) * side
        lozenge = 5.2 - np.abs(r.x - cx) - .8 * np.abs(r.y - cy)
        ray = np.minimum(1.7 * (1 - (out - 9) / 66) - np.abs(r.y - cy), np.minimum(out - 9, 66 - out))
        bead = 2.2 - np.hypot(out + 11, r.y - cy)
        d = union(d, lozenge * .78, ray, bead * .9)
    return d


def paint(pictures, scales, middle=400):
    """Lays the word over pictures (sRGB floats) of the same subject at each scale."""
    w, h = 800, 78
    r = Relief(w, h, UMBER)
    d = shape(r, middle)
    rise = np.clip(d, 0, None)
    r.z = np.where(d > 0, .8 * rise, 0)
    r.c[:] = np.where((d > 0)[..., None], GOLD, UMBER)
    r.metal = np.where(d > 0, 1., 0.)
    lit = r.light()
    near = to_lin(UMBER) * .8
    lit = np.where((d > .45)[..., None], lit, near)
    rim = np.clip(d + 1.25, 0, .25) * 4
    halo = blur(np.pad(np.clip(d + 2.2, 0, 1), ((16, 0), (14, 0)))[:h * S, :w * S], 2.2 * S)
    out = []
    for s, a in zip(scales, pictures):
        k = S // s
        down = lambda m: m.reshape(h * s, k, w * s, k, -1).mean((1, 3))
        a = a.copy()
        sky = to_lin(a[:h * s]) * (1 - .55 * down(halo))
        cover = down(rim)
        a[:h * s] = to_srgb(sky * (1 - cover) + down(lit * rim[..., None]))
        out.append(a)
    return out
