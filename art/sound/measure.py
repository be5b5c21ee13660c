"""Renders MIDI files through the soundfont of the game and measures levels."""
import math
import os
import subprocess
import wave

import numpy as np

FONT = '/usr/share/sounds/sf2/TimGM6mb.sf2'
RATE = 44100


def render(midi, gain, folder):
    """The file as stereo samples, one row for each sample."""
    out = os.path.join(folder, 'render.wav')
    subprocess.run(['nice', 'fluidsynth', '-ni', '-q', '-g', str(gain), '-r', str(RATE), '-T', 'wav',
                    '-F', out, FONT, midi], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return read(out)


def read(path):
    with wave.open(path) as f:
        data = np.frombuffer(f.readframes(f.getnframes()), '<i2')
        return data.reshape(-1, f.getnchannels()).astype(float) / 32768


def db(value):
    return 20 * math.log10(max(value, 1e-7))


def weighted(sound):
    """The K weighting of ITU-R BS.1770: a high shelf and a high pass, as a response over frequency."""
    # In pieces that fit the cache, each with the end of the one before it, long enough for the
    # high pass to have forgotten what lies further back.
    n, before = 1 << 17, 8192
    # The published coefficients are for 48 kHz: evaluate them at that rate's own frequencies.
    z = np.exp(-2j * np.pi * np.arange(n // 2 + 1) * RATE / n / 48000)
    shelf = (1.53512485958697 - 2.69169618940638 * z + 1.19839281085285 * z * z) / \
            (1 - 1.69065929318241 * z + .73248077421585 * z * z)
    high = (1 - 2 * z + z * z) / (1 - 1.99004745483398 * z + .99007225036621 * z * z)
    response = (shelf * high)[:, None]
    padded = np.concatenate([np.zeros((before, sound.shape[1])), sound])
    out = [np.fft.irfft(np.fft.rfft(padded[i:i + n], n, axis=0) * response, n, axis=0)[before:]
           for i in range(0, len(sound), n - before)]
    return np.concatenate(out)[:len(sound)]


def level(power):
    """Loudness in LUFS of weighted power, without gates."""
    return -.691 + 10 * math.log10(power.mean() + 1e-12)


def power(sound):
    return (weighted(sound) ** 2).sum(1)


def loudness(sound):
    """Integrated loudness in LUFS: blocks of 400 ms, gated at -70 and at 10 below the mean."""
    mean = blocks(sound, .1)
    levels = -.691 + 10 * np.log10(mean + 1e-12)
    gate = level(mean[levels > -70]) - 10
    return level(mean[levels > max(gate, -70)])


def blocks(sound, hop):
    """The mean weighted power of each 400 ms, one block every so many seconds."""
    total = np.concatenate([[0], np.cumsum(power(sound))])
    block = int(.4 * RATE)
    starts = np.arange(0, len(sound) - block, int(hop * RATE))
    return (total[starts + block] - total[starts]) / block


def loudest(cue):
    """The loudest 400 ms of a cue of one channel, in LUFS, as both loudspeakers play it."""
    rest = np.zeros(RATE // 2)
    sound = np.concatenate([rest, cue, rest])
    return level(blocks(np.stack([sound, sound], 1), .005).max(keepdims=True))


def share(sound, low, high):
    """The part of the energy that lies between two frequencies."""
    size, mono = 8192, sound.mean(1)
    spectrum = np.full(size // 2 + 1, 1e-12)
    for i in range(0, len(mono) - size, size // 2):
        spectrum += np.abs(np.fft.rfft(mono[i:i + size] * np.hanning(size))) ** 2
    hertz = np.fft.rfftfreq(size, 1 / RATE)
    return spectrum[(hertz >= low) & (hertz < high)].sum() / spectrum.sum()


def bands(sound):
    """Level of each octave from 88 Hz to 11 kHz, in dB, for each frame of 23 ms of one channel."""
    size = 1024
    count = max(1, len(sound) // size)
    frames = np.resize(np.append(sound, np.zeros(size)), count * size).reshape(count, size)
    power = np.abs(np.fft.rfft(frames * np.hanning(size), axis=1)) ** 2
    hertz = np.fft.rfftfreq(size, 1 / RATE)
    edges = [88.4 * 2 ** i for i in range(8)]
    return np.stack([10 * np.log10(power[:, (hertz >= a) & (hertz < 2 * a)].sum(1) + 1e-12)
                     for a in edges[:7]], 1)


def silences(sound, floor=-50):
    """The longest stretch below the floor before the last sound, and the time of the last sound."""
    loud = np.flatnonzero(np.abs(sound).max(1) > 10 ** (floor / 20))
    gaps = np.diff(loud)
    last = np.flatnonzero(np.abs(sound).max(1) > 10 ** (-60 / 20))[-1]
    return max(gaps.max(), loud[0]) / RATE, last / RATE
