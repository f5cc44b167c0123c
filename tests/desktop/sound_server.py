"""A sound server of the tests' own, whose one output goes nowhere and is recorded."""

import array
import os
import signal
import subprocess

from screen import start, stop, wait_for

_RATE = 8000  # samples in a second
_WINDOW = _RATE // 100  # a hundredth of a second
_LOUD = 300  # of 32767; the tail of a bell is below it
_QUIET = 3  # windows of silence between two bursts


class SoundServer:
    """Runs until close(); `environment` leads a program to it."""

    def __init__(self, home):
        self.home = os.path.join(home, "sound")
        os.mkdir(self.home)
        socket = os.path.join(self.home, "socket")
        self.environment = {"PULSE_SERVER": "unix:" + socket}
        self._processes = []
        self._private = {"PATH": os.environ.get("PATH", "/usr/bin:/bin"), "HOME": self.home,
                         "XDG_RUNTIME_DIR": self.home, **self.environment}
        self._words = open(os.path.join(self.home, "words"), "wb")
        self._recording = open(os.path.join(self.home, "recording"), "w+b")
        self._bursts, self._quiet = 0, _QUIET
        try:
            self._open(socket)
        except BaseException:
            self.close()
            raise

    def _open(self, socket):
        self._server = self._start(
            ["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
             "--disable-shm", "-L", f"module-native-protocol-unix auth-anonymous=1 socket={socket}",
             "-L", "module-null-sink sink_name=ear"], stdout=self._words)
        wait_for(lambda: "Default Sink: ear" in self._told("info"), "the sound server")
        with open(self._recording.name, "wb") as file:
            self._start(["parec", "--device=ear.monitor", "--raw", "--format=s16le",
                         f"--rate={_RATE}", "--channels=1", "--latency-msec=10"], stdout=file)
        wait_for(lambda: os.path.getsize(self._recording.name) > 0, "the recording")

    def _start(self, command, stdout):
        process = start(command, env=self._private, stdout=stdout, stderr=self._words)
        self._processes.append(process)
        return process

    def _told(self, *question):
        return subprocess.run(["pactl", *question], env={**self._private, "LC_ALL": "C"},
                              stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              check=False, timeout=30).stdout

    def bursts(self):
        """How many sounds have been heard so far, told apart by the silence between them."""
        while len(window := self._recording.read(2 * _WINDOW)) == 2 * _WINDOW:
            if max(map(abs, array.array("h", window))) < _LOUD:
                self._quiet += 1
            else:
                self._bursts += self._quiet >= _QUIET
                self._quiet = 0
        self._recording.seek(-len(window), os.SEEK_CUR)
        return self._bursts

    def hang(self):
        """From now on the server answers nobody, and closes no connection either."""
        self._server.send_signal(signal.SIGSTOP)

    def wake(self):
        self._server.send_signal(signal.SIGCONT)

    def close(self):
        for process in reversed(self._processes):
            process.send_signal(signal.SIGCONT)
            stop(process)
        self._words.close()
        self._recording.close()
