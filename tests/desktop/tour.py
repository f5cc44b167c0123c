"""Drives the real program through a typical run on a virtual screen, with real keys and clicks.

usage: tour.py PROGRAM FOLDER [WIDTHxHEIGHT] [NAME=VALUE...]

The screen is 1280x1024 where no size is told; each NAME=VALUE is set for the program.
Leaves a picture of each step in FOLDER, the program's files in FOLDER/files, and tells what the
files then hold.
"""

import os
import shutil
import sys

from columns import columns
from program import STANDARD_TITLE, Program
from screen import Screen

BAG = (3, 5, 8, 12, 14, 17, 19, 22, 23, 25, 28, 31, 33, 36, 40, 42, 44, 47, 49)
BANKOS = (7, 21)


class Tour:
    def __init__(self, screen, executable, folder, environment):
        shutil.rmtree(folder, ignore_errors=True)
        os.makedirs(os.path.join(folder, "files"))
        self.screen, self.folder, self.steps = screen, folder, 0
        self.program = Program(screen, executable, folder=os.path.join(folder, "files"),
                               environment=environment)

    def picture(self, name, told):
        """Keeps a picture of the active window, or of all where a box is open."""
        self.steps += 1
        path = os.path.join(self.folder, f"{self.steps:02}-{name}.png")
        if self.program.boxes():
            self.screen.picture_of_windows(path)
        else:
            self.screen.picture_of_active(self.program, path)
        print(f"{self.steps:3}  {told}", flush=True)

    def window(self, title):
        window = self.program.window(title)
        self.program.activated(title)
        return window

    def key(self, key, title):
        """A key that opens the window of this title."""
        self.program.keys(key)
        return self.window(title)

    def back_to(self, title=STANDARD_TITLE):
        """Closes the active window; the one of this title takes its place."""
        self.program.keys("Escape")
        self.window(title)

    def agree(self, *words):
        """Answers the boxes that come, each of which must hold these words, with their first
        button."""
        for word in words:
            box = self.program.box()
            if word not in box.text:
                raise AssertionError(f"the box «{box.text}» does not say «{word}»")
            box.press("Return")

    def run(self):
        main = self.window(STANDARD_TITLE)
        self.picture("opening", "The program has been started.")
        self.choose_bag()
        self.choose_bankos()
        self.load_both()
        self.draw_and_keep(main)
        self.list_kept()
        self.generate()
        self.filter_and_write()
        self.draw_from_list(main)
        self.type_coupon(main)
        self.end(main)

    def choose_bag(self):
        window = self.key("F5", "6/49 Top Seçme Tablosu")
        for ball in BAG:
            cell = window.find("check box", str(ball))
            self.program.click(cell)
        self.program.until(lambda: cell.has("checked"), "the last ball to be marked")
        self.picture("bag", f"F5: {len(BAG)} balls are marked for the bag.")
        self.program.keys("F1", "F3")
        self.agree("kayıtlamak istiyormusunuz", "kayıtlandı")
        self.back_to()

    def choose_bankos(self):
        window = self.key("F7", "Banko")
        self.program.keys("F6")  # two bankos
        for index, banko in enumerate(BANKOS):
            self.program.click(window.find("text", f"{index + 1}. banko top"))
            self.program.type(str(banko))
        self.picture("bankos", "F7: two bankos, which every column will hold.")
        self.program.keys("F3")
        self.agree("kayıtlamak istiyormusunuz", "kayıtlandı")
        self.back_to()

    def load_both(self):
        self.program.keys("F6")
        self.agree("Topları KARVENIS.DAT dosyasından yüklemek")
        self.program.keys("F8")
        self.picture("question", "F8: the bankos are read back from the file.")
        self.agree("Banko seçimini KARVENIS.DAT dosyasından yüklemek")

    def draw(self, main):
        self.program.click(main.find("push button", "Kolon"))
        self.program.until(lambda: len(self.program.numbers(main)) < 12, "the balls to roll")

    def draw_and_keep(self, main):
        for count in (1, 2):
            self.draw(main)
            if count == 1:
                self.program.until(lambda: len(self.program.numbers(main)) == 6, "the third ball")
                self.picture("rolling", "\"Kolon\": a column is drawn, ball by ball.")
            self.program.until(lambda: len(self.program.numbers(main)) == 12, "the sixth ball")
            missing = set(BANKOS) - set(self.program.numbers(main))
            if missing:
                raise AssertionError(f"the column lacks the bankos {missing}")
            self.program.keys("F1")
            self.program.titled(f" KARVENIS.RND Kayıt No= {count}")
            self.picture("kept", f"F1: column {count} is kept.")

    def list_kept(self):
        window = self.key("F2", " Rastgele Kolon Listesi - Sayfa 1  [ F10= Yardım ]")
        self.program.until(lambda: len(window.find("list").children) == 2, "the two columns")
        self.picture("kept-columns", "F2: the columns that were kept.")
        self.program.keys("F1")
        self.agree("Kombinasyon Listesi'ne eklemek istiyormusunuz",
                   "Kombinasyon Listesi'ne eklendi.")
        self.back_to()

    def generate(self):
        window = self.key("F11", "6/49 Rastgele Kolon Üreteci")
        self.program.click(window.find("text"))
        self.program.keys("ctrl+a", "Delete")
        self.program.type("60")
        self.picture("generator", "F11: sixty columns more for the combination list.")
        self.program.keys("F1")
        self.agree(" 60 kolon 'KARVENIS.LST' dosyasına eklendi.")
        self.window(STANDARD_TITLE)

    def filter_and_write(self):
        page = " Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]"
        self.key("F12", page)
        self.picture("combination-list", "F12: the combination list.")
        self.program.keys("F5")
        box = self.program.box("Kolon SİLME")
        self.program.type("5,12")
        self.picture("filter", "F5: columns with the numbers 5 or 12 shall go.")
        box.press("Return")
        self.program.box(STANDARD_TITLE)
        self.picture("filter-question", "It asks first.")
        self.agree("'5,12' numaralı topların yer aldığı kolonları silmek istiyormusunuz?")
        self.program.titled(r" Kombinasyon Listesi - Sayfa \d+  \[ F10= Yardım \]")
        self.picture("filtered", "The page starts at the second column that is left.")
        self.key("F1", "Kombinasyon Listesi")
        self.picture("listing", "F1: a range of the list, as text or on paper.")
        self.program.keys("F1")
        self.agree("KARVENIS.TXT dosyasına yazdırmak istiyormusunuz", '"KARVENIS.TXT" dosyasına')
        self.back_to(page)  # coming back to the list shows its first page
        self.back_to()

    def draw_from_list(self, main):
        self.program.click(main.find("radio button", "Listeden Çek"))
        self.program.click(main.find("push button", "Kolon"))
        self.program.titled(r" KARVENIS\.LST  Kayıt = \d+ \[ \d+ \]")
        self.picture("from-list", "\"Listeden Çek\": a column is drawn from the list.")

    def type_coupon(self, main):
        title = main.name
        coupon = "Sekiz Rastgele Kolon"
        window = self.key("F9", coupon)
        self.program.until(lambda: not window.find("label", "F10 = Yardım").has("showing"),
                           "the coupon of eight columns")
        self.picture("coupon", "F9: eight columns at once.")
        self.back_to(title)

    def end(self, main):
        self.program.click(main.find("push button", "Çıkış"))
        status = self.program.status()
        if status != 0 or self.program.words():
            raise AssertionError(f"the program ended with {status}: {self.program.words()}")


def describe(folder):
    """What the files hold: their bytes, and their columns."""
    for name in sorted(os.listdir(folder)):
        with open(os.path.join(folder, name), "rb") as file:
            content = file.read()
        print(f"\n{name}, {len(content)} bytes")
        if name.endswith(".TXT"):
            print(content.decode("ascii", "replace").replace("\r\n", "\n"), end="")
            continue
        shown = content[:160]
        for start in range(0, len(shown), 16):
            print(f"  {start:04x}  {shown[start:start + 16].hex(' ')}")
        if len(shown) < len(content):
            print("  ...")
        if name.endswith((".RND", ".LST", ".OLD")):
            for number, (word, balls) in enumerate(columns(shown), 1):
                print(f"  column {number}: {' '.join(f'{ball:2}' for ball in balls)}   word {word}")


def main():
    executable, folder = (os.path.abspath(path) for path in sys.argv[1:3])
    environment = dict(option.split("=", 1) for option in sys.argv[3:] if "=" in option)
    sizes = [option for option in sys.argv[3:] if "=" not in option]
    screen = Screen(*sizes)
    screen.run("display", "-window", "root", "xc:#c9c2b4")  # what lies between the windows
    try:
        tour = Tour(screen, executable, folder, environment)
        try:
            tour.run()
        except Exception:
            screen.picture(os.path.join(folder, "failure.png"))
            raise
        finally:
            tour.program.close()
        describe(os.path.join(folder, "files"))
        print(f"\nThe pictures of the {tour.steps} steps are in {folder}")
    finally:
        screen.close()


if __name__ == "__main__":
    main()
