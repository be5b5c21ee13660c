"""Render the large scenes: run POV-Ray, draw outlines, average, grade.  Both
scales are averaged from the same samples.

ART_DRAFT=1 in the environment renders with single samples and few sky lights."""
import subprocess, sys, time
from land import *

POV = os.path.join(HERE, '../pov')
OUT = os.path.abspath(os.environ.get('SCENES') or os.path.join(HERE, '../../out/scenes'))
DRAFT = bool(os.environ.get('ART_DRAFT'))
REUSE = bool(os.environ.get('ART_REUSE'))       # only finish again what was rendered before


def read_ppm(name):
    with open(name, 'rb') as f:
        data = f.read()
    tok, pos = [], 0
    while len(tok) < 4:
        end = pos
        while data[end:end + 1] not in b' \n\t\r':
            end += 1
        if data[pos:pos + 1] == b'#':
            pos = data.index(b'\n', pos) + 1
            continue
        if end > pos:
            tok.append(data[pos:end])
        pos = end + 1
    w, h, m = int(tok[1]), int(tok[2]), int(tok[3])
    return np.frombuffer(data, '>u2' if m > 255 else 'u1', w * h * 3, pos).reshape(h, w, 3).astype(np.float32) / m


def povray(scene, npass, w, h, ss, declare=()):
    os.makedirs(OUT, exist_ok=True)
    out = '%s/%s_%d.ppm' % (OUT, scene, npass)
    if REUSE and os.path.exists(out) and scene != 'daylight':
        return read_ppm(out)
    cmd = ['nice', '-n', '10', 'povray', '+I' + scene + '.pov', '+O' + out, '+W%d' % (w * ss), '+H%d' % (h * ss), '+Linc', '+L' + OUT,
           '+FP16', '-D', '-A', '-J', 'File_Gamma=1.0', '+WT1', 'Declare=Pass=%d' % npass,
           'Declare=CW=%d' % w, 'Declare=CH=%d' % h] + ['Declare=' + d for d in declare]
    r = subprocess.run(cmd, cwd=POV, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if r.returncode:
        print(r.stdout[r.stdout.find("[Parsing"):])
        sys.exit('povray failed: ' + scene)
    return read_ppm(out)


def open_light(dome):
    """Light of white ground in the open; painted ground is divided by it."""
    return povray('daylight', 0, 2, 2, 1, ['DomeN=%d' % dome])[0, 0] * 2


def outline(depth, ss, thin=.45, jump=.07):
    r = max(1, int(round(ss * thin)))
    far = np.zeros_like(depth)
    for dy, dx in ((0, 1), (0, -1), (1, 0), (-1, 0)):
        for k in {1, r}:
            far = np.maximum(far, np.roll(depth, (dy * k, dx * k), (0, 1)) - depth)
    return np.clip((far - jump) / jump, 0, 1)


def tufts(x0, y0, w, h, s):
    """Fine blades for grass, -1, 0 or 1, by the place on the surface; longer ones
    at scale 2.  They repeat with the step of the water pictures, so that grassy
    banks agree there."""
    r = np.random.RandomState(7)
    n = r.randn(2048, 122 * s)
    lean = .9 * np.roll(n, 1, 0) if s == 1 else .9 * np.roll(n, 1, 0) + .7 * np.roll(n, (2, 1), (0, 1))
    n = n + lean + .35 * np.roll(n, 1, 1)
    n = np.where(n > 1.25, 1, np.where(n < -1.25, -1, 0))
    y, x = np.mgrid[y0 * s:(y0 + h) * s, x0 * s:(x0 + w) * s]
    return n[(y + 61 * s * (x // (122 * s))) % 2048, x % (122 * s)]


def shot(scene, w, h, ox, oy, ss=4, dome=16):
    """The finished pictures (sRGB floats) on black, by scale: {1: ..., 2: ...}.
    ss samples a unit, so half as many a pixel at scale 2."""
    if DRAFT:
        ss, dome = 2, 5
    t = time.time()
    ext = ['OX=%g' % ox, 'OY=%g' % oy, 'DomeN=%d' % dome]
    light = open_light(dome)
    b = povray(scene, 0, w, h, ss, ext) * 2
    aux = povray(scene, 1, w, h, ss, ext)
    obj = (aux[..., 1] > .5).astype(np.float32)
    out = {s: averaged(b, aux[..., 0] * 60, obj, light, s, ss, 992 - int(ox), 32 - int(oy)) for s in SCALES}
    print('%s %dx%d: %.0f s' % (scene, w, h, time.time() - t), flush=True)
    return out


def averaged(b, depth, obj, light, s, ss, x0, y0, sat=1.06, contrast=1.10, exposure=1.0):
    n = ss // s
    line = outline(depth, n) * obj
    b = b * (1 - line[..., None] * .5)
    cov = box_down(obj, n)[..., None]
    col = box_down(b * obj[..., None], n) / np.maximum(cov, 1e-6)
    gnd = box_down(b * (1 - obj[..., None]), n) / np.maximum(1 - cov, 1e-6) / light
    col = grade(col, exposure, sat, contrast)
    col = unsharp(col, cov[..., 0] > .02, .45, .7)
    gnd = np.asarray(gnd, float)
    gnd = np.where(gnd > .8, .8 + .2 * (1 - np.exp(-(gnd - .8) / .2)), gnd)
    gnd = to_srgb(gnd)
    green = np.clip((gnd[..., 1] - gnd[..., [0, 2]].max(-1) - .04) / .06, 0, 1) * np.clip(gnd[..., 1] * 6 - .6, 0, 1)
    h, w = green.shape
    gnd = gnd * (1 + .055 * green * tufts(x0, y0, w // s, h // s, s))[..., None]
    return to_srgb(cov * to_lin(col) + (1 - cov) * to_lin(gnd))
