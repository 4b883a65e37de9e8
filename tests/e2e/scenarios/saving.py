# SPDX-License-Identifier: GPL-3.0-or-later
import os

from processes import expect
from songs import without_time
from scenarios import scenario
from scenarios.steps import close, give_short_song, open_song, save_song, stroke, SHORT_SONG


@scenario()
def SaveUnderNewName(desk):
    """A song saved under a new name, opened by another run of the program and saved again, is the same file."""
    give_short_song(desk)
    program = desk.start()
    open_song(program, SHORT_SONG)
    save_song(program, "My Garden")
    close(program)
    first = without_time(desk.song("My Garden"))
    told = desk.info(desk.song("My Garden"))

    program = desk.start()
    open_song(program, "My Garden")
    save_song(program)
    close(program)
    expect(without_time(desk.song("My Garden")) == first, "the file saved again differs")
    expect(desk.info(desk.song("My Garden")) == told, "the song saved again is another one")
    source = desk.info(desk.song(SHORT_SONG))["song"]
    expect({**told["song"], "title": source["title"]} == source, "the saved song is another one than the opened one")


@scenario()
def AskBeforeClosing(desk):
    """A changed song is asked about: cancel stays, no forgets, yes saves."""
    give_short_song(desk)
    program = desk.start()
    open_song(program, SHORT_SONG)
    before = without_time(desk.song(SHORT_SONG))
    stroke(program, 2, 40, 50)
    program.click("CloseImgBtn")
    program.wait_for("SongNameLbl", form="SaveConfirmFrm")
    program.click("Cancel_Btn", form="SaveConfirmFrm")
    program.wait_until_gone("SaveConfirmFrm")
    expect(program.process.poll() is None, "the program ended though its closing was cancelled")
    program.click("CloseImgBtn")
    program.click("NoBtn", form="SaveConfirmFrm")
    expect(program.wait_for_end() == 0, "the program did not end well")
    expect(without_time(desk.song(SHORT_SONG)) == before, "the song was saved though the answer was no")

    program = desk.start()
    open_song(program, SHORT_SONG)
    stroke(program, 2, 40, 50)
    desk.close_window(program.wait_for_window("MainFrm"))
    program.click("YesBtn", form="SaveConfirmFrm")
    expect(program.wait_for_end() == 0, "the program did not end well")
    expect(without_time(desk.song(SHORT_SONG)) != before, "the song was not saved though the answer was yes")
    left = [name for name in os.listdir(desk.songs) if not name.endswith(".TqSng")]
    expect(not left, f"files were left beside the songs: {left}")
