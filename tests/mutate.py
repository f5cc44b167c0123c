#!/usr/bin/env python3
"""Changes the rules in one place at a time and tells which changes no test notices.

    tests/mutate.py [--sample 150] [--seed 1] [--jobs 2] [--only src/core]

An operator, a constant or a bound is changed in a copy of one source file, which is linked before
the rules' library, so that the copy is taken instead. The quick tests run first, then the long
ones, then those with faults; a change is noticed when one of them fails, crashes or never ends. A
change that does not compile or that compiles to the same code does not count, and neither do those
listed below, with the reason why nobody could notice them. Fails below 95 %.
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import random
import re
import resource
import shlex
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/mutate"
MEMORY = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
SWAPS = [
    (r"(?<= )<=(?= )", "<"), (r"(?<= )>=(?= )", ">"), (r"(?<= )<(?= )", "<="),
    (r"(?<= )>(?= )", ">="), (r"==", "!="), (r"!=", "=="), (r"(?<= )&&", "||"), (r"\|\|", "&&"),
    (r"(?<= )\+(?= )", "-"), (r"(?<= )-(?= )", "+"), (r"(?<= )\*(?= )", "/"), (r"(?<= )/(?= )", "*"),
    (r"(?<= )%(?= )", "*"), (r"\+\+", "--"), (r"\+=", "-="), (r"-=", "+="), (r"(?<= )<<(?= )", ">>"),
    (r"(?<= )>>(?= )", "<<"), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"(?<=[ (])!(?=[a-z(])", ""), (r"(?<![\w'.])\d+(?![\w'.])", "+1"), (r"\bcontinue;", "break;"),
]
# The slow ones of the tests without faults, and those with: each stage runs what is in it.
LONG = "*FiltersAgainstSets*:GeneratorDraw*:FilterRewrite*"
FAULTS = "*FailingDoor*:*FailingSystem*:*HostilePlace*:Damaged*:Model*:*FullDisk*"
STAGES = [f"-{LONG}:{FAULTS}:*FullFileSystem*:*LongList*:HugeList*:RandomKills*", LONG, FAULTS]

BLOCK = "the block only sets how much is copied at once"
EXHAUSTED = "an exhausted pool gives its first entry whatever its count says"
SET_LATER = "run() sets it before it is used"
WRITTEN = "the system never writes none of some bytes without an error"
NEGATIVE = "every negative number stands for no descriptor"
# What no test could notice: file, beginning of the line, old, new, and the reason.
EQUIVALENT = [
    ("core/ColumnFile.cpp", "std::vector<std::byte> block(", "1", "2", BLOCK),
    ("core/ColumnFile.cpp", "std::vector<std::byte> block(", "16", "17", BLOCK),
    ("platform/SystemFiles.cpp", "std::vector<std::byte> block(", "1", "2", BLOCK),
    ("platform/SystemFiles.cpp", "std::vector<std::byte> block(", "18", "19", BLOCK),
    ("comblist/Filters.cpp", "std::int32_t ListCount", "0", "1", SET_LATER),
    ("comblist/Filters.cpp", "std::int32_t KeepCount", "0", "1", SET_LATER),
    ("comblist/GeneratorDraw.cpp", "Pool[0] = static_cast<std::int16_t>(std::max(", "0", "1", EXHAUSTED),
    ("platform/SystemFiles.cpp", "explicit Descriptor(int number = -1)", "1", "2", NEGATIVE),
    ("platform/SystemFiles.cpp", "if (put < 0) fail(", "0", "1", WRITTEN),
    ("platform/SystemFiles.cpp", "int close() {", "1", "2", NEGATIVE),
]


def mutants(path):
    """Every change of one place: (path, line, column, old, new)."""
    found = []
    for number, line in enumerate(path.read_text().splitlines()):
        code = re.sub(r'"(\\.|[^"\\])*"', lambda text: "\0" * len(text[0]), line).split("//")[0]
        if re.match(r"\s*(#|static_assert|template|using|/\*|\*)", code) or "operator" in code:
            continue
        for pattern, new in SWAPS:
            for match in re.finditer(pattern, code):
                in_template = re.search(r"\w<[^<>()]*$", code[:match.start()])
                if new == "+1" and in_template:
                    continue
                value = str(int(match[0]) + 1) if new == "+1" else new
                found.append((path, number, match.start(), match[0], value))
    return found


def excused(mutant):
    path, number, _, old, new = mutant
    line = path.read_text().splitlines()[number].strip()
    return any((str(path.relative_to(ROOT / "src")), old, new) == (file, was, becomes)
               and line.startswith(start) for file, start, was, becomes, _ in EQUIVALENT)


def changed(mutant):
    path, number, column, old, new = mutant
    lines = path.read_text().splitlines(keepends=True)
    lines[number] = lines[number][:column] + new + lines[number][column + len(old):]
    return "".join(lines)


def build():
    """The unchanged tests, quick enough to be run hundreds of times."""
    subprocess.run(["cmake", "--preset", "debug", "-B", BUILD, "-DCMAKE_CXX_FLAGS_DEBUG=-O1"],
                   cwd=ROOT, check=True, capture_output=True)
    subprocess.run(["cmake", "--build", BUILD, "--target", "rules_tests"], check=True)


def compile_command(path):
    commands = json.loads((BUILD / "compile_commands.json").read_text())
    command = next(entry["command"] for entry in commands if entry["file"] == str(path))
    return shlex.split(command) + [f"-I{path.parent}", "-w", "-g0"]


def link_command():
    text = subprocess.run(["ninja", "-C", BUILD, "-t", "commands", "rules_tests"], text=True,
                          capture_output=True, check=True).stdout
    line = [line for line in text.splitlines() if " -o tests/rules_tests " in line][-1]
    return shlex.split(line.split("&&")[1] if "&&" in line else line)


def compiled(path, text, folder):
    """The object file of `text` in the place of `path`; none where it does not compile."""
    copy = folder / path.name
    copy.write_text(text)
    command = compile_command(path)
    command[command.index("-o") + 1] = str(folder / "mutant.o")
    command[command.index(str(path))] = str(copy)
    done = subprocess.run(command, cwd=BUILD, capture_output=True)
    return (folder / "mutant.o").read_bytes() if done.returncode == 0 else None


def limit():
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 28, 1 << 28))


def passes(program, tests, folder, seconds):
    command = [program, "--gtest_fail_fast", "--gtest_brief=1", f"--gtest_filter={tests}"]
    try:
        return subprocess.run(command, cwd=folder, capture_output=True, stdin=subprocess.DEVNULL,
                              env={**os.environ, "TMPDIR": str(folder)}, timeout=seconds,
                              preexec_fn=limit).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def judge(mutant, link, limits):
    with tempfile.TemporaryDirectory(dir=MEMORY) as name:
        folder, path = pathlib.Path(name), mutant[0]
        whole = compiled(path, path.read_text(), folder)
        broken = compiled(path, changed(mutant), folder)
        if broken is None or broken == whole:
            return "invalid"
        out = list(link)
        out[out.index("-o") + 1] = f"{name}/program"
        library = next(i for i, word in enumerate(out) if word.endswith("libkarvenis_rules.a"))
        out.insert(library, f"{name}/mutant.o")
        subprocess.run(out, cwd=BUILD, capture_output=True, check=True)
        noticed = any(not passes(f"{name}/program", tests, folder, seconds)
                      for tests, seconds in zip(STAGES, limits))
        return "noticed" if noticed else "unnoticed"


def time_limits():
    """How long each stage may take: many times what it takes unchanged, where it must pass."""
    limits = []
    for tests in STAGES:
        start = time.monotonic()
        with tempfile.TemporaryDirectory(dir=MEMORY) as folder:
            if not passes(BUILD / "tests/rules_tests", tests, folder, 600):
                sys.exit(f"unchanged rules do not pass {tests}")
        limits.append(20 + 5 * (time.monotonic() - start))
    return limits


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--sample", type=int, default=150)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--only", default="src")
    options = parser.parse_args()
    sources = [p for p in sorted((ROOT / options.only).rglob("*.cpp"))
               if "platform/qt" not in str(p) and not p.name.startswith("frm") and p.name != "main.cpp"]
    every = [mutant for path in sources for mutant in mutants(path)]
    chosen = random.Random(options.seed).sample(every, min(options.sample, len(every)))
    asked = [mutant for mutant in chosen if not excused(mutant)]
    build()
    link, limits = link_command(), time_limits()
    counts = {"noticed": 0, "unnoticed": 0, "invalid": 0}
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        verdicts = pool.map(lambda mutant: judge(mutant, link, limits), asked)
        for (path, number, column, old, new), verdict in zip(asked, verdicts):
            counts[verdict] += 1
            if verdict == "unnoticed":
                print(f"{path.relative_to(ROOT)}:{number + 1}:{column + 1}: {old} -> {new} unnoticed",
                      flush=True)
    valid = counts["noticed"] + counts["unnoticed"]
    print(f"{len(every)} places, {valid} changes tried, {counts['noticed']} noticed "
          f"({100 * counts['noticed'] / max(valid, 1):.1f} %); {counts['invalid']} not valid, "
          f"{len(chosen) - len(asked)} excused")
    return 0 if counts["noticed"] >= 0.95 * valid else 1


if __name__ == "__main__":
    sys.exit(main())
