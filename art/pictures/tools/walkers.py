"""The walker frames: 12 x 17 opaque blocks of road with a figure on it.

Each direction is one person.  A figure and its shadow keep two columns at the
sides and one row at the top and bottom free, so that a block moved by its step
(2, +-1) paints out the block before."""
import numpy as np
from iso import *
import render as scenes
from roads import patch

# direction: person, heading of the model, road, frames {picture: step of the gait}
WALKS = {
    0: (0, 3, 'y', {22: 0, 23: 1, 24: 3}),       # up and right, y decreasing
    1: (1, 1, 'y', {39: 1, 38: 3}),              # down and left
    2: (2, 0, 'x', {41: 0, 40: 1, 36: 3}),       # down and right, x increasing
    3: (3, 2, 'x', {43: 1, 42: 3}),              # up and left
}
scenes.KINDS['walker'] = (12, 17, 6, -2, 1, None)


def free(s=1):
    """Pixels of a block that a figure may use."""
    out = np.zeros((17 * s, 12 * s), bool)
    box(out, 2, 1, 8, 15, s)[:] = True
    return out


def frame(samples, along, s):
    col, cov, shade = scenes.averaged(samples, {'thin': .5, 'jump': .05, 'line': .68}, s)
    col = unsharp(grade(col, 1.12, 1.2, 1.12), cov > .02, .5, .7)
    road, c3 = patch(along, s), cov[..., None]
    mix = to_srgb(c3 * to_lin(col) + (1 - c3) * to_lin(road[..., :3] / 255.) * np.clip(shade, 0, 1))
    out = rgba(mix, np.ones(cov.shape, bool))
    out[~free(s)] = road[~free(s)]
    return out


def render():
    for person, heading, along, frames in WALKS.values():
        for n, step in frames.items():
            opts = {'as': 'walker', 'declare': ['Dir=%d' % heading, 'Step=%d' % step, 'Who=%d' % person]}
            samples = scenes.samples_pov('walker', 'walker', opts)
            for s in SCALES:
                save_tile(n, frame(samples, along, s), s)
