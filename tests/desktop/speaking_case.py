"""The base of the tests that listen: what the screen reader says, line by line."""

import re

from desktop_case import DesktopCase
from screen import TooLate
from speaking import SpeakingScreen, Voice
from unprivileged import leave_root


class SpeakingCase(DesktopCase):
    screen_type = SpeakingScreen
    pictures = "/tmp/karvenis-pictures"  # where a user other than the caller may write

    @classmethod
    def setUpClass(cls):
        (cls.executable,) = leave_root(cls.executable)
        super().setUpClass()

    def start(self, files=None, **options):
        # Newer Orcas keep what they know of a control under an address that another control can
        # have later, and then count or name the other one wrongly. A fresh one knows nothing yet.
        # Where it is busy it misses a part of what the program does at its start.
        newer = self.screen.is_newer
        if newer:
            self.screen.start_reader()
        self._heard = len(self.screen.voice.lines)  # how many lines the test has told of
        program = super().start(files, **options)
        if newer:
            self.listen("KARVENIS 2005 Randomizer|Kolon düğme|Yeni Kolon")
        else:
            self.hear("KARVENIS 2005 Randomizer", "Kolon düğme", "Yeni Kolon")
        return program

    def press(self, key, *lines):
        """A key, and what is spoken then."""
        self.program.keys(key)
        self.hear(*lines)

    def hear(self, *lines):
        """Exactly these lines come next, and none of them is cut off by the one behind it. Only the
        first of several, the title of a window, is left out by a screen reader that is busy."""
        if self.screen.is_newer:
            for line in self.awaited(lines):
                self.listen(re.escape(line))
            return
        end = 0

        def spoken():
            nonlocal end
            coming = self._coming()
            first = next((i for i, line in enumerate(coming) if line is not Voice.CUT),
                         len(coming))
            end = first + len(lines)
            return coming[first:end]
        try:
            self.program.until(lambda: len(spoken()) == len(lines), "words")
        except TooLate:
            if spoken() == list(lines[1:]) != []:
                lines = lines[1:]
        self.assertEqual(spoken(), list(lines), self._coming())
        self._heard += end

    def awaited(self, lines):
        """Those of the lines that are waited for. An Orca newer than 43 repeats the surroundings and
        cuts itself off, so that others may be between them; where it is busy it leaves out the
        first of several, which is the title of a window."""
        return lines[1:] if self.screen.is_newer and len(lines) > 1 else lines

    def listen(self, pattern):
        """The next line that matches, as its match; those before it are passed over."""
        def matching():
            for place, line in enumerate(self._coming()):
                found = line is not Voice.CUT and re.fullmatch(pattern, line)
                if found:
                    self._heard += place + 1
                    return found
            return None
        try:
            return self.program.until(matching, f"«{pattern}» to be spoken")
        except TooLate as late:
            raise TooLate(f"{late}; heard: {self._coming()}") from None

    def _coming(self):
        return self.screen.voice.lines[self._heard:]
