"""A screen whose desktop is a real Wayland compositor: weston, which fills the virtual screen with
its one window and takes the keys and clicks that this window gets."""

import os
import re

from screen import Screen, wait_for

_SETTINGS = """\
[core]
backend=x11-backend.so
use-pixman=true
idle-time=0
[output]
name=X1
mode={width}x{height}
[shell]
background-color=0xff000000
panel-position=none
locking=false
animation=none
close-animation=none
startup-animation=none
focus-animation=none
"""

# Pixels at the foot of the screen that the compositor's window leaves free.
_STRIP = 8

# A window in the compositor's own list of what it shows: its title and its corners.
_WINDOW = re.compile(r"top-level window '(.*)' of .*\n"
                     r"\s+position: \((-?\d+), (-?\d+)\) -> \((-?\d+), (-?\d+)\)")


class WaylandScreen(Screen):
    def _open_display(self, size):
        super()._open_display(size)
        self._width, self._height = map(int, size.split("x"))
        self._settings = os.path.join(self.home, "weston.ini")
        with open(self._settings, "w", encoding="utf-8") as file:
            file.write(_SETTINGS.format(width=self._width, height=self._height - _STRIP))

    def _manage(self):
        # The compositor takes the pointer's place for its own when the pointer enters its window; a
        # pointer that is there from the start may stay unknown to it.
        self.run("xdotool", "mousemove", str(self._width // 2), str(self._height - 1))
        self._start(["weston", "--debug", f"--config={self._settings}", "--socket=desktop"])
        self.environment |= {"WAYLAND_DISPLAY": "desktop", "QT_QPA_PLATFORM": "wayland"}
        wait_for(lambda: "background for output" in self._scene(), "the compositor's desktop")
        # There is no X window manager that would give the compositor's window the keyboard.
        self.run("xdotool", "search", "--sync", "--onlyvisible", "--class", "weston",
                 "windowfocus", "--sync")
        self.run("xdotool", "mousemove", str(self._width // 2), str(self._height // 2))

    def _scene(self):
        """What the compositor shows, in its own words; the front comes first."""
        return self.run("weston-debug", "scene-graph")

    @staticmethod
    def _active(program):
        return next((node for node in program.windows() if node.has("active")), None)

    def active_title(self, program):
        window = self._active(program)
        return window and window.name

    def _corners(self, window):
        """Left, top, right and bottom of a window with its frame; of two with the same title, the
        one in front."""
        for title, *corners in _WINDOW.findall(self._scene()):
            if title == window.name:
                return [int(corner) for corner in corners]
        raise AssertionError(f"the compositor shows no window «{window.name}»")

    def place_of(self, program, node):
        """A program knows places in its windows only. The frame is as wide below as at the sides;
        above it has the title."""
        window = self._active(program)
        left, _, right, bottom = self._corners(window)
        _, _, width, height = window.place
        border = (right - left - width) // 2
        x, y, *size = node.place
        return left + border + x, bottom - border - height + y, *size

    def close_active(self, program):
        """Clicks the cross of the frame, which the program draws itself."""
        _, top, right, _ = self._corners(self._active(program))
        program.click_at(right - 17, top + 15)

    def picture_of_active(self, program, path):
        left, top, right, bottom = self._corners(self._active(program))
        self._picture(path, left, top, right - left, bottom - top)
