"""Where the large pictures lie on the map surface, and what they must leave black.

The surface is 1984 x 1056; the north corner of cell (x, y) lies at
(992 + 32 (x - y), 32 + 16 (x + y)).  Backdrops are ORed over the void, so every
pixel of a playable cell must meet black.  At scale 2 all of that is doubled."""
import os
import struct
import zlib
import numpy as np
from PIL import Image
from iso import *

HERE = os.path.dirname(os.path.abspath(__file__))
SURFACE = (1056, 1984)
BAND, COAST, CASTLE, WATER = (73, 29, 1800, 500), (983, 67, 1000, 460), (508, 254, 965, 293), (288, 144)
# the seven water pictures, in the order in which they are painted
DIAMONDS = [('mask/22', 455, 202), ('tile/53', 821, 19), ('mask/53', 699, 80), ('mask/53', 577, 141),
            ('mask/53', 333, 263), ('mask/53', 211, 324), ('mask/53', 89, 385)]
STEP = (122, -61)                   # the water repeats under this step


def cell_xy(x0, y0, w, h, s=1):
    """Cell coordinates of the pixel centres of a box of the surface."""
    return cell_uv(w, h, 992 - x0, 32 - y0, s=s)


def square(size, s=1):
    """Surface pixels of the playable cells of a map of this size."""
    out = np.zeros((SURFACE[0] * s, SURFACE[1] * s), bool)
    d, m = diamond_mask(1, s), (30 - size) // 2
    for y in range(m, m + size + 1):
        for x in range(m, m + size + 1):
            box(out, 32 * (x - y) + 960, 16 * (x + y) + 32, 64, 32, s)[:] |= d
    return out


def bytes_of(img):
    if img.dtype != np.uint8:
        img = np.round(np.clip(img, 0, 1) * 255).astype(np.uint8)
    return np.ascontiguousarray(img[..., :3])


def save_rgb(name, img, s=1):
    """Write data/pictures/NAME.png or data/pictures/2x/NAME.png, 8 bit RGB."""
    os.makedirs(os.path.dirname(path(name, s)), exist_ok=True)
    Image.fromarray(bytes_of(img), 'RGB').save(path(name, s), compress_level=9)


def save_large(name, img, s=1):
    """The same, quicker to read: every pixel refers to the one on its left, which takes two thirds of
    the time of the usual mixture and is as small. The player waits for these pictures."""
    img = bytes_of(img)
    height, width = img.shape[:2]
    rows = np.ones((height, 1 + 3 * width), np.uint8)  # a row begins with the number of its filter
    rows[:, 1:4] = img[:, 0]
    rows[:, 4:] = (img[:, 1:] - img[:, :-1]).reshape(height, -1)
    packer = zlib.compressobj(9, zlib.DEFLATED, 15, 9, zlib.Z_FILTERED)
    parts = [(b'IHDR', struct.pack('>IIBBBBB', width, height, 8, 2, 0, 0, 0)),
             (b'IDAT', packer.compress(rows.tobytes()) + packer.flush()),
             (b'IEND', b'')]
    os.makedirs(os.path.dirname(path(name, s)), exist_ok=True)
    with open(path(name, s), 'wb') as file:
        file.write(b'\x89PNG\r\n\x1a\n')
        for kind, data in parts:
            file.write(struct.pack('>I', len(data)) + kind + data + struct.pack('>I', zlib.crc32(kind + data)))


def strays(img):
    """Coloured pixels of a picture (uint8) with no coloured neighbour."""
    m = np.pad((img > 8).any(-1), 1)
    near = sum(np.roll(m, (j, i), (0, 1)).astype(int) for j in (-1, 0, 1) for i in (-1, 0, 1)) - m
    return (m & (near == 0))[1:-1, 1:-1]


def save_land(name, img, s=1):
    """The same for a landscape: specks alone in the black go."""
    img = bytes_of(img)
    img[strays(img)] = 0
    save_large(name, img, s)


def load_rgb(name, s=1):
    return np.array(Image.open(path(name, s)).convert('RGB'))
