"""The beeps as they are heard: a sound server's only output is recorded and its sounds counted."""

import os
import subprocess
import unittest

from desktop_case import EXECUTABLE, STANDARD_TITLE, DesktopCase
from program import Program
from screen import wait_for
from sound_server import SoundServer
from unprivileged import leave_root
from wayland import WaylandScreen

PLAYER = "karvenis-bell"


def setUpModule():
    """A sound server refuses to serve root."""
    DesktopCase.executable, _ = leave_root(
        EXECUTABLE, os.path.join(os.path.dirname(EXECUTABLE), PLAYER))


class SilentCase(DesktopCase):
    """The program where no sound server is; it is used without a pointer, as Wayland has it."""

    pictures = "/tmp/karvenis-pictures"  # where a user other than the caller may write
    environment = {}

    def start(self, files=None, **options):
        self.program = Program(self.screen, self.executable, files, environment=self.environment)
        self.addCleanup(self.program.close)
        self.main = self.program.window(STANDARD_TITLE)
        return self.program

    def click(self, role, name):
        self.main.find(role, name).press()

    def refused(self):
        """A draw from a list that is not there: one beep, and a box."""
        self.click("radio button", "Listeden Çek")
        self.click("push button", "Kolon")
        found = []
        self.program.until(lambda: found.extend(self.program.boxes()) or found, "the refusal")
        found[0].find("push button", "Tamam").press()
        self.program.until(lambda: not self.program.boxes(), "the refusal to go")
        self.click("radio button", "Torbadan Çek")

    def end(self):
        self.click("push button", "Çıkış")
        self.expect_end()

    def children(self):
        """The processes that the program has started and not seen end, with their names."""
        process = self.program.process.pid
        with open(f"/proc/{process}/task/{process}/children", encoding="ascii") as file:
            return {int(child): name_of(child) for child in file.read().split()}


def name_of(process):
    with open(f"/proc/{process}/comm", encoding="ascii") as file:
        return file.read().strip()


class NoServer(SilentCase):
    def test_nothing_changes_but_the_silence(self):
        self.start()
        self.draw()
        self.refused()
        self.program.until(lambda: not self.children(), "the player to end, and no zombie to stay")
        self.refused()
        self.assertFalse(self.children())
        self.end()


class SoundCase(SilentCase):
    """The program beside a sound server."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.server = SoundServer(cls.screen.home)
        cls.addClassCleanup(cls.server.close)
        cls.environment = cls.server.environment

    def setUp(self):
        self.start()
        self.before = self.server.bursts()

    def heard(self, count):
        """This many sounds since the start, and no more."""
        self.program.until(lambda: self.server.bursts() - self.before >= count, f"sound {count}")
        self.assertEqual(self.server.bursts() - self.before, count)


class UnderX(SoundCase):
    def test_a_draw_is_six_sounds_and_a_refusal_one(self):
        self.draw()
        self.heard(6)
        self.refused()
        self.heard(7)
        self.refused()
        self.heard(8)
        self.end()

    def test_the_player_ends_as_soon_as_nobody_can_ask_it(self):
        player = os.path.join(os.path.dirname(self.executable), PLAYER)
        ended = subprocess.run([player], stdin=subprocess.DEVNULL, timeout=60,
                               env={**self.screen.environment, **self.environment})
        self.assertEqual(ended.returncode, 0)

    def test_nothing_of_it_is_loaded_into_the_program(self):
        self.assertEqual(self.children(), {})
        self.refused()
        self.heard(1)
        self.assertEqual(list(self.children().values()), [PLAYER])
        with open(f"/proc/{self.program.process.pid}/maps", encoding="utf-8") as file:
            loaded = file.read()
        self.assertNotIn("canberra", loaded)
        self.assertNotIn("libpulse", loaded)


class UnderWayland(UnderX):
    screen_type = WaylandScreen


class HungServer(SoundCase):
    """A server that holds its connections and answers nobody."""

    def setUp(self):
        super().setUp()
        self.addCleanup(self.server.wake)

    def test_it_does_not_hold_the_window_up_and_is_heard_when_it_wakes(self):
        self.refused()
        self.heard(1)
        self.server.hang()
        self.draw()
        self.refused()
        self.server.wake()
        self.program.until(lambda: self.server.bursts() > self.before + 1, "sounds again")

    def test_a_first_beep_does_not_wait_and_the_player_ends_with_the_program(self):
        self.server.hang()
        self.refused()
        (player,) = self.children()
        self.end()
        wait_for(lambda: not os.path.exists(f"/proc/{player}"), "the player to end")


if __name__ == "__main__":
    unittest.main(verbosity=2)
