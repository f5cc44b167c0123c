"""The built program at work on a screen: real keys, real clicks, its windows and its boxes."""

import contextlib
import os
import re
import shutil
import signal
import subprocess
import tempfile
import time

from gi.repository import GLib

import reading
from screen import start, stop, wait_for

STANDARD_TITLE = " KARVENIS 2005 Randomizer"


class Box:
    """A message, question or input box that waits for an answer."""

    def __init__(self, program, node):
        self.program, self.node = program, node
        self.title = node.name
        labels = [label.name for label in node.all("label")]
        self.text = labels[-1] if labels else ""
        self.buttons = [button.name for button in node.all("push button")]

    def press(self, key):
        """Answers by a key: Return takes the first button, Escape the refusing one."""
        self.program.keys(key)
        self.program.until(lambda: self.node not in self.program.boxes(), f"«{self.title}» to close")

    def type(self, text):
        """Types into an input box, in place of what it holds, and accepts it."""
        self.program.keys("ctrl+a", "Delete")
        if text:
            self.program.type(text)
        self.press("Return")


class Program:
    """One run of the program in a folder of its own."""

    def __init__(self, screen, executable, files=None, folder=None, environment=None,
                 arguments=(), through=()):
        self.screen = screen
        self.temporary = folder is None
        self.folder = folder or tempfile.mkdtemp(prefix="karvenis-folder-")
        for name, content in (files or {}).items():
            with open(os.path.join(self.folder, name), "wb") as file:
                file.write(content)
        # The bus tells places in pixels of a plain screen.
        environment = environment or {}
        self._scale = (float(environment.get("QT_SCALE_FACTOR", 1))
                       * float(environment.get("QT_FONT_DPI", 96)) / 96)
        self._words = tempfile.TemporaryFile()
        self.process = start([*through, executable, *arguments], cwd=self.folder, stdout=self._words,
                             stderr=self._words, env={**screen.environment, **environment})

    def close(self):
        if self._words.closed:
            return
        stop(self.process)
        self._words.close()
        if self.temporary:
            shutil.rmtree(self.folder, ignore_errors=True)

    # Waiting

    def until(self, condition, what):
        """Waits for the condition; a program that ends meanwhile is told at once."""
        def unless_ended():
            found = condition()
            if not found and not self.runs():
                raise AssertionError(f"the program ended with {self.process.returncode}, and {what} "
                                     f"was still awaited\n{self.words()}")
            return found
        return wait_for(unless_ended, what)

    def status(self):
        """The exit status, once the program has ended by itself."""
        wait_for(lambda: self.process.poll() is not None, "the program to end")
        return self.process.returncode

    def runs(self):
        return self.process.poll() is None

    def words(self):
        """What the program wrote to its terminal; a healthy one writes nothing."""
        self._words.seek(0)
        return self._words.read().decode(errors="replace")

    # Windows

    def windows(self):
        """Windows and boxes that are open, in the order in which they were made."""
        program = reading.programs(self.screen.bus).get(self.process.pid)
        return program.children if program else []

    def window(self, title, part=False):
        """The window of this title, awaited; with `part` the title only starts so."""
        found = []

        def look():
            found[:] = [node for node in self.windows()
                        if (node.name.startswith(title) if part else node.name == title)
                        and node.has("showing")]
            return found
        self.until(look, f"the window «{title}»; open are {self.titles()}")
        return found[0]

    def titles(self):
        return [title for title in map(self._title, self.windows()) if title is not None]

    @staticmethod
    def _title(window):
        """The title of a window that is to be seen; none where it has just gone."""
        try:
            return window.name if window.has("showing") else None
        except GLib.Error:
            return None

    def gone(self, title):
        self.until(lambda: title not in self.titles(), f"the window «{title}» to close")

    def boxes(self):
        return [node for node in self.windows() if node.role in ("dialog", "alert message")]

    def box(self, title=None):
        """The box that is open, awaited until it takes the keys."""
        found = []

        def look():
            found[:] = [node for node in self.boxes() if title in (None, node.name)]
            return found and self.active_title() == found[0].name and found[0].has("active")
        self.until(look, f"the box «{title}»; open are {self.titles()}")
        return Box(self, found[0])

    def active_title(self):
        """The title of the window with the keyboard."""
        return self.screen.active_title(self)

    def activated(self, title):
        """Waits until the window of this title has the keyboard, and knows it."""
        self.until(lambda: self.active_title() == title
                   and any(node.name == title and node.has("active") for node in self.windows()),
                   f"«{title}» to be active; active is «{self.active_title()}»")

    def titled(self, pattern):
        """The active window's title, awaited until it matches the pattern."""
        found = []

        def look():
            found[:] = [re.fullmatch(pattern, self.active_title() or "")]
            return found[0]
        self.until(look, f"a title like «{pattern}»; it is «{self.active_title()}»")
        return found[0]

    def numbers(self, main):
        """The numbers to be seen on the main window's balls and below them, position by position."""
        told = [re.fullmatch(r"\d\. (?:top|sayı): (\d+)", label.name)
                for label in main.all("label") if label.has("showing")]
        return [int(number.group(1)) for number in told if number]

    # Hands

    def keys(self, *keys):
        self.screen.run("xdotool", "key", "--clearmodifiers", *keys)

    @contextlib.contextmanager
    def held(self, key):
        """A key that is down as long as the context lasts."""
        self.screen.run("xdotool", "keydown", key)
        try:
            yield
        finally:
            self.screen.run("xdotool", "keyup", key)

    def let_repeat(self):
        """Leaves a held key the time to come some twenty times. That these do nothing gives no
        sign that could be waited for."""
        time.sleep(1.5)

    def type(self, text):
        self.screen.run("xdotool", "type", "--delay", "5", text)

    def while_stopped(self, action):
        """Does something that the program finds all at once when it goes on."""
        self.process.send_signal(signal.SIGSTOP)
        try:
            action()
        finally:
            self.process.send_signal(signal.SIGCONT)

    def click(self, node, times=1):
        left, top, width, height = (round(self._scale * length)
                                    for length in self.screen.place_of(self, node))
        self.click_at(left + width // 2, top + height // 2, times)

    def click_at(self, left, top, times=1):
        self.screen.run("xdotool", "mousemove", str(left), str(top), "click", "--repeat",
                        str(times), "--delay", "30", "1")

    def id_of(self, title):
        """The window of this title, as the window manager knows it."""
        told = self.screen.run("xprop", "-root", "_NET_CLIENT_LIST")
        (found,) = [window_id for window_id in re.findall(r"0x[0-9a-f]+", told)
                    if self.screen.title_of(window_id) == title]
        return found

    def go_to(self, title):
        """Chooses a window in a taskbar, which also brings it back from being minimised."""
        self.screen.run("wmctrl", "-i", "-a", self.id_of(title))
        self.activated(title)

    def close_by_taskbar(self, title):
        self.screen.run("wmctrl", "-i", "-c", self.id_of(title))
        self.gone(title)

    def minimise(self, title):
        self.screen.run("xdotool", "windowminimize", self.id_of(title))
        self.until(lambda: self.is_minimised(title), f"«{title}» to be minimised")

    def is_minimised(self, title):
        told = self.screen.run("xprop", "-id", self.id_of(title), "_NET_WM_STATE")
        return "_NET_WM_STATE_HIDDEN" in told

    def close_by_frame(self, title):
        """Closes the active window as the cross in its frame does."""
        self.activated(title)
        self.screen.close_active(self)

    # Files

    def path(self, name):
        return os.path.join(self.folder, name)

    def files(self):
        return sorted(os.listdir(self.folder))

    def bytes(self, name):
        with open(self.path(name), "rb") as file:
            return file.read()

    def has_file(self, name, size=None):
        path = self.path(name)
        return os.path.exists(path) and (size is None or os.path.getsize(path) == size)
