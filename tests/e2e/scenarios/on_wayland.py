# SPDX-License-Identifier: GPL-3.0-or-later
"""The program on a Wayland desktop, where no window knows or chooses its place."""
import os

from processes import expect, wait_for
from scenarios import scenario
from scenarios.playing import PaintAndPlay
from scenarios.saving import AskBeforeClosing, UseKeysAlone
from scenarios.starting import ENTRY
from scenarios.steps import cell_place, close, give_short_song, open_song, stroke, SHORT_SONG
from scenarios.tunes import (MakeSongOfTunes, choose_tune, end_without_saving, leave_tune_window, LAMP_Y, STEPS_LEFT,
                             STEP_WIDTH)
from scenarios.window import place_of

PAINTED = (24, 20)  # the size of a part of a track's paint


@scenario(wayland=True)
def PaintAndPlayOnWayland(desk):
    """What the mouse paints and erases on a Wayland desktop is heard and saved."""
    PaintAndPlay(desk)


@scenario(wayland=True)
def MakeSongOfTunesOnWayland(desk):
    """Tunes chosen and changed in the tune window on a Wayland desktop are heard as they are saved."""
    MakeSongOfTunes(desk)


@scenario(wayland=True, sound=False)
def AskBeforeClosingOnWayland(desk):
    """Closing asks about a changed song on a Wayland desktop, whoever asks to close."""
    AskBeforeClosing(desk)


@scenario(wayland=True)
def UseKeysAloneOnWayland(desk):
    """A song is opened, painted, heard, saved and closed without a mouse on a Wayland desktop."""
    UseKeysAlone(desk)


@scenario(wayland=True, sound=False)
def ShowPaintOnWayland(desk):
    """A stroke changes the screen where it was painted, and the window belongs to the program's desktop entry."""
    give_short_song(desk)
    program = desk.start()
    (window,) = desk.screen.windows()
    entry = os.path.basename(ENTRY).removesuffix(".desktop")
    expect(window["app_id"] == entry, f"the window belongs to {window['app_id']}")
    open_song(program, SHORT_SONG)
    x, y = cell_place(program.wait_for("TrackPic"), 3, 10)
    area = (x, y - PAINTED[1] // 2)
    before = desk.screen.colours(area, PAINTED)
    stroke(program, 3, 5, 40)
    wait_for("the paint on the screen", lambda: desk.screen.colours(area, PAINTED) != before)
    stroke(program, 3, 5, 40, tool="EraserBtn")
    desk.mouse.move(program.wait_for("MainTitlePic").middle)  # a cell is outlined below the pointer
    wait_for("the track without paint", lambda: desk.screen.colours(area, PAINTED) == before)
    end_without_saving(program)


class Drag:
    """The pointer holds a window at a place. The desktop drags the window, at the request of the program."""

    def __init__(self, desk, program, kind, place, towards):
        """towards: a step of one pixel across and down."""
        self.desk, self.program, self.kind = desk, program, kind
        before, steps = self.window(), [20, 24]  # more than a click with an unsteady hand
        self.mouse = desk.mouse
        self.mouse.move(place)
        self.mouse.press()

        def has_begun():
            if self.window() != before:
                return True
            steps.reverse()
            self.at = tuple(start + steps[0] * step for start, step in zip(place, towards))
            self.mouse.move(self.at)
            return False

        wait_for("the desktop to drag the window", has_begun)

    def window(self):
        return place_of(self.program.wait_for_window(self.kind))

    def go(self, right, down, change):
        """Drags on and lets go. change: what this adds to the window's left, top, width and height for each pixel."""
        moved = (right, down, right, down)
        wanted = tuple(now + by * pixels for now, by, pixels in zip(self.window(), change, moved))
        self.mouse.move((self.at[0] + right, self.at[1] + down))
        wait_for(f"the window at {wanted}", lambda: self.window() == wanted)
        self.mouse.release()
        self.mouse.move((self.at[0], self.at[1]))
        expect(self.window() == wanted, "the window still follows the pointer")


def drag_by_band(desk, program, kind, place):
    Drag(desk, program, kind, place, (-1, 1)).go(-60, 60, change=(1, 1, 0, 0))


@scenario(wayland=True, sound=False)
def MoveAndResizeOnWayland(desk):
    """On a Wayland desktop, the title bands move the windows and the edges resize the main window; the next start
    restores its size."""
    give_short_song(desk)
    program = desk.start()
    drag_by_band(desk, program, "MainFrm", program.wait_for("MainTitlePic").middle)
    for place, towards, by, change in ((("right", "middle"), (-1, 0), (-100, 0), (0, 0, 1, 0)),
                                       (("middle", "bottom"), (0, -1), (0, -50), (0, 0, 0, 1)),
                                       (("left", "top"), (1, 1), (40, 30), (1, 1, -1, -1))):
        x, y, width, height = place_of(program.wait_for_window("MainFrm"))
        inside = {"left": 2, "top": 2, "right": width - 3, "bottom": height - 3}
        across, down = inside.get(place[0], width // 2), inside.get(place[1], height // 2)
        Drag(desk, program, "MainFrm", (x + across, y + down), towards).go(*by, change=change)
    program.click("SongTitleChgBtn")
    form = program.wait_for_window("SongTitleFrm")
    drag_by_band(desk, program, "SongTitleFrm", form.at(form.width // 2, 10))
    program.click("CancelBtn", form="SongTitleFrm")  # the first click after a drag counts
    program.wait_until_gone("SongTitleFrm")
    size = place_of(program.wait_for_window("MainFrm"))[2:]
    close(program)
    program = desk.start()
    wait_for("the size of the last time", lambda: place_of(program.wait_for_window("MainFrm"))[2:] == size)
    close(program)
    with open(desk.settings, encoding="utf-8") as settings:
        expect("Position" not in settings.read(), "a place was stored, though the program does not know it")


def choose_entry(desk, program, text):
    """Clicks an entry of the list or menu that opens."""
    def place():
        return next((widget.item(text) for widget in program.widgets() if widget.shown and widget.item(text)), None)
    desk.mouse.click(wait_for(f"the entry '{text}'", place))


def spoken_steps(program):
    return [widget.told["spoken"] for widget in program.widgets() if widget.kind == "StepFocus"]


@scenario(wayland=True, sound=False)
def ChooseFromMenusOnWayland(desk):
    """The list of step counts and the menu of a step open where they were asked for on a Wayland desktop."""
    program = desk.start()
    program.click("TrackAddBtn")
    program.wait_for_window("TuneFrm2")
    choose_tune(desk, program, 3, 2)
    program.click("StepNosCmb")
    choose_entry(desk, program, "8 Steps")
    program.wait_for("StepNosCmb", "8 Steps")
    expect(spoken_steps(program)[0].startswith("Step 1, on"), "the tune does not begin with a sound")
    desk.mouse.right_click(program.wait_for("TunFramPic").at(STEPS_LEFT + STEP_WIDTH // 2, LAMP_Y))
    choose_entry(desk, program, "Insert Step")
    wait_for("the inserted step", lambda: spoken_steps(program)[0].startswith("Step 1, off"))
    expect(spoken_steps(program)[1].startswith("Step 2, on"), "the step before is not beside the inserted one")
    leave_tune_window(program, "CancelBtn")
    end_without_saving(program)
