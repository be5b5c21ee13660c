"""The program's icon."""
import scene
from iso import *


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
    """A tower, a house and a tree, rendered at twice the size."""
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
