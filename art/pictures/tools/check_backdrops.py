"""Check the large pictures and the panels in data/pictures: sizes and format, black
where the map shows, agreement where pictures overlap, contrast under captions, the icon.

Exit status 1 if anything fails."""
import struct
import sys
from land import *

PANELS = {'Image3': (623, 37), 'Image2': (141, 157), 'Image7': (145, 34), 'Image11': (145, 80), 'Image10': (145, 55), 'Image9': (145, 34),
          'Image5': (145, 34), 'Image4': (145, 34), 'Image6': (145, 258), 'Image8': (178, 37), 'menu': (800, 600), 'Picture20': (12, 10), 'Picture21': (7, 7),
          'swatchblue': (26, 14), 'swatchred': (26, 14), 'swatchgrey': (26, 14)}
PANELS.update((n, (155, 33)) for n in ('Picture1', 'Picture2', 'Picture3', 'Picture5', 'Picture6', 'Picture7', 'Picture8', 'Picture9', 'ivir'))
# where captions lie on plates and on keys, left, top, width, height; beside them are rivets and rims
CAPTIONS = {'Image3': [(16, 8, 140, 20), (176, 8, 134, 20), (328, 8, 126, 20), (472, 8, 140, 20)], 'Image11': [(10, 7, 125, 41)],
            'Image6': [(10, 32, 125, 58)], 'Image2': [(16, 6, 108, 142)], 'Image8': [(12, 7, 154, 23)],
            'sheet': [(4, 4, 100, 68)], 'key': [(5, 5, 38, 16)], 'keyheld': [(5, 5, 38, 16)]}
YELLOW = {'keylit': [(5, 5, 38, 16)], 'keydown': [(5, 5, 38, 16)]}
ICONS = (16, 32, 48, 64, 128, 256, 512)
SIZES = {'mask/48': BAND[2:], 'tile/48': COAST[2:], 'tile/62': CASTLE[2:], 'mask/53': WATER, 'tile/53': WATER, 'mask/22': WATER}
failed = []


def check(ok, what):
    print('%-4s %s' % ('ok' if ok else 'BAD', what))
    if not ok:
        failed.append(what)


def chunks(name, s):
    with open(path(name, s), 'rb') as f:
        data = f.read()
    pos, out = 8, []
    while pos < len(data):
        n, kind = struct.unpack('>I4s', data[pos:pos + 8])
        out.append((kind, data[pos + 8:pos + 8 + n]))
        pos += n + 12
    return out


def plain(name, size, colour=2, s=1):
    """8 bit, the right colour type, not interlaced, and no chunk beside the picture."""
    c = chunks(name, s)
    w, h, depth, kind, _, _, lace = struct.unpack('>IIBBBBB', c[0][1])
    return (w, h) == (size[0] * s, size[1] * s) and depth == 8 and kind == colour and lace == 0 and {k for k, _ in c} == {b'IHDR', b'IDAT', b'IEND'}


def luminance(a):
    return (to_lin(a / 255.) * [.2126, .7152, .0722]).sum(-1)


def contrast(name, places, ink, s):
    """Worst contrast of text of this colour at these places of a panel's picture."""
    a, text = luminance(load_rgb('panel/' + name, s)), luminance(np.array(ink))
    worst = [np.array([p.min(), p.max()]) for p in (box(a, *place, s) for place in places)]
    return min(((np.maximum(w, text) + .05) / (np.minimum(w, text) + .05)).min() for w in worst)


def pictures(s):
    bad = [n for n, size in SIZES.items() if not plain(n, size, s=s)]
    bad += ['panel/' + n for n, size in PANELS.items() if not plain('panel/' + n, size, s=s)]
    check(not bad, '%dx: size and format of all pictures %s' % (s, ' '.join(bad)))
    groups = {'missions 1 to 3': (18, [('mask/48',) + BAND[:2]]), 'missions 4 to 6': (22, [('tile/48',) + COAST[:2]] + DIAMONDS),
              'missions 9 and 10': (12, [('tile/62',) + CASTLE[:2]])}
    for what, (size, blits) in groups.items():
        what = '%dx, %s' % (s, what)
        inside, over, clash, count = square(size, s), 0, 0, 0
        surface = np.zeros(inside.shape + (3,), np.uint8)
        for n, x, y in blits:
            a = load_rgb(n, s)
            part = x, y, a.shape[1] // s, a.shape[0] // s, s
            over += int((a.any(-1) & box(inside, *part)).sum())
            there = box(surface, *part)
            both = a.any(-1) & there.any(-1)
            count += int(both.sum())
            clash += int(((a | there != a) & (a | there != there))[both].any(-1).sum())
            there |= a
        check(over == 0, '%s: %d coloured pixels on playable cells' % (what, over))
        check(clash == 0, '%s: %d of %d overlapping pixels mix' % (what, clash, count))
        near = np.zeros(inside.shape, bool)         # the void right behind the back edges
        near[:-6 * s] = inside[6 * s:]
        near &= ~inside
        near[528 * s:] = False
        across = np.flatnonzero(inside.any(0))      # at the very tips the land may end
        near[:, :across[0] + 16 * s] = near[:, across[-1] - 16 * s:] = False
        bare = int((near & ~surface.any(-1)).sum())
        check(bare == 0, '%s: %d black pixels between the backdrop and the back edges' % (what, bare))
        alone = int(strays(surface).sum())
        check(alone == 0, '%s: %d stray pixels' % (what, alone))
    for ink, plates in (((0, 0, 0), CAPTIONS), ((255, 255, 0), YELLOW)):
        for n, places in plates.items():
            c = contrast(n, places, ink, s)
            check(c >= 7, '%dx, panel/%s: %s text at %.2f to 1 at the worst pixel' % (s, n, 'yellow' if any(ink) else 'black', c))
    raw = sum(load_rgb(n, s).nbytes for n in list(SIZES) + ['panel/' + p for p in PANELS])
    print('%dx: %.1f MB of pixels' % (s, raw / 1e6))


def main():
    for s in SCALES:
        pictures(s)
    bad = [n for n in ICONS if not plain('icon/%d' % n, (n, n), 6)]
    check(not bad, 'size and format of the icons %s' % (bad or ''))
    total = sum(os.path.getsize(os.path.join(d, f)) for d, _, names in os.walk(DATA) for f in names) / 2 ** 20
    check(total < 16, 'all files %.1f MB' % total)
    print('%d failed' % len(failed) if failed else 'all good')
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())
