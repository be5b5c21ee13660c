"""The plates behind the captions of both screens, the marks of the puzzle list
and the program's icon.  All painted here, straight into data/pictures/panel.

Every plate carries black text, so nothing on one may be darker than DARK."""
import sys
from land import *

LIGHT = np.array([225, 238, 253]) / 255.
DARK = np.array([126, 156, 208]) / 255.         # 7.2 to 1 under black
SKY = np.array([140, 179, 242]) / 255.          # ground of the right-hand panel
PALE = np.array([203, 221, 241]) / 255.         # ground of the menu plates
GOLD = np.array([226, 194, 122]) / 255.


def noise(h, w, cell, seed):
    """Smooth value noise, -1..1."""
    r = np.random.RandomState(seed)
    gy, gx = int(h / cell[1]) + 3, int(w / cell[0]) + 3
    g = r.rand(gy, gx) * 2 - 1
    y, x = np.mgrid[0:h, 0:w]
    p, q = x / cell[0], y / cell[1]
    i, j = p.astype(int), q.astype(int)
    f, e = p - i, q - j
    f, e = f * f * (3 - 2 * f), e * e * (3 - 2 * e)
    return (g[j, i] * (1 - f) + g[j, i + 1] * f) * (1 - e) + (g[j + 1, i] * (1 - f) + g[j + 1, i + 1] * f) * e


def inset(h, w, r):
    """Distance of each pixel to the rim of a box with rounded corners."""
    y, x = np.mgrid[0:h, 0:w] + .5
    dx, dy = np.minimum(x, w - x), np.minimum(y, h - y)
    d = np.minimum(dx, dy)
    near = (dx < r) & (dy < r)
    return np.where(near, r - np.hypot(r - dx, r - dy), d)


def bevel(img, d, at, width, raised=1, amount=.16):
    """A rounded ridge between the distances at and at + width, lit from the
    upper left."""
    gy, gx = np.gradient(d)
    t = np.clip((d - at) / width, 0, 1)
    slope = np.sin(np.pi * t) * ((d > at) & (d < at + width))
    lit = (-gx - gy) / np.maximum(np.hypot(gx, gy), 1e-6) / 1.4142
    return img - (lit * -raised * slope * amount)[..., None] * [1, .9, .62]


def plate(w, h, base, seed, r=5, field=None):
    """One plate: a slim raised frame with a thin gold line, a quiet silky field."""
    d = inset(h, w, r)
    y, x = np.mgrid[0:h, 0:w]
    img = np.empty((h, w, 3))
    img[:] = base
    light = .028 - .056 * (y + .25 * x) / (h + .25 * w)
    silk = .010 * noise(h, w, (26, 3), seed) + .007 * noise(h, w, (9, 1.6), seed + 1) + .006 * noise(h, w, (60, 14), seed + 2)
    img += (light + silk)[..., None] * [1, .95, .7]
    frame = d < 5
    img[frame] += np.array([.035, .030, .016])
    img = bevel(img, d, 0, 4.4, 1, .17)
    line = np.clip(1 - np.abs(d - 5.4) / .8, 0, 1)[..., None]
    img = img * (1 - .85 * line) + GOLD * .85 * line
    groove = np.clip(1 - np.abs(d - 6.9) / .9, 0, 1)[..., None]     # shade under the frame
    gy, gx = np.gradient(d)
    img = img + groove * ((-gx - gy)[..., None] * .045) * [1, .9, .62]
    if field is not None:
        img = field(img, d)
    return settle(img)


def settle(img, least=.318):
    """Lift whatever would be too dark under black text (least luminance)."""
    img = np.clip(img, 0, 1)
    for _ in range(6):
        lum = (to_lin(np.round(img * 255) / 255) * [.2126, .7152, .0722]).sum(-1, keepdims=True)
        img = np.where(lum < least, img + (1 - img) * .06, img)
    return img


def rule(img, x0, x1, y, strength=1):
    """An engraved line: a shade with a light under it, fading at its ends."""
    n = np.arange(x0, x1)
    e = np.clip(np.minimum(n - x0 + 1, x1 - n) / 14., 0, 1)[:, None] * strength
    img[y, x0:x1] += e * np.array([-.075, -.065, -.04])
    img[y + 1, x0:x1] += e * np.array([.09, .075, .035])


def well(img, x, y, w, h, deep=1):
    """A shallow round-cornered hollow or, with deep -1, a raised key."""
    d = inset(h, w, 4)
    sub = img[y:y + h, x:x + w]
    inside = d > 0
    out = bevel(sub.copy(), d, 0, 2.4, -deep, .11)
    t = np.clip(d / 3, 0, 1)[..., None] * (-.012 * deep)
    out += t * [1, .9, .5]
    sub[inside] = out[inside]


def tools_field(img, d):
    """The tool palette: two keys for the mode, a board for the current tool,
    and a place for each of the nine tools."""
    for x, y, w, h in ((8, 4, 57, 19), (80, 4, 57, 19)):
        well(img, x - 1, y, w + 2, h + 1, -1)
    well(img, 7, 29, 131, 64, 1)
    rule(img, 24, 121, 97, .8)
    for x, y, w, h in ((8, 102, 57, 21), (80, 102, 57, 21), (8, 134, 57, 21), (80, 134, 57, 21), (8, 166, 57, 21),
                       (80, 166, 57, 21), (8, 198, 57, 21), (80, 198, 57, 21), (8, 229, 129, 21)):
        well(img, x - 1, y, w + 2, h + 1, -1)
    return img


def dividers(*xs):
    def field(img, d):
        h = img.shape[0]
        for x in xs:
            e = np.clip(np.minimum(np.arange(9, h - 9) - 8, h - 9 - np.arange(9, h - 9)) / 8., 0, 1)[:, None]
            img[9:h - 9, x] += e * np.array([-.075, -.065, -.04])
            img[9:h - 9, x + 1] += e * np.array([.09, .075, .035])
        return img
    return field


def views_field(img, d):
    rule(img, 16, 129, 27)
    return img


def main():
    for name, w, h, base, seed, field in (
            ('Image3', 623, 37, SKY, 11, dividers(155, 311, 467)), ('Image2', 141, 157, SKY, 12, None),
            ('Image7', 145, 34, SKY, 13, None), ('Image11', 145, 80, SKY, 14, views_field),
            ('Image10', 145, 55, SKY, 15, None), ('Image9', 145, 34, SKY, 16, None),
            ('Image5', 145, 34, SKY, 17, None), ('Image4', 145, 34, SKY, 18, None),
            ('Image6', 145, 258, SKY, 19, tools_field), ('Image8', 178, 37, SKY, 20, None)):
        save_rgb('panel/' + name, plate(w, h, base, seed, field=field))
    for i, name in enumerate(('Picture1', 'Picture2', 'Picture3', 'Picture5', 'Picture6', 'Picture7', 'Picture8', 'Picture9', 'ivir')):
        save_rgb('panel/' + name, plate(155, 33, PALE, 40 + i))
    marks()
    icon()


def drawn(w, h, base, shape, colour, S=8):
    """A small sign: shape(x, y) is true where the colour lies."""
    y, x = (np.mgrid[0:h * S, 0:w * S] + .5) / S
    c = box_down(shape(x, y).astype(float), S)[..., None]
    return to_srgb(to_lin(base) * (1 - c) + to_lin(colour) * c)


def stroke(x, y, a, b, r0, r1):
    """Inside a tapering stroke from a to b."""
    a, b = np.array(a, float), np.array(b, float)
    d = b - a
    t = np.clip(((x - a[0]) * d[0] + (y - a[1]) * d[1]) / (d @ d), 0, 1)
    return np.hypot(x - a[0] - t * d[0], y - a[1] - t * d[1]) < r0 + (r1 - r0) * t


def marks():
    tick = lambda x, y: stroke(x, y, (1.9, 5.2), (4.6, 8.1), .8, 1.25) | stroke(x, y, (4.6, 8.1), (10.2, 1.6), 1.25, .7)
    save_rgb('panel/Picture20', drawn(12, 10, PALE, tick, np.array([26, 138, 44]) / 255.))
    save_rgb('panel/Picture21', drawn(7, 7, PALE, lambda x, y: np.hypot(x - 3.5, y - 3.5) < 2.3, np.zeros(3)))


def icon():
    S = 4
    y, x = (np.mgrid[0:64 * S, 0:64 * S] + .5) / S
    img = np.zeros((64 * S, 64 * S, 4))
    img[..., :3] = [.45, .6, .85]
    img[..., 3] = np.hypot(x - 32, y - 32) < 30
    a = box_down(img, S)
    Image.fromarray(np.round(a * 255).astype(np.uint8), 'RGBA').save(path('icon'), compress_level=9)


if __name__ == '__main__':
    main()
