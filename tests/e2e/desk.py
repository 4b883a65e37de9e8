# SPDX-License-Identifier: GPL-3.0-or-later
"""A desk for one test: an X server with a window manager, or a Wayland desktop, a mouse and a keyboard, a sound server,
and the program, installed in its own folder with its own home.

Controls are found by their names, which the running program reports through the plug-in in the folder widgets/;
everything done to them comes from the mouse and the keyboard of the desktop.
"""
import json
import os
import re
import shutil
import socket
import subprocess

from processes import Failure, expect, wait_for
from sound import SoundServer, read_wave
from wayland import WaylandKeyboard, WaylandMouse, WaylandScreen

PRODUCT = "Tonquill Sprout Painter"


class Screen:
    """An X server on a free display, with openbox."""

    def __init__(self, folder, processes, size="1920x1080"):
        self.size = tuple(map(int, size.split("x")))
        self.log = open(os.path.join(folder, "log"), "a", encoding="utf-8")
        own = os.path.join(folder, "screen")
        os.makedirs(own)
        readable, writable = os.pipe()
        # -fbdir: the contents of the screen can be read from a file without asking the server. -r: on a busy machine a
        # key is held longer than a user would, and would be repeated.
        self.server = processes.start(
            ["Xvfb", "-displayfd", str(writable), "-screen", "0", size + "x24", "-nolisten", "tcp", "-noreset", "-r",
             "-fbdir", own], pass_fds=(writable,), stderr=self.log)
        os.close(writable)
        with os.fdopen(readable) as pipe:
            number = pipe.readline().strip()
        expect(number, "the X server gave no display")
        self.picture_file = os.path.join(own, "Xvfb_screen0")
        self.display = ":" + number
        # What tells the program to come to this screen.
        self.for_program = {"DISPLAY": self.display, "QT_QPA_PLATFORM": "xcb", "WAYLAND_DISPLAY": None}
        self.environment = {**os.environ, "DISPLAY": self.display, "HOME": own, "XDG_CONFIG_HOME": own,
                            "XDG_CACHE_HOME": own, "XDG_DATA_HOME": own}
        processes.start(["openbox"], env=self.environment, stdout=self.log, stderr=self.log)
        wait_for("the window manager", lambda: "window id" in self.property("_NET_SUPPORTING_WM_CHECK"))

    def ask(self, *command):
        """Runs a client of the server and returns what it prints; an empty string if it fails."""
        return subprocess.run(command, env=self.environment, text=True, stdout=subprocess.PIPE, stderr=self.log,
                              check=False).stdout

    def property(self, name, window=None):
        return self.ask("xprop", *(["-id", str(window)] if window else ["-root"]), name)

    def xdotool(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.environment, stdout=self.log, stderr=self.log,
                       check=True)

    def shows(self, window):
        """Whether the server shows a window that the program reported, at the place that the program reported."""
        told = self.ask("xwininfo", "-id", str(window.told["id"]))
        place = [int(number) for number in re.findall(r"(?:Absolute upper-left [XY]|Width|Height): +(-?\d+)", told)]
        return place == [window.x, window.y, window.width, window.height] and "Map State: IsViewable" in told

    def place(self, widgets):
        """Under X the program knows where its windows are."""

    def close_window(self, window):
        """Makes the window manager close a window, as its menu does."""
        self.ask("wmctrl", "-i", "-c", hex(window.told["id"]))

    def take_picture(self, path):
        self.ask("import", "-window", "root", path)


class Mouse:
    def __init__(self, screen):
        self.screen = screen

    def move(self, place):
        self.screen.xdotool("mousemove", *place)

    def click(self, place, times=1):
        self.screen.xdotool("mousemove", *place, "click", "--repeat", times, "--delay", 60, 1)

    def drag(self, places):
        """Presses at the first place, moves through all of them and releases at the last."""
        words = []
        for place in places:
            words += ["mousemove", *place]
            if len(words) == 3:
                words += ["mousedown", 1]
        self.screen.xdotool(*words, "mouseup", 1)


class Keyboard:
    def __init__(self, screen):
        self.screen = screen

    def press(self, *keys):
        """Presses keys one after the other, for example "Return" or "ctrl+o"."""
        self.screen.xdotool("key", "--delay", 20, *keys)

    def type(self, text):
        self.screen.xdotool("type", "--delay", 5, text)

    def hold(self, held, *keys):
        """Presses keys while others are held down."""
        words = [word for key in held for word in ("keydown", key)]
        self.screen.xdotool(*words, "key", "--delay", 20, *keys, *[word for key in held for word in ("keyup", key)])


class Widget:
    """A control as it was when the program reported it."""

    def __init__(self, told):
        self.told = told
        self.name, self.kind, self.text = told["name"], told["kind"].split("::")[-1], told["text"]
        self.x, self.y, self.width, self.height = (told[key] for key in ("x", "y", "width", "height"))

    def at(self, x, y):
        """The place on the screen of a point inside the control."""
        return self.x + x, self.y + y

    @property
    def middle(self):
        return self.at(self.width // 2, self.height // 2)

    def item(self, text):
        """The middle of the row with this text, or None."""
        for row in self.told.get("items", []):
            if row["text"] == text:
                return row["x"] + min(row["width"] // 2, 60), row["y"] + row["height"] // 2
        return None

    def overlaps(self, other):
        return self.x < other.x + other.width and other.x < self.x + self.width and \
            self.y < other.y + other.height and other.y < self.y + self.height

    @property
    def items(self):
        return [row["text"] for row in self.told.get("items", [])]

    def shift(self, x, y):
        for place in (self.told, *self.told.get("items", [])):
            place["x"] += x
            place["y"] += y
        self.x, self.y = self.told["x"], self.told["y"]


class Program:
    """One run of the program."""

    def __init__(self, desk, environment, name="program", arguments=()):
        self.desk = desk
        self.socket = os.path.join(desk.folder, name + ".widgets")
        if os.path.exists(self.socket):
            os.remove(self.socket)
        self.errors = os.path.join(desk.folder, name + ".errors")
        with open(self.errors, "w", encoding="utf-8") as errors:
            self.process = desk.processes.start([desk.executable, *arguments],
                                                env={**environment, "SPROUT_WIDGETS": self.socket},
                                                cwd=desk.folder, stdout=errors, stderr=errors)

    def report(self, seconds=60):
        """Everything the program shows, reported by the plug-in; it answers when the program waits for its user."""
        with socket.socket(socket.AF_UNIX) as connection:
            connection.settimeout(seconds)
            connection.connect(self.socket)
            parts = []
            while part := connection.recv(1 << 16):
                parts.append(part)
        return json.loads(b"".join(parts))

    def try_report(self):
        if self.process.poll() is not None:
            raise Failure(f"the program ended with {self.process.returncode}: {self.told_errors()}")
        try:
            return self.report()
        except (ConnectionRefusedError, ConnectionResetError, FileNotFoundError, ValueError):
            return None
        except TimeoutError:
            raise Failure("the program did not answer within 60 s") from None

    def told_errors(self):
        with open(self.errors, encoding="utf-8", errors="replace") as errors:
            return errors.read().strip()

    def widgets(self):
        report = self.try_report()
        found = [Widget(told) for told in report["widgets"]] if report else []
        self.desk.screen.place(found)
        return found

    def find(self, name, text=None, form=None):
        """The visible control with this name, or None. form: the kind of the window that it is in."""
        widgets = self.widgets()
        windows = [widget for widget in widgets if "id" in widget.told]
        for widget in widgets:
            window = windows[widget.told["window"]]
            if widget.name == name and text in (None, widget.text) and form in (None, window.kind):
                # A new window is not yet at the place that the window manager will give it.
                return widget if self.desk.screen.shows(window) else None
        return None

    def wait_for(self, name, text=None, form=None, seconds=20):
        what = name + (f" with the text '{text}'" if text is not None else "") + (f" in {form}" if form else "")
        return wait_for(what, lambda: self.find(name, text, form), seconds)

    def wait_for_window(self, kind, seconds=20):
        def shown():
            window = next((widget for widget in self.widgets() if widget.kind == kind), None)
            return window if window and self.desk.screen.shows(window) else None
        return wait_for(f"the window {kind}", shown, seconds)

    def wait_until_gone(self, kind, seconds=20):
        wait_for(f"the end of the window {kind}",
                 lambda: not any(widget.kind == kind for widget in self.widgets()), seconds)

    def to_front(self, kind):
        """Brings one of the program's windows in front of all others."""
        screen, number = self.desk.screen, self.wait_for_window(kind).told["id"]
        screen.ask("wmctrl", "-i", "-a", hex(number))
        wait_for(f"the window {kind} in front", lambda: self.desk.window_in_front() == number)

    def texts(self):
        """All texts in the program's windows."""
        return [widget.text for widget in self.widgets() if widget.text]

    def click(self, name, form=None):
        self.desk.mouse.click(self.wait_for(name, form=form).middle)

    def click_row(self, name, text, form=None):
        """Clicks the row of a list, or the entry of a menu."""
        def place():
            rows = self.find(name, form=form)
            return rows and rows.item(text)
        self.desk.mouse.click(wait_for(f"'{text}' in {name}", place))

    def type_into(self, name, text, form=None):
        """Replaces the text of a box."""
        self.click(name, form)
        wait_for(f"the focus in {name}", lambda: self.wait_for(name, form=form).told["focus"])
        self.desk.keyboard.press("ctrl+a")
        self.desk.keyboard.type(text)
        self.wait_for(name, text, form)

    def text_of(self, name):
        return self.wait_for(name).text

    def wait_for_end(self, seconds=20):
        wait_for("the end of the program", lambda: self.process.poll() is not None, seconds)
        return self.process.returncode


class Desk:
    """Everything that a scenario needs. sound: whether there is a sound server. wayland: whether the desktop is one of
    Wayland instead of X."""

    def __init__(self, folder, processes, build, screen_size="1920x1080", sound=True, wayland=False):
        self.folder, self.processes, self.build = folder, processes, build
        if wayland:
            self.screen = WaylandScreen(folder, processes)
            self.mouse, self.keyboard = WaylandMouse(self.screen), WaylandKeyboard(self.screen)
        else:
            self.screen = Screen(folder, processes, screen_size)
            self.mouse, self.keyboard = Mouse(self.screen), Keyboard(self.screen)
        self.sound = SoundServer(folder, processes)
        if sound:
            self.sound.start()
        self.home = os.path.join(folder, "home")
        self.program_folder = os.path.join(folder, "program")
        self.temp = os.path.join(folder, "temp")
        os.mkdir(self.temp)
        self.install()
        self.user_root = os.path.join(self.home, "Documents", PRODUCT)
        self.songs = os.path.join(self.user_root, "Songs")
        self.tunes = os.path.join(self.user_root, "Tunes")
        self.renders = 0

    def install(self):
        """The program gets its own folder, because it writes its settings beside its executable."""
        os.mkdir(self.program_folder)
        self.executable = os.path.join(self.program_folder, "sprout-painter")
        built = os.path.join(self.build, "bin")
        for name in ("sprout-painter", "sprout-read-sound"):
            try:
                os.link(os.path.join(built, name), os.path.join(self.program_folder, name))
            except OSError:  # on another disk
                shutil.copy2(os.path.join(built, name), os.path.join(self.program_folder, name))
        os.symlink(os.path.join(built, "Sprout"), os.path.join(self.program_folder, "Sprout"))

    @property
    def settings(self):
        return os.path.join(self.program_folder, "sprout-painter.ini")

    def environment(self, **changes):
        environment = {**self.sound.environment, "XDG_CONFIG_HOME": os.path.join(self.home, ".config"),
                       "XDG_DATA_HOME": os.path.join(self.home, ".local"),
                       "XDG_CACHE_HOME": os.path.join(self.home, ".cache"), "TMPDIR": self.temp, "LANG": "C.UTF-8",
                       "QT_PLUGIN_PATH": os.path.join(self.build, "e2e"),
                       "QT_QPA_GENERIC_PLUGINS": "sproutwidgets",
                       "DBUS_SESSION_BUS_ADDRESS": "disabled:"}
        for name in ("QT_SCALE_FACTOR", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME"):
            environment.pop(name, None)
        for name, value in {**self.screen.for_program, **changes}.items():
            if value is None:
                environment.pop(name, None)
            else:
                environment[name] = value
        return environment

    def start(self, seconds=30, name="program", arguments=(), **changes):
        """Starts the program and returns it once its window waits for its user. name: distinguishes programs that run
        at once."""
        program = Program(self, self.environment(**changes), name, arguments)
        program.wait_for_window("MainFrm", seconds)
        return program

    def song(self, name):
        return os.path.join(self.songs, name + ".TqSng")

    def render(self, song, *options):
        """The frames of a song's mix, or of the part that the options select, made by the command-line tool."""
        return self.rendered("render", song, *options)

    def cycle(self, tune, tempo):
        """The frames of one cycle of a tune file."""
        return self.rendered("cycle", tune, "--tempo", tempo)

    def rendered(self, command, file, *options):
        self.renders += 1
        wave = os.path.join(self.folder, f"render{self.renders}.wav")
        tool = os.path.join(self.build, "bin", "sprout-song")
        done = subprocess.run([tool, command, file, wave, "--user-root", self.user_root, *map(str, options)], text=True,
                              stderr=subprocess.PIPE, stdout=subprocess.DEVNULL, check=False)
        expect(done.returncode == 0, f"sprout-song could not render {file}: {done.stderr.strip()}")
        return read_wave(wave)

    def info(self, song):
        """What the command-line tool reports about a song or tune."""
        tool = os.path.join(self.build, "bin", "sprout-song")
        told = subprocess.run([tool, "info", "--json", song, "--user-root", self.user_root], text=True,
                              stdout=subprocess.PIPE, check=True).stdout
        return json.loads(told)

    def close_window(self, window):
        """Makes the desktop close a window, as its menu does."""
        self.screen.close_window(window)

    def windows(self):
        """The numbers of all windows that the window manager knows."""
        return [int(number, 16) for number in re.findall(r"0x[0-9a-f]+", self.screen.property("_NET_CLIENT_LIST"))]

    def window_in_front(self):
        """The number of the window that has the keyboard focus."""
        told = re.search(r"0x[0-9a-f]+", self.screen.property("_NET_ACTIVE_WINDOW"))
        return int(told.group(), 16) if told else None
