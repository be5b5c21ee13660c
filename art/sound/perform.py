"""Plays a score: turns its sections into timed notes with a player's dynamics and timing.

Everything that deviates from the page comes from generators seeded by the score, so
that a score gives the same notes each time.
"""
import math
import random

from score import DRUM, ScoreError, pitch


# The resting value of a part's expression controller: room above it for swells.
EXPRESSION = 106


class Played:
    """A note as played. start and length are in quarters, written is the start on the page."""

    def __init__(self, part, start, length, key, velocity, role):
        self.part, self.start, self.length = part, start, length
        self.key, self.velocity, self.role = key, velocity, role
        self.written = start


class Written:
    """A note of a line as the page has it, before ornaments and timing."""

    def __init__(self, row, start, length, key):
        self.row, self.start, self.length, self.key = row, start, length, key


class Performance:
    def __init__(self, score):
        self.score = score
        self.written = []
        self.notes, self.expression, self.spans = [], [], []
        self.bar, self.level = 0, {}
        for section, after in zip(score.sections, score.sections[1:] + [None]):
            self.next_chord = after.chord_at(0, 0)[0] if after else None
            self._section(section)
        self.bars = self.bar
        self._last_fade()
        self._tempo()
        self._deviate()
        self._fit_length()

    # --- dynamics -------------------------------------------------------------------

    def _arc(self, section, bar, beat):
        """Velocity from the section's dynamic line and the rise and fall of each phrase."""
        beats = self.score.beats
        first, phrase = section.phrase_at(bar)
        x = (bar + beat / beats) / len(section.chords)
        base = section.dyn[0] + (section.dyn[1] - section.dyn[0]) * x
        y = (bar - first + beat / beats) / phrase
        return base + 8 * math.sin(math.pi * min(1, y * 1.12)) - 4

    def _accent(self, beat):
        """The first beat weighs most, other beats less, notes between them least."""
        if beat < .01:
            return 6
        unit = self.score.beat
        on_beat = abs(beat / unit - round(beat / unit)) < .01
        return (1 if on_beat else -6)

    # --- the rows of a section ------------------------------------------------------

    def _section(self, section):
        start = self.bar * self.score.beats
        set_before = set()
        for row in section.rows:
            if row['part'] not in set_before:
                set_before.add(row['part'])
                self.level[row['part']] = 10 ** (row['level'] / 40)
                self._express(row['part'], max(0, start - .03), EXPRESSION)
            play = getattr(self, '_play_' + row['kind'], None)
            if not play:
                raise ScoreError(f"unknown kind of row: {row['kind']}")
            play(section, row, start)
        self.bar += len(section.chords)
        lead = None if section.alone else section.rows[0]['part'].name
        self.spans.append((section.name, start, self.bar * self.score.beats, lead))

    def _add(self, row, start, length, key, velocity, role):
        part = row['part']
        if not part.low <= key <= part.high:
            raise SystemExit(f'{self.score.title}: {part.name} cannot play key {key} '
                             f'in bar {start / self.score.beats + 1:.2f}')
        self.notes.append(Played(part, start, length, key, velocity + row['vel'], role))

    def _bars(self, row):
        return range(row['from'] - 1, row['to'])

    def _written(self, row, section, line):
        """The notes of a line with ties joined: (bar, beat, length, note)."""
        out, tied = [], None
        for bar in self._bars(row):
            beat = 0
            for note in line[bar]:
                if tied and note.pitch == tied[3].pitch:
                    tied[2] += note.length
                    tied[4] = note.marks
                else:
                    out.append([bar, beat, note.length, note, note.marks])
                tied = out[-1] if '_' in note.marks else None
                beat += note.length
        return [n for n in out if n[3].pitch is not None]

    def _play_line(self, section, row, start):
        part = row['part']
        written = self._written(row, section, self.score.lines[row['names'][0]])
        for i, (bar, beat, length, note, marks) in enumerate(written):
            key = note.pitch + 12 * row['oct']
            at = start + bar * self.score.beats + beat
            self.written.append(Written(row, at, length, key))
            velocity = self._arc(section, bar, beat) + self._accent(beat)
            velocity += 9 * ('>' in marks)
            after = written[i + 1] if i + 1 < len(written) else None
            same_next = after and after[3].pitch == note.pitch
            # A plucked string rings on by itself: a line is never written longer than its notes.
            sounding = length * min(part.legato, 1)
            ends_phrase = section.ends_phrase(bar) and (not after or after[0] != bar)
            if ends_phrase or ',' in marks:
                # The player breathes: the phrase's last note is softer and ends early.
                sounding, velocity = length * .8, velocity - 7
            elif "'" in marks:
                sounding = length * .5
            elif same_next:
                sounding = length * min(part.legato, .85)
            if i == len(written) - 1 and section is self.score.sections[-1]:
                sounding = length
            self._ornament(row, section, at, sounding, length, key, velocity, marks)
            if part.breathes and length >= 1.5:
                self._swell(part, at, length, 98, 122, 92)

    def _ornament(self, row, section, at, sounding, length, key, velocity, marks):
        upper = key + (2 if (key + 2) % 12 in section.scale else 1)
        if '^' in marks:
            grace = min(.12, length / 5)
            self._add(row, at, grace * .95, key, velocity, 'melody')
            self._add(row, at + grace, grace * .95, upper, velocity - 12, 'ornament')
            self._add(row, at + 2 * grace, max(.1, sounding - 2 * grace), key, velocity - 3, 'melody')
        elif '~' in marks:
            # A trill from the upper note that settles on the written one before it ends.
            step, count = .15, int(length * .6 / .15) // 2 * 2
            for i in range(count):
                self._add(row, at + i * step, step * .95, upper if i % 2 == 0 else key,
                          velocity - 5 - 4 * (i % 2), 'ornament')
            self._add(row, at + count * step, max(.15, sounding - count * step), key, velocity - 3, 'melody')
        else:
            self._add(row, at, sounding, key, velocity, 'melody')

    def _play_pat(self, section, row, start):
        part, beats = row['part'], self.score.beats
        last_bass = None
        for bar in self._bars(row):
            names = row['names']
            pattern = self.score.patterns[names[(bar - row['from'] + 1) % len(names)]]
            step = beats / len(pattern)
            for i, token in enumerate(pattern):
                if token in '.=':
                    continue
                beat = i * step
                at = start + bar * beats + beat
                velocity = self._arc(section, bar, beat) + self._accent(beat)
                if part.is_drum:
                    for delay, key, change in DRUM[token]:
                        self._add(row, at + delay, .2, key, velocity + change, 'drum')
                    continue
                held = 1
                while i + held < len(pattern) and pattern[i + held] == '=':
                    held += 1
                length = held * step * part.legato
                chord, chord_end = section.chord_at(bar, beat)
                # Damp what would ring into the next chord.
                length = min(length, chord_end - beat - .02)
                if token in 'Rotfp':
                    last_bass = self._bass(section, bar, beat + held * step, token, chord, part, last_bass)
                    self._add(row, at, length, last_bass, velocity - 4, 'bass')
                    # A held bass moves along when the chord changes under it.
                    while token == 'R' and chord_end < beat + held * step - 1e-6:
                        change = chord_end
                        chord, chord_end = section.chord_at(bar, change)
                        length = min(chord_end, beat + held * step) - change
                        last_bass = self._near(chord.bass, part, last_bass)
                        self._add(row, start + bar * beats + change, length * part.legato - .02,
                                  last_bass, velocity - 7, 'bass')
                elif token in 'xy':
                    keys = self._voicing(chord, part)[:3]
                    for j, key in enumerate(keys if token == 'x' else keys[::-1]):
                        self._add(row, at + j * .03, length, key, velocity - 14 - 2 * j, 'accompaniment')
                else:
                    self._add(row, at, length, self._voicing(chord, part)[int(token) - 1],
                              velocity - 12, 'accompaniment')

    @staticmethod
    def _voicing(chord, part):
        return [k for k in range(part.voicing, part.high + 1) if k % 12 in chord.tones]

    def _bass(self, section, bar, next_beat, token, chord, part, last):
        """The bass key for a pattern letter, as near to the last one as the range allows."""
        if token == 'p':
            # A step of the scale that leads into the chord that follows.
            if next_beat >= self.score.beats - 1e-6:
                bar, next_beat = bar + 1, 0
            if bar < len(section.chords):
                target_class = section.chord_at(bar, next_beat)[0].bass
            else:
                target_class = (self.next_chord or chord).bass
            target = self._near(target_class, part, last)
            if last is not None and target != last:
                side = -1 if target > last else 1
                for distance in (1, 2):
                    key = target + side * distance
                    if key % 12 in section.scale and key != last and part.low <= key <= part.high:
                        return key
            return self._near(chord.fifth, part, last)
        wanted = {'R': chord.bass, 'o': chord.bass, 't': chord.third, 'f': chord.fifth}[token]
        if token == 'o' and last is not None:
            # The bass an octave up, also where the chord has changed since.
            up = last + 1 + (wanted - last - 1) % 12
            return up if up <= part.high else up - 24
        return self._near(wanted, part, last)

    @staticmethod
    def _near(wanted, part, last):
        keys = [k for k in range(part.low, min(part.high, part.low + 17) + 1) if k % 12 == wanted]
        if last is None:
            return keys[0]
        return min(keys, key=lambda k: (abs(k - last) + (3 if k > part.low + 12 else 0), k))

    def _play_pad(self, section, row, start):
        """Held chords of three voices; each voice moves as little as it can, common notes stay."""
        part, beats = row['part'], self.score.beats
        low = part.voicing
        voices = [low + 4, low + 8, low + 12]
        held = [None, None, None]

        def close(i, at):
            if held[i]:
                key, since, velocity = held[i]
                self._add(row, since, at - since - .03, key, velocity, 'pad')
                held[i] = None

        for bar in self._bars(row):
            at = start + bar * beats
            for chord, length in section.chords[bar]:
                taken = []
                for voice in voices:
                    options = [k for k in range(low, low + 20) if k % 12 in chord.tones and k not in taken]
                    key = min(options, key=lambda k: (abs(k - voice), k))
                    taken.append(key)
                voices = sorted(taken)
                for i, key in enumerate(voices):
                    if not held[i] or held[i][0] != key or bar == section.phrase_at(bar)[0]:
                        close(i, at)
                        held[i] = (key, at, self._arc(section, bar, 0) - 14)
                at += length
            self._swell(part, start + bar * beats, beats, 90, 112, 90)
        for i in range(3):
            close(i, start + row['to'] * beats)

    def _play_drone(self, section, row, start):
        beats = self.score.beats
        bar = row['from'] - 1
        # The drone's notes are struck again every phrase, so that they do not stand still.
        while bar < row['to']:
            stop = min(row['to'], sum(section.phrase_at(bar)))
            for name in row['names']:
                self._add(row, start + bar * beats, (stop - bar) * beats - .1, pitch(name), 66, 'drone')
            bar = stop

    def _swell(self, part, start, length, low, top, last):
        for i in range(8):
            x = i / 7
            value = low + (top - low) * math.sin(math.pi * x) + (last - low) * x
            self._express(part, start + x * length * .95, value)

    def _express(self, part, at, value):
        self.expression.append((part, at, int(min(127, value * self.level[part]))))

    def _last_fade(self):
        """The last bar dies away, whatever its parts were swelling to."""
        start = (self.bars - 1) * self.score.beats
        self.expression = [e for e in self.expression if e[1] < start]
        for part in {row['part'].name: row['part'] for row in self.score.sections[-1].rows}.values():
            for i in range(16):
                x = i / 15
                self._express(part, start + x * self.score.beats * .97, EXPRESSION * (1 - .7 * x * x))

    # --- time -----------------------------------------------------------------------

    def _tempo(self):
        """Tempo for each beat: a little give at the end of each phrase, a ritardando at the end."""
        score, self.tempo = self.score, []
        first_bar = 0
        for section in score.sections:
            for bar in range(len(section.chords)):
                whole = first_bar + bar
                for i in range(round(score.beats / score.beat)):
                    x = i * score.beat / score.beats
                    factor = section.pace
                    if section.ends_phrase(bar):
                        factor *= 1 - (1 - score.give) * (.4 + x)
                    elif bar == section.phrase_at(bar)[0] + 1:
                        factor *= 1.012
                    late = whole - (self.bars - len(score.rit))
                    if late >= 0:
                        before = score.rit[late - 1] if late else 1
                        factor = section.pace * (before + (score.rit[late] - before) * (x + .3))
                    self.tempo.append((whole * score.beats + i * score.beat, score.tempo * factor))
            first_bar += len(section.chords)

    def seconds(self, beat):
        total = 0
        for i, (at, tempo) in enumerate(self.tempo):
            end = self.tempo[i + 1][0] if i + 1 < len(self.tempo) else math.inf
            if beat <= at:
                break
            total += (min(beat, end) - at) * 60 / tempo
        return total

    def _deviate(self):
        # A generator for each part, so that a change to one leaves the others as they were.
        parts = {p: random.Random(f'{self.score.seed} {p.name}') for p in self.score.parts.values()}
        for note in self.notes:
            rng = parts[note.part]
            ms = max(-2.2, min(2.2, rng.gauss(0, 1))) * note.part.ms
            note.start = max(0, note.start + ms / 1000 * self.score.tempo / 60)
            velocity = note.velocity + rng.gauss(0, 1) * note.part.spread
            note.velocity = int(max(8, min(122, velocity)))

    def _fit_length(self):
        """Scale the tempo so that the last key goes up exactly when the score says."""
        last = max(n.start + n.length for n in self.notes)
        factor = self.seconds(last) / self.score.ends
        if not .95 < factor < 1.05:
            raise SystemExit(f'{self.score.title}: tempo {self.score.tempo} would have to become '
                             f'{self.score.tempo * factor:.1f} for the length asked')
        self.tempo = [(at, tempo * factor) for at, tempo in self.tempo]
        self.factor = factor
