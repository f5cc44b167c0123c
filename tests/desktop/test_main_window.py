"""The main window: what it shows, how it ends, where it stands, how it draws."""

import os
import re
import struct
import unittest

from columns import columns, record
from desktop_case import STANDARD_TITLE, DesktopCase

KEY_LIST = "\n".join([
    "FONKSİYON TUŞLARI : ",
    "",
    "F1 = Rastgele kolonu kayıtla",
    "F2 = Rastgele kolon listesini göster",
    "F3 = Rastgele kolon listesini kombinasyon listesi yap",
    "F4 = Rastgele kolon listesini sil",
    "F5 = Top seçme tablosunu (Torbayı) göster",
    "F6 = Torbayı dosyadan yükle",
    "F7 = Bankoyu göster",
    "F8 = Bankoyu dosyadan yükle",
    "F9 = 8 rastgele kolon listele",
    "F10 = Fonksiyon tuşları & Bilgi ",
    "F11 = Rastgele yöntemiyle kombinasyon listesi yap",
    "F12 = Kombinasyon listesini göster",
    "",
    "ESC= Çıkış/Kapat"])

MENUS = {
    "Dosya": ["Kolunu KARVENIS.RND dosyasına kayıtla (F1)",
              "KARVENIS.RND dosyasını göster (F2)",
              "KARVENIS.RND dosyasının adını değiştir (F3)",
              "KARVENIS.RND dosyasını sil (F4)"],
    "Torba": ["Torbayı Göster (F5)", "Torbayı KARVENIS.DAT dosyasından yükle (F6)"],
    "Banko": ["Bankoyu Göster (F7)", "Bankoyu KARVENIS.DAT dosyasından yükle (F8)"],
    "Liste": ["8 rastgele kolon listele (F9)",
              "Yeni kombinasyon listesi oluştur (F11)",
              "Kombinasyon listesini göster (F12)"],
    "Yardım": ["Fonksiyon tuşları (F10)", "Program hakkında"],
}


class Looks(DesktopCase):
    def test_captions_and_menus(self):
        self.start()
        self.assertEqual(self.main.find("push button", "Kolon").description, "Yeni Kolon")
        self.assertEqual(self.main.find("push button", "Çıkış").description, "Kapat")
        self.assertTrue(self.main.find("radio button", "Torbadan Çek").has("checked"))
        self.assertFalse(self.main.find("radio button", "Listeden Çek").has("checked"))
        self.assertFalse(self.main.find("check box", "Numara Sırası").has("checked"))
        bar = self.main.find("menu bar")
        shown = {head.name: [entry.name for entry in head.walk()
                             if entry.role == "menu item" and entry != head and entry.name]
                 for head in bar.children}
        self.assertEqual(shown, MENUS)

    def test_f10_lists_the_keys(self):
        program = self.start()
        program.keys("F10")
        self.expect_box(KEY_LIST, STANDARD_TITLE + "  [26.9.2005]")
        self.assertTrue(program.runs())

    def choose(self, head, entry):
        """Chooses a menu entry with the mouse."""
        bar = self.main.find("menu bar")
        (opened,) = [node for node in bar.children if node.name == head]
        self.program.click(opened)
        (chosen,) = [node for node in opened.walk() if node.name == entry]
        self.program.until(lambda: chosen.has("showing"), f"the menu «{head}»")
        self.program.click(chosen)

    def test_the_about_box_names_the_folder(self):
        program = self.start()
        self.choose("Yardım", "Program hakkında")
        box = program.box()
        self.assertIn(program.folder, box.text)
        box.press("Return")

    def test_menu_entries_do_what_their_keys_do(self):
        program = self.start({"KARVENIS.RND": record((1, 2, 3, 4, 5, 6))})
        for head, entry, title in (
                ("Torba", "Torbayı Göster (F5)", "6/49 Top Seçme Tablosu"),
                ("Banko", "Bankoyu Göster (F7)", "Banko"),
                ("Liste", "Yeni kombinasyon listesi oluştur (F11)",
                 "6/49 Rastgele Kolon Üreteci"),
                ("Dosya", "KARVENIS.RND dosyasını göster (F2)",
                 " Rastgele Kolon Listesi - Sayfa 1  [ F10= Yardım ]")):
            with self.subTest(entry):
                self.choose(head, entry)
                program.activated(title)
                program.keys("Escape")
                program.gone(title)
                program.activated(STANDARD_TITLE)

    def test_alt_leads_to_the_menus(self):
        program = self.start()
        program.keys("alt", "Right", "Down", "Return")
        program.activated("6/49 Top Seçme Tablosu")
        program.keys("Escape")
        program.activated(STANDARD_TITLE)
        program.keys("alt", "Escape", "F5")
        program.activated("6/49 Top Seçme Tablosu")

    def test_keys_with_a_modifier_do_nothing(self):
        program = self.start()
        for modifier in ("shift", "ctrl", "alt"):
            program.keys(f"{modifier}+F10")
        program.keys("F10")
        program.box().press("Return")
        program.activated(STANDARD_TITLE)
        self.assertEqual(program.titles(), [STANDARD_TITLE])


class Look(DesktopCase):
    def test_the_desktop_knows_the_program(self):
        self.start()
        told = self.screen.run("xprop", "-id", self.program.id_of(STANDARD_TITLE), "WM_CLASS",
                               "_NET_WM_ICON")
        self.assertTrue('"karvenis", "KARVENIS"' in told and "Icon (64 x 64)" in told)

    def test_the_primary_button_has_the_colours_of_the_house(self):
        self.start()
        left, top, width, height = self.screen.place_of(self.program,
                                                        self.main.find("push button", "Kolon"))
        told = self.screen.run("import", "-window", "root", "-crop",
                               f"1x1+{left + width // 8}+{top + height // 2}", "-depth", "8",
                               "txt:-")
        red, green, blue = map(int, re.search(r"\((\d+),(\d+),(\d+)", told).groups())
        self.assertLess(red, 60)
        self.assertLess(80, green)
        self.assertLess(80, blue)


class Options(DesktopCase):
    """The toolkit's own options are no options of the program."""

    def test_the_window_is_not_mirrored(self):
        self.start(arguments=("-reverse",))
        self.assertLess(self.main.find("push button", "Kolon").place[0],
                        self.main.find("push button", "Çıkış").place[0])

    def test_no_other_platform_is_taken(self):
        self.start(arguments=("-platform", "nowhere"))


class Ends(DesktopCase):
    def test_esc_ends_and_writes_nothing(self):
        program = self.start()
        program.keys("Escape")
        self.expect_end()
        self.assertEqual(program.files(), [])

    def test_the_frame_ends_and_writes_nothing(self):
        program = self.start()
        program.close_by_frame(STANDARD_TITLE)
        self.expect_end()
        self.assertEqual(program.files(), [])

    def test_exit_button_keeps_the_place(self):
        program = self.start({"KV2005.CFG": struct.pack("<ff", 1500, 3000)})
        self.click("push button", "Çıkış")
        self.expect_end()
        self.assertEqual(struct.unpack("<ff", program.bytes("KV2005.CFG")), (1500, 3000))

    def test_exit_button_makes_the_settings_file(self):
        program = self.start()
        self.click("push button", "Çıkış")
        self.expect_end()
        self.assertEqual(program.files(), ["KV2005.CFG"])
        self.assertEqual(len(program.bytes("KV2005.CFG")), 8)

    def test_settings_file_that_is_a_folder_is_told_and_ends(self):
        program = self.start()
        os.mkdir(program.path("KV2005.CFG"))
        self.click("push button", "Çıkış")
        box = program.box()
        self.assertIn("KV2005.CFG", box.text)
        box.press("Return")
        self.expect_end(1)

    def test_a_size_limit_is_told_and_keeps_the_place(self):
        place = struct.pack("<ff", 1500, 3000)
        program = self.start({"KV2005.CFG": place}, through=("prlimit", "--fsize=5"))
        self.click("push button", "Çıkış")
        self.expect_box("'KV2005.CFG' dosyasına yazılamadı.\nNeden: Dosya çok büyük.\n\n"
                        "Program kapanacak.", "! HATA !")
        self.expect_end(1)
        self.assertEqual(program.bytes("KV2005.CFG"), place)


class Draws(DesktopCase):
    def test_two_columns_are_drawn_and_kept(self):
        program = self.start()
        for number in (1, 2):
            shown = sorted(self.draw())
            self.assertEqual(len(set(shown)), 6)
            program.keys("F1")
            program.titled(f" KARVENIS.RND Kayıt No= {number}")
            kept = columns(program.bytes("KARVENIS.RND"))
            self.assertEqual(len(kept), number)
            self.assertEqual(kept[-1], (0, tuple(shown)))
        program.keys("Escape")
        self.expect_end()

    def test_f1_held_keeps_one_column(self):
        program = self.start()
        self.draw()
        with program.held("F1"):
            program.titled(" KARVENIS.RND Kayıt No= 1")
            program.let_repeat()
        program.keys("F10")
        program.box().press("Return")
        self.assertEqual(len(program.bytes("KARVENIS.RND")), 16)

    def test_f1_before_a_draw_keeps_nothing(self):
        program = self.start()
        program.keys("F1", "F10")
        program.box().press("Return")
        self.assertEqual(program.files(), [])

    def test_draw_from_the_list(self):
        program = self.start({"KARVENIS.LST": record((49, 3, 27, 8, 11, 30), 417)})
        self.click("radio button", "Listeden Çek")
        self.click("push button", "Kolon")
        program.titled(r" KARVENIS\.LST  Kayıt = 1 \[ 1 \]")
        self.assertEqual(self.program.numbers(self.main)[::2], [49, 3, 27, 8, 11, 30])

    def test_draw_from_a_missing_list(self):
        self.start()
        self.click("radio button", "Listeden Çek")
        self.click("push button", "Kolon")
        self.expect_box("Kombinasyon Listesi dosyası yok!", " ! KARVENIS.LST bulunamadı !")

    def test_draw_from_an_empty_list(self):
        self.start({"KARVENIS.LST": b""})
        self.click("radio button", "Listeden Çek")
        self.click("push button", "Kolon")
        self.expect_box("Kombinasyon Listesi dosyası boş!", " ! KARVENIS.LST geçersiz !")


class Keeps(DesktopCase):
    ONE, TWO, OLD = record((1, 2, 3, 4, 5, 6)), record((7, 8, 9, 10, 11, 12)), record((44,) * 6)

    def test_f3_makes_the_combination_list(self):
        program = self.start({"KARVENIS.RND": self.ONE + self.TWO, "KARVENIS.LST": self.OLD})
        program.keys("F3")
        self.expect_question("KARVENIS.RND dosyasının adını KARVENIS.LST olarak değiştirmek "
                             "istiyormusunuz?", "Evet")
        self.expect_box(" 2 kolon 'KARVENIS.LST' dosyasına kayıtlandı.")
        self.assertEqual(program.files(), ["KARVENIS.LST", "KARVENIS.OLD"])
        self.assertEqual(program.bytes("KARVENIS.LST"), self.ONE + self.TWO)
        self.assertEqual(program.bytes("KARVENIS.OLD"), self.OLD)

    def test_f3_refused_changes_nothing(self):
        program = self.start({"KARVENIS.RND": self.ONE, "KARVENIS.LST": self.OLD})
        program.keys("F3")
        self.expect_question("KARVENIS.RND dosyasının adını KARVENIS.LST olarak değiştirmek "
                             "istiyormusunuz?", "Hayır")
        program.activated(STANDARD_TITLE)
        self.assertEqual(program.bytes("KARVENIS.RND"), self.ONE)
        self.assertEqual(program.bytes("KARVENIS.LST"), self.OLD)

    def test_f4_deletes_the_columns(self):
        program = self.start({"KARVENIS.RND": self.ONE})
        program.keys("F4")
        self.expect_question("'KARVENIS.RND' dosyasını silmek istiyormusunuz ?", "Evet")
        box = program.box()
        self.assertEqual(box.text, "KARVENIS.RND dosyası silindi.")
        box.press("Return")
        self.assertEqual(program.files(), [])

    def test_f2_without_columns(self):
        self.start({"KARVENIS.RND": b""}).keys("F2")
        self.expect_box("Listelenecek (kayıtlı) Rastgele Kolon yok !")

    def test_a_list_that_is_a_folder_is_told_and_ends(self):
        program = self.start()
        os.mkdir(program.path("KARVENIS.RND"))
        self.draw()
        program.keys("F1")
        box = program.box()
        self.assertIn("KARVENIS.RND", box.text)
        box.press("Return")
        self.expect_end(1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
