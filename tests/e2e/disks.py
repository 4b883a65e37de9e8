# SPDX-License-Identifier: GPL-3.0-or-later
"""Small disks for a test, in a mount namespace that only the test sees. No right to mount is needed."""
import os
import subprocess
import sys
import time

from processes import in_scratch_folder

SKIPPED = 77
INSIDE = "SPROUT_OWN_MOUNTS"
BYTES_AT_A_TIME = 1 << 20


class Disk:
    """A small file system in memory. size: as for mount."""

    def __init__(self, folder, size):
        self.folder = folder
        os.makedirs(folder, exist_ok=True)
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", folder], check=True)

    def remount(self, options):
        subprocess.run(["mount", "-o", f"remount,{options}", self.folder], check=True)


def fill(folder):
    """Writes until the disk is full."""
    with open(os.path.join(folder, "filler"), "wb", buffering=0) as file:
        try:
            while file.write(bytes(BYTES_AT_A_TIME)) == BYTES_AT_A_TIME:
                pass
        except OSError:
            return


def enter_own_mounts():
    """Runs this script again where it may mount; its mounts vanish with it. If nobody may mount, it ends as skipped."""
    if os.environ.get(INSIDE) == "1":
        return
    into = ["unshare", *([] if os.geteuid() == 0 else ["--map-root-user"]), "--mount"]
    if subprocess.run([*into, "true"], check=False).returncode != 0:
        print("This machine lets nobody mount a disk of his own.")
        sys.exit(SKIPPED)
    command = [*into, sys.executable, os.path.abspath(sys.argv[0]), *sys.argv[1:]]
    sys.exit(subprocess.run(command, env={**os.environ, INSIDE: "1"}, check=False).returncode)


def unmount_below(folder):
    with open("/proc/self/mounts", encoding="utf-8") as mounts:
        places = [line.split()[1] for line in mounts]
    for place in places:
        if place.startswith(folder + "/"):
            subprocess.run(["umount", place], check=True)


def run_cases(name, cases, run):
    """Calls run(case, folder, processes) for each case, each in its own scratch folder."""
    for case in cases:
        began = time.monotonic()

        def scene(folder, processes, case=case):
            try:
                run(case, folder, processes)
            finally:
                processes.end()  # a process that still runs keeps its disk busy
                unmount_below(folder)

        in_scratch_folder(name, scene)
        print(f"{case.__name__}: done ({time.monotonic() - began:.1f} s)", flush=True)
