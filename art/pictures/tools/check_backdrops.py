"""Check the large pictures and the panels in data/pictures: sizes and format, black
where the map shows, agreement where pictures overlap, contrast under captions.

Exit status 1 if anything fails."""
import struct
import sys
import time
from land import *

PANELS = {'Image3': (623, 37), 'Image2': (141, 157), 'Image7': (145, 34), 'Image11': (145, 80), 'Image10': (145, 55), 'Image9': (145, 34),
          'Image5': (145, 34), 'Image4': (145, 34), 'Image6': (145, 258), 'Image8': (178, 37), 'menu': (800, 600), 'Picture20': (12, 10), 'Picture21': (7, 7)}
PANELS.update((n, (155, 33)) for n in ('Picture1', 'Picture2', 'Picture3', 'Picture5', 'Picture6', 'Picture7', 'Picture8', 'Picture9', 'ivir'))
NO_CAPTION = ('menu', 'Image10', 'Picture20', 'Picture21')
SIZES = {'mask/48': BAND[2:], 'tile/48': COAST[2:], 'tile/62': CASTLE[2:], 'mask/53': WATER, 'tile/53': WATER, 'mask/22': WATER}
failed = []


def check(ok, what):
    print('%-4s %s' % ('ok' if ok else 'BAD', what))
    if not ok:
        failed.append(what)


def chunks(name):
    with open(path(name), 'rb') as f:
        data = f.read()
    pos, out = 8, []
    while pos < len(data):
        n, kind = struct.unpack('>I4s', data[pos:pos + 8])
        out.append((kind, data[pos + 8:pos + 8 + n]))
        pos += n + 12
    return out


def plain(name, size, colour=2):
    """8 bit, the right colour type, not interlaced, and no chunk beside the picture."""
    c = chunks(name)
    w, h, depth, kind, _, _, lace = struct.unpack('>IIBBBBB', c[0][1])
    return (w, h) == size and depth == 8 and kind == colour and lace == 0 and {k for k, _ in c} == {b'IHDR', b'IDAT', b'IEND'}


def luminance(a):
    return (to_lin(a / 255.) * [.2126, .7152, .0722]).sum(-1)


def contrast(a):
    """Worst contrast of black on this picture."""
    return (luminance(a).min() + .05) / .05


def strays(a):
    """Coloured pixels with no coloured neighbour."""
    m = np.pad((a > 8).any(-1), 1)
    near = sum(np.roll(m, (j, i), (0, 1)).astype(int) for j in (-1, 0, 1) for i in (-1, 0, 1)) - m
    return int((m & (near == 0)).sum())


def main():
    bad = [n for n, s in SIZES.items() if not plain(n, s)] + ['panel/' + n for n, s in PANELS.items() if not plain('panel/' + n, s)]
    if not plain('icon', (64, 64), 6):
        bad.append('icon')
    check(not bad, 'size and format of all pictures %s' % ' '.join(bad))
    groups = {'missions 1 to 3': (18, [('mask/48',) + BAND[:2]]), 'missions 4 to 6': (22, [('tile/48',) + COAST[:2]] + DIAMONDS),
              'missions 9 and 10': (12, [('tile/62',) + CASTLE[:2]])}
    for what, (size, blits) in groups.items():
        inside, over, clash, count = square(size), 0, 0, 0
        surface = np.zeros(SURFACE + (3,), np.uint8)
        for n, x, y in blits:
            a = load_rgb(n)
            h, w = a.shape[:2]
            over += int((a.any(-1) & inside[y:y + h, x:x + w]).sum())
            s = surface[y:y + h, x:x + w]
            both = a.any(-1) & s.any(-1)
            count += int(both.sum())
            clash += int((a != s)[both].any(-1).sum())
            s |= a
        check(over == 0, '%s: %d coloured pixels on playable cells' % (what, over))
        check(clash == 0, '%s: %d of %d overlapping pixels differ' % (what, clash, count))
        near = np.zeros(SURFACE, bool)              # the void right behind the back edges
        near[:-6] = inside[6:]
        near &= ~inside
        near[528:] = False
        bare = int((near & ~surface.any(-1)).sum())
        check(bare == 0, '%s: %d black pixels between the backdrop and the back edges' % (what, bare))
        check(strays(surface) == 0, '%s: %d stray pixels' % (what, strays(surface)))
    for n in PANELS:
        if n not in NO_CAPTION:
            c = contrast(load_rgb('panel/' + n))
            check(c >= 7, 'panel/%s: black text at %.2f to 1 at the worst pixel' % (n, c))
    t, raw = time.time(), 0
    for n in list(SIZES) + ['panel/' + p for p in PANELS]:
        raw += load_rgb(n).nbytes
    print('decoded in %.0f ms, %.1f MB, files %.1f MB' % ((time.time() - t) * 1e3, raw / 1e6,
          sum(os.path.getsize(path(n)) for n in list(SIZES) + ['panel/' + p for p in PANELS]) / 1e6))
    print('%d failed' % len(failed) if failed else 'all good')
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())
