# SPDX-License-Identifier: GPL-3.0-or-later
from processes import expect, wait_for
from scenarios import scenario
from scenarios.steps import close, give_short_song


def place_of(window):
    return window.x, window.y, window.width, window.height


def wait_for_place(program, place):
    wait_for(f"the window at {place}", lambda: place_of(program.wait_for_window("MainFrm")) == place)


FULL = (0, 0, 1920, 1080)
NORMAL = (192, 108, 1536, 864)


def start_in_normal_place(desk):
    """The first start shows the window maximised; restored, it is in the middle with four fifths of the screen."""
    program = desk.start()
    wait_for_place(program, FULL)
    program.click("RestoreImgBtn")
    wait_for_place(program, NORMAL)
    return program


@scenario()
def MoveAndResize(desk):
    """The title band moves the window, an edge resizes it, and the next start restores its place."""
    give_short_song(desk)
    program = start_in_normal_place(desk)
    x, y, width, height = NORMAL
    band = program.wait_for("MainTitlePic")
    grip = band.at(band.width // 2, band.height // 2)
    desk.mouse.drag([(grip[0] - step, grip[1] + step) for step in range(0, 61, 4)])
    x, y = x - 60, y + 60
    wait_for_place(program, (x, y, width, height))
    edge = (x + width - 2, y + height // 2)
    desk.mouse.drag([(edge[0] - step, edge[1]) for step in range(0, 101, 4)])
    width -= 100
    wait_for_place(program, (x, y, width, height))
    edge = (x + width // 2, y + height - 2)
    desk.mouse.drag([(edge[0], edge[1] - step) for step in range(0, 51, 2)])
    height -= 50
    wait_for_place(program, (x, y, width, height))
    close(program)
    program = desk.start()
    wait_for_place(program, (x, y, width, height))
    close(program)


@scenario()
def MaximizeAndMinimize(desk):
    """A double click on the title band and the window's buttons do what they do in other windows."""
    give_short_song(desk)
    program = start_in_normal_place(desk)
    number = program.wait_for_window("MainFrm").told["id"]
    band = program.wait_for("MainTitlePic")
    desk.mouse.click(band.middle, times=2)
    wait_for_place(program, FULL)
    expect("MAXIMIZED_VERT" in desk.screen.property("_NET_WM_STATE", number),
           "the window manager does not know that the window is maximised")
    program.click("RestoreImgBtn")
    wait_for_place(program, NORMAL)
    program.click("MaximizeImgBtn")
    wait_for_place(program, FULL)
    band = program.wait_for("MainTitlePic")
    desk.mouse.click(band.middle, times=2)
    wait_for_place(program, NORMAL)
    program.click("MinimizeImgBtn")
    wait_for("the minimised window", lambda: "Iconic" in desk.screen.property("WM_STATE", number))
    desk.screen.xdotool("windowactivate", number)
    wait_for("the window again", lambda: "Normal" in desk.screen.property("WM_STATE", number))
    wait_for_place(program, NORMAL)
    program.click("MaximizeImgBtn")
    wait_for_place(program, FULL)
    close(program)
    program = desk.start()
    wait_for_place(program, FULL)
    program.click("RestoreImgBtn")
    wait_for_place(program, NORMAL)
    close(program)
