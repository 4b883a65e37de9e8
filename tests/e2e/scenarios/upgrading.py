# SPDX-License-Identifier: GPL-3.0-or-later
import os
import shutil

from processes import expect, wait_for
from scenarios import scenario
from scenarios.steps import close, open_song, save_song, stroke
from scenarios.tunes import (TUNE_COLUMNS, choose_beat, choose_tune, end_without_saving, leave_tune_window, save_tune,
                             steps_of)

STARTS = ".SproutStarts"
LIST = ".SproutLibrary"
KIND = "MsgYesNoFrm"
OFFER = "There is something new for you. Do you want it?"
NEWS = "New tunes: Fizz, Wobble\nNew songs: Rain\nNew beats: Frog"
# The new things of the second library, and what they are made of.
NEW_FILES = {"Tunes/Fizz.TqTun": "Tunes/Fino.TqTun", "Tunes/Wobble.TqTun": "Tunes/Walla.TqTun",
             "Songs/Rain.TqSng": "Songs/Parade.TqSng", "Beats/F_Frog.wav": "Beats/F_Boing.wav",
             "Beats/F_Frog.bmp": "Beats/F_Boing.bmp"}
DELETED, CHANGED = "Tunes/Zappo.TqTun", "Tunes/Lumo.TqTun"


def read(*path):
    with open(os.path.join(*path), "rb") as file:
        return file.read()


def works(desk):
    """Every file of the user with its bytes, except what the program notes about itself."""
    found = {}
    for place, _, names in os.walk(desk.user_root):
        for name in names:
            if name not in (STARTS, LIST):
                path = os.path.join(place, name)
                found[os.path.relpath(path, desk.user_root)] = read(path)
    return found


def use_first_version(desk):
    """Saves a song and a tune, brings a beat along, deletes a tune and changes a setting."""
    with open(desk.settings, "w", encoding="utf-8") as settings:
        settings.write("[General]\nWelcomeShown=1\n[MainWindow]\nFollowPlay=0\n")
    program = desk.start()
    open_song(program, "Zumi")
    stroke(program, 1, 5, 20)
    save_song(program, "Mine")
    program.click("TrackAddBtn")
    program.wait_for_window("TuneFrm2")
    tune = choose_tune(desk, program, 3, 2)
    steps = steps_of(desk, os.path.join(desk.tunes, tune + ".TqTun"))
    choose_beat(desk, program, next(number for number, step in enumerate(steps, 1) if step["on"]), 5, 2)
    save_tune(program, "Nora's tune", "Nora")
    leave_tune_window(program, "CancelBtn")
    end_without_saving(program)
    for ending in (".wav", ".bmp"):
        shutil.copy(os.path.join(desk.user_root, "Beats", "F_Zap" + ending),
                    os.path.join(desk.user_root, "Beats", "Bell" + ending))
    os.remove(os.path.join(desk.user_root, DELETED))


def install_second_version(desk):
    """The library gets two tunes, a song and a beat more, and another version of a tune."""
    installed = os.path.join(desk.program_folder, "Sprout")
    built = os.path.realpath(installed)
    os.remove(installed)
    shutil.copytree(built, installed, ignore=shutil.ignore_patterns("DemoImages"))
    for file, source in {**NEW_FILES, CHANGED: "Tunes/Plim.TqTun"}.items():
        shutil.copy(os.path.join(built, source), os.path.join(installed, file))


def answer(program, news, button):
    program.wait_for("NoteLbl1", OFFER, form=KIND)
    program.wait_for("NoteLbl2", news, form=KIND)
    program.click(button, form=KIND)
    program.wait_until_gone(KIND)


def expect_no_offer(desk):
    program = desk.start()
    open_song(program, "Mine")  # a question would be in the way
    close(program)


def find_new_tunes(desk, program):
    """They come after all others."""
    program.click("TrackAddBtn")
    program.wait_for_window("TuneFrm2")
    count = sum(name.endswith(".TqTun") for name in os.listdir(desk.tunes))
    last = [choose_tune(desk, program, place % TUNE_COLUMNS + 1, place // TUNE_COLUMNS + 1)
            for place in (count - 2, count - 1)]
    expect(last == ["Fizz", "Wobble"], f"the last tunes of the grid are {last}")
    leave_tune_window(program, "CancelBtn")


@scenario()
def UpgradeTheLibrary(desk):
    """A new version changes nothing of the user's. What is new in its library is offered until it is answered, comes
    with a yes and stays away with a no."""
    use_first_version(desk)
    before = works(desk)
    expect({"Tunes/TqTunes.ini", "Beats/TqBeats.ini", "Songs/Mine.TqSng"} <= before.keys(), f"there is {list(before)}")
    install_second_version(desk)

    program = desk.start()
    program.wait_for("NoteLbl1", OFFER, form=KIND)
    program.process.terminate()
    expect(program.wait_for_end() == 0, "the program did not end well")
    expect(works(desk) == before, "a question that nobody answered changed something")

    program = desk.start()
    answer(program, NEWS, "YesBtn")
    wanted = {**before, **{file: read(desk.program_folder, "Sprout", file) for file in NEW_FILES}}
    wait_for("the new files", lambda: works(desk).keys() >= wanted.keys())
    after = works(desk)
    expect(after == wanted, f"changed: {[file for file in {*after, *wanted} if after.get(file) != wanted.get(file)]}")
    find_new_tunes(desk, program)
    end_without_saving(program)
    expect(b"FollowPlay=0" in read(desk.settings), "a setting is lost")

    shutil.copy(os.path.join(desk.program_folder, "Sprout", CHANGED),
                os.path.join(desk.program_folder, "Sprout", "Tunes", "Later.TqTun"))
    before = works(desk)
    program = desk.start()
    answer(program, "New tunes: Later", "NoBtn")
    open_song(program, "Mine")
    close(program)
    expect_no_offer(desk)
    expect(works(desk) == before, "a no changed something")
