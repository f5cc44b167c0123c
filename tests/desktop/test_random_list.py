"""The list of the columns that were kept, its deletion dialog and its listing."""

import re
import unittest

from columns import record
from desktop_case import STANDARD_TITLE, DesktopCase

HELP = "\n".join([
    "F1= Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne (KARVENIS.LST'ye) ekle",
    "F2= Rastgele Kolon Listesi'ni Kombinasyon Listesi (KARVENIS.LST) olarak kayıtla",
    "F3= Bir kolon sil",
    "F4= Rastgele Kolon Listesi'ni (KARVENIS.RND dosyasını) sil",
    "",
    "F9= Rastgele Kolon Listesi'ni bas (KARVENIS.TXT dosyasına yaz)",
    "",
    "F10 = Komut Tuşları (Yardım)",
    "",
    "HOME= İlk Sayfa",
    "END= Son Sayfa",
    "PAGEDOWN= Sonraki Sayfa",
    "PAGEUP= Önceki Sayfa",
    "",
    "ESC= Kapat/Çık"])


def page(number):
    return f" Rastgele Kolon Listesi - Sayfa {number}  [ F10= Yardım ]"


def column(number):
    """A column that tells its own number."""
    return (number, number + 1, 20, 30, 40, 49)


def kept(*numbers):
    return b"".join(record(column(number), word=number) for number in numbers)


class RandomListCase(DesktopCase):
    def open_list(self, count, files=None):
        program = self.start({"KARVENIS.RND": kept(*range(1, count + 1)), **(files or {})})
        self.list = self.open("F2", page(1))
        return program

    def shown(self):
        """The numbers of the columns on the page, first to last."""
        told = [re.search(r"Kolon - (\d+) : ", line.name)
                for line in self.list.find("list").children]
        return [int(number.group(1)) for number in told]

    def expect_page(self, first, last):
        wanted = list(range(first, last + 1))
        self.program.until(lambda: self.shown() == wanted, f"columns {first} to {last}")


class Paging(RandomListCase):
    def test_keys_turn_the_pages(self):
        program = self.open_list(60)
        self.expect_page(1, 25)
        for key, first, last, number in (
                ("Next", 26, 50, 2), ("space", 51, 60, 3), ("Next", 51, 60, 3),
                ("Prior", 26, 50, 2), ("Home", 1, 25, 1), ("Down", 2, 26, 2), ("Up", 1, 25, 1),
                ("Up", 1, 25, 1), ("End", 36, 60, 3), ("Down", 37, 60, 3), ("Prior", 12, 36, 2),
                ("Return", 37, 60, 3), ("Home", 1, 25, 1)):
            with self.subTest(key=key, first=first):
                program.keys(key)
                self.expect_page(first, last)
                program.titled(re.escape(page(number)))

    def test_clicks_turn_the_pages(self):
        program = self.open_list(30)
        left, top, _, _ = self.list.place
        for place, (first, last) in enumerate(((26, 30), (6, 30), (6, 30)), 1):
            program.click_at(left + 60 * place, top + 60 * place)  # far apart: no double click
            self.expect_page(first, last)

    def test_a_double_click_turns_one_page(self):
        program = self.open_list(60)
        left, top, _, _ = self.list.place
        program.click_at(left + 50, top + 50, times=2)
        program.keys("F10")
        program.box().press("Return")
        self.expect_page(26, 50)

    def test_a_row_tells_its_column_and_sum(self):
        program = self.start({"KARVENIS.RND": record((1, 2, 3, 4, 5, 84)) + record((9,) * 6)
                                              + record((48, 20, 7, 3, 30, 48))})
        self.list = self.open("F2", page(1))
        self.assertEqual([line.name for line in self.list.find("list").children],
                         ["Kolon - 1 :  1   2   3   4   5   84  [ 099 ]",
                          "Kolon - 2 :  9   9   9   9   9   9  [ 054 ]",
                          "Kolon - 3 :  48   20   7   3   30   48  [ 156 ]"])
        self.assertTrue(program.runs())

    def test_help(self):
        program = self.open_list(3)
        program.keys("F10")
        self.expect_box(HELP, " FONKSİYON TUŞLARI")
        program.activated(page(1))


class Commands(RandomListCase):
    def test_append(self):
        program = self.open_list(2, {"KARVENIS.LST": record((44,) * 6)})
        program.keys("F1")
        self.expect_question("Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek "
                             "istiyormusunuz ?", "Evet")
        self.expect_box("Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi.")
        self.assertEqual(program.bytes("KARVENIS.LST"), record((44,) * 6) + kept(1, 2))
        self.assertEqual(program.bytes("KARVENIS.RND"), kept(1, 2))

    def test_save_as(self):
        program = self.open_list(2, {"KARVENIS.LST": record((44,) * 6)})
        program.keys("F2")
        self.expect_question("Rastgele Kolon Listesi'ni (KARVENIS.RND) Kombinasyon Listesi "
                             "(KARVENIS.LST) olarak kayıtlamak istiyormusunuz?", "Evet")
        self.expect_box(" 2 kolon 'KARVENIS.LST' dosyasına kayıtlandı.")
        self.assertEqual(program.bytes("KARVENIS.LST"), kept(1, 2))
        self.assertEqual(program.bytes("KARVENIS.OLD"), record((44,) * 6))

    def test_delete_one(self):
        program = self.open_list(30)
        program.keys("Next")
        self.expect_page(26, 30)
        self.open("F3", " Kolon Silme")
        program.keys("2", "Return")
        program.gone(" Kolon Silme")
        program.activated(page(1))
        self.assertEqual(program.bytes("KARVENIS.RND"), kept(1, *range(3, 31)))
        self.assertEqual(program.files(), ["KARVENIS.RND"])
        self.expect_page(1, 25)

    def test_delete_a_number_that_is_none(self):
        program = self.open_list(3)
        self.open("F3", " Kolon Silme")
        for typed in ("0", "4", "a", "99999999999"):
            with self.subTest(typed):
                program.keys("ctrl+a", "Delete")
                program.type(typed)
                program.keys("Return")
                self.expect_box("Silinecek kolon numarası geçersiz! En çok 3 olabilir.",
                                "! DİKKAT ! Geçersiz Kolon Numarası")
                program.activated(" Kolon Silme")
        program.keys("Escape")
        program.activated(page(1))
        self.assertEqual(program.bytes("KARVENIS.RND"), kept(1, 2, 3))

    def test_delete_the_last_one(self):
        program = self.open_list(1)
        self.open("F3", " Kolon Silme")
        program.keys("1", "Return")
        program.activated(page(0))
        self.assertEqual(program.bytes("KARVENIS.RND"), b"")

    def test_delete_the_file(self):
        program = self.open_list(2)
        program.keys("F4")
        self.expect_question("'KARVENIS.RND' dosyasını silmek istiyormusunuz ?", "Evet")
        program.activated(page(0))
        self.assertEqual(program.bytes("KARVENIS.RND"), b"")

    def test_closing_by_the_frame_deletes_nothing(self):
        program = self.open_list(2)
        program.close_by_frame(page(1))
        program.activated(STANDARD_TITLE)
        self.assertEqual(program.titles(), [STANDARD_TITLE])
        self.assertEqual(program.bytes("KARVENIS.RND"), kept(1, 2))


class Listing(RandomListCase):
    QUESTION = "Rastgele Kolon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?"

    def test_text_file(self):
        program = self.open_list(12, {"KARVENIS.TXT": b"old" * 1000})
        self.open("F9", " Rastgele Kolonlar")
        program.keys("F1")
        self.expect_question(self.QUESTION, "Evet")
        content = program.bytes("KARVENIS.TXT")
        self.expect_box(f' {len(content)} byte "KARVENIS.TXT" dosyasına yazıldı.',
                        "KARVENIS 2005 Randomizer")
        lines = content.decode("ascii").split("\r\n")
        self.assertEqual(lines[0], "< KARVENIS 2005 Randomizer >")
        self.assertRegex(lines[1], r"^Rastgele Kolon Listesi \[ \S.*\S \] $")
        self.assertEqual(lines[2], "")
        for number in range(1, 13):
            balls = ", ".join(f"{ball:02}" for ball in column(number))
            self.assertEqual(lines[2 + number],
                             f"Kolon {number:02} - {balls}  [{sum(column(number)):03}]")
        self.assertEqual(lines[15:], ["", "< Toplam 12 kolon. >", ""])
        program.keys("Escape")
        program.activated(page(1))

    def test_refused(self):
        program = self.open_list(1)
        self.open("F9", " Rastgele Kolonlar")
        program.keys("F1")
        self.expect_question(self.QUESTION, "Hayır")
        program.activated(" Rastgele Kolonlar")
        self.assertEqual(program.files(), ["KARVENIS.RND"])


class Limits(RandomListCase):
    def test_a_full_file_takes_no_more(self):
        full = record((1, 2, 3, 4, 5, 6)) * 32767
        program = self.start({"KARVENIS.RND": full})
        self.draw()
        program.keys("F1", "F10")
        program.box().press("Return")
        self.assertEqual(program.active_title(), STANDARD_TITLE)
        self.assertEqual(len(program.bytes("KARVENIS.RND")), len(full))

    def test_a_ragged_file_is_shown_and_left_alone(self):
        content = kept(1, 2) + b"\xff" * 5
        program = self.start({"KARVENIS.RND": content})
        self.list = self.open("F2", page(1))
        self.expect_page(1, 2)
        self.assertEqual(program.bytes("KARVENIS.RND"), content)

    def test_records_of_any_balls_are_shown(self):
        content = record((-32768, 0, 50, 32767, 1, -1), -1)
        program = self.start({"KARVENIS.RND": content})
        self.list = self.open("F2", page(1))
        self.expect_page(1, 1)
        self.assertEqual(program.bytes("KARVENIS.RND"), content)

    def test_a_sum_beyond_16_bits_is_told_and_ends(self):
        content = record((32767, 1, 1, 1, 1, 1))
        program = self.start({"KARVENIS.RND": content})
        program.keys("F2")
        program.box().press("Return")
        self.expect_end(1)
        self.assertEqual(program.bytes("KARVENIS.RND"), content)


if __name__ == "__main__":
    unittest.main(verbosity=2)
