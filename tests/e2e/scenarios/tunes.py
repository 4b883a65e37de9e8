# SPDX-License-Identifier: GPL-3.0-or-later
import os

from processes import expect, wait_for
from scenarios import scenario
from scenarios.steps import expect_render_of_saved, give_short_song, stop, stroke

# The grid of tunes or beats, see the tune window and the beat window.
PICTURE_CELL = 40
TUNE_COLUMNS = 18
# The step editor.
STEP_WIDTH = 35
STEPS_LEFT = 8
LAMP_Y = 31
ICON_Y = 95
UPPER_OCTAVE_TOP = 141
LOWER_OCTAVE_TOP = 213
# Rows of white keys in an octave, by their pitch in the upper one.
KEY_ROWS = {0: 70, 4: 45, 7: 28, 11: 3}


def grid_place(program, column, row, form):
    return program.wait_for("ShowAllPic", form=form).at((column - 1) * PICTURE_CELL + 20, (row - 1) * PICTURE_CELL + 20)


def choose_tune(desk, program, column, row):
    """Chooses a tune of the grid and returns its name once the editor shows it."""
    before = program.text_of("TuneNameLbl")
    desk.mouse.click(grid_place(program, column, row, "TuneFrm2"))
    wait_for("another tune", lambda: program.text_of("TuneNameLbl") != before)
    # While only the grid shows a tune, a word stands before its author.
    wait_for("the tune in the editor", lambda: not program.text_of("CreatedByLbl").startswith("By: "))
    return program.text_of("TuneNameLbl")


def click_step(desk, program, step, y, right=15):
    editor = program.wait_for("TunFramPic")
    desk.mouse.click(editor.at((step - 1) * STEP_WIDTH + STEPS_LEFT + right, y))


def click_key(desk, program, step, pitch):
    top = UPPER_OCTAVE_TOP if pitch >= 0 else LOWER_OCTAVE_TOP
    click_step(desk, program, step, top + KEY_ROWS[pitch % 12], right=24)


def choose_beat(desk, program, step, column, row):
    click_step(desk, program, step, ICON_Y)
    program.wait_for_window("BeatWindow")
    before = program.text_of("NmLbl")
    desk.mouse.click(grid_place(program, column, row, "BeatWindow"))
    wait_for("another beat", lambda: program.text_of("NmLbl") != before)
    name = program.text_of("NmLbl")
    program.click("OkBtn", form="BeatWindow")
    program.wait_until_gone("BeatWindow")
    return name


def save_tune(program, name, author):
    program.click("SaveTuneBtn")
    program.type_into("NameTxt", name, form="TuneNameFrm")
    program.type_into("CreatedTxt", author, form="TuneNameFrm")
    program.click("OkBtn", form="TuneNameFrm")
    program.wait_until_gone("TuneNameFrm")
    program.wait_for("TuneNameLbl", name)


def leave_tune_window(program, button):
    program.click(button, form="TuneFrm2")
    program.wait_until_gone("TuneFrm2")


def end_without_saving(program):
    program.click("CloseImgBtn")
    program.click("NoBtn", form="SaveConfirmFrm")
    expect(program.wait_for_end() == 0, "the program did not end well")


def steps_of(desk, path):
    return desk.info(path)["tune"]["steps"]


@scenario()
def MakeSongOfTunes(desk):
    """Tunes chosen from the grid and changed step by step are heard as they are saved, and are in the grid at the next
    start."""
    give_short_song(desk)
    program = desk.start()
    program.wait_for("SngTitleLbl", "Untitled")
    program.click("TrackAddBtn")
    program.wait_for_window("TuneFrm2")
    plain = choose_tune(desk, program, 4, 1)
    leave_tune_window(program, "OkBtn")

    program.click("TrackAddBtn")
    program.wait_for_window("TuneFrm2")
    name = choose_tune(desk, program, 3, 2)
    before = steps_of(desk, os.path.join(desk.tunes, name + ".TqTun"))
    on = next(number for number, step in enumerate(before, 1) if step["on"])
    off = next(number for number, step in enumerate(before, 1) if not step["on"])
    click_step(desk, program, off, LAMP_Y)
    beat = choose_beat(desk, program, off, 5, 2)
    click_key(desk, program, on, 4)
    click_key(desk, program, off, -5)
    save_tune(program, "Nora's tune", "Nora")
    leave_tune_window(program, "OkBtn")

    stop(desk, program)
    stroke(program, 3, 1, 32)
    stroke(program, 4, 9, 40)
    stop(desk, program)
    expect_render_of_saved(desk, program, "Two tunes")
    check_song(desk, plain, on, off, beat)
    program.click("CloseImgBtn")
    program.wait_for_end()
    find_tune_in_grid(desk)


def check_song(desk, plain, on, off, beat):
    song = desk.info(desk.song("Two tunes"))["song"]
    third, fourth = song["tracks"][2:4]
    expect(third["tune"]["name"] == plain and third["painted"] == [[1, 32]], "track 3 is another one than chosen")
    expect(fourth["tune"]["name"] == "Nora's tune" and fourth["painted"] == [[9, 40]], "track 4 is another one")
    steps = fourth["tune"]["steps"]
    expect(steps[on - 1]["pitch_shift"] == 4, f"the key of step {on} was not taken")
    expect(steps[off - 1]["on"] and steps[off - 1]["pitch_shift"] == -5, f"the lamp or key of step {off} was not taken")
    chosen = song["beats"][steps[off - 1]["beat_index"] - 1]["name"]
    # The window shows a beat's name without the letter of its family.
    expect(chosen.lower()[2:] == beat.lower(), f"step {off} got the beat {chosen}, chosen was {beat}")


def find_tune_in_grid(desk):
    """A saved tune comes after all others."""
    program = desk.start()
    program.click("TrackAddBtn")
    program.wait_for_window("TuneFrm2")
    last = sum(name.endswith(".TqTun") for name in os.listdir(desk.tunes)) - 1
    name = choose_tune(desk, program, last % TUNE_COLUMNS + 1, last // TUNE_COLUMNS + 1)
    expect(name == "Nora's tune", f"the last tune of the grid is {name}")
    expect(program.text_of("CreatedByLbl") == "Nora", "the tune is somebody else's")
    leave_tune_window(program, "CancelBtn")
    end_without_saving(program)
