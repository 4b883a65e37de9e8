# SPDX-License-Identifier: GPL-3.0-or-later
"""Clicks whose time is known."""
import ctypes
import time

LEFT_BUTTON = 1


class ExactMouse:
    """Presses the mouse button without starting a program, so the time of the event is known."""

    def __init__(self, display):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.xtest = ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))

    def click(self, place):
        """Clicks; returns the time at which the button goes up."""
        self.xtest.XTestFakeMotionEvent(self.display, 0, *place, 0)
        self.xtest.XTestFakeButtonEvent(self.display, LEFT_BUTTON, 1, 0)
        self.x11.XSync(self.display, 0)
        up = time.perf_counter()
        self.xtest.XTestFakeButtonEvent(self.display, LEFT_BUTTON, 0, 0)
        self.x11.XFlush(self.display)
        return up
