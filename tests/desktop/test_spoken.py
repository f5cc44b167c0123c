"""What Orca says, word by word, to somebody who hears the program and does not see it."""

import unittest

from columns import bag_file
from speaking_case import SpeakingCase


class MainWindow(SpeakingCase):
    def test_its_buttons(self):
        self.start()
        self.press("Tab", "Çıkış düğme.", "Kapat.")

    def test_its_question(self):
        self.start({"KARVENIS.DAT": bag_file([], [1])})
        self.press("F8", "uyarı  KARVENIS 2005 Randomizer.",
                   "Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?",
                   "Evet düğme.")
        self.press("Tab", "Hayır düğme.")


if __name__ == "__main__":
    unittest.main(verbosity=2)
