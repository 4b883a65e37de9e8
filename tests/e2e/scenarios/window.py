# SPDX-License-Identifier: GPL-3.0-or-later
from processes import expect, wait_for
from scenarios import scenario
from scenarios.steps import close, give_short_song


def place_of(window):
    return window.x, window.y, window.width, window.height


def wait_for_place(program, place):
    wait_for(f"the window at {place}", lambda: place_of(program.wait_for_window("MainFrm")) == place)


@scenario()
def MoveAndResize(desk):
    """The title band moves the window, an edge resizes it, and the next start finds its place again."""
    give_short_song(desk)
    program = desk.start()
    x, y, width, height = place_of(program.wait_for_window("MainFrm"))
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
    program = desk.start()
    window = program.wait_for_window("MainFrm")
    normal = place_of(window)
    full = (0, 0, 1920, 1080)
    band = program.wait_for("MainTitlePic")
    desk.mouse.click(band.middle, times=2)
    wait_for_place(program, full)
    expect("MAXIMIZED_VERT" in desk.screen.property("_NET_WM_STATE", window.told["id"]),
           "the window manager does not know that the window is maximised")
    program.click("RestoreImgBtn")
    wait_for_place(program, normal)
    program.click("MaximizeImgBtn")
    wait_for_place(program, full)
    band = program.wait_for("MainTitlePic")
    desk.mouse.click(band.middle, times=2)
    wait_for_place(program, normal)
    program.click("MinimizeImgBtn")
    number = window.told["id"]
    wait_for("the minimised window", lambda: "Iconic" in desk.screen.property("WM_STATE", number))
    desk.screen.xdotool("windowactivate", number)
    wait_for("the window again", lambda: "Normal" in desk.screen.property("WM_STATE", number))
    wait_for_place(program, normal)
    program.click("MaximizeImgBtn")
    wait_for_place(program, full)
    close(program)
    program = desk.start()
    wait_for_place(program, full)
    program.click("RestoreImgBtn")
    wait_for_place(program, normal)
    close(program)
