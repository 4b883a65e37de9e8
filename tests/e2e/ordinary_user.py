# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs scenarios for somebody who is not root: there are desktops that start for nobody else."""
import os
import pwd
import shutil
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
ORDINARY_USER = "nobody"
PYTHON = "/usr/bin/python3"  # another one may be root's own
# What scenarios need of a build folder, and of the folder of the tests.
BUILT = ("bin/sprout-painter", "bin/sprout-read-sound", "bin/sprout-song", "bin/Sprout", "e2e/generic")
OF_TESTS = ("e2e", "support/sound-server")


def is_root():
    return os.geteuid() == 0


def copy(source, target, names):
    for name in names:
        path, copied = os.path.join(source, name), os.path.join(target, name)
        os.makedirs(os.path.dirname(copied), exist_ok=True)
        if os.path.isdir(path):
            shutil.copytree(path, copied)
        else:
            shutil.copy2(path, copied)


def give(folder, account):
    """Everything in a folder is then somebody's own: root's files may be closed to others."""
    for place, _, names in os.walk(folder):
        for path in (place, *(os.path.join(place, name) for name in names)):
            os.chown(path, account.pw_uid, account.pw_gid)


def run_as_ordinary_user(name, build, arguments):
    """Runs a scenario and returns its status. It works with copies of the build and the tests, which may lie where only
    root may read."""
    account = pwd.getpwnam(ORDINARY_USER)
    with tempfile.TemporaryDirectory(prefix="sprout-user-") as scratch:
        tests, own_build = os.path.join(scratch, "tests"), os.path.join(scratch, "build")
        copy(os.path.join(HERE, ".."), tests, OF_TESTS)
        copy(build, own_build, BUILT)
        give(scratch, account)
        sys.stdout.flush()
        done = subprocess.run(
            ["setpriv", "--pdeathsig", "KILL", "--reuid", str(account.pw_uid), "--regid", str(account.pw_gid),
             "--clear-groups", PYTHON, os.path.join(tests, "e2e", "run-scenario"), "--build", own_build,
             *arguments, name], cwd=scratch, env={**os.environ, "HOME": scratch}, check=False)
        picture = os.path.join("e2e", name + ".png")
        if os.path.exists(os.path.join(own_build, picture)):
            shutil.copyfile(os.path.join(own_build, picture), os.path.join(build, picture))
            print(f"The picture is now {os.path.join(build, picture)}.", file=sys.stderr)
        return done.returncode
