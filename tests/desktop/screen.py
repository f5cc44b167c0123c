"""A virtual screen with a window manager, a session bus and a bus for assistive technology."""

import ctypes
import os
import re
import shutil
import signal
import subprocess
import tempfile
import time

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

# Seconds that anything awaited may take on a busy machine; a program that runs under a checker
# needs the patience that its starter asks for.
DEADLINE = 20.0 * float(os.environ.get("KARVENIS_PATIENCE", "1"))


class TooLate(AssertionError):
    """What was awaited did not come."""


def wait_for(condition, what, deadline=DEADLINE):
    """The first true result of `condition`, asked again and again until it comes."""
    end = time.monotonic() + deadline
    while True:
        try:
            result = condition()
        except GLib.Error:  # the window that was asked has just gone
            result = None
        if result:
            return result
        if time.monotonic() > end:
            raise TooLate(f"waited {deadline:.0f} s in vain for {what}")
        time.sleep(0.01)


def _die_with_parent():
    """Linux ends a child whose parent is gone, however the parent ended."""
    pr_set_pdeathsig = 1
    ctypes.CDLL(None).prctl(pr_set_pdeathsig, signal.SIGTERM)


def start(command, **options):
    options.setdefault("stdin", subprocess.DEVNULL)
    return subprocess.Popen(command, preexec_fn=_die_with_parent, **options)


def stop(process):
    if process is None or process.poll() is not None:
        return
    process.terminate()
    try:
        process.wait(5)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


class Screen:
    """Everything a program of a desktop expects around it; close() leaves nothing behind."""

    def __init__(self, size="1280x1024"):
        self.home = tempfile.mkdtemp(prefix="karvenis-desktop-")
        self._processes = []
        self._log = open(os.path.join(self.home, "session.log"), "wb")
        try:
            self._open(size)
        except BaseException:
            self.close()
            raise

    def _open(self, size):
        runtime = os.path.join(self.home, "runtime")
        os.mkdir(runtime, 0o700)
        self.environment = {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            "LANG": "C.UTF-8",
            "TZ": "Europe/Istanbul",
            "HOME": self.home,
            "XDG_RUNTIME_DIR": runtime,
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "NO_AT_BRIDGE": "1",  # the window manager's own dialogs stay off the bus
            # The bridge to that bus writes a warning where a window that is asked has just gone.
            "QT_LOGGING_RULES": "qt.accessibility.atspi.warning=false",
            "PULSE_SERVER": "unix:" + os.path.join(runtime, "silence"),  # so that none is started
        }
        self._open_display(size)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._first_line(
            lambda pipe: ["dbus-daemon", "--session", "--nofork", f"--print-address={pipe}"])
        self._start(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])
        self._manage()
        self.bus = wait_for(self._reading_bus, "the bus for assistive technology")

    def _open_display(self, size):
        self.environment["DISPLAY"] = ":" + self._first_line(
            lambda pipe: ["Xvfb", "-displayfd", str(pipe), "-screen", "0", size + "x24",
                          "-nolisten", "tcp", "-noreset"])

    def _manage(self):
        managed = os.path.join(self.home, "managed")
        self._start(["openbox", "--sm-disable", "--startup", f"touch {managed}"])
        wait_for(lambda: os.path.exists(managed), "the window manager")

    def _start(self, command, **options):
        process = start(command, env=self.environment, stdout=self._log, stderr=self._log,
                        **options)
        self._processes.append(process)
        return process

    def _first_line(self, command):
        """What a service, started by `command(pipe)`, writes to its pipe once it serves."""
        read, write = os.pipe()
        self._start(command(write), pass_fds=(write,))
        os.close(write)
        with os.fdopen(read) as pipe:
            line = pipe.readline().strip()
        if not line:
            raise RuntimeError(f"{command('PIPE')[0]} did not start")
        return line

    def _reading_bus(self):
        session = self._connect(self.environment["DBUS_SESSION_BUS_ADDRESS"])
        try:
            (address,) = session.call_sync(
                "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None,
                GLib.VariantType("(s)"), Gio.DBusCallFlags.NONE, 5000, None).unpack()
        finally:
            session.close_sync(None)
        return self._connect(address)

    @staticmethod
    def _connect(address):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                 | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        connection.set_exit_on_close(False)
        return connection

    def run(self, *command):
        """The output of a tool of the window system."""
        return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, check=False, timeout=60).stdout

    def picture(self, path):
        """Saves the whole screen as a PNG."""
        os.makedirs(os.path.dirname(path) or ".", exist_ok=True)
        self.run("import", "-window", "root", path)

    def picture_of_windows(self, path):
        """Saves the part of the screen that windows cover as a PNG."""
        self.run("import", "-window", "root", "-trim", "+repage", path)

    def active_title(self, program):
        """The title that the window manager shows for the window with the keyboard."""
        return self.title_of(self._active_id())

    def title_of(self, window_id):
        told = self.run("xprop", "-notype", "-id", window_id, "-f", "_NET_WM_NAME", "8u",
                        " = $0\n", "_NET_WM_NAME")
        found = re.search(r'_NET_WM_NAME = "(.*)"', told)
        return found.group(1) if found else None

    def _active_id(self):
        found = re.search(r"0x[0-9a-f]+", self.run("xprop", "-root", "_NET_ACTIVE_WINDOW"))
        return found.group() if found else "0x0"

    def place_of(self, program, node):
        """Left, top, width and height of a control on the screen."""
        return node.place

    def close_active(self, program):
        """Asks the window manager to close the window with the keyboard."""
        program.keys("alt+F4")

    def picture_of_active(self, program, path):
        """Saves the window with the keyboard, with its frame, as a PNG."""
        window_id = self._active_id()
        told = self.run("xwininfo", "-frame", "-id", window_id)
        corner = [int(number) for number in re.findall(r"Absolute upper-left .: +(-?\d+)", told)]
        size = [int(number) for number in re.findall(r"(?:Width|Height): (\d+)", told)]
        left, right, top, bottom = self._frame(window_id)
        self._picture(path, corner[0] - left, corner[1] - top,
                      size[0] + left + right, size[1] + top + bottom)

    def _picture(self, path, left, top, width, height):
        """Saves a part of the screen as a PNG."""
        self.run("import", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "+repage",
                 path)

    def _frame(self, window_id):
        """How far the frame reaches beyond the window: left, right, top, bottom."""
        told = self.run("xprop", "-notype", "-id", window_id, "_NET_FRAME_EXTENTS")
        numbers = [int(number) for number in re.findall(r"\d+", told)]
        return numbers if len(numbers) == 4 else [0, 0, 0, 0]

    def close(self):
        bus = getattr(self, "bus", None)
        if bus is not None and not bus.is_closed():
            bus.close_sync(None)
        for process in reversed(self._processes):
            stop(process)
        self._log.close()
        shutil.rmtree(self.home, ignore_errors=True)
