# SPDX-License-Identifier: GPL-3.0-or-later
"""A real sound server with one device, and recordings of it."""
import fcntl
import os
import signal
import struct
import subprocess

from processes import Failure, expect, wait_for

HERE = os.path.dirname(os.path.abspath(__file__))
STARTER = os.path.join(HERE, "..", "support", "sound-server")
LOUDSPEAKER = os.path.join(HERE, "loudspeaker")
RATE = 44100
FRAME_BYTES = 4
TAIL_FRAMES = RATE // 20
# A recording is searched for this many frames to find where a sound begins.
SEARCHED_FRAMES = 512
SILENCE = "silence"


def write_wave(path, data):
    """data: 16-bit stereo frames, as bytes."""
    head = struct.pack("<4sI8sIHHIIHH4sI", b"RIFF", len(data) + 36, b"WAVEfmt ", 16, 1, 2, RATE, RATE * FRAME_BYTES,
                       FRAME_BYTES, 16, b"data", len(data))
    with open(path, "wb") as file:
        file.write(head + data)


def read_wave(path):
    """The frames of a WAV file written by this project, 16-bit stereo, as bytes."""
    with open(path, "rb") as file:
        head = file.read(44)
        data = file.read()
    name, channels, rate, bits, size = struct.unpack("<8x8s6xHI6xH4xI", head)
    expect((name, channels, rate, bits, size) == (b"WAVEfmt ", 2, RATE, 16, len(data)),
           f"{path} is no WAV file of 16 bits in stereo")
    return data


class SoundServer:
    """A private server in a folder. Its clients need its environment."""

    def __init__(self, folder, processes):
        self.processes = processes
        self.socket = os.path.join(folder, "native")
        self.pipe = os.path.join(folder, "device")
        self.folder = folder
        home = os.path.join(folder, "home")
        run = os.path.join(folder, "run")
        os.makedirs(home, exist_ok=True)
        os.makedirs(run, mode=0o700, exist_ok=True)
        self.environment = {**os.environ, "HOME": home, "XDG_RUNTIME_DIR": run, "PULSE_RUNTIME_PATH": run,
                            "PULSE_STATE_PATH": home, "PULSE_SERVER": "unix:" + self.socket}
        leaks = os.path.join(folder, "leaks")
        with open(leaks, "w", encoding="utf-8") as file:
            file.write("leak:libpulse\nleak:libSDL2\nleak:libdbus-1\n")
        # In a build with a sanitizer, the libraries' own leaks are not the player's.
        self.environment["LSAN_OPTIONS"] = f"suppressions={leaks}:print_suppressions=0"
        self.log = open(os.path.join(folder, "log"), "a", encoding="utf-8")
        self.recordings = 0

    def start(self):
        environment = {name: value for name, value in self.environment.items() if name != "PULSE_SERVER"}
        self.process = self.processes.start([STARTER, self.socket, "s16le", str(RATE), "2", "file=" + self.pipe],
                                            env=environment, stderr=self.log)
        wait_for("the sound server", self.answers)
        if os.path.exists(self.pipe):  # not with PipeWire
            with open(self.pipe, "rb", buffering=0) as pipe:
                # The smallest possible pipe: the device is never far ahead of what was read.
                fcntl.fcntl(pipe, fcntl.F_SETPIPE_SZ, 4096)
                # A separate process, so nothing in the test can delay it.
                self.processes.start([LOUDSPEAKER, str(RATE * FRAME_BYTES)], stdin=pipe)
            # It stays the default device, even when a microphone brings its own device.
            subprocess.run(["pactl", "set-default-sink", "out"], env=self.environment, check=True)
            # A device of this kind takes nothing, and nothing can be recorded from it, unless something plays.
            self.processes.start(["pacat", "--raw", "-d", "out", "--client-name=" + SILENCE, "/dev/zero"],
                                 env=self.environment, stderr=self.log)

    def answers(self):
        if self.process.poll() is not None:
            raise Failure("the sound server ended by itself")
        return subprocess.run(["pactl", "list", "short", "sinks"], env=self.environment, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False).returncode == 0

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()
        os.remove(self.socket)

    def plays_nothing(self):
        """Whether no program has the device open, not even to play silence."""
        inputs = subprocess.run(["pactl", "list", "sink-inputs"], env=self.environment, capture_output=True,
                                text=True, check=True)
        return inputs.stdout.count("Sink Input #") == inputs.stdout.count(f'application.name = "{SILENCE}"')

    def plug_in_microphone(self, name="voice"):
        """Returns a microphone that hears what is played into it."""
        return Microphone(self, name)

    def record(self):
        """Starts a recording and returns it once something arrives."""
        self.recordings += 1
        return Recording(self, os.path.join(self.folder, f"recording{self.recordings}.raw"))


class Microphone:
    """A source of the server that hears what is played into a device of its own."""

    def __init__(self, server, name):
        self.server, self.sink = server, name + "-in"
        self.load("module-null-sink", f"sink_name={self.sink}", f"rate={RATE}", "channels=2", "format=s16le",
                  "norewinds=1")
        self.load("module-remap-source", f"master={self.sink}.monitor", f"source_name={name}",
                  f"source_properties=device.description={name}")

    def load(self, *words):
        subprocess.run(["pactl", "load-module", *words], env=self.server.environment, stdout=subprocess.DEVNULL,
                       check=True)

    def hear(self, frames):
        """Plays frames, as bytes, into the microphone, and returns when they have been heard."""
        subprocess.run(["pacat", "--playback", "--raw", "--format=s16le", f"--rate={RATE}", "--channels=2",
                        "-d", self.sink], env=self.server.environment, input=frames, stderr=self.server.log, check=True)


class Recording:
    """What the device plays from the start of the recording on."""

    def __init__(self, server, path):
        self.path = path
        with open(path, "wb") as file:
            self.process = server.processes.start(
                ["parec", "--latency-msec=10", "--raw", "--format=s16le", f"--rate={RATE}", "--channels=2",
                 "-d", "out.monitor"], env=server.environment, stdout=file, stderr=server.log)
        wait_for("the recorder", lambda: os.path.getsize(path) > 0)

    def stop(self):
        self.process.kill()
        self.process.wait()

    def frames(self):
        with open(self.path, "rb") as file:
            data = file.read()
        return data[:len(data) - len(data) % FRAME_BYTES]

    def sounds(self):
        """Whether anything but silence was recorded."""
        return any(self.frames().strip(b"\0"))

    def is_quiet(self, seconds):
        """Whether the last `seconds` of the recording are silent."""
        size = int(seconds * RATE) * FRAME_BYTES
        frames = self.frames()
        return len(frames) >= size and not any(frames[-size:])

    def expect_wave(self, wave, seconds=15, first=True):
        """Waits until the whole wave was recorded, and compares each of its samples with the recording. wave: frames as
        bytes. Its silent start is left out, since it cannot be told from the silence before it. first: nothing else may
        sound before it."""
        wanted = without_silent_start(wave)
        expect(len(wanted) >= SEARCHED_FRAMES * FRAME_BYTES, "there is nothing to hear in the expected wave")
        length = len(wanted) / FRAME_BYTES / RATE
        begin = wait_for("the expected sound in the recording",
                         lambda: 1 + find_frames(self.frames(), wanted[:SEARCHED_FRAMES * FRAME_BYTES]),
                         seconds) - 1
        # The loudspeaker's clock stops while a busy machine stops, so a sound may take longer than it lasts.
        wait_for(f"{length:.1f} s of recording",
                 lambda: os.path.getsize(self.path) >= begin + len(wanted), 4 * length + seconds)
        expect(not first or not any(self.frames()[:begin]), "something else sounded before the expected sound")
        compare(self.frames()[begin:begin + len(wanted)], wanted)


def without_silent_start(data):
    silent = len(data) - len(data.lstrip(b"\0"))
    return data[silent - silent % FRAME_BYTES:]


def find_frames(data, wanted):
    """Where the wanted frames begin, in bytes, or -1."""
    place = data.find(wanted)
    while place >= 0 and place % FRAME_BYTES:
        place = data.find(wanted, place + 1)
    return place


def first_difference(one, other):
    """The first frame in which two sounds of the same length differ."""
    low, high = 0, len(one)
    while high - low > FRAME_BYTES:
        middle = (low + high) // 2 // FRAME_BYTES * FRAME_BYTES
        if one[low:middle] != other[low:middle]:
            high = middle
        else:
            low = middle
    return low // FRAME_BYTES


def compare(recorded, wanted):
    if recorded == wanted:
        return
    frame = first_difference(recorded, wanted)
    place = frame * FRAME_BYTES
    later = find_frames(recorded[place:], wanted[place:place + SEARCHED_FRAMES * FRAME_BYTES])
    why = f": a gap of {later // FRAME_BYTES} frames" if later > 0 else ""
    raise Failure(f"the recording differs from the expected sound from frame {frame} ({frame / RATE:.2f} s) on{why}")
