"""The icon of the program at every size that a desktop wants, the small ones simplified."""
import scene
from iso import *

HOME = 320  # pixels of the drawing in the middle of home.png

# what is drawn (Small in icon.pov), its canvas and origin, width and depth of the outline, the sizes
DRAWINGS = [(0, 156, (78, 73), 1.1, .55, (48, 64, 128, 192, 256, HOME, 512)),
            (1, 132, (66, 65), 1.8, .50, (32,)),
            (2, 110, (55, 57), 2.6, .42, (16,))]
SS = 8


def box_to(a, n):
    """Average a square picture down to n x n, by areas."""
    s = a.shape[0]
    k = np.zeros((n, s))
    for i in range(n):
        lo, hi = i * s / n, (i + 1) * s / n
        j = np.arange(int(lo), min(int(np.ceil(hi)), s))
        k[i, j] = np.clip(np.minimum(j + 1, hi) - np.maximum(j, lo), 0, 1) * n / s
    return np.moveaxis(np.tensordot(k, np.moveaxis(np.tensordot(k, a, (1, 0)), 1, 0), (1, 0)), 0, 1)


def on_sky(icon, n=512):
    """For home screens, which cut icons to a shape of their own: opaque, what matters in the middle."""
    out = np.linspace((.62, .76, .94), (.9, .93, .97), n)[:, None].repeat(n, 1)
    at = (n - icon.shape[0]) // 2
    middle = out[at:at + icon.shape[0], at:at + icon.shape[1]]
    middle += (icon[..., :3] - middle) * icon[..., 3:]
    return np.round(out * 255).astype(np.uint8)


def render(parts=None):
    for small, w, (ox, oy), thin, dark, sizes in DRAWINGS:
        given = ['OX=%d' % ox, 'OY=%d' % oy, 'DomeN=24', 'Small=%d' % small]
        b = scene.povray('icon', 0, w, w, SS, given) * 2
        aux = scene.povray('icon', 1, w, w, SS, given)
        hit = (aux[..., 0] > 0).astype(float)
        line = scene.outline(np.where(hit > 0, aux[..., 0], 1) * 60, SS, thin)
        b = b * (1 - line[..., None] * dark)
        for n in sizes:
            cov, col = box_to(hit, n), box_to(b * hit[..., None], n)
            col = grade(col / np.maximum(cov, 1e-6)[..., None], 1.05, 1.15, 1.12)
            col = unsharp(col, cov > .02, .4, .7)
            out = np.concatenate([col, cov[..., None]], -1)
            out[cov < .02] = 0
            out = np.round(np.clip(out, 0, 1) * 255).astype(np.uint8)
            if n == HOME:
                save(path('icon/home'), on_sky(out / 255))
            else:
                save(path('icon/%d' % n), out)
