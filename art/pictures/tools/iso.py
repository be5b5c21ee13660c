"""The map's geometry in pixels, colour arithmetic, and reading and writing of
pictures.  Everything that makes map pictures builds on this module.

A cell (X, Y) has its north corner at screen (32 (X - Y), 16 (X + Y)).  A flat
picture is the 64 x 32 box that starts 32 pixels left of that corner; a tall
picture is 64 x 64 and its lower half is the flat box.

Colours are float arrays (H, W, 3), linear light or sRGB as the name says;
finished pictures are uint8 arrays (H, W, 4) with alpha 0 or 255, and pixels
of alpha 0 are (0, 0, 0).

Every picture exists at the scales 1 and 2.  Sizes and places are given in the
units of scale 1; what is painted to the pixel takes the scale s and paints
with as many pixels more."""
import os
import numpy as np
from PIL import Image

TW, TH = 64, 32
SCALES = (1, 2)
ROOT = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), '../../..'))
DATA = os.path.join(ROOT, 'data/pictures')


# --------------------------------------------------------------- diamonds
def diamond_mask(n=1, s=1):
    """Pixels of an n x n cell footprint (64n x 32n).  A pixel belongs when its
    centre is inside the ideal diamond; no centre ever lies on the edge, so
    the masks of neighbours partition the plane: 1024 pixels a cell, at twice
    the size 4096."""
    h, w = TH * n * s, TW * n * s
    y, x = np.mgrid[0:h, 0:w]
    return np.abs(x + .5 - w / 2) / (w / 2) + np.abs(y + .5 - h / 2) / (h / 2) < 1


def cell_uv(w=TW, h=TH, ox=32, oy=0, dx=.5, dy=.5, s=1):
    """Cell coordinates (u along map x, v along map y) of every pixel, taken at
    (dx, dy) inside the pixel."""
    y, x = np.mgrid[0:h * s, 0:w * s]
    a = ((x + dx) / s - ox) / 32
    b = ((y + dy) / s - oy) / 16
    return (a + b) / 2, (b - a) / 2


# --------------------------------------------------------------- colour
# Powers and exponentials are taken of doubles: of single floats their last bit depends on the
# processor, and with it a colour here and there.
def to_lin(c):
    c = np.asarray(c, float)
    return np.where(c <= .04045, c / 12.92, ((c + .055) / 1.055) ** 2.4)


def to_srgb(c):
    c = np.clip(np.asarray(c, float), 0, 1)
    return np.where(c <= .0031308, c * 12.92, 1.055 * c ** (1 / 2.4) - .055)


def rgb(s):
    """sRGB colour 0..1 of a hexadecimal string."""
    s = s.lstrip('#')
    return np.array([int(s[i:i + 2], 16) / 255 for i in (0, 2, 4)])


# --------------------------------------------------------------- files
def save(path, img):
    """RGBA (binary alpha) or RGB uint8; no date or text goes into the file, so
    that the same pixels give the same bytes."""
    os.makedirs(os.path.dirname(path), exist_ok=True)
    img = np.ascontiguousarray(img)
    Image.fromarray(img, 'RGBA' if img.shape[2] == 4 else 'RGB').save(path, optimize=True)


def load(path):
    return np.array(Image.open(path).convert('RGBA'))


def path(name, s=1):
    """The file of a picture, say 'pair/07' (with transparency) or 'tile/22' (opaque)."""
    return os.path.join(DATA, '2x' if s == 2 else '', name + '.png')


def save_pair(n, img, s=1):
    save(path('pair/%02d' % n, s), img)


def save_tile(n, img, s=1):
    save(path('tile/%02d' % n, s), img[..., :3])


def pair(n, s=1):
    return load(path('pair/%02d' % n, s))


def tile(n, s=1):
    return load(path('tile/%02d' % n, s))


def rgba(srgb, mask):
    """A finished picture of the colours where the mask is true."""
    out = np.zeros(mask.shape + (4,), np.uint8)
    out[..., :3] = np.round(np.clip(srgb, 0, 1) * 255)
    out[..., 3] = 255
    out[~mask] = 0
    return out


# --------------------------------------------------------------- pieces
# Pieces of a 2 x 2 building on its 128 x 96 drawing, back to front:
# name (n the anchor cell, e = x + 1, w = y + 1, s both), place, tall?
PIECES_TALL = [('n', (32, 0), True), ('e', (64, 16), True),
               ('w', (0, 16), True), ('s', (32, 64), False)]
PIECES_APT = [('n', (32, 0), True), ('e', (64, 48), False),
              ('w', (0, 48), False), ('s', (32, 64), False)]
PIECES_FLAT = [('n', (32, 32), False), ('e', (64, 48), False),
               ('w', (0, 48), False), ('s', (32, 64), False)]


def box(a, x, y, w, h, s=1):
    """The pixels of a box given in units of scale 1."""
    return a[y * s:(y + h) * s, x * s:(x + w) * s]


def cut(canvas, table, s=1):
    """Cut one 128 x 96 drawing into its pieces, each pixel into exactly one:
    the cell whose diamond holds it, and above the footprint the first piece
    (back to front) whose box reaches it.  Returns {name: picture}."""
    owner = np.full(canvas.shape[:2], -1)
    d = diamond_mask(1, s)
    for k, (_, (px, py), tall) in enumerate(table):
        box(owner, px, py + (32 if tall else 0), 64, 32, s)[d] = k
    for k, (_, (px, py), tall) in enumerate(table):
        if tall:
            sub = box(owner, px, py, 64, 64, s)
            sub[sub < 0] = k
    out = {}
    for k, (name, (px, py), tall) in enumerate(table):
        h = 64 if tall else 32
        piece = box(canvas, px, py, 64, h, s).copy()
        piece[box(owner, px, py, 64, h, s) != k] = 0
        out[name] = piece
    lost = (canvas[..., 3] > 0) & (owner < 0)
    if lost.any():
        print('   warning: %d pixels of the drawing lie in no piece' % lost.sum())
    return out


def blit(dst, src, x, y):
    """Copy the opaque pixels of src to (x, y), clipped."""
    h, w = src.shape[:2]
    x0, y0 = max(x, 0), max(y, 0)
    x1, y1 = min(x + w, dst.shape[1]), min(y + h, dst.shape[0])
    if x0 >= x1 or y0 >= y1:
        return
    s = src[y0 - y:y1 - y, x0 - x:x1 - x]
    m = s[..., 3] > 127
    dst[y0:y1, x0:x1][m] = s[m]


# --------------------------------------------------------------- filters
def box_down(a, s):
    """Mean of blocks of s x s samples."""
    h, w = a.shape[:2]
    return a.reshape(h // s, s, w // s, s, *a.shape[2:]).mean((1, 3))


def blur(a, sigma):
    r = max(1, int(3 * sigma))
    k = np.exp(-.5 * (np.arange(-r, r + 1) / sigma) ** 2)
    k /= k.sum()
    for ax in (0, 1):
        p = np.pad(a, [(r, r) if i == ax else (0, 0) for i in range(a.ndim)], 'edge')
        a = sum(k[i] * np.take(p, range(i, i + a.shape[ax]), ax) for i in range(2 * r + 1))
    return a


def unsharp(srgb, mask, amount=.5, sigma=.8):
    """Sharpen inside the mask only: the blur ignores what lies outside, so a
    silhouette pixel is never pulled to the background."""
    m = mask[..., None].astype(float)
    b = blur(srgb * m, sigma) / np.maximum(blur(m, sigma), 1e-6)
    return np.where(m > 0, np.clip(srgb + amount * (srgb - b), 0, 1), srgb)


def grade(lin, exposure=1.0, sat=1.12, contrast=1.10, pivot=.46):
    """Linear light -> graded sRGB: exposure, shoulder, saturation, contrast."""
    c = np.asarray(lin, float) * exposure
    c = np.where(c > .7, .7 + .3 * (1 - np.exp(-(c - .7) / .3)), c)
    s = to_srgb(c)
    luma = (s * [.299, .587, .114]).sum(-1, keepdims=True)
    s = luma + (s - luma) * sat
    return np.clip(pivot + (s - pivot) * contrast, 0, 1)
