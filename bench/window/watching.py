# SPDX-License-Identifier: GPL-3.0-or-later
"""Helpers to measure the windows: the screen's memory, the processor time of a program, and rows of a table."""
import mmap
import os
import struct


class ScreenMemory:
    """What the X server shows, read from the file that it draws into, so watching it costs the server nothing."""

    def __init__(self, path):
        with open(path, "rb") as file:
            self.bytes = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        numbers = struct.unpack(">20I", self.bytes[:80])
        self.width, self.height, self.line_bytes = numbers[4], numbers[5], numbers[12]
        self.begin = numbers[0] + numbers[19] * 12

    def lines(self):
        """Every 16th line in the middle four fifths of the screen, where a window first appears."""
        left, right = self.width // 10 * 4, self.width * 9 // 10 * 4
        return b"".join(self.bytes[self.begin + y * self.line_bytes + left:self.begin + y * self.line_bytes + right]
                        for y in range(self.height // 10, self.height * 9 // 10, 16))

    def pixel(self, place):
        """The bytes of a pixel."""
        begin = self.begin + place[1] * self.line_bytes + place[0] * 4
        return self.bytes[begin:begin + 4]


def processor_seconds(process):
    with open(f"/proc/{process.pid}/stat", encoding="utf-8") as file:
        fields = file.read().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def print_row(name, measured, limit, what):
    print(f"{name:14} {measured:>10} {limit:>12}   {what}", flush=True)
