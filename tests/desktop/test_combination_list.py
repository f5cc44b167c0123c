"""The combination list: its generator, its pages and commands, its four filters, its listing."""

import random
import re
import unittest

from columns import bag_file, columns, record
from desktop_case import STANDARD_TITLE, DesktopCase

GENERATOR = "6/49 Rastgele Kolon Üreteci"
LISTING = "Kombinasyon Listesi"
DELETION = "Kolon SİLME"
HELP = "\n".join([
    "F1= Kombinasyon listesini bas (Text yap)",
    "F2= Kombinasyon listesini 'KARVENIS.RND' dosyasına kayıtla",
    "F3= Bir kolon sil",
    "F4= Kombinasyon listesini (KARVENIS.LST dosyasını) sil",
    "F5= Kombinasyon listesini istenmeyen sayılar girişine göre ele",
    "F6= Kombinasyon listesini istenen sayılar girişine göre ele",
    "F7= Kombinasyon listesini istenmeyen ikililer girişine göre ele",
    "F8= Kombinasyon listesini istenen ikililer girişine göre ele",
    "",
    "F10= Fonksiyon Tuşları (Yardım)",
    ""])


def page(number):
    return f" Kombinasyon Listesi - Sayfa {number}  [ F10= Yardım ]"


def some_columns(count):
    """Columns drawn anew for each count, always the same ones."""
    chance = random.Random(count)
    return [tuple(sorted(chance.sample(range(1, 50), 6))) for _ in range(count)]


def listed(balls, word=None):
    """The bytes of a list; each record's word is `word`, or else its own number."""
    return b"".join(record(column, number if word is None else word)
                    for number, column in enumerate(balls, 1))


class Generator(DesktopCase):
    def open_generator(self, files=None):
        program = self.start(files)
        self.generator = self.open("F11", GENERATOR)
        return program

    def count_text(self):
        return self.generator.find("text").text

    def type_count(self, text):
        self.program.click(self.generator.find("text"))
        self.program.keys("ctrl+a", "Delete")
        self.program.type(text)
        self.program.until(lambda: self.count_text() == text, f"the count {text}")

    def test_a_new_list(self):
        program = self.open_generator()
        self.assertEqual(self.count_text(), "32767")
        self.assertFalse(self.generator.find("radio button", "Mevcut Listeye Ekle").has("enabled"))
        self.type_count("100")
        program.keys("F1")
        self.expect_box(" 100 kolon 'KARVENIS.LST' dosyasına kayıtlandı.")
        program.gone(GENERATOR)
        program.activated(STANDARD_TITLE)
        made = columns(program.bytes("KARVENIS.LST"))
        self.assertEqual([word for word, _ in made], list(range(1, 101)))
        for _, balls in made:
            self.assertEqual(list(balls), sorted(set(balls)))
            self.assertTrue(1 <= balls[0] and balls[-1] <= 49, balls)

    def test_columns_come_from_the_bag_with_the_bankos(self):
        bag = list(range(10, 31))
        program = self.start({"KARVENIS.DAT": bag_file(bag, [3, 48])})
        for key in ("F6", "F8"):
            program.keys(key)
            program.box().press("Return")
        self.generator = self.open("F11", GENERATOR)
        self.type_count("50")
        program.keys("F1")
        program.box().press("Return")
        for _, balls in columns(program.bytes("KARVENIS.LST")):
            self.assertLessEqual({3, 48}, set(balls))
            self.assertLessEqual(set(balls), {3, 48, *bag})

    def test_append(self):
        old = listed(some_columns(5))
        program = self.open_generator({"KARVENIS.LST": old})
        self.assertEqual(self.count_text(), "32762")
        self.type_count("32763")
        program.keys("F1")
        self.expect_box("En çok 32762 kolon ekleyebilirsiniz!", "! DİKKAT !")
        program.activated(GENERATOR)
        self.type_count("3")
        program.keys("F1")
        self.expect_box(" 3 kolon 'KARVENIS.LST' dosyasına eklendi.")
        made = program.bytes("KARVENIS.LST")
        self.assertEqual(made[:80], old)
        self.assertEqual([word for word, _ in columns(made[80:])], [6, 7, 8])
        self.assertEqual(program.files(), ["KARVENIS.LST"])

    def test_a_new_list_over_a_longer_one(self):
        old = listed(some_columns(5), word=9)
        program = self.open_generator({"KARVENIS.LST": old})
        program.click(self.generator.find("radio button", "Yeni Liste"))
        program.until(lambda: self.count_text() == "5", "the count of the old list")
        self.type_count("2")
        program.keys("F1")
        self.expect_question("Mevcut kombinasyon listesini yenisi ile değiştirmek "
                             "istiyormusunuz?", "Evet")
        self.expect_box(" 2 kolon 'KARVENIS.LST' dosyasına kayıtlandı.")
        self.assertEqual([word for word, _ in columns(program.bytes("KARVENIS.LST"))],
                         [1, 2, 9, 9, 9])
        self.assertEqual(program.bytes("KARVENIS.OLD"), old)

    def test_numbers_out_of_range(self):
        program = self.open_generator()
        for typed in ("0", "32768", "abc", "99999999999"):
            with self.subTest(typed):
                self.type_count(typed)
                program.keys("F1")
                self.expect_box("En az 1 ve en çok 32767 kolon kayıtlayabilirsiniz!", "! DİKKAT !")
                program.activated(GENERATOR)
        self.assertEqual(program.files(), [])

    def test_the_largest_list(self):
        program = self.open_generator()
        program.keys("F1")
        self.expect_box(" 32767 kolon 'KARVENIS.LST' dosyasına kayıtlandı.")
        self.assertEqual(len(program.bytes("KARVENIS.LST")), 32767 * 16)


class ListCase(DesktopCase):
    def open_list(self, balls, files=None):
        self.columns = balls
        program = self.start({"KARVENIS.LST": listed(balls), **(files or {})})
        self.list = self.open("F12", page(1))
        return program

    def shown(self):
        told = [re.search(r"Kolon - (\d+) : ", line.name)
                for line in self.list.find("list").children]
        return [int(number.group(1)) for number in told]

    def expect_page(self, first, last):
        wanted = list(range(first, last + 1))
        self.program.until(lambda: self.shown() == wanted, f"columns {first} to {last}")

    def answer(self, key, text):
        """Presses a key that asks for input, and types the answer."""
        self.program.keys(key)
        self.program.box(DELETION).type(text)


class List(ListCase):
    def test_keys_turn_the_pages(self):
        program = self.open_list(some_columns(30))
        self.expect_page(1, 25)
        for key, first, last in (("Next", 26, 30), ("Home", 1, 25), ("End", 6, 30),
                                 ("Up", 5, 29), ("Prior", 1, 25), ("space", 26, 30),
                                 ("Down", 27, 30), ("Down", 28, 30), ("Down", 29, 30),
                                 ("Down", 30, 30), ("Down", 6, 30)):
            program.keys(key)
            self.expect_page(first, last)

    def test_help(self):
        program = self.open_list(some_columns(1))
        program.keys("F10")
        box = program.box(" Kombinasyon Listesi FONKSİYON TUŞLARI")
        self.assertTrue(box.text.startswith(HELP), box.text)
        self.assertTrue(box.text.endswith("\n\nHOME= İlk Sayfa\nEND= Son Sayfa\n"
                                          "PAGEDOWN= Sonraki Sayfa\nPAGEUP= Önceki Sayfa\n\n"
                                          "ESC= Kapat"), box.text)
        box.press("Return")

    def test_a_missing_list_closes_the_window(self):
        program = self.start()
        program.keys("F12")
        self.expect_box("Kombinasyon listesi dosyası 'KARVENIS.LST' bulunamadı!")
        program.activated(STANDARD_TITLE)
        self.assertEqual(program.titles(), [STANDARD_TITLE])
        self.assertEqual(program.files(), [])

    def test_copy_over_the_kept_columns(self):
        program = self.open_list(some_columns(2), {"KARVENIS.RND": record((44,) * 6)})
        for answer in ("Hayır", "Evet"):
            program.keys("F2")
            self.expect_question("'KARVENIS.LST' dosyasını 'KARVENIS.RND' dosyası olarak kopyelemek "
                                 "istiyormusunuz?\n\n(Mevcut 'KARVENIS.RND' dosyası silinecek!)",
                                 answer)
        self.expect_box("Kombinasyon Listesi Yasak Kombinasyonlar Listesi'ne eklendi.")
        self.assertEqual(program.bytes("KARVENIS.RND"), listed(self.columns))

    def test_delete_one(self):
        program = self.open_list(some_columns(30))
        self.answer("F3", "2")
        program.until(lambda: program.has_file("KARVENIS.LST", 29 * 16), "the shorter list")
        records = [record(balls, number) for number, balls in enumerate(self.columns, 1)]
        self.assertEqual(program.bytes("KARVENIS.LST"), b"".join(records[:1] + records[2:]))
        self.assertEqual(program.bytes("KARVENIS.OLD"), b"".join(records))
        self.assertEqual(program.files(), ["KARVENIS.LST", "KARVENIS.OLD"])
        self.expect_page(2, 26)

    def test_delete_none(self):
        program = self.open_list(some_columns(30))
        self.answer("F3", "31")
        self.expect_page(6, 30)
        program.keys("F3")
        program.box(DELETION).press("Escape")
        self.expect_page(1, 25)
        self.assertEqual(program.files(), ["KARVENIS.LST"])

    def test_delete_the_list(self):
        program = self.open_list(some_columns(3))
        program.keys("F4")
        self.expect_question("'KARVENIS.LST' dosyasını silmek istiyormusunuz ?", "Evet")
        self.expect_box("'KARVENIS.LST' silindi...")
        program.activated(page(1))
        self.expect_page(1, 3)
        self.assertEqual(program.files(), [])

    def test_closing_by_the_frame_deletes_nothing(self):
        program = self.open_list(some_columns(2))
        program.close_by_frame(page(1))
        program.activated(STANDARD_TITLE)
        self.assertEqual(program.bytes("KARVENIS.LST"), listed(self.columns))


class Filters(ListCase):
    """What each filter keeps, told over sets, beside what it keeps."""

    CASES = (
        ("F5", "12, 5,30", "'5,12,30' numaralı topların yer aldığı kolonları silmek "
         "istiyormusunuz?", lambda balls: not {5, 12, 30} & set(balls)),
        ("F5", "12", "'12' numaralı topun yer aldığı kolonları silmek istiyormusunuz?",
         lambda balls: 12 not in balls),
        ("F6", "7,20", "'7,20' numaralı topların hiç birinin yer almadığı kolonları silmek "
         "istiyormusunuz?",  # the third ball counts for nothing
         lambda balls: {7, 20} & set(balls[:2] + balls[3:])),
        ("F7", "12-5", "'5-12' numaralı topların (ikisinin de) yer aldığı kolonları silmek "
         "istiyormusunuz?", lambda balls: not {5, 12} <= set(balls)),
        ("F8", "2-1,30-40", "'1-2, 30-40'  ikililerinin hiç bulunmadığı kolonları silmek "
         "istiyormusunuz?", lambda balls: {1, 2} <= set(balls) or {30, 40} <= set(balls)),
    )

    def test_each_filter_keeps_what_it_should(self):
        every = some_columns(400) + [(1, 2, 7, 12, 30, 40), (1, 3, 5, 12, 20, 49)]
        for key, typed, question, keeps in self.CASES:
            with self.subTest(key=key, typed=typed):
                program = self.open_list(every)
                self.answer(key, typed)
                self.expect_question(question, "Evet")
                wanted = listed([balls for balls in every if keeps(balls)], word=417)
                count = len(wanted) // 16
                self.assertTrue(1 < count < len(every))
                program.until(lambda: program.has_file("KARVENIS.LST", len(wanted)),
                              "the shorter list")
                # The page starts at the second column.
                program.activated(page((1 + min(25, count - 1) + 24) // 25))
                self.assertEqual(program.bytes("KARVENIS.LST"), wanted)
                self.assertEqual(program.bytes("KARVENIS.OLD"), listed(every))
                self.assertEqual(program.files(), ["KARVENIS.LST", "KARVENIS.OLD"])
                self.assertEqual(self.shown()[0], 2)
                program.close()

    def test_refused_or_void_input_changes_nothing(self):
        program = self.open_list(some_columns(30))
        for key, typed in (("F5", "0,5"), ("F5", ""), ("F6", "50"), ("F7", "5-"), ("F8", "5")):
            self.answer(key, typed)
            program.activated(page(1))
        for key, typed in (("F5", "1"), ("F6", "1"), ("F7", "1-2"), ("F8", "1-2")):
            self.answer(key, typed)
            program.box(STANDARD_TITLE).press("Escape")
        self.assertEqual(program.bytes("KARVENIS.LST"), listed(self.columns))
        self.assertEqual(program.files(), ["KARVENIS.LST"])

    def test_a_filter_that_keeps_nothing_removes_the_list(self):
        program = self.open_list([(1, 2, 3, 4, 5, 6)] * 3)
        self.answer("F5", "6")
        program.box(STANDARD_TITLE).press("Return")
        program.until(lambda: program.files() == ["KARVENIS.OLD"], "the list to go")
        self.assertEqual(program.bytes("KARVENIS.OLD"), listed(self.columns))
        self.expect_page(1, 3)


class Listing(ListCase):
    def open_listing(self, count):
        program = self.open_list(some_columns(count))
        self.dialog = self.open("F1", LISTING)
        return program

    def type_range(self, first, last):
        for box, text in zip(self.dialog.all("text"), (first, last)):
            self.program.click(box)
            self.program.keys("ctrl+a", "Delete")
            self.program.type(text)

    def write(self):
        self.program.keys("F1")
        self.expect_question("Kombinasyon Listesi'ni KARVENIS.TXT dosyasına yazdırmak "
                             "istiyormusunuz ?", "Evet", "KARVENIS 2005 Randomizer")

    def test_a_range_as_text(self):
        program = self.open_listing(120)
        self.assertEqual([box.text for box in self.dialog.all("text")], ["1", "120"])
        self.type_range("95", "105")
        self.write()
        content = program.bytes("KARVENIS.TXT")
        self.expect_box(f' {len(content)} byte "KARVENIS.TXT" dosyasına yazıldı.',
                        "KARVENIS 2005 Randomizer")
        lines = content.decode("ascii").split("\r\n")
        self.assertRegex(lines[1], r"^SAYISAL LOTO Kombinasyon Listesi \[ \S.*\S \]$")
        self.assertEqual(lines[3:14], [
            f"Kolon {number:03} - " + ", ".join(f"{ball:02}" for ball in self.columns[number - 1])
            + f"  [{sum(self.columns[number - 1]):03}]" for number in range(95, 106)])
        self.assertEqual(lines[14:], ["", "< Toplam 11 kolon. >", ""])

    def test_ranges_that_are_none(self):
        program = self.open_listing(10)
        for first, last, text in (("0", "5", "Başlangıç numarası GEÇERSİZ !"),
                                  ("11", "11", "Başlangıç numarası GEÇERSİZ !"),
                                  ("abc", "5", "Başlangıç numarası GEÇERSİZ !"),
                                  ("5", "4", "Bitiş Numarası GEÇERSİZ !"),
                                  ("5", "11", "Bitiş Numarası GEÇERSİZ !")):
            with self.subTest(first=first, last=last):
                self.type_range(first, last)
                self.write()
                self.expect_box(text, "! HATA !")
                program.activated(LISTING)
        self.assertEqual(program.files(), ["KARVENIS.LST"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
