# SPDX-License-Identifier: GPL-3.0-or-later
import configparser
import os
import subprocess

from processes import expect, wait_for
from songs import SongFile
from scenarios import scenario
from scenarios.steps import close, give_short_song, open_song, save_song, stroke, SHORT_SONG

ENTRY = os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "..", "..", "packaging", "desktop",
                     "example.tonquill.sprout_painter.desktop")


@scenario()
def FirstStart(desk):
    """The first start fills the user's folder and opens the sample song."""
    program = desk.start()
    program.wait_for("SngTitleLbl", "Zumi")
    for folder in ("Beats", "Tunes", "Stars", "Songs"):
        installed = sorted(os.listdir(os.path.join(desk.program_folder, "Sprout", folder)))
        own = sorted(os.listdir(os.path.join(desk.user_root, folder)))
        expect(own == installed, f"{folder} was not copied whole")
    expect(program.text_of("SoundStatusLbl") == "Ready", "the sound is not ready")
    close(program)
    expect(os.path.exists(desk.settings), "no settings were written beside the program")


@scenario(sound=False, screen_size="800x600")
def WelcomeOnce(desk):
    """The very first start shows a card that covers no track; one click puts it away, and no other start shows it."""
    program = desk.start()
    card, canvas = program.wait_for("WelcomeCard"), program.wait_for("TrackPic")
    for covered in (canvas, *(program.wait_for(name) for name in ("TrackTitlePic", "StatusFramePic", "DemoBtn"))):
        expect(not card.overlaps(covered), f"the card lies over {covered.name}")
    desk.mouse.click(card.middle)
    wait_for("the end of the card", lambda: not program.find("WelcomeCard"))
    wait_for("the room of the card for the tracks", lambda: program.find("TrackPic").height > canvas.height)
    close(program)
    with open(desk.settings, encoding="utf-8") as settings:
        expect("WelcomeShown=1" in settings.read(), "it was not noted that the card was shown")
    program = desk.start()
    program.wait_for("SngTitleLbl", "Zumi")
    expect(not program.find("WelcomeCard"), "the second start shows the card")
    close(program)


@scenario(sound=False)
def SpeakAMadeUpLanguage(desk):
    """With the setting for translators, what the window says has accents; names from the disk stay."""
    with open(desk.settings, "w", encoding="utf-8") as settings:
        settings.write("[General]\nPseudoLanguage=1\n")
    program = desk.start()
    program.wait_for("SngTitleLbl", "Zumi")
    program.wait_for("SoundStatusLbl")
    status = program.text_of("SoundStatusLbl")
    expect(status.startswith("[") and not status.isascii(), f"the status says '{status}'")
    close(program)


@scenario(sound=False)
def OpenedByTheDesktop(desk):
    """A song on the command line is opened, and the window belongs to the program's desktop entry."""
    give_short_song(desk)
    gift = os.path.join(desk.folder, "Gift.TqSng")
    os.rename(desk.song(SHORT_SONG), gift)
    program = desk.start(arguments=[gift])
    program.wait_for("SngTitleLbl", "Gift")
    entry = configparser.ConfigParser(interpolation=None)
    entry.read(ENTRY)
    (window,) = desk.windows()
    told = desk.screen.property("WM_CLASS", window)
    expect(f'"{entry["Desktop Entry"]["StartupWMClass"]}"' in told, f"the window says {told}")
    close(program)


@scenario()
def NoDisplay(desk):
    """Without a display the program says so in one sentence and exits with 1."""
    for display in (None, ":60000"):
        environment = desk.environment(DISPLAY=display, QT_QPA_PLATFORM=None, QT_QPA_GENERIC_PLUGINS=None)
        done = subprocess.run([desk.executable], env=environment, text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, timeout=20, check=False)
        expect(done.returncode == 1, f"without a display the program ended with {done.returncode}")
        told = done.stderr.strip()
        expect(told.endswith(".") and len(told.splitlines()) == 1, f"without a display the program told '{told}'")


@scenario(sound=False)
def NoSoundServer(desk):
    """Without a sound device the window says so, and the first play says what to do; songs can be painted and saved."""
    give_short_song(desk)
    program = desk.start(ALSA_CONFIG_PATH="/dev/null")  # the machine's own devices do not count
    program.wait_for("SoundStatusLbl", "Device Failed:")
    open_song(program, SHORT_SONG)
    stroke(program, 3, 5, 20)
    program.click("PlayAllBtn")
    program.wait_for("NoteLbl1", "I cannot find a loudspeaker to play your music on.", form="Msg1Btn2NoteFrm")
    program.click("OkBtn", form="Msg1Btn2NoteFrm")
    program.wait_until_gone("Msg1Btn2NoteFrm")
    program.click("PlayAllBtn")  # the second play says nothing
    save_song(program, "Silent")
    expect(SongFile(desk.song("Silent")).painted(3) == list(range(5, 21)), "the stroke was not saved")
    close(program)


def expect_to_fit(desk, program, kind, least_buttons):
    """A window is on the screen, and none of its buttons is cut or overlaps another."""
    program.wait_for_window(kind)
    widgets = program.widgets()
    window = next(widget for widget in widgets if widget.kind == kind)
    width, height = desk.screen.size
    expect(window.x >= 0 and window.y >= 0 and window.x + window.width <= width and
           window.y + window.height <= height, f"{kind} reaches out of the screen: {window.told}")
    # The track buttons move with the tracks, the button of all steps with the steps.
    buttons = [widget for widget in widgets
               if widget.kind == "ImageButton" and widget.told["window"] == window.told["window"] and
               not widget.name.startswith("Track") and widget.name != "ChangeAllBtn"]
    expect(len(buttons) >= least_buttons, f"only {len(buttons)} buttons of {kind} can be seen")
    for number, button in enumerate(buttons):
        expect(button.told["whole"], f"{button.name} of {kind} is cut")
        for other in buttons[:number]:
            expect(not button.overlaps(other), f"{button.name} lies over {other.name}")


@scenario(screen_size="800x600")
def SmallScreen(desk):
    """On a small screen all windows fit, and no button overlaps another or lies outside."""
    give_short_song(desk)
    program = desk.start()
    expect_to_fit(desk, program, "MainFrm", 16)
    for button, form, least_buttons in (("OpenBtn", "SongSelFrm", 6), ("SaveBtn", "SongSelFrm", 6),
                                        ("SongTitleChgBtn", "SongTitleFrm", 2), ("TrackAddBtn", "TuneFrm2", 8)):
        program.click(button, form="MainFrm")
        expect_to_fit(desk, program, form, least_buttons)
        program.click("CancelBtn", form=form)
        program.wait_until_gone(form)
    program.click("CloseImgBtn")
    expect_to_fit(desk, program, "SaveConfirmFrm", 3)
    program.click("NoBtn", form="SaveConfirmFrm")
    expect(program.wait_for_end() == 0, "the program did not end well")
