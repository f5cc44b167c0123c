"""The bag, the bankos and the coupon of eight columns."""

import re
import unittest

from columns import bag_file
from desktop_case import STANDARD_TITLE, DesktopCase

BAG = "6/49 Top Seçme Tablosu"
BANKO = "Banko"
COUPON = "Sekiz Rastgele Kolon"
SAVED = "Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı..."


class Bag(DesktopCase):
    def marked(self):
        return [int(ball.name) for ball in self.bag.all("check box") if ball.has("checked")]

    def mark(self, *balls):
        for ball in balls:
            self.program.click(self.bag.find("check box", str(ball)))
            self.program.until(lambda: ball in self.marked(), f"ball {ball} to be marked")

    def test_marks_are_saved_and_drawn_from(self):
        program = self.start()
        self.bag = self.open("F5", BAG)
        self.mark(3, 11, 19, 27, 35, 49)
        program.keys("F3")
        self.expect_question("Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?", "Evet")
        self.expect_box(SAVED)
        self.assertEqual(program.bytes("KARVENIS.DAT"), bag_file([3, 11, 19, 27, 35, 49]))
        program.keys("Escape")
        program.activated(STANDARD_TITLE)
        self.assertEqual(sorted(self.draw()), [3, 11, 19, 27, 35, 49])

    def test_marks_that_are_not_applied_are_lost(self):
        program = self.start()
        self.bag = self.open("F5", BAG)
        self.mark(7)
        program.keys("Escape")
        program.gone(BAG)
        self.bag = self.open("F5", BAG)
        self.assertEqual(self.marked(), [])

    def test_applied_marks_stay(self):
        program = self.start()
        self.bag = self.open("F5", BAG)
        self.mark(7, 8)
        program.keys("F1", "Escape")
        program.gone(BAG)
        self.bag = self.open("F5", BAG)
        self.assertEqual(self.marked(), [7, 8])

    def test_a_box_leaves_the_marks(self):
        program = self.start()
        self.bag = self.open("F5", BAG)
        self.mark(44)
        program.keys("F3")
        self.expect_question("Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?", "Hayır")
        program.activated(BAG)
        self.assertEqual((self.marked(), program.files()), ([44], []))

    def test_yes_stands_left_of_no_whatever_the_desktop_prefers(self):
        for desktop in ("GNOME", "KDE"):
            with self.subTest(desktop):
                program = self.start(environment={"XDG_CURRENT_DESKTOP": desktop})
                self.open("F5", BAG)
                program.keys("F3")
                box = program.box()
                yes, no = (box.node.find("push button", name).place for name in box.buttons)
                self.assertLess(yes[0], no[0])
                box.press("Escape")
                program.close()

    def test_all_and_none(self):
        program = self.start()
        self.bag = self.open("F5", BAG)
        program.keys("F4")
        program.until(lambda: len(self.marked()) == 49, "all balls to be marked")
        program.keys("F5")
        program.until(lambda: not self.marked(), "no ball to be marked")

    def test_file_shorter_than_its_count(self):
        program = self.start({"KARVENIS.DAT": bag_file([1, 2, 3])[:4]})
        self.open("F5", BAG)
        program.keys("F2")
        self.expect_question("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?", "Evet")
        self.expect_box("'KARVENIS.DAT' dosyası bozuk !", "! HATA !")

    def test_too_few_balls(self):
        self.start({"KARVENIS.DAT": bag_file([1, 2, 3], [4, 5])})
        self.program.keys("F6")
        self.expect_question("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz?", "Evet")
        self.program.keys("F8")
        self.expect_question("Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?",
                             "Evet")
        self.click("push button", "Kolon")
        self.expect_box("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !")


class Bankos(DesktopCase):
    def boxes(self):
        return [box.text for box in self.banko.all("text") if box.has("showing")]

    def test_bankos_are_saved_and_drawn(self):
        program = self.start()
        self.banko = self.open("F7", BANKO)
        program.keys("F6")
        program.until(lambda: len(self.boxes()) == 2, "two boxes")
        program.click(self.banko.find("text", "1. banko top"))
        program.keys("7", "Return", "2", "1")
        program.until(lambda: self.boxes() == ["7", "21"], "the numbers")
        program.keys("F3")
        self.expect_question("Banko topları (topu) KARVENIS.DAT dosyasına kayıtlamak "
                             "istiyormusunuz ?", "Evet")
        self.expect_box(SAVED)
        self.assertEqual(program.bytes("KARVENIS.DAT"), bag_file([], [7, 21]))
        program.keys("Escape")
        program.activated(STANDARD_TITLE)
        self.assertEqual(self.draw()[:2], [7, 21])

    def test_repeats_and_empty_boxes_drop_out(self):
        program = self.start()
        self.banko = self.open("F7", BANKO)
        program.keys("F7")
        program.until(lambda: len(self.boxes()) == 3, "three boxes")
        program.click(self.banko.find("text", "1. banko top"))
        program.keys("1", "2", "Return", "Return", "1", "2")
        program.until(lambda: self.boxes() == ["12", "", "12"], "the numbers")
        program.keys("F1")
        program.until(lambda: self.boxes() == ["12"], "one banko")
        self.assertIsNotNone(self.banko.find("label", "Banko Top:"))

    def test_the_menu_of_a_field_is_turkish(self):
        program = self.start()
        banko = self.open("F7", BANKO)
        program.keys("F6")
        field = banko.find("text", "1. banko top")
        program.until(lambda: field.has("focused"), "the focus")
        program.keys("7", "ctrl+a")
        program.until(lambda: field.text == "7", "the number")
        program.keys("Menu", "s")  # Kes
        program.until(lambda: field.text == "", "the number to be cut")

    def test_only_balls_can_be_typed(self):
        program = self.start()
        self.banko = self.open("F7", BANKO)
        program.keys("F5")
        program.until(lambda: len(self.boxes()) == 1, "one box")
        program.click(self.banko.find("text", "1. banko top"))
        for typed, kept in (("49", "49"), ("0", ""), ("50", ""), ("x", ""), ("7x", "7")):
            program.keys("ctrl+a", "Delete")
            program.type(typed)
            program.until(lambda: self.boxes() == [kept], f"«{typed}» to become «{kept}»")


class Coupon(DesktopCase):
    def test_eight_columns_with_the_bankos(self):
        program = self.start({"KARVENIS.DAT": bag_file([], [7, 21])})
        program.keys("F8")
        program.box().press("Return")
        coupon = self.open("F9", COUPON)
        program.until(lambda: not coupon.find("label", "F10 = Yardım").has("showing"),
                      "the coupon to be full")
        lines = [line.name for line in coupon.find("list").children if line.name.strip()]
        self.assertEqual(len(lines), 8)
        for number, line in enumerate(lines, 1):
            told = re.fullmatch(r" Kolon  (\d) - ((?:\d\d  ){6})", line)
            self.assertTrue(told, line)
            balls = [int(ball) for ball in told.group(2).split()]
            self.assertEqual(int(told.group(1)), number)
            self.assertEqual(balls, sorted(set(balls)))
            self.assertLessEqual({7, 21}, set(balls))


class Closing(DesktopCase):
    WINDOWS = (("F5", BAG), ("F7", BANKO), ("F9", COUPON))

    def test_a_window_closed_by_its_frame_gives_the_main_window_the_keys(self):
        program = self.start()
        for key, title in self.WINDOWS:
            with self.subTest(title):
                self.open(key, title)
                program.close_by_frame(title)
                program.gone(title)
                program.activated(STANDARD_TITLE)

    def test_holding_esc_closes_one_window_only(self):
        program = self.start()
        for key, title in self.WINDOWS:
            with self.subTest(title):
                self.open(key, title)
                with program.held("Escape"):
                    program.gone(title)
                    program.activated(STANDARD_TITLE)
                    program.let_repeat()
                program.keys("F10")
                program.box().press("Return")
        program.keys("Escape")
        self.expect_end()

    def test_esc_on_the_main_window_closes_all(self):
        program = self.start()
        self.open("F5", BAG)
        program.click_at(*self.title_bar(self.main))
        program.activated(STANDARD_TITLE)
        program.keys("Escape")
        self.expect_end()

    @staticmethod
    def title_bar(window):
        left, top, width, _ = window.place
        return left + width // 2, top - 10


if __name__ == "__main__":
    unittest.main(verbosity=2)
