# SPDX-License-Identifier: GPL-3.0-or-later
"""Song files, read without the program under test."""
import array

DATA = b"\r\nData="
PICTURE = 1024
TEMPO_PLACE = 4
MUSIC, AUDIO = 0, 1
PAINTED, ERASED = 1, 2


class Cursor:
    """Walks through an array of elements; `place` is the next one."""

    def __init__(self, elements):
        self.elements = elements
        self.place = 0

    def number(self):
        self.place += 1
        return self.elements[self.place - 1]

    def skip_block(self):
        self.place += self.elements[self.place] + 1

    def text(self):
        length = self.elements[self.place + 1]
        words = self.elements[self.place + 2:self.place + 1 + self.elements[self.place]]
        self.skip_block()
        return words.tobytes()[:length].decode("utf-8", "replace")


class SongFile:
    """A song of version 2: `title`, `created_by`, `tempo`, and the place of each track's cells among the elements."""

    def __init__(self, path):
        with open(path, "rb") as file:
            data = file.read()
        begin = data.index(DATA) + len(DATA)
        last = int.from_bytes(data[begin:begin + 4], "little")
        end = begin + 4 * (last + 1)
        self.head, self.tail = data[:begin], data[end:]
        self.elements = array.array("i", data[begin:end])
        cursor = Cursor(self.elements)
        _, tracks, beats, self.cells, self.tempo = (cursor.number() for _ in range(5))
        self.title, self.created_by = cursor.text(), cursor.text()
        for _ in range(beats):
            self.skip_beat(cursor)
        self.tracks = [self.skip_track(cursor) for _ in range(tracks)]

    @staticmethod
    def skip_beat(cursor):
        cursor.skip_block()
        if cursor.number() == 1:
            cursor.skip_block()
            cursor.skip_block()
            cursor.place += PICTURE

    def skip_track(self, cursor):
        """Returns the place of the track's first cell."""
        kind = cursor.number()
        place = cursor.place
        cursor.place += self.cells
        if kind == AUDIO:
            cursor.skip_block()
        elif kind == MUSIC and cursor.number() != 0:
            self.skip_tune(cursor)
        return place

    @staticmethod
    def skip_tune(cursor):
        cursor.skip_block()
        if cursor.number() == 1:
            cursor.skip_block()
            cursor.skip_block()
            cursor.place += PICTURE
            steps = cursor.number()
            cursor.place += 5 * steps + 1

    def track_cells(self, track):
        """The cells of a track, both counted from 1: element 0 is None."""
        place = self.tracks[track - 1]
        return [None, *self.elements[place:place + self.cells]]

    def painted(self, track):
        return [cell for cell, value in enumerate(self.track_cells(track)) if value == PAINTED]

    def keep_cells(self, first, last):
        """Moves the cells first to last to the beginning and clears the others."""
        for place in self.tracks:
            kept = self.elements[place + first - 1:place + last]
            self.elements[place:place + self.cells] = kept + array.array("i", [0] * (self.cells - len(kept)))

    def lengthen(self, tempo):
        """Slows the song down and paints the last cell of its first track."""
        self.elements[TEMPO_PLACE] = tempo
        self.elements[self.tracks[0] + self.cells - 1] = PAINTED

    def write(self, path):
        with open(path, "wb") as file:
            file.write(self.head + self.elements.tobytes() + self.tail)


def without_time(path):
    """The bytes of a song or tune file without the line that says when it was written."""
    with open(path, "rb") as file:
        data = file.read()
    begin = data.index(b"\r\nTime=") + 2
    return data[:begin] + data[data.index(b"\r\n", begin):]
