# SPDX-License-Identifier: GPL-3.0-or-later
"""The packages with which these scripts measure."""
import os
import subprocess

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")


def install_packages():
    """Installs those that are missing: the yardsticks, and what the tests' screens and sound servers are made of."""
    subprocess.run([os.path.join(ROOT, "tools", "scripts", "install-packages"), "build", "test", "bench"], check=True)
