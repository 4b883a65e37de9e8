# SPDX-License-Identifier: GPL-3.0-or-later
"""What a user does at the desk, and what must happen then. Each scenario is a function that takes a desk."""
import importlib

MODULES = ("playing", "saving", "starting", "window", "tunes", "sharing", "recording", "memory", "upgrading",
           "on_wayland")


def all_scenarios():
    """The name and function of each, in order."""
    found = {}
    for name in MODULES:
        module = importlib.import_module(f"scenarios.{name}")
        for value in vars(module).values():
            if hasattr(value, "desk_options"):
                found[value.__name__] = value
    return found


def scenario(**desk_options):
    """Marks a scenario. desk_options: the options of its desk, see `Desk`."""
    def mark(function):
        function.desk_options = desk_options
        return function
    return mark
