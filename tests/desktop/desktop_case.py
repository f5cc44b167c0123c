"""The base of the desktop tests: a screen for each test class, a fresh run for each test."""

import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from program import STANDARD_TITLE, Program  # noqa: E402
from screen import Screen  # noqa: E402

HOUSE = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
EXECUTABLE = os.environ.get("KARVENIS_PROGRAM", os.path.join(HOUSE, "build/release/karvenis"))
PICTURES = os.environ.get("KARVENIS_PICTURES", os.path.join(HOUSE, "build/desktop"))


class DesktopCase(unittest.TestCase):
    """A failing test leaves a picture of the screen and the words of the windows."""

    maxDiff = None
    executable = EXECUTABLE
    pictures = PICTURES
    screen_type = Screen

    @classmethod
    def setUpClass(cls):
        if not os.access(cls.executable, os.X_OK):
            raise FileNotFoundError(f"build it first: {cls.executable}")
        cls.screen = cls.screen_type()
        cls.addClassCleanup(cls.screen.close)

    def start(self, files=None, **options):
        """Starts the program in a fresh folder that holds `files`; its main window is active."""
        self.program = Program(self.screen, self.executable, files, **options)
        self.addCleanup(self.program.close)
        self.main = self.program.window(STANDARD_TITLE)
        self.program.activated(STANDARD_TITLE)
        return self.program

    def click(self, role, name):
        """Clicks a control of the main window."""
        self.program.click(self.main.find(role, name))

    def draw(self):
        """Draws a column from the bag and waits until its sixth ball lies. Returns the column."""
        self.click("push button", "Kolon")
        self.program.until(lambda: 0 < len(self.program.numbers(self.main)) < 12,
                           "the balls to roll")
        self.program.until(lambda: len(self.program.numbers(self.main)) == 12, "the sixth ball")
        numbers = self.program.numbers(self.main)
        self.assertEqual(numbers[::2], numbers[1::2])
        return numbers[::2]

    def open(self, key, title):
        """Presses the key that opens the window of this title."""
        self.program.keys(key)
        window = self.program.window(title)
        self.program.activated(title)
        return window

    def expect_box(self, text, title=STANDARD_TITLE, buttons=("Tamam",), answer="Return"):
        """A box with these words comes, and goes with the answer."""
        box = self.program.box()
        self.assertEqual((box.title, box.text, tuple(box.buttons)), (title, text, buttons))
        box.press(answer)

    def expect_question(self, text, answer, title=STANDARD_TITLE):
        key = {"Evet": "Return", "Hayır": "Escape"}[answer]
        self.expect_box(text, title, ("Evet", "Hayır"), key)

    def expect_end(self, status=0):
        self.assertEqual(self.program.status(), status)
        self.assertEqual(self.program.words(), "", "the program wrote to its terminal")

    def _callTestMethod(self, method):
        try:
            super()._callTestMethod(method)
        except unittest.SkipTest:
            raise
        except BaseException:
            self._leave_evidence()
            raise

    def _leave_evidence(self):
        path = os.path.join(self.pictures, self.id().split(".", 1)[1] + ".png")
        self.screen.picture(path)
        print(f"picture of the failure: {path}", file=sys.stderr)
        program = getattr(self, "program", None)
        if program and program.runs():
            for window in program.windows():
                print(window.describe(), file=sys.stderr)
