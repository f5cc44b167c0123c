#!/usr/bin/env python3
"""Lists the texts of the program that no test mentions; fails where there is one.

A text is what a user may read: a string of the program with at least four letters and a blank, an
exclamation mark or a Turkish letter in it. Pieces that the compiler joins are joined first. A test
mentions a text when each of its lines stands in the tests, letter by letter; where "%1" and the
like stand for something, what stands between them.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
STRING = re.compile(r'"((?:\\.|[^"\\\n])*)"')


def code_of(folder, kinds):
    """Each file without comments, with joined strings and plain quotation marks."""
    for path in sorted((ROOT / folder).rglob("*")):
        if path.suffix in kinds:
            code = re.sub(r"(?m)^\s*#include.*$|(?<!:)//[^\"\n]*(\"[^\"\n]*\"[^\"\n]*)*$", "",
                          path.read_text(encoding="utf-8"))
            yield path, re.sub(r'"(?:_s)?\s*\n\s*[uf]?"', "", code)


def is_text(line):
    return len(re.findall(r"[^\W\d_]", line)) >= 4 and re.search(r"[ !çğıöşüÇĞİÖŞÜ]", line.strip())


def lines_of(text):
    return [part for part in re.split(r"\\r|\\n|%\d", text) if is_text(part)]


def main():
    tests = "".join(code for _, code in code_of("tests", {".cpp", ".h", ".py"})).replace('\\"', '"')
    missing = texts = 0
    for path, code in code_of("src", {".cpp", ".h"}):
        for text in STRING.findall(code):
            texts += bool(lines_of(text))
            for line in lines_of(text):
                if line.replace('\\"', '"') not in tests:
                    missing += 1
                    print(f"{path.relative_to(ROOT)}: {line}")
    print(f"{missing} lines of {texts} texts are mentioned by no test")
    return 1 if missing or not texts else 0


if __name__ == "__main__":
    sys.exit(main())
