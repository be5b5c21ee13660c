"""The plates behind the captions of both screens, the marks of the puzzle list
and the program's icon.  All painted here, straight into data/pictures/panel.

Places and sizes are units of scale 1; s is the scale that is painted.
Every plate carries black text, so nothing on one may be darker than DARK."""
import sys
from land import *

LIGHT = np.array([225, 238, 253]) / 255.
DARK = np.array([126, 156, 208]) / 255.         # 7.2 to 1 under black
SKY = np.array([140, 179, 242]) / 255.          # ground of the right-hand panel
PALE = np.array([203, 221, 241]) / 255.         # ground of the menu plates
GOLD = np.array([226, 194, 122]) / 255.


def noise(h, w, cell, seed, s=1):
    """Smooth value noise over h x w units, -1..1."""
    r = np.random.RandomState(seed)
    gy, gx = int(h / cell[1]) + 3, int(w / cell[0]) + 3
    g = r.rand(gy, gx) * 2 - 1
    y, x = np.mgrid[0:h * s, 0:w * s] / s
    p, q = x / cell[0], y / cell[1]
    i, j = p.astype(int), q.astype(int)
    f, e = p - i, q - j
    f, e = f * f * (3 - 2 * f), e * e * (3 - 2 * e)
    return (g[j, i] * (1 - f) + g[j, i + 1] * f) * (1 - e) + (g[j + 1, i] * (1 - f) + g[j + 1, i + 1] * f) * e


def inset(h, w, r, s=1):
    """Distance of each pixel to the rim of a box with rounded corners."""
    y, x = (np.mgrid[0:h * s, 0:w * s] + .5) / s
    dx, dy = np.minimum(x, w - x), np.minimum(y, h - y)
    d = np.minimum(dx, dy)
    near = (dx < r) & (dy < r)
    return np.where(near, r - np.hypot(r - dx, r - dy), d)


def bevel(img, d, at, width, raised=1, amount=.16):
    """A rounded ridge between the distances at and at + width, lit from the
    upper left."""
    gy, gx = np.gradient(d)
    t = np.clip((d - at) / width, 0, 1)
    slope = np.cos(np.pi * t) * ((d > at) & (d < at + width))       # up, then down again
    lit = (gx + gy) / np.maximum(np.hypot(gx, gy), 1e-6) / 1.4142
    return img + (lit * raised * slope * amount)[..., None] * [1, .95, .80]


def enamel(w, h, base, seed, s=1):
    """A quiet field: lighter at the top, faintly veined."""
    y, x = np.mgrid[0:h * s, 0:w * s] / s
    img = np.empty((h * s, w * s, 3))
    img[:] = base
    light = .040 - .075 * (y + .20 * x) / (h + .20 * w)
    vein = np.abs(noise(h, w, (30, 9), seed, s))
    silk = .016 * noise(h, w, (48, 16), seed + 2, s) + .012 * noise(h, w, (13, 5), seed + 1, s) + .013 * np.exp(-(vein / .10) ** 2)
    return img + (light + silk)[..., None] * [1, .92, .62]


IVORY = np.array([226, 212, 178]) / 255.


def plate(w, h, base, seed, s=1, r=4, field=None, frame=2.2):
    """One plate: a rounded frame of pale stone, a gold line, a field of enamel."""
    d = inset(h, w, r, s)
    img = enamel(w, h, base, seed, s)
    if field is not None:
        img = field(img, s)
    # the field lies deeper than the frame: shade along its upper and left side
    gy, gx = np.gradient(blur(d, 1.0 * s))
    side = (gx + gy) / np.maximum(np.hypot(gx, gy), 1e-6) / 1.4142
    drop = np.exp(-np.clip(d - frame - .5, 0, None) / 1.6) * (d > frame)
    img = img - (drop * (.085 * np.clip(side, 0, 1) - .05 * np.clip(-side, 0, 1)))[..., None] * [1, .9, .6]
    stone = IVORY + (.020 * noise(h, w, (7, 4), seed + 5, s) + .014 * noise(h, w, (2.2, 2.2), seed + 6, s))[..., None] * [1, 1, .9]
    stone = bevel(stone, d, -.3, frame + .2, 1, .150)
    a = np.clip(frame - d + .5, 0, 1)[..., None]
    img = img * (1 - a) + stone * a
    line = np.clip(1 - np.abs(d - frame - .1) / .85, 0, 1)[..., None]
    img = img * (1 - .80 * line) + np.array([190, 158, 92]) / 255. * .80 * line
    rim = np.clip(1 - np.abs(d - .35) / .8, 0, 1)[..., None]
    img = img * (1 - .7 * rim) + np.array([172, 158, 126]) / 255. * .7 * rim
    out = np.clip(.2 - d, 0, 1)[..., None]                          # beyond the rounded corners
    img = img * (1 - out) + base * out
    return img if field is vignette else settle(img)


def settle(img, least=.318):
    """Lift whatever would be too dark under black text (least luminance)."""
    img = np.clip(img, 0, 1)
    for _ in range(6):
        lum = (to_lin(np.round(img * 255) / 255) * [.2126, .7152, .0722]).sum(-1, keepdims=True)
        img = np.where(lum < least, img + (1 - img) * .06, img)
    return img


def rule(img, x0, x1, y, s, strength=1):
    """An engraved line: a shade with a light under it, fading at its ends."""
    n = np.arange(x0 * s, x1 * s) / s
    e = np.clip(np.minimum(n - x0 + 1, x1 - n) / 14., 0, 1)[:, None] * strength
    img[y * s, x0 * s:x1 * s] += e * np.array([-.075, -.065, -.04])
    img[y * s + 1, x0 * s:x1 * s] += e * np.array([.09, .075, .035])


def well(img, s, x, y, w, h, deep=1, glow=.0, faint=1):
    """A shallow round-cornered hollow or, with deep -1, a raised key."""
    d = inset(h, w, 4, s)
    sub = box(img, x, y, w, h, s)
    gy, gx = np.gradient(d)
    side = (gx + gy) / np.maximum(np.hypot(gx, gy), 1e-6) / 1.4142
    edge = np.exp(-np.clip(d - .4, 0, None) / 1.1)
    t = np.clip(d, 0, 1)[..., None]
    v = np.mgrid[0:h * s, 0:w * s][0] / (h * s) - .5
    body = glow * np.ones(v.shape) - deep * -.035 * v if deep > 0 else .052 - .060 * v
    out = sub + (body - deep * .125 * side * edge)[..., None] * [1, .95, .75]
    rim = np.clip(1 - np.abs(d - .5) / .7, 0, 1)[..., None] * (.55 if deep < 0 else .25)
    out = out * (1 - rim) + np.array([118, 146, 196]) / 255. * rim
    t = t * faint
    sub[:] = sub * (1 - t) + out * t


def tools_field(img, s):
    """The tool palette: two keys for the mode, a board for the current tool,
    and a key for each of the nine tools.  Both columns of keys are as wide as the
    longest name; the keys of tools that may still be locked are fainter."""
    for x, w in ((4, 66), (76, 66)):
        well(img, s, x, 4, w, 19, -1)
        for y in (102, 134):
            well(img, s, x, y, w, 23, -1)
        for y in (166, 198):
            well(img, s, x, y, w, 23, -1, faint=.45)
    well(img, s, 4, 28, 138, 66, 1, -.012)
    well(img, s, 4, 229, 138, 22, -1)
    return img


def info(s, at=(2, 99, 141, 157)):
    """What tells about a house lies on the palette, a little inside its rim: a piece
    of the palette without keys, so that the palette's own frame goes on around it."""
    def field(img, s):
        well(img, s, 4, 101, 138, 152, 1, -.012)
        return img
    x, y, w, h = at
    return box(plate(145, 258, SKY, 19, s, field=field), x, y, w, h, s)


def dividers(*xs):
    def field(img, s):
        a, b = 9 * s, img.shape[0] - 9 * s
        for x in xs:
            e = np.clip(np.minimum(np.arange(a, b) - a + 1, b - np.arange(a, b)) / (8. * s), 0, 1)[:, None]
            img[a:b, x * s] += e * np.array([-.075, -.065, -.04])
            img[a:b, x * s + 1] += e * np.array([.09, .075, .035])
        return img
    return field


def views_field(img, s):
    """Six keys in a row under the name of the view, each centred on its letter."""
    rule(img, 16, 129, 28, s)
    for i in range(6):
        well(img, s, 24 * i + 3, 59, 19, 18, -1)
    return img


def row(w, h, base, seed, s=1, label=(8, 5, 145, 25)):
    """A row of a menu.  Its label is a plain box on the right of the plate: two lines
    run around that box, and in what is left before it stands a post with a stone."""
    w, h = w * s, h * s
    x, y, lw, lh = (k * s for k in label)
    img = np.empty((h, w, 3))
    img[:] = base
    gold, pale, deep = (np.array(c) / 255. for c in ((186, 154, 92), (238, 226, 194), (150, 176, 216)))
    img[y - 2:y + lh + 2, 1:w] = gold                               # the frame: gold without, pale within
    img[y - 1:y + lh + 1, 1:w - 1] = pale
    img[y - 1:y + lh + 1, w - 1] = np.array([170, 140, 86]) / 255.
    img[y + lh, x - 1:w - 1] = np.array([214, 196, 150]) / 255.
    img[y:y + lh, x:x + lw] = base
    for k in (y - 2, y + lh + 1):                                   # corners a pixel short
        img[k, w - 1] = base
    img[y + lh + 2, 4:w] = base * .90                               # a shadow below
    t = (np.arange(y - 1, y + lh + 1) - y + 1.) / (lh + 1)
    post = IVORY * (1.05 - .13 * t[:, None])
    n = np.random.RandomState(seed).randn(len(t), x - 2)
    lifts = (1.00, 1.07, 1.05, 1.01, .96, .90)
    for k in range(x - 2):                                          # the post, round
        lift = np.interp((k + .5) / s - .5, range(6), lifts)
        img[y - 1:y + lh + 1, 1 + k] = np.clip(post * (lift + .012 * n[:, k:k + 1]), 0, 1)
    img[y - 2:y + lh + 2, 0] = gold
    img[(y - 2, y + lh + 1), 0] = base
    img[y - 1:y + lh + 1, x - 1] = gold
    for yy in (y + 1, y + lh - 3):                                  # a groove near either end
        img[yy, 1:x - 1] *= .86
        img[yy + 1, 1:x - 1] = np.clip(img[yy + 1, 1:x - 1] * 1.04, 0, 1)
    def stone(k):                                                   # a lozenge on the post
        return lambda i, j: np.abs(i - 4 * s) / (2.9 * s * k) + np.abs(j - y - lh / 2) / (5.6 * s * k) < 1
    img[:, :x - 1] = drawn(x - 1, h, img[:, :x - 1], stone(1), gold * .9)
    img[:, :x - 1] = drawn(x - 1, h, img[:, :x - 1], stone(.68), deep)
    img[:, :x - 1] = drawn(x - 1, h, img[:, :x - 1], lambda i, j: stone(.68)(i, j) & (j < y + lh / 2), deep * 1.18)
    return settle(img)


def main():
    for name, w, h, base, seed, field in (
            ('Image3', 623, 37, SKY, 11, dividers(170, 321, 464)),
            ('Image7', 145, 34, SKY, 13, None), ('Image11', 145, 80, SKY, 14, views_field),
            ('Image10', 145, 55, SKY, 15, vignette), ('Image9', 145, 34, SKY, 16, None),
            ('Image5', 145, 34, SKY, 17, None), ('Image4', 145, 34, SKY, 18, None),
            ('Image6', 145, 258, SKY, 19, tools_field), ('Image8', 178, 37, SKY, 20, None)):
        for s in SCALES:
            save_rgb('panel/' + name, plate(w, h, base, seed, s, field=field), s)
    for i, name in enumerate(('Picture1', 'Picture2', 'Picture3', 'Picture5', 'Picture6', 'Picture7', 'Picture8', 'Picture9', 'ivir')):
        for s in SCALES:
            save_rgb('panel/' + name, row(155, 33, PALE, 40 + i, s), s)
    for s in SCALES:
        save_rgb('panel/Image2', info(s), s)
        marks(s)
        lock(s)
    icon()


def vignette(img, s, part=(4, 73, 504, 263)):
    """The castle and the roofs below it, small, from the picture behind the menus."""
    h, w = img.shape[:2]
    part = tuple(k * s for k in part)
    a = Image.open(path('panel/menu', s)).convert('RGB').resize((w, h), Image.LANCZOS, part)
    a = np.asarray(a, float) / 255
    a = unsharp(a, np.ones((h, w), bool), .5, .7)
    return np.clip(a * 1.04 + .02, 0, 1)


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


def marks(s):
    tick = lambda x, y: stroke(x, y, (1.9, 5.2), (4.6, 8.1), .8, 1.25) | stroke(x, y, (4.6, 8.1), (10.2, 1.6), 1.25, .7)
    save_rgb('panel/Picture20', drawn(12 * s, 10 * s, PALE, lambda x, y: tick(x / s, y / s), np.array([26, 138, 44]) / 255.), s)
    save_rgb('panel/Picture21', drawn(7 * s, 7 * s, PALE, lambda x, y: np.hypot(x / s - 3.5, y / s - 3.5) < 2.3, np.zeros(3)), s)


def lock(s):
    """A closed padlock: a shackle of iron over a brass body with its keyhole."""
    def part(shape, colour, base):
        return drawn(10 * s, 13 * s, base, lambda x, y: shape(x / s, y / s), np.array(colour) / 255.)
    box = lambda x, y, l, t, r, b: (np.abs(x - (l + r) / 2) < (r - l) / 2) & (np.abs(y - (t + b) / 2) < (b - t) / 2)
    ring = lambda x, y: np.where(y < 4.2, np.hypot(x - 5, y - 4.2), np.abs(x - 5))
    img = part(lambda x, y: (ring(x, y) < 3.6) & (ring(x, y) > 1.9) & (y < 7), (104, 112, 132), PALE)
    img = part(lambda x, y: box(x, y, .6, 5.4, 9.4, 12.6), (128, 96, 44), img)
    img = part(lambda x, y: box(x, y, 1.4, 6.2, 8.6, 11.8), (206, 168, 88), img)
    img = part(lambda x, y: box(x, y, 1.4, 6.2, 8.6, 7.3), (236, 210, 148), img)
    hole = lambda x, y: (np.hypot(x - 5, y - 8.4) < 1.15) | box(x, y, 4.45, 8.4, 5.55, 10.9)
    save_rgb('panel/lock', part(hole, (74, 54, 26), img), s)


def icon():
    """A tower, a house and a tree, rendered at twice the size."""
    import scene
    w, h, ss = 156, 156, 4
    ext = ['OX=78', 'OY=73', 'DomeN=24']
    b = scene.povray('icon', 0, w, h, ss, ext) * 2
    aux = scene.povray('icon', 1, w, h, ss, ext)
    hit = (aux[..., 0] > 0).astype(float)
    line = scene.outline(np.where(hit > 0, aux[..., 0], 1) * 60, ss, 1.1)
    b = b * (1 - line[..., None] * .55)
    cov, col = box_to(hit, 64), box_to(b * hit[..., None], 64)
    col = grade(col / np.maximum(cov, 1e-6)[..., None], 1.05, 1.15, 1.12)
    col = unsharp(col, cov > .02, .4, .7)
    out = np.concatenate([col, cov[..., None]], -1)
    out[cov < .02] = 0
    Image.fromarray(np.round(np.clip(out, 0, 1) * 255).astype(np.uint8), 'RGBA').save(path('icon'), compress_level=9)


def box_to(a, n):
    """Average a square picture down to n x n, by areas."""
    s = a.shape[0]
    k = np.zeros((n, s))
    for i in range(n):
        lo, hi = i * s / n, (i + 1) * s / n
        j = np.arange(int(lo), min(int(np.ceil(hi)), s))
        k[i, j] = np.clip(np.minimum(j + 1, hi) - np.maximum(j, lo), 0, 1) * n / s
    return np.moveaxis(np.tensordot(k, np.moveaxis(np.tensordot(k, a, (1, 0)), 1, 0), (1, 0)), 0, 1)


def render(parts=None):
    main()


if __name__ == '__main__':
    main()
