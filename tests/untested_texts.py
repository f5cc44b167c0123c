#!/usr/bin/env python3
"""Lists the texts of the program that no test has shown; fails where there is one.

    tests/untested_texts.py build/asan/tests/shown

A text is what a user may read: a string of the program with at least four letters and a blank, an
exclamation mark or a Turkish letter in it. Pieces that the compiler joins are joined first. It has
been shown when each of its lines stands, letter by letter, in a box, a title, a control, an
announcement or a print of a test run (ShownTexts.cpp keeps them in the given folder); where "%1"
and the like stand for something, what stands between them.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# What nobody can be shown, and why.
NEVER_SHOWN = {
    " RASTGELE KOLON LİSTESİ   [ F10= YARDIM ]": "the first page takes this title's place at once",
    "İşaretli top yok": "is announced to a screen reader only: tests/desktop/test_spoken.py hears it",
    "yazıcı kullanılamıyor": "every fault while printing is told as a printer that is not ready",
    "no window ": "is told to a developer",
}
STRING = re.compile(r'"((?:\\.|[^"\\\n])*)"')


def texts_of(path):
    """The strings of a file, without its comments; joined ones are one."""
    code = re.sub(r"(?m)^\s*#include.*$|(?<!:)//[^\"\n]*(\"[^\"\n]*\"[^\"\n]*)*$", "",
                  path.read_text(encoding="utf-8"))
    return STRING.findall(re.sub(r'"(?:_s)?\s*\n\s*[uf]?"', "", code))


def is_text(line):
    return len(re.findall(r"[^\W\d_]", line)) >= 4 and re.search(r"[ !çğıöşüÇĞİÖŞÜ]", line.strip())


def lines_of(text):
    return [part for part in re.split(r"\\r|\\n|%\d", text) if is_text(part)]


def as_shown(line):
    """How ShownTexts.cpp keeps a line of the source."""
    return re.sub(r"[0-9]+", "#", line.replace('\\"', '"'))


def main():
    shown = "".join(path.read_text(encoding="utf-8") for path in pathlib.Path(sys.argv[1]).iterdir())
    shown = shown.replace("\u200b", "")
    missing = texts = 0
    for path in sorted((ROOT / "src").rglob("*")):
        for text in texts_of(path) if path.suffix in {".cpp", ".h"} else []:
            texts += bool(lines_of(text))
            for line in lines_of(text):
                if as_shown(line) not in shown and line not in NEVER_SHOWN:
                    missing += 1
                    print(f"{path.relative_to(ROOT)}: {line}")
    print(f"{missing} lines of {texts} texts were shown by no test")
    return 1 if missing or not texts else 0


if __name__ == "__main__":
    sys.exit(main())
