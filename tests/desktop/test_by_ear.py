"""The typical run, by keys alone, of somebody who goes by nothing but what Orca says."""

import os
import unittest

from columns import bag_file, columns
from speaking_case import SpeakingCase, Voice

TRANSCRIPT = os.environ.get("KARVENIS_TRANSCRIPT")  # the file that takes what was pressed and said
BALLS = (1, 2, 9, 10, 17, 18, 26, 33)
BANKO = 40
ROW = r"Kolon - \d+ : ([\d ]+) \[ \d+ \]"


class ByEar(SpeakingCase):
    def setUp(self):
        self.told = []
        self.addCleanup(self.write)

    def write(self):
        """Puts down the keys and, behind each, all that was said."""
        self.note()
        if TRANSCRIPT:
            with open(TRANSCRIPT, "w", encoding="utf-8") as file:
                file.write("\n".join(self.told) + "\n")

    def note(self):
        lines = self.screen.voice.lines
        self.told += [f"    {line}" for line in lines[self.noted:] if line is not Voice.CUT]
        self.noted = len(lines)

    def step(self, text):
        self.note()
        self.told.append(f"\n## {text}\n")

    def do(self, key, pattern):
        """Presses a key and waits for what is to be heard then."""
        self.note()
        self.told.append(f"- {key}")
        self.program.keys(key)
        return self.listen(pattern)

    def write_in(self, digits):
        self.note()
        self.told.append(f"- {' '.join(digits)}")
        self.program.type(digits)

    def agree(self, key, question, done):
        """A question is heard and answered with yes, and what was done is confirmed."""
        self.do(key, question)
        self.listen("Evet düğme")
        self.do("Return", done)
        self.listen("Tamam düğme")

    def find_ball(self, ball):
        """Steps from ball to ball until the wanted one is heard; seven stand in a row."""
        while self.ball != ball:
            key = "Down" if ball - self.ball >= 7 else "Right"
            self.ball = int(self.do(key, r"(\d+) denetim kutusu işaretli( değil)?").group(1))

    def test_the_typical_run(self):
        self.noted = len(self.screen.voice.lines)
        program = self.start()

        self.step("The bag: eight balls, kept in the file")
        self.do("F5", r"6/49 Top Seçme Tablosu")
        self.ball = int(self.listen(r"(\d+) denetim kutusu işaretli değil").group(1))
        for ball in BALLS:
            self.find_ball(ball)
            self.do("space", "işaretli")
        self.do("F1", r"bildirim Torbada 8 top")
        self.agree("F3", "Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz [?]",
                   r"Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı")
        self.do("Return", r"6/49 Top Seçme Tablosu")
        self.do("Escape", r"Kolon düğme")

        self.step("One banko, kept in the file")
        self.do("F7", r"Banko")
        self.do("F5", r"1 banko top")
        self.do("Tab", r"1\. banko top metin")
        self.write_in(str(BANKO))
        self.do("F1", rf"bildirim Banko: {BANKO}")
        self.agree("F3", "Banko topları .topu. KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz [?]",
                   r"Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı")
        self.do("Return", r"Banko")
        self.do("Escape", r"Kolon düğme")
        self.assertEqual(program.bytes("KARVENIS.DAT"), bag_file(BALLS, [BANKO]))

        self.step("A column is drawn")
        told = self.do("space", r"bildirim Kolon: ([\d, ]+)").group(1)
        drawn = [int(ball) for ball in told.split(", ")]
        self.assertEqual(drawn[0], BANKO)

        self.step("It is kept")
        self.do("F1", r"bildirim KARVENIS\.RND Kayıt No= 1")
        self.assertEqual(columns(program.bytes("KARVENIS.RND")), [(0, tuple(sorted(drawn)))])
        self.do("space", r"bildirim Kolon: [\d, ]+")
        self.do("F1", r"bildirim KARVENIS\.RND Kayıt No= 2")

        self.step("The kept columns go to the combination list")
        self.do("F2", r"Rastgele Kolon Listesi - Sayfa 1 .*")
        first = self.listen(ROW).group(1).split()
        second = self.do("Down", ROW).group(1).split()
        self.agree("F1", "Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek istiyormusunuz [?]",
                   r"Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi")
        self.do("Return", ROW)
        self.do("Escape", r"Kolon düğme")

        self.step("Columns with an unwanted number leave the list")
        self.do("F12", r"Kombinasyon Listesi - Sayfa 1 .*")
        self.listen(ROW)
        unwanted = next((ball for ball in second if ball not in first), "49")
        self.do("F5", r".*metin")
        self.write_in(unwanted)
        self.do("Return", rf"'{unwanted}'.*silmek istiyormusunuz[?]")
        self.listen("Evet düğme")
        self.do("Return", ROW)

        self.step("The list is written to a text file")
        self.do("F1", r"Kombinasyon Listesi\.?")
        self.agree("F1", ".*", r".*byte.*")
        self.do("Return", r"Kombinasyon Listesi\.?")
        self.do("Escape", r"Kombinasyon Listesi - Sayfa 1 .*")
        self.do("Escape", r"Kolon düğme")
        program.keys("Escape")
        self.expect_end()


if __name__ == "__main__":
    unittest.main(verbosity=2)
