"""Reads a score text (theme*.score) into plain data. README.md describes the language.

Times are counted in quarter notes from the start of the piece, pitches are
MIDI key numbers (C4 = 60).
"""
import re

LENGTH = {'w': 4, 'h': 2, 'q': 1, 'e': .5, 's': .25}
LETTER = {'C': 0, 'D': 2, 'E': 4, 'F': 5, 'G': 7, 'A': 9, 'B': 11}
SIGN = {'': 0, '#': 1, 'b': -1}
DYNAMIC = {'pp': 56, 'p': 66, 'mp': 77, 'mf': 88, 'f': 99, 'ff': 109}
MODE = {'major': (0, 2, 4, 5, 7, 9, 11), 'minor': (0, 2, 3, 5, 7, 8, 10),
        'dorian': (0, 2, 3, 5, 7, 9, 10), 'mixolydian': (0, 2, 4, 5, 7, 9, 10)}
CHORD = {'': (0, 4, 7), 'm': (0, 3, 7), '7': (0, 4, 7, 10), 'm7': (0, 3, 7, 10),
         'dim': (0, 3, 6), 'sus': (0, 5, 7)}
# The hand drums of the percussion track: (delay in quarters, key, change of velocity).
DRUM = {'L': [(0, 64, 0)], 'h': [(0, 63, -8)], 't': [(0, 54, -26)],
        'g': [(0, 81, -24)],
        'r': [(0, 63, -18), (.125, 63, -14), (.25, 62, -8)]}


class ScoreError(Exception):
    pass


def pitch_class(name):
    m = re.fullmatch(r'([A-G])([#b]?)', name)
    if not m:
        raise ScoreError(f'no such note: {name}')
    return (LETTER[m[1]] + SIGN[m[2]]) % 12


def pitch(name):
    m = re.fullmatch(r'([A-G])([#b]?)(\d)', name)
    if not m:
        raise ScoreError(f'no such pitch: {name}')
    return LETTER[m[1]] + SIGN[m[2]] + 12 * (int(m[3]) + 1)


class Chord:
    """A chord name such as Dm, G/B or A7."""

    def __init__(self, name):
        m = re.fullmatch(r'([A-G][#b]?)(m7|m|7|dim|sus|)(?:/([A-G][#b]?))?', name)
        if not m:
            raise ScoreError(f'no such chord: {name}')
        self.name = name
        root = pitch_class(m[1])
        self.tones = [(root + step) % 12 for step in CHORD[m[2]]]
        self.bass = pitch_class(m[3]) if m[3] else root
        self.third, self.fifth = self.tones[1:3]


class Note:
    """One written note of a line; pitch None is a rest."""

    def __init__(self, token):
        m = re.fullmatch(r"(-|[A-G][#b]?\d)([whqes])(\.?)([\^~'>,_]*)", token)
        if not m:
            raise ScoreError(f'no such note: {token}')
        self.pitch = None if m[1] == '-' else pitch(m[1])
        self.length = LENGTH[m[2]] * (1.5 if m[3] else 1)
        self.marks = m[4]


class Part:
    def __init__(self, words, title):
        self.name, program, channel, pan, volume, reverb, keys, voicing, ms, spread, legato = words[:11]
        self.title = title
        self.program, self.channel = int(program), int(channel) - 1
        self.pan, self.volume, self.reverb = int(pan), int(volume), int(reverb)
        self.is_drum = self.channel == 9
        self.low, self.high = (0, 127) if self.is_drum else map(pitch, keys.split('-'))
        self.voicing = 60 if self.is_drum else pitch(voicing)
        self.ms, self.spread, self.legato = float(ms), float(spread), float(legato)
        self.breathes = 'breath' in words[11:]


class Section:
    def __init__(self, name):
        self.name, self.chords, self.dyn = name, [], (80, 80)
        self.pace, self.scale, self.rows = 1.0, None, []
        self.phrases = [4]
        self.alone = False  # no melody: the accompaniment plays by itself

    def phrase_at(self, bar):
        """The first bar of the phrase that a bar belongs to, and its number of bars."""
        first, i = 0, 0
        while bar >= first + self.phrases[i % len(self.phrases)]:
            first += self.phrases[i % len(self.phrases)]
            i += 1
        return first, min(self.phrases[i % len(self.phrases)], len(self.chords) - first)

    def ends_phrase(self, bar):
        first, size = self.phrase_at(bar)
        return bar == first + size - 1

    def chord_at(self, bar, beat):
        """The chord sounding at a beat, and the beat at which it ends."""
        end = 0
        for chord, length in self.chords[bar]:
            end += length
            if beat < end - 1e-6:
                return chord, end
        raise ScoreError(f'no chord at beat {beat} of bar {bar + 1}')


class Score:
    def __init__(self, path):
        self.parts, self.lines, self.patterns, self.sections = {}, {}, {}, []
        self.chords = {}
        self.phrase, self.give, self.rit, self.master = 4, .96, [.9, .8], 0
        for number, text in enumerate(open(path, encoding='utf-8'), 1):
            text = re.sub(r'(^|\s)# .*$|^#.*$', '', text.rstrip())
            if not text.strip():
                continue
            try:
                if text[0].isspace():
                    self._row(text.split())
                else:
                    self._entry(text)
            except (ScoreError, ValueError, KeyError, IndexError) as error:
                raise SystemExit(f'{path}:{number}: {error!r}')

    def _entry(self, text):
        word, rest = text.split(None, 1)
        words = rest.split()
        if word == 'title':
            self.title = rest
        elif word == 'key':
            self.key = words
            self.scale = self._scale(words)
        elif word == 'meter':
            self.meter = tuple(int(n) for n in rest.split('/'))
            self.beats = self.meter[0] * 4 / self.meter[1]
            # Two beats of a dotted quarter in six-eight, else a beat is a quarter.
            self.beat = 1.5 if self.meter[1] == 8 else 1
        elif word in ('tempo', 'ends', 'length', 'give', 'master'):
            setattr(self, word, float(rest))
        elif word in ('seed', 'phrase'):
            setattr(self, word, int(rest))
        elif word == 'rit':
            self.rit = [float(w) for w in words]
        elif word == 'part':
            title = re.search(r'"(.*)"', rest)[1]
            part = Part(re.sub(r'"(.*)"', '', rest).split(), title)
            self.parts[part.name] = part
        elif word == 'chords':
            self.chords[words[0]] = [self._chord_bar(w) for w in words[1:]]
        elif word == 'line':
            self._line(words[0], rest.split(None, 1)[1])
        elif word == 'pattern':
            self.patterns[words[0]] = words[1:]
        elif word == 'section':
            self._section(words)
        else:
            raise ScoreError(f'unknown word {word}')

    @staticmethod
    def _scale(words):
        return {(pitch_class(words[0]) + step) % 12 for step in MODE[words[1]]}

    def _chord_bar(self, text):
        names = text.split('+')
        bar = []
        for name in names:
            name, _, length = name.partition(':')
            bar.append((Chord(name), float(length) if length else self.beats / len(names)))
        if abs(sum(length for _, length in bar) - self.beats) > 1e-6:
            raise ScoreError(f'the chords {text} do not fill a bar')
        return bar

    def _line(self, name, text):
        if text.startswith('= '):
            base, _, changes = text[2:].partition(' with ')
            bars = [list(bar) for bar in self.lines[base.strip()]]
            for change in changes.split(';'):
                at, notes = change.split(':')
                bars[int(at) - 1] = [Note(t) for t in notes.split()]
        else:
            bars = [[Note(t) for t in bar.split()] for bar in text.split('|')]
        for i, bar in enumerate(bars, 1):
            total = sum(note.length for note in bar)
            if abs(total - self.beats) > 1e-6:
                raise ScoreError(f'bar {i} of {name} has {total} quarters')
        self.lines[name] = bars

    def _section(self, words):
        section = Section(words[0])
        section.scale, section.phrases = self.scale, [self.phrase]
        words = words[1:]
        while words:
            word = words.pop(0)
            if word == 'chords':
                section.chords = self.chords[words.pop(0)]
            elif word == 'dyn':
                section.dyn = (DYNAMIC[words.pop(0)], DYNAMIC[words.pop(0)])
            elif word == 'phrase':
                section.phrases = [int(n) for n in words.pop(0).split(',')]
            elif word == 'pace':
                section.pace = float(words.pop(0))
            elif word == 'alone':
                section.alone = True
            elif word == 'in':
                section.scale = self._scale([words.pop(0), words.pop(0)])
            else:
                raise ScoreError(f'unknown word {word}')
        self.sections.append(section)

    def _row(self, words):
        """part line|pat|pad|drone names... [oct n] [vel n] [level dB] [from bar] [to bar] [doubles part]"""
        section = self.sections[-1]
        row = {'part': self.parts[words[0]], 'kind': words[1], 'names': [],
               'oct': 0, 'vel': 0, 'level': 0, 'from': 1, 'to': len(section.chords), 'doubles': None}
        words = words[2:]
        while words:
            word = words.pop(0)
            if word in ('oct', 'vel', 'level', 'from', 'to'):
                row[word] = int(words.pop(0))
            elif word == 'doubles':
                row[word] = self.parts[words.pop(0)].name
            else:
                row['names'].append(word)
        if row['kind'] == 'line' and len(self.lines[row['names'][0]]) < row['to']:
            raise ScoreError(f"line {row['names'][0]} is shorter than its section")
        if row['kind'] == 'pat':
            row['names'] = row['names'][0].split(',')
            for name in row['names']:
                self.patterns[name]
        section.rows.append(row)
