"""The program as a native client of a Wayland compositor."""

import contextlib
import io
import os
import struct
import tempfile
import unittest

import test_main_window
from columns import columns
from desktop_case import DesktopCase
from tour import Tour
from wayland import WaylandScreen


class TypicalRun(DesktopCase):
    screen_type = WaylandScreen

    def test_every_step(self):
        folder = tempfile.TemporaryDirectory(prefix="karvenis-tour-")
        self.addCleanup(folder.cleanup)
        tour = Tour(self.screen, self.executable, folder.name, {})
        self.program = tour.program
        self.addCleanup(self.program.close)
        with contextlib.redirect_stdout(io.StringIO()):
            tour.run()
        self.assertEqual(self.program.files(), [
            "KARVENIS.DAT", "KARVENIS.LST", "KARVENIS.OLD", "KARVENIS.RND", "KARVENIS.TXT",
            "KV2005.CFG"])
        self.assertEqual(len(columns(self.program.bytes("KARVENIS.RND"))), 2)


class Ends(test_main_window.Ends):
    """A Wayland desktop tells a program no place: the saved one stays as it is."""

    screen_type = WaylandScreen

    # What a program shows is a file there too, and it shows nothing under such a limit.
    test_a_size_limit_is_told_and_keeps_the_place = None

    def assert_kept(self, before, after):
        self.start({} if before is None else {"KV2005.CFG": before})
        self.click("push button", "Çıkış")
        self.expect_end()
        self.assertEqual(self.program.files(), ["KV2005.CFG"])
        self.assertEqual(self.program.bytes("KV2005.CFG"), after)

    def test_a_place_is_kept_bit_for_bit(self):
        for place in ((1500.1, -3000.7), (-0.0, 1e-40), (3e38, -3e38)):
            with self.subTest(place):
                saved = struct.pack("<ff", *place)
                self.assert_kept(saved, saved)

    def test_without_a_place_the_designed_one_is_saved(self):
        self.assert_kept(None, bytes(8))
        self.assert_kept(struct.pack("<f", 1500), bytes(8))

    def test_bytes_behind_the_place_are_kept(self):
        saved = struct.pack("<ff", 1500, 3000) + b"more"
        self.assert_kept(saved, saved)


if __name__ == "__main__":
    unittest.main(verbosity=2)
