"""Keys while assistive technology listens: it is told of each key first, and hands it on later."""

import unittest

from gi.repository import Gio, GLib

from columns import bag_file
from desktop_case import STANDARD_TITLE, DesktopCase

BAG = "6/49 Top Seçme Tablosu"
COUPON = "Sekiz Rastgele Kolon"
GENERATOR = "6/49 Rastgele Kolon Üreteci"


class HeardKeys(DesktopCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        # Whoever listens to any event is told of the keys too.
        cls.screen.bus.call_sync(
            "org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry",
            "RegisterEvent", GLib.Variant("(s)", ("object:state-changed:focused",)), None,
            Gio.DBusCallFlags.NONE, 5000, None)

    def test_f1_four_times_keeps_four_columns(self):
        program = self.start()
        self.draw()
        program.keys("F1", "F1", "F1", "F1")
        program.titled(" KARVENIS.RND Kayıt No= 4")
        self.assertEqual(len(program.bytes("KARVENIS.RND")), 64)

    def test_f1_held_keeps_one_column(self):
        program = self.start()
        self.draw()
        with program.held("F1"):
            program.titled(" KARVENIS.RND Kayıt No= 1")
            program.let_repeat()
        program.keys("F10")
        program.box().press("Return")
        self.assertEqual(len(program.bytes("KARVENIS.RND")), 16)

    def test_enter_answers_the_question_and_space_the_box_behind_it(self):
        program = self.start()
        self.open("F5", BAG)
        program.keys("F3")
        program.box()
        program.keys("Return")
        program.until(lambda: program.has_file("KARVENIS.DAT"), "the file")
        program.box()
        program.keys("space")
        program.activated(BAG)
        self.assertEqual(program.titles(), [STANDARD_TITLE, BAG])
        self.assertEqual(program.bytes("KARVENIS.DAT"), bag_file([]))

    def test_enter_held_answers_no_box(self):
        program = self.start()
        self.open("F5", BAG)
        program.keys("F3")
        program.box()
        with program.held("Return"):
            program.until(lambda: program.has_file("KARVENIS.DAT"), "the file")
            program.box()
            program.let_repeat()
            self.assertEqual(len(program.boxes()), 1)
        program.keys("Return")
        program.activated(BAG)

    def test_space_twice_marks_and_unmarks(self):
        program = self.start()
        bag = self.open("F5", BAG)
        for marked in (True, False, True):
            program.keys("space")
            program.until(lambda: bag.find("check box", "1").has("checked") == marked,
                          f"ball 1 to be marked: {marked}")

    def test_down_moves_in_a_menu_each_time(self):
        program = self.start()
        program.keys("alt", "Right", "Right", "Right", "Down", "Down", "Return")
        program.activated(GENERATOR)

    def test_alt_opens_the_menus_also_where_its_copies_are_late(self):
        program = self.start()
        program.while_stopped(lambda: program.keys("alt", "Right", "Down", "Return"))
        program.activated(BAG)

    def test_ctrl_insert_and_caps_lock_are_the_readers(self):
        program = self.start()
        coupon = self.open("F9", COUPON)
        program.until(lambda: not coupon.find("label", "F10 = Yardım").has("showing"), "the coupon")
        lines = self.lines(coupon)
        self.assertEqual(len(lines), 8)
        program.keys("ctrl", "Insert", "Caps_Lock", "Caps_Lock", "F10")
        program.box().press("Return")
        program.activated(COUPON)
        self.assertEqual(self.lines(coupon), lines)
        program.keys("shift")
        program.until(lambda: len(self.lines(coupon)) < 8, "a new coupon")

    @staticmethod
    def lines(window):
        return [node.name for node in window.walk() if node.name.startswith(" Kolon ")]


if __name__ == "__main__":
    unittest.main(verbosity=2)
