"""Printing a list: on a real queue, and where there is none, one that refuses or no server."""

import re
import subprocess
import unittest

from columns import record
from desktop_case import DesktopCase
from print_queue import PrintQueue

LIST = " Rastgele Kolon Listesi - Sayfa 1  [ F10= Yardım ]"
DIALOG = " Rastgele Kolonlar"
QUESTION = "Rastgele Kolon Listesi'ni printere bastırmak istiyormusunuz ?"
BALLS = (3, 11, 17, 25, 38, 45)


def lines_of(count):
    """What stands on paper for so many equal columns; reading it back joins blanks."""
    digits = len(str(count))
    columns = [f"Kolon {number:0{digits}} - 03, 11, 17, 25, 38, 45 [139]"
               for number in range(1, count + 1)]
    return ["< KARVENIS 2005 Randomizer >", "Rastgele Kolon Listesi [ DATE ]", *columns,
            f"< Toplam {count} kolon. >"]


class Paper:
    """A printed document, read back."""

    def __init__(self, path):
        text = self._run("pdftotext", "-layout", path, "-")
        lines = [" ".join(line.split()) for line in text.replace("\f", "\n").splitlines()]
        self.lines = [re.sub(r"\[ .+ \]$", "[ DATE ]", line) for line in lines if line]
        self.pages = text.count("\f")
        boxes = self._run("pdftotext", "-bbox", path, "-")
        self.height = float(re.search(r'<page width="\S+" height="(\S+)"', boxes).group(1))
        self.words = [tuple(map(float, places)) for places in re.findall(
            r'<word xMin="(\S+)" yMin="(\S+)" xMax="\S+" yMax="(\S+)"', boxes)]

    @staticmethod
    def _run(*command):
        return subprocess.run(command, capture_output=True, text=True, check=True,
                              timeout=60).stdout


class Printing(DesktopCase):
    def open_dialog(self, count, environment):
        """Starts over a list of `count` columns and opens its listing dialog, set to the printer."""
        self.start({"KARVENIS.RND": record(BALLS) * count}, environment=environment)
        self.program.keys("F2")
        self.program.activated(LIST)
        self.program.keys("F9")
        self.program.activated(DIALOG)
        dialog = self.program.window(DIALOG)
        self.program.click(dialog.find("radio button", "Printer"))
        self.program.until(lambda: dialog.find("push button", "Bas"), "the button to say «Bas»")

    def press_print(self):
        self.program.keys("F1")
        self.expect_question(QUESTION, "Evet")

    def queue(self, **options):
        made = PrintQueue(**options)
        self.addCleanup(made.close)
        return made

    def printed(self, count):
        queue = self.queue()
        self.open_dialog(count, queue.environment)
        self.press_print()
        paper = Paper(queue.printed())
        self.assertEqual(paper.lines, lines_of(count))
        foot = paper.height - 25  # points: the margin of 500 twips
        for left, top, bottom in paper.words:
            self.assertGreaterEqual(left, 49.5)
            self.assertGreaterEqual(top, 24)
            self.assertLessEqual(bottom, foot + 0.5)
        self.assertEqual(self.program.titles().count(DIALOG), 1, "the dialog stays open")
        self.assertEqual(self.program.files(), ["KARVENIS.RND"])
        return paper

    def test_ten_columns_on_one_page(self):
        self.assertEqual(self.printed(10).pages, 1)

    def test_five_hundred_columns_on_as_many_pages_as_they_need(self):
        paper = self.printed(500)
        self.assertGreaterEqual(paper.pages, 7)
        self.assertLessEqual(paper.pages, 12)

    def test_two_documents_one_after_the_other(self):
        queue = self.queue()
        self.open_dialog(2, queue.environment)
        for job in (1, 2):
            self.press_print()
            self.assertEqual(Paper(queue.printed(job)).lines, lines_of(2))
            self.program.activated(DIALOG)

    def assert_not_ready(self):
        self.press_print()
        self.expect_box("Printer hazır değil !", title="! HATA !")
        self.program.activated(DIALOG)

    def test_without_a_queue(self):
        queue = self.queue(has_queue=False)
        self.open_dialog(3, queue.environment)
        self.assert_not_ready()

    def test_with_a_queue_that_refuses_and_takes_jobs_again(self):
        queue = self.queue()
        queue.refuse()
        self.open_dialog(3, queue.environment)
        self.assert_not_ready()
        self.assertEqual(queue.jobs(), 0)
        queue.accept()
        self.press_print()
        self.assertEqual(Paper(queue.printed()).lines, lines_of(3))

    def test_without_a_server(self):
        queue = self.queue()
        queue.stop_serving()
        self.open_dialog(3, queue.environment)
        self.assert_not_ready()


if __name__ == "__main__":
    unittest.main()
