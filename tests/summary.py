#!/usr/bin/env python3
"""Passes on what ctest says. Before its summary it adds what the failing tests said and how many
single tests ran in how many processes.

    ctest --test-dir build/asan | tests/summary.py build/asan
"""
import pathlib
import re
import sys

# The lines in which a test program, a test script and the fuzzers' inputs say how many tests ran.
COUNTS = re.compile(r"^(?:\[={10}\] (\d+) tests? from .* ran|Ran (\d+) tests? in )", re.M)
# The line in which a test program says how many of these it skipped.
SKIPPED = re.compile(r"^\[  SKIPPED \] (\d+) tests?, listed", re.M)


def sections(log):
    """Each process in ctest's log: its name, what it said, whether it passed."""
    for part in re.split(r"(?m)^\d+/\d+ Testing: ", log)[1:]:
        name, rest = part.split("\n", 1)
        output, verdict = rest.split("<end of output>", 1)
        yield name, re.split(r"\n-{50,}\n", output, maxsplit=1)[1], "\nTest Passed.\n" in verdict


def without_passed(output):
    """What a process said, without the tests of it that passed. The last test that was begun stays:
    a program that crashed died in it."""
    kept, test = [], []
    for line in output.splitlines():
        if not line or line.startswith("[-----"):
            continue
        if line.startswith("[ RUN "):
            kept, test = kept + test, []
        test.append(line)
        if line.startswith("[       OK ]"):
            test = []
    return "\n".join(kept + test)


def main():
    summary = []
    for line in sys.stdin:
        if summary or "% tests passed" in line:
            summary.append(line)
        else:
            print(line, end="", flush=True)
    log = pathlib.Path(sys.argv[1], "Testing/Temporary/LastTest.log").read_text(errors="replace")
    tests = processes = skipped = 0
    for name, output, passed in sections(log):
        processes += 1
        tests += sum(int(a or b) for a, b in COUNTS.findall(output)) or 1
        skipped += sum(map(int, SKIPPED.findall(output)))
        if not passed:
            print(f"===== {name} failed =====\n{without_passed(output)}\n")
    print(f"{tests - skipped} single tests ran in {processes} processes; {skipped} were skipped.\n")
    print("".join(summary), end="")


if __name__ == "__main__":
    main()
