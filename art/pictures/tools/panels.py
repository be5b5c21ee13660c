"""The plates behind the captions of the game screen, the rows of the menu and the marks of its
puzzle list.  All lengths are units of scale 1.

Parchment is what is read, enamel what is pressed.  The program paints a key over its place in a
plate (skin.py); without one the place shows a padlock.  Black text stands on parchment alone."""
from iso import SCALES, box_down, path, rgb, unsharp
from land import Image, save_rgb
from joinery import *

SKY = rgb('8CB3F2')                             # ground of the right-hand panel
# places of keys in the palette, the tools that open with time among them: src/play/game_controls.cpp
LATER = [(x, y, 70, 25) for y in (165, 197) for x in (2, 73)]


def slab(w, h, seed, rim=2, upright=False, ground=SKY):
    """A walnut board with a raised rim."""
    r = Relief(w, h, ground)
    d = r.box(0, 0, w, h, 2)
    across = np.minimum(r.x, w - r.x) < np.minimum(r.y, h - r.y)
    edge = np.where(across[..., None], walnut(r.y, r.x, seed + 40), walnut(r.x, r.y, seed + 20))
    r.lay(d, edge * 1.15, 0, 1.5, 1.1, gloss=.10)
    u, v = (r.y, r.x) if upright else (r.x, r.y)
    r.lay(d - rim, walnut(u, v, seed, -.12), .3, gloss=.03)
    return r


def row(seed):
    """The board of one wide key, a rivet on either side."""
    r = slab(145, 34, seed)
    for x in (5, 140):
        r.rivet(x, 17)
    return r


def views():
    r = slab(145, 80, 5)
    r.sheet(6, 5, 139, 50, 9)
    return r


def palette(seed=23):
    r = slab(145, 258, seed, upright=True)
    r.sheet(4, 29, 141, 94, 31)
    for place in LATER:
        locked(r, *place)
    return r


def padlock(r, cx, cy, base):
    """A closed padlock: a shackle of iron over a body of brass with its keyhole."""
    off = np.abs(np.where(r.y < cy - 2, np.hypot(r.x - cx, r.y - cy + 2), np.abs(r.x - cx)) - 2.9)
    r.lay(np.where(r.y < cy, 1.05 - off, -1), IRON, base, 1.0, 1.0, gloss=.2)
    r.lay(r.box(cx - 4.4, cy - .6, cx + 4.4, cy + 5.6, 1.1), BRASS, base, 1.3, 1.0, metal=.75)
    r.lay(np.maximum(r.disc(cx, cy + 2, 1.15), r.box(cx - .5, cy + 2, cx + .5, cy + 4.3)), SOCKET * .6, base + .4)


def locked(r, x, y, w, h):
    """An empty place for a key, a padlock in it."""
    r.lay(r.box(x, y, x + w, y + h, 2) - .4, walnut(r.x, r.y, 77, -.30) * .62, -.9)
    padlock(r, x + w / 2, y + h / 2 + .4, -.9)


def lock():
    """The mark of a mission that is still closed."""
    r = Relief(10, 13, PARCHMENT)
    padlock(r, 5, 6.4, 0)
    return r


def info(at=(2, 99, 141, 157)):
    """What is known of a cell: a sheet pinned over the keys, inside the palette's own rim."""
    x, y, w, h = at
    r = Relief(w, h, SOCKET)
    r.lay(r.box(-9, -9, w + 9, h + 9), walnut(r.y + y, r.x + x, 23, -.12), .3)
    # the edge of the sheet is torn a little
    d = np.minimum(np.minimum(r.x - 4, w - 4 - r.x), np.minimum(r.y - 2.5, h - 4 - r.y)) + .45 * lattice(r.x, r.y, (5, 5), 3) + .3 * lattice(r.x, r.y, (1.7, 1.7), 4)
    r.lay(d, parchment(r.x, r.y, 51), .35, .35, .5)
    r.tint(.8 * np.exp(-np.clip(d, 0, None) / 2.5) * (d > 0), [.88, .81, .68])
    for px in (9, w - 9):
        for py in (8, h - 9):
            r.rivet(px, py, 1.7)
    return r


def topbar():
    r = slab(623, 37, 11)
    for x0, x1 in ((8, 161), (168, 313), (320, 457), (464, 615)):
        r.sheet(x0, 6, x1, 31, x0)
    for x in (4.6, 164.5, 316.5, 460.5, 618.4):
        r.rivet(x, 18.5, 1.6)
    return r


def ending():
    """The demonstration's way out."""
    r = slab(178, 37, 63)
    r.sheet(8, 4, 170, 33, 65)
    for x in (5, 173):
        r.rivet(x, 18.5, 1.6)
    return r


def post(right):
    """The moulding along an edge of the right-hand panel, its high side outwards."""
    r = Relief(8, 600, SOCKET)
    x = 7 - r.x if right else r.x
    for x0, x1, rise in ((.4, 5.0, 1.7), (5.0, 7.6, .9)):
        r.lay(np.minimum(x - x0, x1 - x), walnut(r.y, r.x + x0, 81 + right, .10), 0, rise, (x1 - x0) / 2, gloss=.10)
    r.lay(1 - np.abs(x - 5.0) / .6, BRASS, .8, .6, .8, metal=1)
    for y in range(20, 600, 80):
        r.rivet(7 - 2.7 if right else 2.7, y, 1.5)
    return r


def menurow(seed):
    """The board of a row of the menu, whose face leaves more room before it than behind."""
    r = slab(155, 33, seed, rim=1.5, ground=PARCHMENT)
    r.rivet(4.6, 17.5, 1.9)
    return r


def save(name, pictures):
    for s, a in zip(SCALES, pictures):
        save_rgb('panel/' + name, a, s)


def vignette(part=(4, 73, 504, 263)):
    """The castle and the roofs below it, small, from the picture behind the menus, in a brass frame."""
    r = Relief(145, 55, SKY)
    r.lay(r.box(0, 0, 145, 55, 2.5), BRASS, 0, 1.6, 2.0, metal=1)
    r.lay(r.box(3, 3, 142, 52), SOCKET, .2)
    for s, a in zip(SCALES, r.pictures(SCALES)):
        w, h = 137 * s, 47 * s
        b = Image.open(path('panel/menu', s)).convert('RGB').resize((w, h), Image.LANCZOS, tuple(k * s for k in part))
        b = unsharp(np.asarray(b, float) / 255, np.ones((h, w), bool), .5, .7)
        a[4 * s:4 * s + h, 4 * s:4 * s + w] = np.clip(b * 1.04 + .02, 0, 1)
        yield a


def marks():
    """A tick for a finished puzzle, a dot for an open one."""
    def sign(w, h, shape, colour):
        y, x = (np.mgrid[0:h * S, 0:w * S] + .5) / S
        for s in SCALES:
            cover = box_down((shape(x, y) > 0).astype(float), S // s)[..., None]
            yield to_srgb(to_lin(PARCHMENT) * (1 - cover) + to_lin(colour) * cover)

    def stroke(x, y, a, b, r0, r1):
        d = np.subtract(b, a)
        t = np.clip(((x - a[0]) * d[0] + (y - a[1]) * d[1]) / (d @ d), 0, 1)
        return r0 + (r1 - r0) * t - np.hypot(x - a[0] - t * d[0], y - a[1] - t * d[1])
    save('Picture20', sign(12, 10, lambda x, y: np.maximum(stroke(x, y, (1.9, 5.2), (4.6, 8.1), .8, 1.25), stroke(x, y, (4.6, 8.1), (10.2, 1.6), 1.25, .7)), rgb('1A8A2C')))
    save('Picture21', sign(7, 7, lambda x, y: 2.3 - np.hypot(x - 3.5, y - 3.5), rgb('000000')))


PLATES = {
    'Image3': topbar, 'Image11': views, 'Image6': palette, 'Image2': info, 'Image8': ending, 'lock': lock, 'leftpost': lambda: post(False), 'rightpost': lambda: post(True),
    **{name: (lambda seed=seed: row(seed)) for name, seed in (('Image5', 3), ('Image4', 13), ('Image9', 33), ('Image7', 43))},
    **{name: (lambda seed=seed: menurow(seed)) for seed, name in enumerate(('Picture1', 'Picture2', 'Picture3', 'Picture5', 'Picture6', 'Picture7', 'Picture8', 'Picture9', 'ivir'), 90)},
}


def render(parts=None):
    for name in parts or PLATES:
        save(name, PLATES[name]().pictures(SCALES))
    if not parts:
        save('Image10', vignette())
        marks()
