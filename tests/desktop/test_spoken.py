"""What Orca says, word by word, to somebody who hears the program and does not see it."""

import re
import unittest

from columns import bag_file, record
from speaking_case import SpeakingCase

MAIN = ["KARVENIS 2005 Randomizer", "Kolon düğme", "Yeni Kolon"]
TICKED, UNTICKED = "denetim kutusu işaretli", "denetim kutusu işaretli değil"


def row(number, *balls):
    """A row of a list."""
    return f"Kolon - {number} : {' '.join(map(str, balls))} [ {sum(balls):03} ]"


class Spoken(SpeakingCase):
    @property
    def dots(self):
        """What is said of three full stops at the end."""
        return "" if self.screen.is_newer else 3 * " nokta"

    def question(self, key, text, title="KARVENIS 2005 Randomizer", *, answered):
        """A question that a key brings is read; Enter says yes, which is followed by `answered`."""
        self.press(key, f"uyarı {title}", text, "Evet düğme")
        self.press("Return", *answered)

    # The main window

    def test_the_options_and_the_check_box(self):
        self.start()
        self.press("Tab", "Çıkış düğme", "Kapat")
        self.press("Tab", "Açılış resmi düğme")
        self.press("Tab", "Kolonun kaynağı ve sırası panel", "Torbadan Çek",
                   "seçili radyo düğmesi")
        self.press("Down", "Listeden Çek", "seçili radyo düğmesi")
        self.press("Tab", f"Numara Sırası {UNTICKED}")
        self.press("space", "işaretli")
        self.press("Tab", *MAIN[1:])

    def test_a_column_drawn_and_kept(self):
        program = self.start()
        program.keys("space")
        program.until(lambda: program.numbers(self.main) != [], "the draw to begin")
        program.until(lambda: len(program.numbers(self.main)) == 12, "the sixth ball")
        shown = program.numbers(self.main)[::2]
        self.hear(f"bildirim Kolon: {', '.join(map(str, shown))}")
        self.press("F1", "bildirim KARVENIS.RND Kayıt No= 1")
        self.press("Tab", "Çıkış düğme", "Kapat")

    def test_a_column_of_the_list(self):
        self.start({"KARVENIS.LST": record((49, 3, 27, 8, 11, 30))})
        self.press("Tab", "Çıkış düğme", "Kapat")
        self.press("Tab", "Açılış resmi düğme")
        self.press("Tab", "Kolonun kaynağı ve sırası panel", "Torbadan Çek",
                   "seçili radyo düğmesi")
        self.press("Down", "Listeden Çek", "seçili radyo düğmesi")
        self.press("shift+Tab", "Açılış resmi düğme")
        self.press("shift+Tab", "Çıkış düğme", "Kapat")
        self.press("shift+Tab", *MAIN[1:])
        self.press("space", "bildirim Kayıt 1: 49, 3, 27, 8, 11, 30")
        self.press("Tab", "Çıkış düğme", "Kapat")

    def test_the_bag_and_the_bankos_loaded(self):
        self.start({"KARVENIS.DAT": bag_file([1, 2, 3, 4, 5, 6, 7], [7, 30])})
        self.question("F6", "Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz?",
                      answered=[*MAIN, "bildirim Torbada 7 top"])
        self.question("F8", "Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?",
                      answered=[*MAIN, "bildirim Banko: 7, 30"])
        self.press("Tab", "Çıkış düğme", "Kapat")

    # The bag

    def test_the_balls_of_the_bag(self):
        self.start({"KARVENIS.DAT": bag_file([1, 9])})
        self.press("F5", "6/49 Top Seçme Tablosu", "Toplar panel", f"1 {UNTICKED}")
        self.press("Right", f"2 {UNTICKED}")
        self.press("Down", f"9 {UNTICKED}")
        self.press("space", "işaretli")
        self.press("space", "işaretli değil")
        self.press("F4", "işaretli", "bildirim 49 top işaretli")
        self.press("Left", f"8 {TICKED}")
        self.press("F5", "işaretli değil", "bildirim İşaretli top yok")
        self.press("Up", f"1 {UNTICKED}")
        self.press("space", "işaretli")
        self.press("F1", "bildirim Torbada 1 top")
        self.press("F2", "uyarı KARVENIS 2005 Randomizer",
                   "Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?", "Evet düğme")
        self.press("Return", "6/49 Top Seçme Tablosu", "Toplar panel", f"1 {TICKED}",
                   "bildirim Torbada 2 top")
        self.press("Tab", "Uygula düğme")

    # The bankos

    def test_the_boxes_of_the_bankos(self):
        self.start()
        self.press("F7", "Banko", "0 banko top", "seçili radyo düğmesi")
        self.press("F6", "1. banko top metin", "bildirim 2 banko top")
        self.program.type("7")
        self.press("Return", "2. banko top metin")
        self.program.type("30")
        self.program.keys("F1")
        self.listen("bildirim Banko: 7, 30")  # the box may tell of the number in it first
        self.press("Tab", "Uygula düğme")

    # Keys that the screen reader looks at first

    def test_each_press_is_a_key_and_a_held_key_is_one(self):
        program = self.start()
        self.program.keys("space")
        self.listen(r"bildirim Kolon: [\d, ]+")
        program.keys("F1", "F1", "F1", "F1")
        self.listen(r"bildirim KARVENIS\.RND Kayıt No= 4")
        with program.held("F1"):
            self.listen(r"bildirim KARVENIS\.RND Kayıt No= 5")
            program.let_repeat()
        self.press("Tab", "Çıkış düğme", "Kapat")
        self.assertEqual(len(program.bytes("KARVENIS.RND")), 5 * 16)

    def test_enter_answers_one_box_after_the_other(self):
        program = self.start()
        self.press("F5", "6/49 Top Seçme Tablosu", "Toplar panel", f"1 {UNTICKED}")
        self.press("F3", "uyarı KARVENIS 2005 Randomizer",
                   "Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?", "Evet düğme")
        self.press("Return", "uyarı KARVENIS 2005 Randomizer",
                   "Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı" + self.dots, "Tamam düğme")
        self.press("Return", "6/49 Top Seçme Tablosu", "Toplar panel", f"1 {UNTICKED}")
        self.assertEqual(program.bytes("KARVENIS.DAT"), bag_file([]))

    # Boxes to type into

    def test_a_number_is_told_whole_and_with_the_name_of_its_box(self):
        self.start({"KARVENIS.LST": b"".join(record((n, 2, 3, 4, 5, 6)) for n in range(7, 17))})
        self.press("F11", "6/49 Rastgele Kolon Üreteci", "Kolon Sayısı: metin", "32757 seçilmiş",
                   "Rastgele küme oluşturmak için en çok deneme sayısı")
        self.press("Escape", *MAIN)
        self.press("F12", "Kombinasyon Listesi - Sayfa 1 [ F10= Yardım ]", "10 ögeli liste",
                   row(1, 7, 2, 3, 4, 5, 6))
        self.press("F3", "Kolon SİLME iletişim kutusu",
                   "Silmek istediğiniz kolon numarasını girin. metin", "0 seçilmiş")
        self.press("Escape", "Kombinasyon Listesi - Sayfa 1 [ F10= Yardım ]", "10 ögeli liste",
                   row(1, 7, 2, 3, 4, 5, 6))
        self.press("F1", "Kombinasyon Listesi", "Başlangıç : metin", "1 seçilmiş")
        self.program.keys("Return")
        self.listen("Bitiş : metin")
        self.hear("10 seçilmiş")

    # The lists

    def test_a_list_is_read_record_by_record(self):
        balls = [(n, 20, 30, 40, 48, 49) for n in range(1, 9)]
        self.start({"KARVENIS.LST": b"".join(map(record, balls))})
        self.press("F12", "Kombinasyon Listesi - Sayfa 1 [ F10= Yardım ]", "8 ögeli liste",
                   row(1, *balls[0]))
        for number in range(2, 9):
            self.press("Down", row(number, *balls[number - 1]))
        self.press("Up", row(7, *balls[6]))
        self.press("Escape", *MAIN)

    def test_the_pages_of_a_list(self):
        balls = [(n, 41, 42, 43, 44, 45) for n in range(1, 31)]
        self.start({"KARVENIS.RND": b"".join(map(record, balls))})
        self.press("F2", "Rastgele Kolon Listesi - Sayfa 1 [ F10= Yardım ]", "25 ögeli liste",
                   row(1, *balls[0]))
        self.press("Down", f"Sayfa 2. {row(2, *balls[1])}")
        self.press("Page_Down", row(27, *balls[26]))
        self.press("Home", f"Sayfa 1. {row(1, *balls[0])}")
        self.press("End", f"Sayfa 2. {row(6, *balls[5])}")
        self.question("F1", "Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek "
                            "istiyormusunuz ?",
                      answered=["uyarı KARVENIS 2005 Randomizer",
                                "Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi",
                                "Tamam düğme"])
        self.press("Return", "Rastgele Kolon Listesi - Sayfa 1 [ F10= Yardım ]",
                   "25 ögeli liste", f"Sayfa 1. {row(1, *balls[0])}")

    # The coupon

    def test_a_coupon_when_it_is_full(self):
        program = self.start()
        self.press("F9", "Sekiz Rastgele Kolon")
        coupon = program.window("Sekiz Rastgele Kolon")

        def typed():
            return [re.findall(r"\d+", line.name) for line in coupon.all("list item")]
        program.until(lambda: [len(line) for line in typed()] == 8 * [1 + 6], "eight columns")
        columns = [f"Kolon {number}: {', '.join(str(int(ball)) for ball in balls)}"
                   for number, *balls in typed()]
        self.hear(f"bildirim {'. '.join(columns)}")
        self.press("Escape", *MAIN)


if __name__ == "__main__":
    unittest.main(verbosity=2)
