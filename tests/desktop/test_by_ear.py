"""The typical run, by keys alone, of somebody who goes by nothing but what Orca says."""

import os
import unittest

from columns import bag_file, columns
from speaking_case import SpeakingCase, Voice

TRANSCRIPT = os.environ.get("KARVENIS_TRANSCRIPT")  # the file that takes what was pressed and said
BALLS = (1, 2, 9, 10, 17, 18, 26, 33)
BANKO = 40
MAIN = "Kolon düğme"
BAG = "6/49 Top Seçme Tablosu"
RANDOM_LIST = r"Rastgele Kolon Listesi - Sayfa 1 .*"
LIST = r"Kombinasyon Listesi - Sayfa 1 .*"
ROW = r"(?:Sayfa \d+\. )?Kolon - (\d+) : ([\d ]+) \[ \d+ \]"


class ByEar(SpeakingCase):
    def setUp(self):
        self.told, self.noted = [], len(self.screen.voice.lines)
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

    def do(self, key, *patterns):
        """Presses a key and waits for what is to be heard then, as `listen` does."""
        self.note()
        self.told.append(f"- {key}")
        self.program.keys(key)
        return self.listen(*patterns)

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
            told = self.do(key, r"(\d+) denetim kutusu işaretli( değil)?")
            self.ball = int(told.group(1))

    def draw(self):
        """A column, as it is told when its last ball rests."""
        told = self.do("space", r"bildirim Kolon: ([\d, ]+)").group(1)
        return tuple(int(ball) for ball in told.split(", "))


    def test_the_typical_run(self):
        self.start()
        self.noted = 0
        self.choose_the_bag()
        self.choose_the_banko()
        self.load_both()
        drawn = self.draw_and_keep()
        self.read_and_delete(drawn)
        self.hand_over()
        self.hear_a_coupon()
        self.generate()
        self.read_and_filter()
        self.list_as_text()
        self.draw_from_the_list()
        self.step("The end")
        self.go_to("Çıkış düğme", "Tab")
        self.program.keys("Return")
        self.assertEqual(self.program.status(), 0)

    def choose_the_bag(self):
        self.step("The bag: eight balls, kept in the file")
        self.do("F10", r"FONKSİYON TUŞLARI .*", "Tamam düğme")
        self.do("Return", MAIN)
        self.do("F5", BAG)
        self.ball = int(self.listen(r"(\d+) denetim kutusu işaretli değil").group(1))
        for ball in BALLS:
            self.find_ball(ball)
            self.do("space", "işaretli")
        self.do("F1", f"bildirim Torbada {len(BALLS)} top")
        self.agree("F3", r"Topları KARVENIS\.DAT dosyasına kayıtlamak istiyormusunuz \?",
                   r"Seçilen toplar KARVENIS\.DAT dosyasına kayıtlandı.*")
        self.do("Return", BAG, rf"{self.ball} denetim kutusu işaretli")
        self.do("Escape", MAIN)
        self.assertEqual(self.program.bytes("KARVENIS.DAT"), bag_file(BALLS))

    def choose_the_banko(self):
        self.step("One banko, kept in the file")
        self.do("F7", "Banko", "0 banko top", "seçili radyo düğmesi")
        self.do("F5", r"1\. banko top metin", "bildirim 1 banko top")
        self.write_in(str(BANKO))
        self.do("F1", f"bildirim Banko: {BANKO}")
        self.agree("F3", r"Banko topları \(topu\) KARVENIS\.DAT dosyasına kayıtlamak "
                         r"istiyormusunuz \?",
                   r"Seçilen toplar KARVENIS\.DAT dosyasına kayıtlandı.*")
        self.do("Return", "Banko", f"bildirim Banko: {BANKO}")
        self.do("Escape", MAIN)
        self.assertEqual(self.program.bytes("KARVENIS.DAT"), bag_file(BALLS, [BANKO]))

    def load_both(self):
        self.step("Both come back from the file")
        for key, told in (("F6", f"Torbada {len(BALLS)} top"), ("F8", f"Banko: {BANKO}")):
            self.do(key, r".*KARVENIS\.DAT dosyasından yüklemek istiyormusunuz ?\?")
            self.listen("Evet düğme")
            self.do("Return", MAIN, f"bildirim {told}")

    def draw_and_keep(self):
        self.step("Three columns are drawn and kept")
        kept = []
        for number in (1, 2, 3):
            kept.append(self.draw())
            self.assertEqual(kept[-1][0], BANKO)
            self.do("F1", rf"bildirim KARVENIS\.RND Kayıt No= {number}")
        self.assertEqual(columns(self.program.bytes("KARVENIS.RND")),
                         [(0, tuple(sorted(column))) for column in kept])
        return [tuple(sorted(column)) for column in kept]

    def read_and_delete(self, kept):
        self.step("The kept columns are read, and the second one is deleted")
        self.assertEqual(self.read_list("F2", RANDOM_LIST), kept)
        self.do("F3", "Kolon Silme", r"Silmek istediğiniz kolon numarasını girin\. metin")
        self.write_in("2")
        self.do("Return", RANDOM_LIST, ROW)
        del kept[1]
        self.do("Escape", MAIN)
        self.assertEqual(self.read_list("F2", RANDOM_LIST), kept)
        self.do("Escape", MAIN)

    def read_list(self, key, title):
        """Opens a list and reads it down to its end. Returns the columns that were heard."""
        heard = [self.do(key, title, ROW)]
        while True:
            row = self.do("Down", ROW)
            if int(row.group(1)) <= int(heard[-1].group(1)):
                break
            heard.append(row)
        return [tuple(map(int, row.group(2).split())) for row in heard]

    def hand_over(self):
        self.step("They become the combination list; what is drawn later is put behind them")
        self.agree("F3", r"KARVENIS\.RND dosyasının adını KARVENIS\.LST olarak değiştirmek "
                         r"istiyormusunuz\?",
                   r"2 kolon 'KARVENIS\.LST' dosyasına kayıtlandı.*")
        self.do("Return", MAIN)
        self.draw()
        self.do("F1", r"bildirim KARVENIS\.RND Kayıt No= 1")
        self.do("F2", RANDOM_LIST, ROW)
        self.agree("F1", r"Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek "
                         r"istiyormusunuz \?",
                   r"Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi")
        self.do("Return", RANDOM_LIST, ROW)
        self.do("Escape", MAIN)
        self.agree("F4", r"'KARVENIS\.RND' dosyasını silmek istiyormusunuz \?",
                   r"KARVENIS\.RND dosyası silindi")
        self.do("Return", MAIN)
        self.assertFalse(self.program.has_file("KARVENIS.RND"))

    def hear_a_coupon(self):
        self.step("Eight columns at once")
        told = self.do("F9", "Sekiz Rastgele Kolon", r"bildirim (Kolon 1: .*)").group(1)
        self.assertEqual(told.count(f" {BANKO}"), 8)
        self.do("Escape", MAIN)

    def generate(self):
        self.step("Six columns more are generated")
        self.do("F11", "6/49 Rastgele Kolon Üreteci", "Kolon Sayısı: metin", "32764 seçilmiş")
        self.write_in("6")
        self.do("F1", r"6 kolon 'KARVENIS\.LST' dosyasına eklendi")
        self.listen("Tamam düğme")
        self.do("Return", MAIN)
        self.assertTrue(self.program.has_file("KARVENIS.LST", 9 * 16))

    def read_and_filter(self):
        self.step("The list is read, and the columns with an unwanted number leave it")
        heard = self.read_list("F12", LIST)
        self.assertEqual(heard, self.listed())
        unwanted = next(ball for ball in BALLS if ball not in heard[0])
        self.do("F5", "Kolon SİLME iletişim kutusu",
                r"İstemediğiniz sayıları \(aralarına virgül koyarak\) girin\. metin",
                "örnek: 5,12,30")
        self.write_in(str(unwanted))
        self.do("Return", f"'{unwanted}' numaralı topun yer aldığı kolonları silmek "
                          r"istiyormusunuz\?")
        self.listen("Evet düğme")
        self.do("Return", LIST, ROW)
        self.assertEqual(self.listed(), [balls for balls in heard if unwanted not in balls])

    def listed(self):
        return [balls for _, balls in columns(self.program.bytes("KARVENIS.LST"))]

    def list_as_text(self):
        self.step("The list is written to a text file")
        self.do("F1", "Başlangıç : metin", "1 seçilmiş")
        self.agree("F1", r"Kombinasyon Listesi'ni KARVENIS\.TXT dosyasına yazdırmak "
                         r"istiyormusunuz \?",
                   '[0-9]+ byte "KARVENIS.TXT" dosyasına yazıldı')
        self.do("Return", "Kombinasyon Listesi", "Başlangıç : metin")
        self.do("Escape", LIST, ROW)
        self.do("Escape", MAIN)
        self.assertTrue(self.program.has_file("KARVENIS.TXT"))

    def draw_from_the_list(self):
        self.step("A column is drawn from the list")
        self.go_to("Torbadan Çek", "Tab")
        self.do("Down", "Listeden Çek", "seçili radyo düğmesi")
        self.go_to(MAIN, "shift+Tab")
        self.do("space", r"bildirim Kayıt \d+: [\d, ]+")

    def go_to(self, control, key):
        """Goes on until the control is heard; the opening picture, which comes back in the next
        minute, may be on the way."""
        while self.do(key, f"{control}|Çıkış düğme|Açılış resmi düğme").group() != control:
            pass


if __name__ == "__main__":
    unittest.main(verbosity=2)
