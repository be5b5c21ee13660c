"""Writes a performance as a Standard MIDI File, format 1."""
import math
import struct

TICKS = 480
SHARPS = {'C': 0, 'G': 1, 'D': 2, 'A': 3, 'E': 4, 'F': -1, 'Bb': -2, 'Eb': -3}
# How far the key signature of a mode lies from the major key on the same note.
MODE_SHARPS = {'major': 0, 'minor': -3, 'dorian': -2, 'mixolydian': -1}


def varlen(n):
    out = [n & 127]
    n >>= 7
    while n:
        out.insert(0, n & 127 | 128)
        n >>= 7
    return bytes(out)


def text(kind, words):
    data = words.encode()
    return bytes([0xFF, kind]) + varlen(len(data)) + data


def chunk(events, end):
    """events: (tick, order, bytes). Note-offs sort before note-ons of the same tick."""
    out, now = b'', 0
    for tick, _, data in sorted(events, key=lambda e: e[:2]):
        out += varlen(tick - now) + data
        now = tick
    out += varlen(max(0, end - now)) + b'\xFF\x2F\x00'
    return b'MTrk' + struct.pack('>I', len(out)) + out


def write(performance, path, only=None):
    """Write all parts, or the notes of the part named by only (for measuring it alone)."""
    score = performance.score
    # The tracks end where the piece's sound has died away.
    spare = score.length - score.ends
    last = max(n.start + n.length for n in performance.notes)
    end = round((last + spare * performance.tempo[-1][1] / 60) * TICKS)
    sharps = (SHARPS[score.key[0]] + MODE_SHARPS[score.key[1]]) & 255
    meta = [(0, 0, text(3, score.title)),
            (0, 0, bytes([0xFF, 0x58, 4, score.meter[0], int(math.log2(score.meter[1])), 24, 8])),
            (0, 0, bytes([0xFF, 0x59, 2, sharps, score.key[1] in ('minor', 'dorian')]))]
    for at, tempo in performance.tempo:
        meta.append((round(at * TICKS), 1, b'\xFF\x51\x03' + round(60e6 / tempo).to_bytes(3, 'big')))
    tracks = [chunk(meta, end)]
    for part in score.parts.values():
        c = part.channel
        volume = min(127, round(part.volume * 10 ** (score.master / 40)))
        events = [(0, 0, text(3, part.title)), (0, 0, bytes([0xC0 | c, part.program]))]
        for number, value in ((7, volume), (10, part.pan), (91, part.reverb), (93, 0), (11, 106)):
            events.append((0, 0, bytes([0xB0 | c, number, value])))
        if not only or only == part.name:
            events += notes_of(performance, part)
        tracks.append(chunk(events, end))
    with open(path, 'wb') as out:
        out.write(b'MThd' + struct.pack('>IHHH', 6, 1, len(tracks), TICKS) + b''.join(tracks))


def notes_of(performance, part):
    c, events = part.channel, []
    for who, at, value in performance.expression:
        if who is part:
            events.append((round(at * TICKS), 1, bytes([0xB0 | c, 11, value])))
    rows = sorted([round(n.start * TICKS), round((n.start + n.length) * TICKS), n.key, n.velocity]
                  for n in performance.notes if n.part is part)
    for i, row in enumerate(rows):
        row[1] = max(row[1], row[0] + 24)
        # A key struck again is let go first, so that each strike sounds.
        for later in rows[i + 1:]:
            if later[0] > row[1]:
                break
            if later[2] == row[2]:
                row[1] = max(row[0] + 6, later[0] - 6)
                break
    for on, off, key, velocity in rows:
        events.append((on, 3, bytes([0x90 | c, key, velocity])))
        events.append((off, 2, bytes([0x80 | c, key, 0])))
    return events
