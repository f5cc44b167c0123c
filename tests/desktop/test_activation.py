"""Which window is the active one, and whose keys are whose, among the windows of a real desktop."""

import unittest

from columns import record
from desktop_case import STANDARD_TITLE, DesktopCase
from program import Program
from screen import Screen

BAG = "6/49 Top Seçme Tablosu"
BANKO = "Banko"
COUPON = "Sekiz Rastgele Kolon"
GENERATOR = "6/49 Rastgele Kolon Üreteci"
LISTING = "Kombinasyon Listesi"
LIST = " Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]"
KEPT = " Rastgele Kolon Listesi - Sayfa 1  [ F10= Yardım ]"
DELETION = " Kolon Silme"
KEPT_LISTING = " Rastgele Kolonlar"
ONE = record((1, 2, 3, 4, 5, 6))


class ActivationCase(DesktopCase):
    def open_bag(self, *marks):
        """Opens the bag and marks balls there that are never applied, so that an activation of the
        window, which shows the bag as it is, takes them away."""
        self.bag = self.open("F5", BAG)
        for ball in marks:
            self.program.click(self.bag.find("check box", str(ball)))
        self.expect_marks(*marks)

    def expect_marks(self, *balls):
        wanted = [str(ball) for ball in balls]
        self.program.until(lambda: self.marks() == wanted, f"the marks {wanted}")

    def marks(self):
        return [ball.name for ball in self.bag.all("check box") if ball.has("checked")]

    def go_to_main(self):
        self.program.go_to(STANDARD_TITLE)

    def box_comes_and_goes(self):
        """Whatever the program had to do before is done then."""
        self.program.keys("F10")
        self.program.box().press("Return")


class Closing(ActivationCase):
    """The window behind the closed one is passed through on the way to its opener."""

    def test_the_bag_keeps_its_marks_while_the_generator_closes(self):
        program = self.start()
        self.open("F11", GENERATOR)
        self.go_to_main()
        self.open_bag(5, 9)
        program.go_to(GENERATOR)
        program.keys("Escape")
        program.gone(GENERATOR)
        program.activated(STANDARD_TITLE)
        self.box_comes_and_goes()
        self.expect_marks(5, 9)

    def test_the_missing_list_is_not_told_while_the_coupon_closes(self):
        program = self.start({"KARVENIS.LST": ONE})
        self.open("F9", COUPON)
        self.go_to_main()
        self.open("F12", LIST)
        program.keys("F4")
        self.expect_question("'KARVENIS.LST' dosyasını silmek istiyormusunuz ?", "Evet")
        self.expect_box("'KARVENIS.LST' silindi...")
        program.activated(LIST)
        program.go_to(COUPON)
        program.keys("Escape")
        program.gone(COUPON)
        program.activated(STANDARD_TITLE)
        self.box_comes_and_goes()
        self.assertIn(LIST, program.titles())

    def test_the_generator_keeps_its_choice_while_the_coupon_closes(self):
        program = self.start({"KARVENIS.LST": ONE})
        self.open("F9", COUPON)
        self.go_to_main()
        generator = self.open("F11", GENERATOR)
        fresh = generator.find("radio button", "Yeni Liste")
        program.click(fresh)
        program.until(lambda: fresh.has("checked"), "a new list to be chosen")
        program.go_to(COUPON)
        program.keys("Escape")
        program.gone(COUPON)
        program.activated(STANDARD_TITLE)
        self.box_comes_and_goes()
        self.assertTrue(fresh.has("checked"))

    def test_a_box_that_closes_leads_back_to_its_window_past_the_others(self):
        program = self.start()
        self.open_bag(5)
        self.go_to_main()
        bag = program.id_of(BAG)
        program.keys("F10")
        box = program.box()
        program.screen.run("wmctrl", "-i", "-a", bag)
        program.screen.run("wmctrl", "-i", "-a", program.id_of(box.title))
        program.box().press("Return")
        program.activated(STANDARD_TITLE)
        self.box_comes_and_goes()
        self.expect_marks(5)

    def test_a_window_closed_elsewhere_leaves_the_active_one_alone(self):
        program = self.start()
        self.open("F7", BANKO)
        self.go_to_main()
        self.open_bag(5, 9)
        program.close_by_taskbar(BANKO)
        self.box_comes_and_goes()
        program.activated(BAG)
        self.expect_marks(5, 9)
        program.keys("Escape")
        program.activated(STANDARD_TITLE)

    def test_a_dialog_leads_back_to_the_list_it_was_last_raised_from(self):
        for opener, lists, key, dialog in (("F2", KEPT, "F3", DELETION),
                                           ("F2", KEPT, "F9", KEPT_LISTING),
                                           ("F12", LIST, "F1", LISTING)):
            with self.subTest(dialog):
                program = self.start({"KARVENIS.RND": ONE, "KARVENIS.LST": ONE})
                self.open(opener, lists)
                self.open(key, dialog)
                program.go_to(lists)
                program.keys("Escape")
                program.gone(lists)
                program.activated(STANDARD_TITLE)
                self.open(opener, lists)
                self.open(key, dialog)
                program.keys("Escape")
                program.gone(dialog)
                program.activated(lists)
                program.keys("Escape")
                program.gone(lists)
                program.activated(STANDARD_TITLE)
                program.close()


class Minimised(ActivationCase):
    WINDOWS = (("F2", KEPT), ("F5", BAG), ("F7", BANKO), ("F9", COUPON), ("F11", GENERATOR),
               ("F12", LIST))

    def test_the_key_brings_the_window_back(self):
        program = self.start({"KARVENIS.RND": ONE, "KARVENIS.LST": ONE})
        for key, title in self.WINDOWS:
            with self.subTest(title):
                self.open(key, title)
                program.minimise(title)
                self.go_to_main()
                program.keys(key)
                program.activated(title)
                self.assertFalse(program.is_minimised(title))
                program.keys("Escape")
                program.gone(title)
                program.activated(STANDARD_TITLE)

    def test_coming_back_by_the_key_is_an_activation(self):
        program = self.start()
        self.open_bag(5)
        program.minimise(BAG)
        self.go_to_main()
        program.keys("F5")
        program.activated(BAG)
        self.expect_marks()

    def test_coming_back_from_the_taskbar_is_an_activation(self):
        program = self.start()
        self.open_bag(5)
        program.minimise(BAG)
        program.go_to(BAG)
        self.expect_marks()

    def test_coming_back_alone_is_an_activation(self):
        program = self.start()
        self.open_bag(5)
        program.minimise(STANDARD_TITLE)
        program.activated(BAG)
        self.expect_marks(5)
        program.minimise(BAG)
        program.go_to(BAG)
        self.expect_marks()

    def test_the_main_window_comes_back_when_the_last_other_closes(self):
        program = self.start()
        self.open("F5", BAG)
        program.minimise(STANDARD_TITLE)
        program.keys("Escape")
        program.gone(BAG)
        program.activated(STANDARD_TITLE)
        self.assertFalse(program.is_minimised(STANDARD_TITLE))

    def test_the_main_window_comes_back_when_the_taskbar_closes_the_last_other(self):
        program = self.start()
        self.open("F5", BAG)
        self.go_to_main()
        program.minimise(BAG)
        program.minimise(STANDARD_TITLE)
        program.close_by_taskbar(BAG)
        program.activated(STANDARD_TITLE)
        self.assertFalse(program.is_minimised(STANDARD_TITLE))


class FastKeys(ActivationCase):
    """Keys that come before the desktop has given the new window the keyboard are its own."""

    def test_f4_behind_f5_marks_all_balls_and_deletes_nothing(self):
        program = self.start({"KARVENIS.RND": ONE})
        program.while_stopped(lambda: program.keys("F5", "F4"))
        self.bag = program.window(BAG)
        program.activated(BAG)
        self.expect_marks(*range(1, 50))
        self.assertEqual(program.boxes(), [])
        self.assertEqual(program.bytes("KARVENIS.RND"), ONE)

    def test_space_behind_f5_marks_the_first_ball(self):
        program = self.start()
        program.while_stopped(lambda: program.keys("F5", "space"))
        self.bag = program.window(BAG)
        self.expect_marks(1)

    def test_escape_behind_f5_closes_the_bag(self):
        program = self.start()
        program.while_stopped(lambda: program.keys("F5", "Escape"))
        self.box_comes_and_goes()
        self.assertEqual(program.titles(), [STANDARD_TITLE])

    def test_numbers_behind_the_key_are_typed_into_the_dialog(self):
        program = self.start({"KARVENIS.RND": ONE + ONE})
        self.open("F2", KEPT)
        program.while_stopped(lambda: program.keys("F3", "2", "Return"))
        program.until(lambda: program.has_file("KARVENIS.RND", 16), "the second column to go")
        program.activated(KEPT)

    def test_enter_behind_f10_closes_the_box(self):
        program = self.start()
        program.while_stopped(lambda: program.keys("F10", "Return", "F5"))
        program.activated(BAG)
        program.until(lambda: not program.boxes(), "the box to be gone")


class OpenBox(ActivationCase):
    """While a box is open nothing else can be pressed, also not by assistive technology."""

    def press_behind_the_box(self, control):
        self.program.keys("F10")
        box = self.program.box()
        control.press()
        self.program.keys("F10")
        self.assertTrue(self.program.runs())
        return box

    def test_the_window_behind_its_box_is_not_closed(self):
        program = self.start()
        bag = self.open("F5", BAG)
        box = self.press_behind_the_box(bag.find("push button", "Kapat"))
        box.press("Return")
        self.box_comes_and_goes()
        program.activated(BAG)
        self.assertEqual(program.titles(), [STANDARD_TITLE, BAG])

    def test_the_desktop_cannot_close_the_window_behind_its_box(self):
        program = self.start()
        self.open("F5", BAG)
        windows = [program.id_of(title) for title in (BAG, STANDARD_TITLE)]
        program.keys("F10")
        box = program.box()
        for window in windows:
            program.screen.run("wmctrl", "-i", "-c", window)
        box.press("Return")
        self.box_comes_and_goes()
        program.activated(BAG)

    def test_the_program_behind_its_box_is_not_ended(self):
        program = self.start()
        self.press_behind_the_box(self.main.find("push button", "Çıkış")).press("Return")
        program.activated(STANDARD_TITLE)
        self.assertEqual(program.files(), [])

    def test_a_menu_entry_behind_a_box_opens_nothing(self):
        program = self.start()
        (entry,) = [node for node in self.main.all("menu item")
                    if node.name == "Torbayı Göster (F5)"]
        self.press_behind_the_box(entry).press("Return")
        program.activated(STANDARD_TITLE)
        self.assertEqual(program.titles(), [STANDARD_TITLE])

    def test_choices_behind_a_box_stay(self):
        self.start()
        for role, name in (("radio button", "Listeden Çek"), ("check box", "Numara Sırası")):
            choice = self.main.find(role, name)
            box = self.press_behind_the_box(choice)
            self.assertFalse(choice.has("checked"))
            box.press("Return")
            self.program.activated(STANDARD_TITLE)
            self.assertFalse(choice.has("checked"))
            self.assertTrue(self.main.find("radio button", "Torbadan Çek").has("checked"))


class UnmanagedScreen(Screen):
    def _manage(self):
        """Nobody manages the windows."""


class NoWindowManager(DesktopCase):
    screen_type = UnmanagedScreen

    def start(self, files=None, **options):
        self.program = Program(self.screen, self.executable, files, **options)
        self.addCleanup(self.program.close)
        self.main = self.program.window(STANDARD_TITLE)
        self.program.until(lambda: self.main.has("active"), "the main window to be active")
        return self.program

    def box_comes_and_goes(self):
        self.program.keys("F10")
        self.program.until(self.program.boxes, "the box")
        self.program.keys("Return")
        self.program.until(lambda: not self.program.boxes(), "the box to close")

    def test_the_keys_reach_the_window_again_after_each_box(self):
        program = self.start()
        for _ in range(3):
            self.box_comes_and_goes()
        program.keys("F5")
        bag = program.window(BAG)
        self.box_comes_and_goes()
        program.keys("F4")
        program.until(lambda: bag.find("check box", "49").has("checked"), "all balls to be marked")
        program.keys("alt+F5", "Escape")
        program.gone(BAG)
        self.box_comes_and_goes()
        program.keys("Escape")
        self.expect_end()


if __name__ == "__main__":
    unittest.main(verbosity=2)
