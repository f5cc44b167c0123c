#!/usr/bin/env python3
"""Lists the texts of the program that no test mentions; fails where there is one.

A text is a string of the rules with at least four letters and a blank or an exclamation mark in it.
Texts that the compiler joins are joined first. A test mentions it with its longest line, or with the
start of that, or by the text's own name. (What the windows show beside boxes, their tests read by name.)
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
STRING = re.compile(r'(?:(?:char|std::string) (\w+)(?:\[\])? =\s*)?"((?:\\.|[^"\\\n])*)"')


def code_of(folder, kinds):
    for path in sorted((ROOT / folder).rglob("*")):
        if path.suffix in kinds:
            code = re.sub(r"(?m)^\s*#include.*$|//[^\"\n]*(\"[^\"\n]*\"[^\"\n]*)*$", "",
                          path.read_text(encoding="utf-8"))
            yield path, re.sub(r'"\s*\n\s*u?"', "", code)


def main():
    tests = "".join(code for _, code in code_of("tests", {".cpp", ".h", ".py"}))
    missing = []
    for path, code in code_of("src", {".cpp", ".h"}):
        if path.name.startswith("frm") or path.parent.name == "qt":
            continue
        for name, text in STRING.findall(code):
            lines = [line.strip() for line in re.split(r"\\r|\\n", text)]
            longest = max(lines, key=len)
            if not re.search(r"[ !]", longest) or len(re.findall(r"[^\W\d_]", longest)) < 4:
                continue
            named = name and re.search(rf"\b{name}\b", tests)
            if longest[:60] not in tests and not named:
                missing.append(f"{path.relative_to(ROOT)}: {text}")
    print("\n".join(missing))
    print(f"{len(missing)} texts are mentioned by no test")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
