# SPDX-License-Identifier: GPL-3.0-or-later
"""What most scenarios do: open, paint, play, save."""
import os

from processes import expect, wait_for
from songs import SongFile

CELL_WIDTH = 3
ROW_HEIGHT = 46
FIRST_ROW_TOP = 20
PAINTED_TOP = 7
ROW_MIDDLE = FIRST_ROW_TOP + PAINTED_TOP + 16

# The cells of the short song, which is the beginning of a library song.
SHORT_CELLS = 32
SHORT_SONG = "Hop"


def give_short_song(desk, source="Zumi", cells=SHORT_CELLS, name=SHORT_SONG):
    """Puts a song with few cells into the user's folder before the program starts for the first time."""
    song = SongFile(os.path.join(desk.program_folder, "Sprout", "Songs", source + ".TqSng"))
    song.keep_cells(1, cells)
    os.makedirs(desk.songs, exist_ok=True)
    song.write(desk.song(name))


def open_song(program, name):
    program.click("OpenBtn")
    program.click_row("SngNmLst", name, form="SongSelFrm")
    program.click("OkBtn", form="SongSelFrm")
    program.wait_until_gone("SongSelFrm")
    program.wait_for("SngTitleLbl", name)


def save_song(program, name=None):
    """Saves under the current name, or another."""
    program.click("SaveBtn")
    if name:
        program.type_into("SongNameTxt", name, form="SongSelFrm")
    saved = name or program.text_of("SongNameTxt")
    program.click("OkBtn", form="SongSelFrm")
    program.wait_for("NoteLbl", f'Your song "{saved}" is saved.')
    program.click("OkBtn", form="Msg1BtnFrm")
    program.wait_until_gone("Msg1BtnFrm")
    program.wait_for("SngTitleLbl", saved)


def close(program):
    """Closes a program whose song is saved."""
    program.click("CloseImgBtn")
    status = program.wait_for_end()
    expect(status == 0, f"the program ended with {status}")


def cell_place(canvas, track, cell):
    """Where a cell is on the screen while the canvas shows the song's beginning."""
    return canvas.at((cell - 1) * CELL_WIDTH, (track - 1) * ROW_HEIGHT + ROW_MIDDLE)


def stroke(program, track, first, last, tool="BrushBtn"):
    """Drags a tool over the cells of a track, cell by cell."""
    program.click(tool)
    canvas = program.wait_for("TrackPic")
    step = 1 if last >= first else -1
    program.desk.mouse.drag([cell_place(canvas, track, cell) for cell in range(first, last + step, step)])


def play(desk, program):
    """Presses Play All and returns a recording of what sounds then."""
    recording = desk.sound.record()
    program.click("PlayAllBtn")
    return recording


def wait_until_quiet(desk):
    recording = desk.sound.record()
    wait_for("silence", lambda: recording.is_quiet(0.3))
    recording.stop()


def stop(desk, program):
    """Presses Stop and waits for silence: a stroke plays its tune."""
    program.click("PlayStopBtn")
    wait_until_quiet(desk)


def expect_recording_of(desk, program, recording, song):
    """The recording is the render of a song file, and the program notices the end."""
    wave = desk.render(song)
    recording.expect_wave(wave)
    recording.stop()
    program.wait_for("SoundStatusLbl", "Done")
    return len(wave) // 4


def expect_render_of_saved(desk, program, name):
    """Plays what the window shows, saves it, and checks that the saved song is what was heard."""
    recording = play(desk, program)
    wait_for("the sound", recording.sounds)
    save_song(program, name)
    expect_recording_of(desk, program, recording, desk.song(name))
