"""The back walls of the walled town, with the strip of land they stand on."""
from country import *


def castle():
    w = World(4, 4, 20, 4)
    X, Y = w.X, w.Y
    d = np.maximum(9 - X, 9 - Y)
    rim = np.minimum(X, Y) - 7.25 + .25 * w.noise(2.1, 2)
    rim = np.maximum(rim, 1.6 - np.hypot((X - 6.7), (Y - 13.9) / 1.15))
    rim = np.maximum(rim, 1.15 - np.hypot((X - 12.3) / 1.5, (Y - 7.0)))
    rim = np.minimum(np.minimum(rim, 14.95 - np.abs(X - Y)), np.minimum(23.35 - np.maximum(X, Y), 32.05 - X - Y)) + .16 * w.noise(1.3, 3) + .08 * w.noise(.45, 4)
    w.rim = rim
    w.meadow(32)
    w.track([(12, 9.6), (12, 8.4), (12, 7.2), (11.9, 6.2)], .13)
    w.paint(hx('B9A57C'), .55 * smooth(.34, .20, np.minimum(np.abs(X - 8.72), np.abs(Y - 8.72)) + .08 * w.noise(.3, 5)) * (d < .4) * (d > 0))
    for n, x, y, s, t in (('HouA', 13.0, 6.9, .64, 5), ('HouC', 11.05, 6.75, .60, 92), ('HouB', 13.3, 7.65, .56, 95), ('Barn', 8.0, 18.0, .5, 92)):
        w.put(n, x, y, s, t, .02)
        w.busy |= np.hypot(X - x, Y - y) < .55 * s + .05
    w.rim_green(d - .2)
    w.grain(52)
    wall = np.minimum(np.abs(X - 8.5), np.abs(Y - 8.5))
    w.busy |= (np.abs(X - Y) > 14.2) | (wall < .30) | (np.minimum(X, Y) > 8.4) | (np.hypot(X - 6.6, Y - 13.9) < 1.0)
    leafy = ('OakA', 'OakB', 'OakD', 'FirA', 'OakC', 'FirB', 'OakA')
    dens = smooth(.08, .16, rim) * np.clip(.22 + .8 * smooth(-.1, .3, w.fbm(2.6, 70, 2)) + .5 * smooth(.5, .2, rim), 0, 1)
    w.wood(dens * .85, .29, lambda x, y, k: leafy[int(k * 7)], (.34, .56), 259)
    w.wood(np.where(rim > .07, .55, 0), .21, ('ShrA', 'ShrB'), (.16, .30), 259)
    w.thin_out(.26)
    w.write()
    x0, y0, W, H = CASTLE
    for s, img in shot('castle', W, H, 992 - x0, 32 - y0, 4, 24).items():
        img[box(square(12, s), *CASTLE, s)] = 0
        save_land('tile/62', img, s)


def render(parts=None):
    castle()


if __name__ == '__main__':
    castle()
