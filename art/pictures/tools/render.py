"""From a POV-Ray scene to the finished drawings of both scales.

A scene is rendered twice without POV-Ray's own anti-aliasing at SS times the
size, so that every sample belongs to one surface: pass 0 the light (16 bit,
linear), pass 1 the depth and whether the sample shows an object or the bare
ground.  Averaging, outline, grading, grass and masking are done here, for
scale 2 from the same samples, half as many a pixel each way.

ART_DRAFT=1 renders coarser and three times faster, for trying things out."""
import os
import subprocess
import sys
import tempfile
import time
import numpy as np
from iso import *
from grounds import torus_noise

DRAFT = bool(os.environ.get('ART_DRAFT'))
SS = 4 if DRAFT else 8
HERE = os.path.dirname(os.path.abspath(__file__))
POV = os.path.join(HERE, '../pov')
TMP = os.path.join(tempfile.gettempdir(), 'vellmoran_art_%d' % os.getpid())
KINDS = {                   # canvas w, h, ox, oy, footprint cells, piece table
    'tall': (128, 96, 64, 32, 2, PIECES_TALL),
    'apt': (128, 96, 64, 32, 2, PIECES_APT),
    'flat': (128, 96, 64, 32, 2, PIECES_FLAT),
    'tile': (64, 32, 32, 0, 1, None),
    'tiletall': (64, 64, 32, 32, 1, None),
}
LIGHT0 = None               # light of white ground in the open


def open_light():
    """The light on bare white ground, against which shade is measured."""
    global LIGHT0
    if LIGHT0 is None:
        LIGHT0 = pov('open', 'open', 0, 2, 2, 1, 0)[0, 0] * 2
    return LIGHT0


def pov(name, tag, npass, w, h, ox, oy, extra=(), ss=None):
    ss = ss or SS
    os.makedirs(TMP, exist_ok=True)
    out = '%s/%s_%d.ppm' % (TMP, tag, npass)
    cmd = ['nice', '-n', '10',
           'povray', '+I' + name + '.pov', '+O' + out, '+W%d' % (w * ss), '+H%d' % (h * ss),
           '+Linc', '+FP16', '-D', '-A', '-J', 'File_Gamma=1.0', '+WT1',
           'Declare=Pass=%d' % npass, 'Declare=CW=%s' % w, 'Declare=CH=%s' % h,
           'Declare=OX=%s' % ox, 'Declare=OY=%s' % oy] + ['Declare=' + e for e in extra]
    if DRAFT:
        cmd.append('Declare=DomeN=16')
    r = subprocess.run(cmd, cwd=POV, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if r.returncode:
        print(r.stdout[-3000:])
        sys.exit('povray failed: ' + name)
    a = read_ppm(out)
    os.remove(out)
    return a


def read_ppm(path):
    """Pixels 0..1.  The header is skipped token by token: it holds a comment."""
    with open(path, 'rb') as f:
        data = f.read()
    tok, pos = [], 0
    while len(tok) < 4:
        end = pos
        while data[end:end + 1] not in b' \n\t\r':
            end += 1
        t = data[pos:end]
        if t.startswith(b'#'):
            pos = data.index(b'\n', pos) + 1
            continue
        if t:
            tok.append(t)
        pos = end + 1
    w, h, m = int(tok[1]), int(tok[2]), int(tok[3])
    a = np.frombuffer(data, '>u2' if m > 255 else 'u1', w * h * 3, pos)
    return a.reshape(h, w, 3).astype(float) / m


def outline(depth, thin=.5, jump=.06, s=1):
    """Line strength per sample, 0..1: silhouettes drawn inside the nearer
    surface, `thin` pixels wide (a little more at scale 2, where pixels are
    small), wherever a neighbour is `jump` farther."""
    r = max(1, int(round(SS * thin * {1: 1, 2: .7}[s])))
    far = np.zeros_like(depth)
    for dy, dx in ((0, 1), (0, -1), (1, 0), (-1, 0)):
        for k in (1, r):
            s = np.roll(depth, (dy * k, dx * k), (0, 1))
            far = np.maximum(far, s - depth)
    return np.clip((far - jump) / jump, 0, 1)


def samples_pov(name, kind, opts):
    """(light, depth, is-object, light of open ground) at SS times the size."""
    w, h, ox, oy, n, table = KINDS[kind]
    tag, extra = opts.get('as', name), opts.get('declare', ())
    lit0 = open_light()
    beauty = pov(name, tag, 0, w, h, ox, oy, extra) * 2     # lights are halved
    aux = pov(name, tag, 1, w, h, ox, oy, extra)
    depth, flags = aux[..., 0] * 12, aux[..., 1]
    if 'own' in opts:       # parts that belong to a neighbour are seen but not kept
        flags = pov(name, tag, 1, w, h, ox, oy, opts['own'])[..., 1]
    return beauty, depth, (flags > .5).astype(float), lit0


def spill(name, kind, opts, mask):
    """Pixels (x, y) of the model that fall outside its pictures: a quick look
    at the object flags on a canvas with a wide rim."""
    w, h, ox, oy, n, table = KINDS[kind]
    m, ss = 48, 4
    aux = pov(name, opts.get('as', name) + '_rim', 1, w + 2 * m, h + 2 * m, ox + m, oy + m,
              opts.get('own', opts.get('declare', ())), ss)
    out = box_down((aux[..., 1] > .5).astype(float), ss) > .7
    out[m:-m, m:-m] &= ~mask
    return [(int(x) - m, int(y) - m) for y, x in zip(*np.nonzero(out))]


def footprint(w, h, ox, oy, n, s):
    foot = np.zeros((h * s, w * s), bool)
    box(foot, ox - 32 * n, oy, 64 * n, 32 * n, s)[:] = diamond_mask(n, s)
    return foot


def below(w, h, ox, oy, n, s):
    """Pixels under the two lower edges of the footprint: never drawn."""
    u, v = cell_uv(w, h, ox, oy, s=s)
    return np.maximum(u, v) > n


def drop_strays(mask, foot):
    """Remove what hangs by a corner only: pixels above the footprint without
    a neighbour at one of their four sides, until none is left."""
    while True:
        p = np.pad(mask, 1)
        near = p[:-2, 1:-1] | p[2:, 1:-1] | p[1:-1, :-2] | p[1:-1, 2:]
        stray = mask & ~near & ~foot
        if not stray.any():
            return mask
        mask = mask & ~stray


def grass_canvas(w, h, ox, oy, s):
    """Meadow of the two common grounds, as the bare cells around will show."""
    g = [pair(0, s), pair(28, s)]
    c = np.zeros((h * s, w * s, 4), np.uint8)
    for X in range(-4, 6):
        for Y in range(-4, 6):
            blit(c, g[(X * 7 + Y * 3) % 5 == 0], s * (ox - 32 + 32 * (X - Y)), s * (oy + 16 * (X + Y)))
    return c[..., :3] / 255.


def averaged(samples, opts, s):
    """Colour of the objects (linear, outlined), their coverage of each pixel,
    and how much light the bare ground beside them gets."""
    beauty, depth, obj, lit0 = samples
    line = outline(depth, opts.get('thin', .5), opts.get('jump', .06), s) * obj
    ink = 1 - opts.get('line', .62) * np.array([1, 1.03, 1.06])  # dark brown, not black
    beauty = beauty * (1 - line[..., None] * (1 - ink))
    cov = box_down(obj, SS // s)
    c3 = cov[..., None]
    col = box_down(beauty * obj[..., None], SS // s) / np.maximum(c3, 1e-6)
    shade = box_down(beauty * (1 - obj[..., None]), SS // s) / np.maximum(1 - c3, 1e-6) / lit0
    return col, cov, shade


def finish(name, kind, opts):
    """The finished drawings of a scene, {scale: picture}, on the canvas of its
    kind, and the table of its pieces."""
    t0 = time.time()
    samples = samples_pov(name, kind, opts)
    out = {s: finished(samples, kind, opts, s) for s in SCALES}
    # an endless scene goes on over the rim on purpose, to join the next cell
    lost = [] if opts.get('endless') else spill(name, kind, opts, out[1][..., 3] > 0)
    print('   %-10s %5.1f s%s' % (opts.get('as', name), time.time() - t0,
          ', outside the picture: %s' % lost if lost else ''), flush=True)
    return out, KINDS[kind][5]


def finished(samples, kind, opts, s):
    """Inside the footprint the model stands on the same grass as the bare
    cells, and ground shadows fade out over the last pixels before the rim, so
    that a plot shows no edge; above the footprint a pixel is in when half
    covered."""
    w, h, ox, oy, n, _ = KINDS[kind]
    col, cov, shade = averaged(samples, opts, s)
    c3 = cov[..., None]
    col = grade(col, opts.get('exposure', 1.0), opts.get('sat', 1.05), opts.get('contrast', 1.10))
    col = unsharp(col, cov > .02, opts.get('sharp', .5), .7)

    foot = footprint(w, h, ox, oy, n, s)
    u, v = cell_uv(w, h, ox, oy, s=s)
    fade = opts.get('fade', 'xy')               # towards which edges shadows fade out
    reach = opts.get('reach', 5)                # over so many units from the rim
    rim = np.ones((h * s, w * s))
    for axis, t in (('x', u), ('y', v)):
        if axis in fade:
            rim = np.minimum(rim, np.minimum(t, n - t) * 32 / reach)
    rim = np.clip(rim, 0, 1)[..., None]
    shade = 1 - (1 - np.clip(shade, 0, 1)) * (rim * rim * (3 - 2 * rim))
    comp = to_srgb(c3 * to_lin(col) + (1 - c3) * to_lin(grass_canvas(w, h, ox, oy, s)) * shade)
    for axis, t in (('x', u), ('y', v)):
        if axis in opts.get('void', ''):        # the black begins there: end raggedly in it
            ragged = np.zeros(u.shape)
            box(ragged, ox - 32, oy, 64, 32, s)[:] = torus_noise(23, 71, s) - .5
            d = np.clip((n - t) / .26 + 1.2 * ragged * (n - t < .26), 0, 1)
            d = 1 - opts.get('dark', 1) * (1 - d * d * (3 - 2 * d))
            comp = comp * (c3 + (1 - c3) * d[..., None])
    above = (cov >= .5) & ~foot & ~below(w, h, ox, oy, n, s)
    if kind in ('flat', 'tile'):
        above[:] = False
    mask = drop_strays(foot | above, foot)
    return rgba(np.where(foot[..., None], comp, col), mask)
