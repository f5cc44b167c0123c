"""A session in which a real screen reader, Orca, speaks Turkish, and what it says.

A screen reader hands its lines to a speech service over a socket. Here this process is that
service, so what is heard is known word by word, whichever Orca is installed."""

import fcntl
import functools
import html
import os
import re
import socketserver
import threading

from locales import compiled
from screen import Screen, wait_for

LANGUAGE = "tr_TR.UTF-8"


class _Client(socketserver.StreamRequestHandler):
    """One client of the speech service: its commands are lines, each answered by a code."""

    ANSWERS = {"SPEAK": "230 OK", "QUIT": "231 OK", "HISTORY": "245-1\r\n245 OK",
               "LIST": "249-ses\ttr\tnone\r\n249 OK", "GET": "251-0\r\n251 OK"}

    def handle(self):
        for line in self._lines():
            command, _, rest = line.partition(" ")
            self._answer(self.ANSWERS.get(command, "225-1\r\n225 OK"))
            if command == "SPEAK":
                self.server.say(self._message())
                self._answer("225-1\r\n225 OK")
            elif command == "CHAR":
                self.server.lines.append(rest)
            elif command in ("CANCEL", "STOP"):
                self.server.lines.append(Voice.CUT)
            elif command == "QUIT":
                return

    def _lines(self):
        for line in self.rfile:
            yield line.decode().rstrip("\r\n")

    def _message(self):
        """The words of a message, which a line with a single dot ends; with single blanks between
        them and without the full stops that only some versions of Orca put behind them."""
        lines = list(iter(functools.partial(next, self._lines()), "."))
        words = html.unescape(re.sub(r"<[^>]*>", "", " ".join(lines))).split()
        return " ".join(words).rstrip(".")

    def _answer(self, text):
        self.wfile.write(text.encode() + b"\r\n")


class Voice(socketserver.ThreadingUnixStreamServer):
    """The speech service: what it was given to say so far, in order, in the pieces in which Orca 43
    has it. CUT stands where it was told to stop what it was saying."""

    CUT = None
    NOTIFICATION = "bildirim"
    daemon_threads = True

    def __init__(self, path):
        super().__init__(path, _Client)
        self.lines, self._role = [], []
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def say(self, line):
        """Notes a line. Newer Orcas say the role of a notification by itself, and the state of an
        option together with its name."""
        if line == self.NOTIFICATION:
            self._role = [line]
            return
        line = " ".join([*self._role, line])
        self._role = []
        option = re.fullmatch(r"(.+) (seçili(?: değil)? radyo düğmesi)", line)
        self.lines += option.groups() if option else [line]

    def close(self):
        self.shutdown()
        self.server_close()


class SpeakingScreen(Screen):
    """A screen on which Orca reads every program aloud; `voice` has what it says. One at a time for
    each user, since a second Orca would refuse to start."""

    def _open(self, size):
        self._turn = open(os.path.join("/tmp", f"karvenis-orca-{os.getuid()}.lock"), "w")
        fcntl.flock(self._turn, fcntl.LOCK_EX)
        super()._open(size)
        del self.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]  # Orca itself asks to be served
        self.voice = Voice(os.path.join(self.home, "voice"))
        self.environment |= {"LANG": LANGUAGE, "LOCPATH": compiled(os.path.join(self.home, "locale"), LANGUAGE),
                             "GSETTINGS_BACKEND": "memory",
                             "SPEECHD_ADDRESS": f"unix_socket:{self.voice.server_address}"}
        version = re.search(r"(\d+)\.", self.run("orca", "--version"))
        self.is_newer = int(version.group(1)) > 43  # than the one whose words the tests have
        self.start_reader()

    def start_reader(self):
        """Starts Orca, in place of the one that runs."""
        self._end_reader()
        before = len(self.voice.lines)
        self._orca = self._start(["orca", "--disable", "key-echo"])
        wait_for(lambda: "Ekran okuyucusu açık" in self.voice.lines[before:],
                 "Orca to say that it is on")

    def _end_reader(self):
        if hasattr(self, "_orca"):
            self._orca.kill()  # it takes its time to end by itself
            self._orca.wait()

    def close(self):
        self._end_reader()
        super().close()
        if hasattr(self, "voice"):
            self.voice.close()
        self._turn.close()
