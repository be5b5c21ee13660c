"""What the program puts together to any size: keys in their four states, frames, sheets.

Each picture is cut in nine; src/platform/skin.cpp has the widths of the rims.  Along a rim and
in the middle a picture repeats, so its noise wraps there."""
from iso import SCALES, rgb
from land import save_rgb
from joinery import *

PALE = rgb('CBDDF1')                            # enamel of keys; black on it 15 to 1
HELD = rgb('EFC967')                            # of a key that stays down, lamplight; black on it over 10 to 1
COBALT = rgb('254482')                          # of a key under the pointer; yellow on it over 7 to 1
KEY = (48, 26)
FRAME, CORNER, BEAD = 68, 14, 3.1
SHEET = (108, 76)


def raised(face, lit):
    """A cap of enamel over its darker side, in its socket; the socket of a lit key is gilded."""
    w, h = KEY
    r = Relief(w, h, SOCKET)
    r.z[:] = -1.2
    side = r.box(.9, .9, w - .9, h - .7, 2.2)
    r.lay(side, face * .61, -.9, 1.2, 1.2, gloss=.05)
    cap, v = r.box(1.1, 1.0, w - 1.1, h - 2.3, 2.2), r.y / h
    r.lay(cap, face * (1.05 - .11 * v)[..., None], .4, 1.2, 1.7, gloss=.10 if lit else .42)
    sheen = np.clip(1 - np.abs(v - .26) / .22, 0, 1) * (cap > 1.6)
    r.c = r.c + (1 - r.c) * ((.05 if lit else .30) * sheen)[..., None]
    if lit:
        r.lay(np.where(side <= 0, r.box(0, 0, w, h, 2.6), -1), BRASS * 1.1, -.3, .8, .6, metal=1)
    return r


def lowered(face):
    """A key that is down, in a gilded socket."""
    w, h = KEY
    r = Relief(w, h, SOCKET)
    r.z[:] = .4
    r.lay(r.box(0, 0, w, h, 2.6), BRASS, .2, .8, .6, metal=1)
    r.lay(r.box(1, 1, w - 1, h - 1, 2.0), SOCKET * 1.4, -1.0)
    r.lay(r.box(1.3, 1.6, w - 1.1, h - 1.0, 1.8), face * (.95 + .09 * r.y / h)[..., None], -1.0, .35, 2.5, cove=True, gloss=.15)
    return r


def rim(face, lit):
    """The rim of a key whose face is a plain colour."""
    w, h = 32, 24
    r = Relief(w, h, SOCKET)
    r.z[:] = -.6
    if lit:
        r.lay(r.box(0, 0, w, h, 2.2), BRASS * 1.1, -.3, .8, .6, metal=1)
    r.lay(r.box(1, 1, w - 1, h - 1, 2.0), face, -.2, 1.0, 1.6, gloss=.35)
    return r


def frame():
    """A moulding of walnut with a bead of brass inside and brass at its corners."""
    n, wrap = FRAME, FRAME - 2 * CORNER
    r = Relief(n, n, SOCKET)
    d = r.box(0, 0, n, n, 1.2)
    across = np.minimum(r.x, n - r.x) < np.minimum(r.y, n - r.y)
    wood = np.where(across[..., None], walnut(r.y, r.x, 3, .22, (wrap, wrap)), walnut(r.x, r.y, 9, .22, (wrap, wrap)))
    r.lay(d - .35, wood, 0, 1.6, 1.7, gloss=.12)
    r.lay(d - BEAD, BRASS, .9, .5, .45, metal=1)
    for cx in (0, n):
        for cy in (0, n):
            dx, dy = np.abs(r.x - cx), np.abs(r.y - cy)
            r.lay(np.minimum(d - .25, 10 - np.maximum(dx, dy) - .4 * np.minimum(dx, dy)), BRASS * .96, 1.5, .7, .6, metal=.9)
            r.rivet(abs(cx - 2.1), abs(cy - 2.1), 1.15)
    return r


def inlay():
    """A line of brass let into a panel, around a field."""
    r = Relief(24, 24, SOCKET)
    r.z[:] = .4
    d = r.box(0, 0, 24, 24, .6)
    r.lay(d, BRASS * .92, 0, .7, .5, metal=1)
    r.lay(d - 1, rgb('6E5A3C'), -.4)
    return r


def sheet():
    w, h = SHEET
    r = Relief(w, h, SOCKET)
    r.sheet(0, 0, w, h, 7, wrap=(w - 12, h - 12))
    return r


def render(parts=None):
    for name, r in (('key', raised(PALE, False)), ('keylit', raised(COBALT, True)), ('keyheld', lowered(HELD)), ('keydown', lowered(COBALT * .95)),
                    ('rim', rim(PALE, False)), ('rimlit', rim(PALE * 1.06, True)), ('frame', frame()), ('inlay', inlay()), ('sheet', sheet())):
        for s, a in zip(SCALES, r.pictures(SCALES)):
            save_rgb('panel/' + name, a, s)
