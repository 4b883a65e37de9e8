# SPDX-License-Identifier: GPL-3.0-or-later
import os
import signal

from processes import expect, wait_for
from songs import SongFile, without_time
from scenarios import scenario
from scenarios.steps import (close, expect_recording_of, give_short_song, open_song, save_song, stroke,
                             wait_until_quiet, SHORT_SONG)


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
    """Closing asks about a changed song: cancel stays, no discards, yes saves."""
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


@scenario()
def KeepTheSongAtTheSystemsEnd(desk):
    """If the system ends the program, an unsaved song is kept beside the others; the next start says so."""
    give_short_song(desk)
    for number, ending in enumerate((signal.SIGTERM, signal.SIGHUP)):
        kept = SHORT_SONG + (" kept" if number == 0 else " kept 2")
        program = desk.start()
        open_song(program, SHORT_SONG)
        before = without_time(desk.song(SHORT_SONG))
        stroke(program, 2, 40, 50)
        if number == 1:  # while a window waits for its answer
            program.click("OpenBtn")
            program.wait_for("SongNameLbl", form="SaveConfirmFrm")
        program.process.send_signal(ending)
        expect(program.wait_for_end() == 0, "the program did not end well")
        expect(without_time(desk.song(SHORT_SONG)) == before, "the song's own file was changed")
        expect(set(range(40, 51)) <= set(SongFile(desk.song(kept)).painted(2)), f"{kept} lacks the last stroke")

        program = desk.start()
        told = program.wait_for("NoteLbl1", form="Msg1Btn2NoteFrm").text
        expect(told == f'What was not saved last time is kept as the song "{kept}"', f"the start told: {told}")
        expect(program.text_of("NoteLbl2") == f"in the folder {desk.songs}/", "the start did not tell the folder")
        program.click("OkBtn", form="Msg1Btn2NoteFrm")
        program.wait_until_gone("Msg1Btn2NoteFrm")
        open_song(program, kept)
        program.process.send_signal(ending)
        expect(program.wait_for_end() == 0, "the program did not end well")
    expect(sorted(os.listdir(desk.songs)) == sorted(name + ".TqSng" for name in (SHORT_SONG, SHORT_SONG + " kept",
                                                                               SHORT_SONG + " kept 2")),
           f"the songs are {os.listdir(desk.songs)}")


def go_to(desk, program, name):
    """Presses Tab until a control has the focus."""
    def focused():
        if program.wait_for(name).told["focus"]:
            return True
        desk.keyboard.press("Tab")
        return False
    wait_for(f"the focus on {name}", focused)


@scenario()
def UseKeysAlone(desk):
    """A song is opened, painted, heard, saved and closed without a mouse."""
    give_short_song(desk)
    program = desk.start()
    desk.keyboard.press("ctrl+o")
    program.wait_for("SngNmLst", form="SongSelFrm")
    desk.keyboard.type(SHORT_SONG.lower())
    desk.keyboard.press("Return")
    program.wait_for("SngTitleLbl", SHORT_SONG)
    go_to(desk, program, "TrackPic")
    desk.keyboard.hold(["ctrl"], "Down", "Down", "Right", "Right", "Right")
    program.wait_for("TrackMouPosLbl", "4")
    desk.keyboard.hold(["ctrl", "shift"], *["Right"] * 8)
    program.wait_for("TrackMouPosLbl", "12")
    go_to(desk, program, "PlayStopBtn")
    desk.keyboard.press("space")
    wait_until_quiet(desk)
    recording = desk.sound.record()
    go_to(desk, program, "PlayAllBtn")
    desk.keyboard.press("space")
    wait_for("the sound", recording.sounds)
    desk.keyboard.press("ctrl+s")
    program.wait_for("SongNameTxt", SHORT_SONG)
    desk.keyboard.press("Return")
    program.wait_for("NoteLbl", f'Your song "{SHORT_SONG}" is saved.')
    desk.keyboard.press("Return")
    program.wait_until_gone("Msg1BtnFrm")
    expect_recording_of(desk, program, recording, desk.song(SHORT_SONG))
    painted = SongFile(desk.song(SHORT_SONG)).painted(3)
    expect(painted == list(range(4, 13)), f"track 3 was painted from 4 to 12, saved are {painted}")
    desk.keyboard.press("alt+F4")
    expect(program.wait_for_end() == 0, "the program did not end well")
