"""Reads a Standard MIDI File. Written apart from smf.py, so that neither hides a fault of the other."""
import struct


class File:
    """tracks: a list of (name, events); notes: dicts in seconds and ticks; problems: what is wrong."""

    def __init__(self, path):
        data = open(path, 'rb').read()
        self.problems, self.notes, self.names = [], [], []
        magic, size, self.format, count, self.ticks = struct.unpack('>4sIHHH', data[:14])
        assert magic == b'MThd' and size == 6, 'not a MIDI file'
        at, tracks = 14, []
        for _ in range(count):
            assert data[at:at + 4] == b'MTrk', 'a track is missing'
            size = struct.unpack('>I', data[at + 4:at + 8])[0]
            tracks.append(self._track(data[at + 8:at + 8 + size]))
            at += 8 + size
        assert at == len(data), 'bytes after the last track'
        self.tempo = sorted((t, int.from_bytes(d, 'big')) for tr in tracks for t, k, d in tr if k == 'tempo')
        self.has_meter = any(k == 'meter' for tr in tracks for _, k, _ in tr)
        self.length = self.seconds(max(t for tr in tracks for t, _, _ in tr))
        self.programs = {}
        for number, events in enumerate(tracks):
            self._notes(number, events)
        self.last_off = max(n['off'] for n in self.notes)

    @staticmethod
    def _number(data, i):
        n = 0
        while True:
            n, i = n << 7 | data[i] & 127, i + 1
            if data[i - 1] < 128:
                return n, i

    def _track(self, data):
        events, i, now, status = [], 0, 0, None
        while i < len(data):
            delta, i = self._number(data, i)
            now += delta
            if data[i] == 0xFF:
                kind = data[i + 1]
                size, i = self._number(data, i + 2)
                name = {3: 'name', 0x2F: 'end', 0x51: 'tempo', 0x58: 'meter'}.get(kind, 'other')
                events.append((now, name, data[i:i + size]))
                i += size
            else:
                if data[i] & 128:
                    status, i = data[i], i + 1
                size = 1 if status >> 4 in (12, 13) else 2
                events.append((now, status, data[i:i + size]))
                i += size
        if not events or events[-1][1] != 'end':
            self.problems.append('a track has no end')
        return events

    def seconds(self, tick):
        total, last, us = 0.0, 0, 500000
        for at, value in self.tempo:
            if at >= tick:
                break
            total, last, us = total + (at - last) * us / 1e6 / self.ticks, at, value
        return total + (tick - last) * us / 1e6 / self.ticks

    def _notes(self, number, events):
        down, name = {}, ''
        for tick, kind, data in events:
            if kind == 'name':
                name = data.decode()
                self.names.append(name)
            if not isinstance(kind, int):
                continue
            channel = kind & 15
            if kind >> 4 == 12:
                self.programs[channel] = data[0]
            key = (channel, data[0])
            if kind >> 4 == 9 and data[1]:
                if key in down:
                    self.problems.append(f'{name}: key {data[0]} struck while down at {self.seconds(tick):.2f} s')
                down[key] = (tick, data[1])
            elif kind >> 4 in (8, 9):
                if key not in down:
                    self.problems.append(f'{name}: key {data[0]} let go twice at {self.seconds(tick):.2f} s')
                    continue
                on, velocity = down.pop(key)
                self.notes.append({'track': number, 'name': name, 'channel': channel, 'key': data[0],
                                   'velocity': velocity, 'tick': on, 'off_tick': tick,
                                   'on': self.seconds(on), 'off': self.seconds(tick)})
        if down:
            self.problems.append(f'{name}: {len(down)} keys stay down')
        if not name:
            self.problems.append(f'track {number} has no name')
