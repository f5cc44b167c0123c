"""A screen as Wayland has it, without X: nothing on it can be moved or typed from outside."""

import os
import re

from screen import Screen, wait_for


class WaylandScreen(Screen):
    def _open_display(self, size):
        width, height = re.findall(r"\d+", size)
        self.environment |= {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "wayland"}
        self._start(["weston", "--backend=headless-backend.so", "--socket=wayland", "--no-config",
                     "--idle-time=0", f"--width={width}", f"--height={height}"])
        socket = os.path.join(self.environment["XDG_RUNTIME_DIR"], "wayland")
        wait_for(lambda: os.path.exists(socket), "the compositor")

    def _manage(self):
        pass  # the compositor does
