"""Whatever language the system speaks, the program behaves the same and writes the same files."""

import os
import unittest

from columns import bag_file, record
from desktop_case import STANDARD_TITLE, DesktopCase
from locales import compiled

LOCALES = ("tr_TR.UTF-8", "ar_EG.UTF-8", "de_DE.UTF-8")
COLUMNS = [(1, 9, 17, 25, 33, 41), (2, 5, 12, 30, 40, 49), (3, 7, 10, 20, 30, 40)]


class Locales(DesktopCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.screen.environment["LOCPATH"] = compiled(os.path.join(cls.screen.home, "locale"),
                                                     *LOCALES)

    def under_each(self, work, files=None):
        """Does `work(program)` in a run of its own under each locale."""
        for locale in ("C.UTF-8", *LOCALES):
            with self.subTest(locale):
                program = self.start(files, environment={"LANG": locale, "LC_ALL": locale})
                work(program)
                self.assertEqual(program.words(), "")
                program.close()

    def test_bag_and_bankos_are_saved_alike(self):
        def work(program):
            bag = self.open("F5", "6/49 Top Seçme Tablosu")
            for ball in (1, 10, 49):
                cell = bag.find("check box", str(ball))
                program.click(cell)
                program.until(lambda: cell.has("checked"), "the mark")
            program.keys("F3")
            self.expect_question("Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?",
                                 "Evet")
            self.expect_box("Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...")
            program.keys("Escape")
            program.activated(STANDARD_TITLE)
            banko = self.open("F7", "Banko")
            program.keys("F6")
            program.click(banko.find("text", "1. banko top"))
            program.keys("7", "Return", "2", "1")
            program.until(lambda: banko.find("text", "2. banko top").text == "21", "the numbers")
            program.keys("F3")
            program.box(STANDARD_TITLE).press("Return")
            program.box(STANDARD_TITLE).press("Return")
            self.assertEqual(program.bytes("KARVENIS.DAT"), bag_file([1, 10, 49], [7, 21]))
        self.under_each(work)

    def test_lists_are_filtered_and_written_alike(self):
        written = set()

        def work(program):
            self.open("F12", " Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]")
            self.open("F1", "Kombinasyon Listesi")
            program.keys("F1")
            self.expect_question("Kombinasyon Listesi'ni KARVENIS.TXT dosyasına yazdırmak "
                                 "istiyormusunuz ?", "Evet", "KARVENIS 2005 Randomizer")
            size = len(program.bytes("KARVENIS.TXT"))
            self.expect_box(f' {size} byte "KARVENIS.TXT" dosyasına yazıldı.',
                            "KARVENIS 2005 Randomizer")
            lines = program.bytes("KARVENIS.TXT").split(b"\r\n")
            written.add(b"\r\n".join(lines[:1] + lines[2:]))  # the second line holds the date
            self.assertTrue(lines[1].isascii())
            program.keys("Escape")
            program.activated(" Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]")
            program.keys("F5")
            program.box("Kolon SİLME").type("5,12")
            self.expect_question("'5,12' numaralı topların yer aldığı kolonları silmek "
                                 "istiyormusunuz?", "Evet")
            program.until(lambda: program.has_file("KARVENIS.LST", 32), "the shorter list")
            program.activated(" Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]")
            self.assertEqual(program.bytes("KARVENIS.LST"),
                             record(COLUMNS[0], 417) + record(COLUMNS[2], 417))
        self.under_each(work, {"KARVENIS.LST": b"".join(map(record, COLUMNS))})
        self.assertEqual(len(written), 1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
