# SPDX-License-Identifier: GPL-3.0-or-later
"""A Wayland desktop without hardware: sway, a pointer, a keyboard, and pictures of the screen."""
import glob
import json
import os
import socket
import struct
import subprocess
import time

from processes import expect, wait_for

# Powers of two: the pointer's place is a fraction of them, which is then exact.
SIZE = (2048, 1024)
# As on the usual desktops, all windows float and Alt+F4 closes them. None gets a frame: the program draws its own.
SETTINGS = """output * resolution {}x{}
input * repeat_rate 0
xwayland disable
default_border none
default_floating_border none
for_window [app_id=".*"] floating enable
bindsym Mod1+F4 kill
"""
HAS_POINTER, HAS_KEYBOARD = 1, 2
LEFT_BUTTON, RIGHT_BUTTON = 0x110, 0x111
RUN_COMMAND, GET_TREE, GET_SEATS = 0, 4, 101


def connect(path):
    """A connection to a socket that may be there before its server listens."""
    def connected():
        connection = socket.socket(socket.AF_UNIX)
        if connection.connect_ex(path) == 0:
            return connection
        connection.close()
        return None
    return wait_for(f"somebody to listen at {path}", connected)


class Sway:
    """Asks sway about its windows and seats, and gives it commands."""

    HEAD = struct.Struct("<6sII")

    def __init__(self, path):
        self.connection = connect(path)

    def receive(self, size):
        data = self.connection.recv(size, socket.MSG_WAITALL)
        expect(len(data) == size, "sway has ended")
        return data

    def ask(self, kind, words=""):
        self.connection.sendall(self.HEAD.pack(b"i3-ipc", len(words), kind) + words.encode())
        _, size, _ = self.HEAD.unpack(self.receive(self.HEAD.size))
        return json.loads(self.receive(size))


def windows_below(node):
    """All windows of a tree of sway."""
    if node.get("pid"):
        yield node
    for part in node["nodes"] + node["floating_nodes"]:
        yield from windows_below(part)


class WaylandConnection:
    """Speaks Wayland: makes objects, sends requests and waits until the desktop has done what they ask for. Numbers of
    requests are their places in the protocol's description."""

    DISPLAY, REGISTRY = 1, 2
    SYNC, GET_REGISTRY, BIND = 0, 1, 0
    ERROR, GLOBAL, DONE = 0, 0, 0

    def __init__(self, path):
        self.connection = connect(path)
        self.last_object = self.REGISTRY
        self.globals = {}
        self.done = set()
        self.send(self.DISPLAY, self.GET_REGISTRY, self.REGISTRY)
        self.wait_until_done()

    def send(self, target, request, *numbers, words=b""):
        """words: what follows the numbers."""
        size = 8 + 4 * len(numbers) + len(words)
        self.connection.sendall(struct.pack(f"<{2 + len(numbers)}I", target, size << 16 | request, *numbers) + words)

    def new_object(self):
        self.last_object += 1
        return self.last_object

    def bind(self, interface, version):
        made = self.new_object()
        name = interface.encode() + b"\0"
        words = struct.pack("<I", len(name)) + name + bytes(-len(name) % 4) + struct.pack("<2I", version, made)
        expect(interface in self.globals, f"sway has no {interface}")
        self.send(self.REGISTRY, self.BIND, self.globals[interface], words=words)
        return made

    def wait_until_done(self):
        """Returns when the desktop has answered all requests so far."""
        answer = self.new_object()
        self.send(self.DISPLAY, self.SYNC, answer)
        while answer not in self.done:
            self.read_event()

    def read_event(self):
        head = self.connection.recv(8, socket.MSG_WAITALL)
        expect(len(head) == 8, "sway has ended")
        source, size_and_event = struct.unpack("<2I", head)
        event, size = size_and_event & 0xffff, (size_and_event >> 16) - 8
        body = self.connection.recv(size, socket.MSG_WAITALL) if size else b""
        expect((source, event) != (self.DISPLAY, self.ERROR), f"sway refused a request: {body[12:]}")
        if (source, event) == (self.REGISTRY, self.GLOBAL):
            name, length = struct.unpack_from("<2I", body)
            self.globals[body[8:8 + length - 1].decode()] = name
        elif source > self.REGISTRY and event == self.DONE:
            self.done.add(source)


class WaylandPointer:
    """A mouse by the protocol wlr-virtual-pointer-unstable-v1."""

    CREATE = 0
    MOTION_ABSOLUTE, BUTTON, FRAME = 1, 2, 4
    ANY_SEAT = 0

    def __init__(self, path):
        self.connection = WaylandConnection(path)
        manager = self.connection.bind("zwlr_virtual_pointer_manager_v1", 1)
        self.pointer = self.connection.new_object()
        self.connection.send(manager, self.CREATE, self.ANY_SEAT, self.pointer)
        self.connection.wait_until_done()

    @staticmethod
    def now():
        return time.monotonic_ns() // 1_000_000 & 0xffffffff

    def move(self, place):
        self.connection.send(self.pointer, self.MOTION_ABSOLUTE, self.now(), *place, *SIZE)
        self.frame()

    def button(self, button, is_down):
        self.connection.send(self.pointer, self.BUTTON, self.now(), button, int(is_down))
        self.frame()

    def frame(self):
        self.connection.send(self.pointer, self.FRAME)
        self.connection.wait_until_done()


class WaylandScreen:
    """A headless sway with a pointer and a keyboard. It runs for ordinary users only."""

    size = SIZE

    def __init__(self, folder, processes):
        self.log = open(os.path.join(folder, "log"), "a", encoding="utf-8")
        own = os.path.join(folder, "screen")
        os.makedirs(own, mode=0o700)
        with open(os.path.join(own, "config"), "w", encoding="utf-8") as settings:
            settings.write(SETTINGS.format(*SIZE))
        asked = os.path.join(own, "sway")
        environment = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        environment.update(HOME=own, XDG_RUNTIME_DIR=own, SWAYSOCK=asked, WLR_BACKENDS="headless",
                           WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1")
        # noatomic: sway would tell a new place of a window before the window has come there.
        server = processes.start(["sway", "-D", "noatomic", "--config", os.path.join(own, "config")], env=environment,
                                 stdout=self.log, stderr=self.log)

        def has_started():
            expect(server.poll() is None, "sway ended by itself")
            return os.path.exists(asked) and glob.glob(os.path.join(own, "wayland-?"))

        (self.display,) = wait_for("sway", has_started)
        self.environment = {**environment, "WAYLAND_DISPLAY": self.display}
        # What tells the program to come to this screen.
        self.for_program = {"WAYLAND_DISPLAY": self.display, "XDG_SESSION_TYPE": "wayland", "DISPLAY": None,
                            "QT_QPA_PLATFORM": None}
        self.sway = Sway(asked)
        self.pointer = WaylandPointer(self.display)
        # A keyboard that does nothing. If the only one came and went with each key, the program would miss keys that
        # come before it knows about the keyboard.
        processes.start(["wtype", "-s", str(2**31 - 1)], env=self.environment, stderr=self.log)
        wait_for("the pointer and the keyboard",
                 lambda: self.sway.ask(GET_SEATS)[0]["capabilities"] & ~4 == HAS_POINTER | HAS_KEYBOARD)

    def windows(self):
        return list(windows_below(self.sway.ask(GET_TREE)))

    def node_of(self, window):
        """What sway tells about a window that the program reported; None unless both agree about its size."""
        def is_same(node):
            return node["name"] == window.text and (node["rect"]["width"], node["rect"]["height"]) == \
                (window.width, window.height)
        return next(filter(is_same, self.windows()), None)

    def place(self, widgets):
        """A program does not know where its windows are, so this takes their places from sway. A popup is placed by its
        parent."""
        windows = [widget for widget in widgets if "id" in widget.told]
        shifts = [self.shift_of(window, windows) for window in windows]
        for widget in widgets:
            widget.shown = shifts[widget.told["window"]] is not None
            widget.shift(*(shifts[widget.told["window"]] or (0, 0)))

    def shift_of(self, window, windows):
        node = self.node_of(window)
        if node:
            return node["rect"]["x"] - window.x, node["rect"]["y"] - window.y
        parent = window.told.get("parent", -1)
        return self.shift_of(windows[parent], windows) if parent >= 0 and window.told["popup"] else None

    @staticmethod
    def shows(window):
        return window.shown

    def close_window(self, window):
        """Asks a window to close, as a desktop's panel does."""
        self.sway.ask(RUN_COMMAND, f"[con_id={self.node_of(window)['id']}] kill")

    def wtype(self, *words):
        subprocess.run(["wtype", *words], env=self.environment, stdout=self.log, stderr=self.log, check=True)

    def take_picture(self, path):
        subprocess.run(["grim", path], env=self.environment, stdout=self.log, stderr=self.log, check=False)

    def colours(self, place, size):
        """The colours of an area of the screen, three bytes a pixel."""
        area = "{},{} {}x{}".format(*place, *size)
        picture = subprocess.run(["grim", "-t", "ppm", "-g", area, "-"], env=self.environment, stdout=subprocess.PIPE,
                                 stderr=self.log, check=True).stdout
        return picture[-3 * size[0] * size[1]:]


class WaylandMouse:
    def __init__(self, screen):
        self.pointer = screen.pointer

    def move(self, place):
        self.pointer.move(place)

    def press(self, button=LEFT_BUTTON):
        self.pointer.button(button, True)

    def release(self, button=LEFT_BUTTON):
        self.pointer.button(button, False)

    def click(self, place, times=1):
        self.move(place)
        for _ in range(times):
            self.press()
            self.release()

    def right_click(self, place):
        self.move(place)
        self.press(RIGHT_BUTTON)
        self.release(RIGHT_BUTTON)

    def drag(self, places):
        """Presses at the first place, moves through all of them and releases at the last."""
        self.move(places[0])
        self.press()
        for place in places[1:]:
            self.move(place)
        self.release()


class WaylandKeyboard:
    def __init__(self, screen):
        self.screen = screen

    @staticmethod
    def words(key):
        *held, key = key.split("+")
        return [*(word for name in held for word in ("-M", name)), "-k", key,
                *(word for name in held for word in ("-m", name))]

    def press(self, *keys):
        """Presses keys one after the other, for example "Return" or "ctrl+o"."""
        self.screen.wtype(*(word for key in keys for word in self.words(key)))

    def type(self, text):
        self.screen.wtype("--", text)

    def hold(self, held, *keys):
        """Presses keys while others are held down."""
        self.screen.wtype(*(word for name in held for word in ("-M", name)),
                          *(word for key in keys for word in self.words(key)),
                          *(word for name in held for word in ("-m", name)))
