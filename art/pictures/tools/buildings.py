"""Everything that is modelled as a scene: buildings, tent, ploughed field, doctor,
front walls and tower, the bushes of the third ground."""
import numpy as np
from iso import *
import render as scenes

# drawing: scene, kind of canvas, options, picture numbers of its pieces in
# the order anchor, x + 1, y + 1, both (or of its one cell)
DRAWINGS = {
    'heath':     ('heath', 'tile', {'line': .26, 'reach': 4}, [29]),
    'tent':      ('tent', 'tile', {}, [4]),
    'house':     ('house', 'flat', {}, [19, 35, 33, 34]),
    'apartment': ('apartment', 'apt', {}, [3, 5, 6, 7]),
    'market':    ('market', 'tall', {}, [8, 9, 10, 11]),
    'school':    ('school', 'tall', {}, [25, 31, 26, 30]),
    'tavern':    ('tavern', 'tall', {}, [44, 46, 45, 47]),
    'church':    ('church', 'tall', {}, [14, 32, 18, 15]),
    'doctor':    ('doctor', 'tiletall', {}, [12]),
    'field':     ('farm', 'tile', {'endless': True, 'line': .14}, [13]),
    'wallx':     ('wall', 'tiletall', {'declare': ['Which=0'], 'own': ['Which=0', 'Own=1'], 'fade': '', 'void': 'y'}, [59]),
    'wally':     ('wall', 'tiletall', {'declare': ['Which=1'], 'own': ['Which=1', 'Own=1'], 'fade': '', 'void': 'x'}, [60]),
    # a tower borders on the void on one side or on both, so its ground only dims there
    'tower':     ('wall', 'tiletall', {'declare': ['Which=2'], 'fade': 'x', 'void': 'xy', 'dark': .55}, [61]),
}
ODD_BOX = (5, 6)          # 63 x 33: drawn as 64 x 32, so nothing may be lost


def lend_tip(pieces):
    """At scale 2 the odd boxes end before the last two pixels of their diamond.
    Those of the left piece lie within the building, and its neighbours take
    them; those of the right piece stay as they were."""
    pieces['n'][127, 62], pieces['s'][0, 62] = pieces['w'][31, 126], pieces['w'][32, 126]


def fit(n, piece, s):
    """The piece in the box of its picture."""
    if n not in ODD_BOX:
        return piece
    out = np.zeros((33 * s, 63 * s, 4), np.uint8)
    out[:32 * s] = piece[:, :63 * s]
    if (piece[:, 63 * s:, 3] > 0).sum() > (s - 1) * 2:
        raise SystemExit('picture %d needs its last column' % n)
    return out


def draw(name):
    scene, kind, opts, numbers = DRAWINGS[name]
    drawings, table = scenes.finish(scene, kind, dict(opts, **{'as': name}))
    for s, img in drawings.items():
        if table is None:
            save_pair(numbers[0], img, s)
            continue
        pieces = cut(img, table, s)
        if name == 'apartment' and s == 2:
            lend_tip(pieces)
        for n, (key, _, _) in zip(numbers, table):
            save_pair(n, fit(n, pieces[key], s), s)


def render(names=()):
    for name in names or DRAWINGS:
        draw(name)
