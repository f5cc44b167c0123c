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
        """Exactly these lines come next, and none of them is cut off by the one behind it. A title
        may be missing, as in `listen`; a newer Orca says more than these lines."""
        if self.screen.is_newer:
            self.listen(*map(re.escape, lines))
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

    def listen(self, *patterns):
        """The next lines that match, in this order; others may be between them. Returns the last
        one's match. Only the first of several, the title of a window, may be missing: a busy
        screen reader leaves it out, and newer ones so often that it is not waited for."""
        if len(patterns) > 1 and self.screen.is_newer:
            return self.listen_to_all(*patterns[1:])
        try:
            return self.listen_to_all(*patterns)
        except TooLate:
            if len(patterns) == 1:
                raise
            return self.listen_to_all(*patterns[1:])

    def listen_to_all(self, *patterns):
        """`listen`, where no line may be missing."""
        def matching():
            awaited = list(patterns)
            for place, line in enumerate(self._coming(), 1):
                found = line is not Voice.CUT and re.fullmatch(awaited[0], line)
                if found and len(awaited) == 1:
                    self._heard += place
                    return found
                if found:
                    del awaited[0]
            return None
        try:
            return self.program.until(matching, f"«{' … '.join(patterns)}» to be spoken")
        except TooLate as late:
            raise TooLate(f"{late}; heard: {self._coming()}") from None

    def _coming(self):
        return self.screen.voice.lines[self._heard:]
