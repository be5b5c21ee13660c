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
CLEAR = np.zeros((17, 12), bool)
CLEAR[1:16, 2:10] = True


def frame(person, heading, along, step):
    opts = {'as': 'walker', 'declare': ['Dir=%d' % heading, 'Step=%d' % step, 'Who=%d' % person]}
    beauty, depth, obj, lit0 = scenes.samples_pov('walker', 'walker', opts)
    line = scenes.outline(depth, .42, .05) * obj
    beauty = beauty * (1 - line[..., None] * .5)
    cov = box_down(obj, scenes.SS)[..., None]
    col = box_down(beauty * obj[..., None], scenes.SS) / np.maximum(cov, 1e-6)
    shade = box_down(beauty * (1 - obj[..., None]), scenes.SS) / np.maximum(1 - cov, 1e-6) / lit0
    col = unsharp(grade(col, 1.12, 1.2, 1.12), cov[..., 0] > .02, .5, .7)
    road = patch(along)
    mix = to_srgb(cov * to_lin(col) + (1 - cov) * to_lin(road[..., :3] / 255.) * np.clip(shade, 0, 1))
    out = rgba(mix, np.ones((17, 12), bool))
    out[~CLEAR] = road[~CLEAR]
    return out


def render():
    for person, heading, along, frames in WALKS.values():
        for n, step in frames.items():
            save_tile(n, frame(person, heading, along, step))
