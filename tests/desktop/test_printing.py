"""Printing a list: on a real queue, and where there is none, one that refuses or no server."""

import html
import os
import re
import resource
import subprocess
import unittest

from columns import record
from desktop_case import DesktopCase
from print_queue import PrintQueue

LIST = " Rastgele Kolon Listesi - Sayfa 1  [ F10= Yardım ]"
DIALOG = " Rastgele Kolonlar"
QUESTION = "Rastgele Kolon Listesi'ni printere bastırmak istiyormusunuz ?"
BALLS = (3, 11, 17, 25, 38, 45)


# Of the papers of a printer: name, size and printable area in points. The last one cannot be
# printed on near its edges.
PAPERS = (("A4", "595 842", "10 20 585 830"), ("A5", "420 595", "10 20 410 583"),
          ("Letter", "612 792", "10 20 602 780"), ("B5", "516 729", "65 45 500 699"))


def lines_of(count):
    """What stands on paper for so many equal columns."""
    digits = len(str(count))
    columns = [f"Kolon {number:0{digits}} - 03, 11, 17, 25, 38, 45  [139]"
               for number in range(1, count + 1)]
    return ["< KARVENIS 2005 Randomizer >", "Rastgele Kolon Listesi [ DATE ] ", "", *columns, "",
            f"< Toplam {count} kolon. >"]


def laid_out(lines, pitch, left, top, foot):
    """Where each line that is not empty stands: page, left and top in points, and its text."""
    places, page, at = [], 1, top
    for line in lines:
        if at + pitch > foot:
            page, at = page + 1, top
        if line:
            places.append((page, left, at, line))
        at += pitch
    return places


class Paper:
    """A printed document, read back. Lengths are points."""

    def __init__(self, path):
        told = self._run("pdftohtml", "-xml", "-i", "-zoom", "1", "-stdout", path)
        self.sizes = [int(size) for size in re.findall(r'<fontspec [^>]*size="(\d+)"', told)]
        lines = [html.unescape(line) for line in re.findall(r"<text [^>]*>(.*?)</text>", told)]
        head, *pages = self._run("pdftotext", "-bbox", path, "-").split("<page ")
        self.title = re.search("<title>(.*)</title>", head).group(1)
        self.pages = len(pages)
        self.width, self.height = (float(length) for length in re.match(
            r'width="(\S+)" height="(\S+)"', pages[0]).groups())
        places = []
        for number, page in enumerate(pages, 1):
            words = re.findall(r'<word xMin="(\S+)" yMin="(\S+)" xMax="\S+" yMax="(\S+)"', page)
            firsts = {}
            for word in words:
                left, top, bottom = map(float, word)
                firsts.setdefault(top, (number, left, top))
                self.pitch = bottom - top
            places += firsts.values()
        self.lines = [(page, left, top, re.sub(r"\[ .+ \] $", "[ DATE ] ", line))
                      for (page, left, top), line in zip(places, lines, strict=True)]

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

    def check(self, paper, count, left=50, top=25, bottom=25):
        """Each line of so many columns stands on this paper once, at its place."""
        self.assertEqual(paper.sizes, [11])
        places = laid_out(lines_of(count), paper.pitch, left, top, paper.height - bottom)
        self.assertEqual(len(paper.lines), len(places))
        for found, expected in zip(paper.lines, places):
            self.assertEqual((found[0], found[3]), (expected[0], expected[3]))
            self.assertAlmostEqual(found[1], expected[1], delta=0.05, msg=found)
            self.assertAlmostEqual(found[2], expected[2], delta=0.05, msg=found)

    def test_ten_columns_on_one_page(self):
        queue = self.queue()
        self.open_dialog(10, queue.environment)
        self.press_print()
        paper = Paper(queue.printed())
        self.check(paper, 10)
        self.assertEqual((paper.title, paper.pages, paper.width, paper.height),
                         ("KARVENIS", 1, 595, 842))
        self.assertEqual(self.program.titles().count(DIALOG), 1, "the dialog stays open")
        self.assertEqual(self.program.files(), ["KARVENIS.RND"])

    def test_many_columns_on_each_paper(self):
        queue = self.queue(papers=PAPERS)
        self.open_dialog(130, queue.environment)

        def check(job, pages, size, **margins):
            self.press_print()
            paper = Paper(queue.printed(job))
            self.assertEqual((paper.pages, paper.width, paper.height), (pages, *size))
            self.check(paper, 130, **margins)
            self.program.activated(DIALOG)

        check(1, 3, (595, 842))
        queue.choose_paper("A5")
        check(2, 4, (420, 595))
        queue.choose_paper("Letter")
        check(3, 3, (612, 792))
        queue.choose_paper("B5")
        check(4, 4, (516, 729), left=65, top=30, bottom=45)
        queue.choose_for_user("media=iso_a5_148x210mm")
        check(5, 4, (420, 595))
        queue.choose_for_user("PageSize=Letter media=iso_a5_148x210mm sides=two-sided-long-edge")
        check(6, 3, (612, 792))
        queue.choose_for_user("media=a-paper-that-nobody-knows")
        check(7, 3, (595, 842))
        title, options = queue.words(6)
        self.assertEqual(title, "KARVENIS")
        self.assertIn("sides=two-sided-long-edge", options)

    def test_a_program_that_may_write_only_small_files(self):
        queue = self.queue()
        self.open_dialog(500, queue.environment)
        resource.prlimit(self.program.process.pid, resource.RLIMIT_FSIZE, (1024, 1024))
        self.press_print()
        self.check(Paper(queue.printed()), 500)

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
        with queue.at_work():
            queue.refuse()
            self.open_dialog(3, queue.environment)
            self.assert_not_ready()
        self.assertTrue(os.path.exists(queue.printed(1)), "nobody else's job is cancelled")
        self.assertEqual(queue.jobs(), 1)
        queue.accept()
        self.press_print()
        self.check(Paper(queue.printed(2)), 3)

    def test_with_a_server_that_cannot_take_the_whole_document(self):
        queue = self.queue(largest="8k")
        self.open_dialog(500, queue.environment)
        self.assert_not_ready()
        self.assertEqual((queue.jobs("not-completed"), queue.documents()), (0, []))

    def test_a_document_that_is_given_up_leaves_nothing_to_the_next(self):
        queue = self.queue()
        self.open_dialog(3, queue.environment)
        whole = self.program.bytes("KARVENIS.RND")
        self.write(whole[:32] + record((32767,) * 6))  # no sum of these can be told
        self.assert_not_ready()
        self.assertEqual(queue.jobs(), 0)
        self.write(whole)
        self.press_print()
        self.check(Paper(queue.printed()), 3)

    def write(self, content):
        with open(self.program.path("KARVENIS.RND"), "wb") as file:
            file.write(content)

    def test_without_a_server(self):
        queue = self.queue()
        queue.stop_serving()
        self.open_dialog(3, queue.environment)
        self.assert_not_ready()


if __name__ == "__main__":
    unittest.main()
