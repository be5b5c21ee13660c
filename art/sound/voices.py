"""What the page alone shows: voices that run in parallel, and where the leading voice rests.

A voice is a written line, or the bass. The bass of a bar is what the bass instrument plays
there, and where it is silent the lowest string of whoever plucks. Drones, chords and
kettledrums are no voices. Lines that carry the same notes, and rows marked `doubles`, double on purpose.
"""
BASSES, KETTLEDRUMS = ('cello', 'bass'), 47
NAMES = 'C C# D Eb E F F# G G# A Bb B'.split()
# A gap in the lead that is heard as a breath, in seconds: shorter ones part two notes.
BREATH = .25


def name(key):
    return f'{NAMES[key % 12]}{key // 12 - 1}'


class Voice:
    def __init__(self, part, line, doubles=None):
        self.part, self.line, self.doubles = part, line, doubles
        self.notes = []  # (start, end, key) in quarters

    def at(self, time):
        """The note struck at a time and the one it follows; None where a rest parts them."""
        for i, (start, _, key) in enumerate(self.notes):
            if abs(start - time) < .01:
                before = self.notes[i - 1] if i and start - self.notes[i - 1][1] < 1 else None
                return key, before and before[2]
        return None


def voices(played, section, start, end):
    """The voices of one section, the melody first."""
    found = []
    for row in section.rows:
        if row['kind'] == 'line' and row['part'].program != KETTLEDRUMS:
            voice = Voice(row['part'].name, row['names'][0], row['doubles'])
            voice.notes = [(w.start, w.start + w.length, w.key) for w in played.written
                           if w.row is row]
            found.append(voice)
    bass, beats = Voice('bass', 'bass'), played.score.beats
    low = [n for n in played.notes if n.role == 'bass' and start - .01 <= n.written < end - .01]
    for bar in range(round((end - start) / beats)):
        first = start + bar * beats
        here = [n for n in low if first - .01 <= n.written < first + beats - .01]
        here = [n for n in here if n.part.name in BASSES] or here
        one = min((n.part.name for n in here), default=None)
        bass.notes += sorted((n.written, n.written + n.length, n.key) for n in here if n.part.name == one)
    # A bass may be short, but it is remembered until the next one.
    bass.notes = [(a, max(b, after[0]), key) for (a, b, key), after
                  in zip(bass.notes, bass.notes[1:] + [(end,)])]
    return found + [bass]


def parallels(played):
    """Fifths and octaves that two voices reach by moving the same way from the same interval.

    Two ways to move count: from the last note of each, and from where both were last struck
    together, since notes in between do not hide it.
    """
    out = []
    for section, (_, start, end, _) in zip(played.score.sections, played.spans):
        all_ = voices(played, section, start, end)
        for i, x in enumerate(all_):
            for y in all_[i + 1:]:
                if x.line == y.line or x.doubles == y.part or y.doubles == x.part:
                    continue
                for at, a, b, c, d in _moves(x, y):
                    bar, beat = int(at / played.score.beats + 1e-6), at % played.score.beats
                    out.append(f'bar {bar + 1} beat {beat / played.score.beat + 1:.3g} ({section.name}): '
                               f'{x.part} {name(a)}-{name(b)} and {y.part} {name(c)}-{name(d)}')
    return out


def _moves(x, y):
    together = None
    for time, _, _ in x.notes:
        one, two = x.at(time), y.at(time)
        if one[1] is None:
            together = None
        if not two:
            continue
        for before in {(one[1], two[1]), together}:
            if before and None not in before and _parallel(*before, one[0], two[0]):
                yield time, before[0], one[0], before[1], two[0]
                break
        together = one[0], two[0]


def _parallel(a, c, b, d):
    return a != b and c != d and (b > a) == (d > c) and abs(a - c) % 12 == abs(b - d) % 12 in (0, 7)


def spells(played):
    """The times in which the lead plays on without a breath, as (start, end) in seconds."""
    out = []
    for _, start, end, lead in played.spans:
        for n in sorted((n for n in played.notes if lead and n.part.name == lead
                         and start - .01 <= n.written < end - .01), key=lambda n: n.start):
            a, b = played.seconds(n.start), played.seconds(n.start + n.length)
            if out and a - out[-1][1] < BREATH:
                out[-1][1] = max(out[-1][1], b)
            else:
                out.append([a, b])
    return out
