# SPDX-License-Identifier: GPL-3.0-or-later
import os
import random
import time

from processes import expect, wait_for
from songs import SongFile
from scenarios import scenario
from scenarios.steps import (cell_place, close, expect_recording_of, expect_render_of_saved, give_short_song, open_song,
                             play, stop, stroke, ROW_HEIGHT, ROW_MIDDLE, SHORT_CELLS,
                             SHORT_SONG)


@scenario()
def PlayWholeSong(desk):
    """A library song, chosen in the song window, is heard sample for sample; the marker moves along and disappears."""
    program = desk.start()
    open_song(program, "Parade")
    open_song(program, "Zumi")
    recording = play(desk, program)
    places = [program.wait_for("PlayPosImg0").x]
    wait_for("the marker's next place", lambda: program.wait_for("PlayPosImg0").x > places[0] + 30)
    program.wait_for("SoundStatusLbl", "Playing All")
    frames = expect_recording_of(desk, program, recording, desk.song("Zumi"))
    expect(program.find("PlayPosImg0") is None, "the marker stands on the canvas though nothing plays")
    close(program)
    return f"{frames} frames are equal"


@scenario()
def PlayShortSong(desk, times=2):
    """A song played repeatedly is heard sample for sample each time."""
    give_short_song(desk)
    program = desk.start()
    open_song(program, SHORT_SONG)
    for _ in range(times):
        recording = play(desk, program)
        expect_recording_of(desk, program, recording, desk.song(SHORT_SONG))
    close(program)
    return f"{times} of {times} recordings are equal"


@scenario()
def PaintAndPlay(desk):
    """What the mouse paints and erases is heard and saved."""
    give_short_song(desk)
    program = desk.start()
    open_song(program, SHORT_SONG)
    stroke(program, 3, 5, 40)
    stroke(program, 1, 30, 20, tool="EraserBtn")
    stop(desk, program)
    expect_render_of_saved(desk, program, "Painted")
    song = SongFile(desk.song("Painted"))
    expect(song.painted(3) == list(range(5, 41)), f"track 3 was painted from 5 to 40, saved are {song.painted(3)}")
    left = [*range(1, 20), *range(31, SHORT_CELLS + 1)]
    expect(song.painted(1) == left, f"track 1 was erased from 20 to 30, saved are {song.painted(1)}")
    close(program)


@scenario()
def TakeStrokeBack(desk):
    """Dragging a stroke back restores what was painted before it."""
    give_short_song(desk)
    program = desk.start()
    open_song(program, SHORT_SONG)
    canvas = program.wait_for("TrackPic")
    before = SongFile(desk.song(SHORT_SONG))
    cells = [*range(28, 61), *range(59, 39, -1)]
    desk.mouse.drag([cell_place(canvas, 1, cell) for cell in cells])
    stop(desk, program)
    expect_render_of_saved(desk, program, "Back")
    song = SongFile(desk.song("Back"))
    expect(song.painted(1) == list(range(1, 41)), f"40 cells should be painted, saved are {song.painted(1)}")
    expect(song.painted(2) == before.painted(2), "the track below was painted too")
    close(program)


@scenario()
def ChangeTempo(desk):
    """Dragging the slider changes what is heard, shown and saved."""
    give_short_song(desk)
    program = desk.start()
    open_song(program, SHORT_SONG)
    shown = program.text_of("TempoLbl")
    pointer = program.wait_for("TempoPrtImg")
    x, y = pointer.middle
    desk.mouse.drag([(x + step, y) for step in range(0, 31, 3)])
    wait_for("another tempo", lambda: program.text_of("TempoLbl") != shown)
    expect_render_of_saved(desk, program, "Faster")
    percent = int(program.text_of("TempoLbl").rstrip("%"))
    tempo = SongFile(desk.song("Faster")).tempo
    expect(tempo == round(percent * 320 / 100), f"the tempo is shown as {percent} %, saved as {tempo} cells a minute")
    seconds = program.text_of("SngDurLbl")
    expect(seconds == f"{round(60 / tempo * 1280)} sec", f"the song's duration is shown as {seconds}")
    close(program)


@scenario()
def SoundServerDies(desk):
    """If the sound server dies the play ends; when it is back, the next play is heard completely."""
    give_short_song(desk)
    program = desk.start()
    open_song(program, SHORT_SONG)
    recording = play(desk, program)
    wait_for("the sound", recording.sounds)
    desk.sound.kill()
    program.wait_for("SoundStatusLbl", "Done", seconds=5)
    desk.sound.start()
    recording = play(desk, program)
    expect_recording_of(desk, program, recording, desk.song(SHORT_SONG))
    close(program)


@scenario()
def StopAndPlayFromCell(desk):
    """Stop takes effect at once, and a click on the time band plays from there."""
    give_short_song(desk)
    program = desk.start()
    open_song(program, SHORT_SONG)
    recording = play(desk, program)
    wait_for("the sound", recording.sounds)
    program.click("PlayStopBtn")
    program.wait_for("SoundStatusLbl", "Done")
    wait_for("silence", lambda: recording.is_quiet(0.3))
    recording.stop()
    canvas = program.wait_for("TrackPic")
    cell = SHORT_CELLS // 2
    recording = desk.sound.record()
    desk.mouse.click(canvas.at((cell - 1) * 3, 8))
    recording.expect_wave(desk.render(desk.song(SHORT_SONG), "--from", cell))
    close(program)


@scenario()
def HearTracks(desk):
    """Resting the pointer on a tune's picture plays the tune; the button beside it plays the track."""
    give_short_song(desk)
    program = desk.start()
    open_song(program, SHORT_SONG)
    strip = program.wait_for("TrackTitlePic")
    tune, tempo = desk.info(desk.song(SHORT_SONG))["song"]["tracks"][1]["tune"], SongFile(desk.song(SHORT_SONG)).tempo
    recording = desk.sound.record()
    desk.mouse.move(strip.at(40, ROW_HEIGHT + ROW_MIDDLE))
    program.wait_for("SoundStatusLbl", "Playing Star")
    # A pointer that stays plays the tune again when its time is over, even if a busy machine is behind with the sound.
    desk.mouse.move(program.wait_for("SngTitleLbl").middle)
    recording.expect_wave(desk.cycle(os.path.join(desk.tunes, tune["name"] + ".TqTun"), tempo))
    recording.stop()
    desk.mouse.move(strip.at(110, ROW_HEIGHT + ROW_MIDDLE))
    program.wait_for("TrackPlayBtn")
    stop(desk, program)
    desk.mouse.move(strip.at(110, ROW_HEIGHT + ROW_MIDDLE))
    recording = desk.sound.record()
    program.click("TrackPlayBtn")
    program.wait_for("SoundStatusLbl", "Playing Track 2")
    recording.expect_wave(desk.render(desk.song(SHORT_SONG), "--track", 2))
    program.wait_for("SoundStatusLbl", "Done")
    close(program)


def PaintWhilePlaying(desk, seconds=300):
    """A long song is heard completely while strokes are painted all the time: they wait for the next play."""
    give_short_song(desk, cells=608, name="Long")
    program = desk.start()
    open_song(program, "Long")
    wave = desk.render(desk.song("Long"))
    wave_seconds = len(wave) / 4 / 44100
    source = random.Random(1)
    canvas = program.wait_for("TrackPic")
    end = time.monotonic() + seconds
    plays = strokes = 0
    while time.monotonic() < end:
        recording = play(desk, program)
        wait_for("the sound", recording.sounds)
        played = time.monotonic() + wave_seconds - 3
        while time.monotonic() < played:
            if strokes % 10 == 0:
                program.click(("BrushBtn", "EraserBtn")[strokes // 10 % 2])
            track, first, last = source.randint(1, 9), source.randint(1, 400), source.randint(1, 400)
            step = 1 if last >= first else -1
            desk.mouse.drag([cell_place(canvas, track, cell) for cell in range(first, last + step, 4 * step)])
            strokes += 1
        recording.expect_wave(wave)
        recording.stop()
        program.wait_for("SoundStatusLbl", "Done")
        plays += 1
        open_song_discarding(program, "Long")
    return f"{plays} plays of {wave_seconds:.0f} s are equal, {strokes} strokes were painted meanwhile"


def open_song_discarding(program, name):
    program.click("OpenBtn")
    program.click("NoBtn", form="SaveConfirmFrm")
    program.click_row("SngNmLst", name, form="SongSelFrm")
    program.click("OkBtn", form="SongSelFrm")
    program.wait_until_gone("SongSelFrm")
