# SPDX-License-Identifier: GPL-3.0-or-later
"""Starts programs, waits for conditions, and reports failures in a sentence."""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time


class Failure(Exception):
    """A condition that does not hold; its text completes the sentence "Failed: "."""


def wait_for(what, condition, seconds=15):
    """Waits until the condition returns something true, and returns that."""
    end = time.monotonic() + seconds
    while True:
        fact = condition()
        if fact:
            return fact
        if time.monotonic() > end:
            raise Failure(f"waited {seconds} s in vain for {what}")
        time.sleep(0.01)


def expect(fact, sentence):
    if not fact:
        raise Failure(sentence)


class Processes:
    """Ends everything that it started, the last first. Nothing outlives the test, even if the test is killed."""

    def __init__(self):
        self.started = []

    def start(self, command, **options):
        process = subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *command], **options)
        self.started.append(process)
        return process

    def end(self):
        for process in reversed(self.started):
            if process.poll() is None:
                process.kill()
            process.wait()


def in_scratch_folder(name, run):
    """Calls run(folder, processes) and cleans up afterwards; a failure ends the program with its sentence and the
    contents of the file "log"."""
    folder = tempfile.mkdtemp(prefix=f"sprout-{name}-")
    processes = Processes()
    # Clean up too when stopped from outside.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    try:
        run(folder, processes)
    except Failure as failure:
        log = os.path.join(folder, "log")
        if os.path.exists(log):
            with open(log, encoding="utf-8", errors="replace") as lines:
                sys.stderr.write(lines.read())
        sys.exit(f"Failed: {failure}.")
    finally:
        processes.end()
        shutil.rmtree(folder)
