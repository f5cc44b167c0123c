"""Every window can be read and worked by whoever does not see it or uses no mouse."""

import unittest

from columns import record
from desktop_case import DesktopCase

WORKED = ("push button", "radio button", "check box", "text", "menu item")


class ReadingAids(DesktopCase):
    def windows(self):
        """Opens each window in turn and gives it."""
        rnd = " Rastgele Kolon Listesi - Sayfa 1  [ F10= Yardım ]"
        lst = " Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]"
        yield self.main
        for key, title in (("F5", "6/49 Top Seçme Tablosu"), ("F7", "Banko"),
                           ("F9", "Sekiz Rastgele Kolon"),
                           ("F2", rnd), ("F11", "6/49 Rastgele Kolon Üreteci"), ("F12", lst)):
            yield self.open(key, title)
            self.program.keys("Escape")
            self.program.gone(title)
            self.program.activated(self.main.name)
        for opener, outer, inner in (
                ("F2", rnd, (("F3", " Kolon Silme"), ("F9", " Rastgele Kolonlar"))),
                ("F12", lst, (("F1", "Kombinasyon Listesi"),))):
            self.open(opener, outer)
            for key, title in inner:
                yield self.open(key, title)
                self.program.keys("Escape")
                self.program.gone(title)
                self.program.activated(outer)
            self.program.keys("Escape")
            self.program.gone(outer)
            self.program.activated(self.main.name)

    def test_no_control_is_nameless(self):
        one = record((1, 2, 3, 4, 5, 6))
        self.start({"KARVENIS.RND": one, "KARVENIS.LST": one})
        for window in self.windows():
            nameless = [node.role for node in window.walk()
                        if node.role in WORKED and not node.name.strip()]
            self.assertEqual(nameless, [], window.name)

    def test_tab_reaches_every_control(self):
        one = record((1, 2, 3, 4, 5, 6))
        self.start({"KARVENIS.RND": one, "KARVENIS.LST": one})
        for window in self.windows():
            name = window.name
            worked = {node.path for node in window.walk()
                      if node.role in ("push button", "text", "check box")
                      and node.has("enabled") and node.has("showing")}
            reached = set()
            for _ in range(2 * len(worked) + 4):
                self.program.keys("Tab")
                reached |= {node.path for node in window.walk() if node.has("focused")}
            balls = {node.path for node in window.all("check box") if node.name.isdigit()}
            self.assertLessEqual(worked - balls, reached, name)  # arrows move among the balls


if __name__ == "__main__":
    unittest.main(verbosity=2)
