# SPDX-License-Identifier: GPL-3.0-or-later
import os
import resource

from processes import wait_for
from scenarios import scenario
from scenarios.playing import open_song_discarding
from scenarios.sharing import save_as_sound
from scenarios.steps import close, expect_recording_of, give_short_song, open_song, play, SHORT_SONG
from scenarios.tunes import click_step, leave_tune_window, ICON_Y, LAMP_Y

# The memory that the program may use beyond what its open windows need.
ROOM = 120 << 20
LONG_SONGS = ("Zumi", "Parade", "Sunny Street")
WHOLE_SONG = 1280
MESSAGES = ("Msg1BtnFrm", "Msg1Btn2NoteFrm", "PlainBoxFrm")


def address_space(program):
    """The size of the program's address space, in bytes."""
    with open(f"/proc/{program.process.pid}/status", encoding="ascii") as status:
        return next(int(line.split()[1]) << 10 for line in status if line.startswith("VmSize:"))


def open_all_windows(desk, program):
    """Opens the tune window and the beat window above it; returns what the program needs with them."""
    program.click("TrackAddBtn")
    program.wait_for_window("TuneFrm2")
    program.click("NewTuneBtn", form="TuneFrm2")
    click_step(desk, program, 1, LAMP_Y)
    click_step(desk, program, 1, ICON_Y)
    program.wait_for_window("BeatWindow")
    needed = address_space(program)
    program.click("CancelBtn", form="BeatWindow")
    program.wait_until_gone("BeatWindow")
    leave_tune_window(program, "CancelBtn")
    return needed


def play_or_hear_why_not(program):
    """Presses Play All and waits until it sounds or a message says what is wrong; the message is closed."""
    program.click("PlayAllBtn")

    def answer():
        told = next((kind for kind in MESSAGES if program.find("OkBtn", form=kind)), None)
        return told or (program.find("SoundStatusLbl", "Playing All") and "play")
    kind = wait_for("a play or a message", answer, seconds=60)
    if kind in MESSAGES:
        program.click("OkBtn", form=kind)
        program.wait_until_gone(kind)


@scenario()
def LittleMemory(desk):
    """With 120 MB above what its windows need, the program opens, plays and saves, or says why not and goes on."""
    give_short_song(desk)
    for song in LONG_SONGS:
        give_short_song(desk, song, WHOLE_SONG, song)
    program = desk.start()
    open_song(program, SHORT_SONG)
    limit = open_all_windows(desk, program) + ROOM
    resource.prlimit(program.process.pid, resource.RLIMIT_AS, (limit, limit))
    open_song_discarding(program, SHORT_SONG)  # the new track is gone, and was a change
    for song in LONG_SONGS:
        open_song(program, song)
        play_or_hear_why_not(program)
        program.click("PlayStopBtn")
    open_song(program, SHORT_SONG)
    expect_recording_of(desk, program, play(desk, program), desk.song(SHORT_SONG))
    save_as_sound(program, "wav", os.path.join(desk.home, "Little.wav"))
    close(program)
    return f"the program had {limit >> 20} MB"
