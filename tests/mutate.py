#!/usr/bin/env python3
"""Changes the rules in one place at a time and tells which changes no test notices.

    cmake --preset debug && cmake --build build/debug --target rules_tests
    tests/mutate.py [--sample 150] [--seed 1] [--jobs 2] [--only src/core]

An operator, a constant or a bound is changed in a copy of one source file, which is linked before
the rules' library, so that the copy is taken instead. The rules' tests run first, then those with
faults. A change that does not compile or that yields the same object file does not count.
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import random
import re
import shlex
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / os.environ.get("KARVENIS_BUILD", "build/debug")
SWAPS = [
    (r"(?<![<>=!+\-*/&|])<=(?!>)", "<"), (r"(?<![<>=!+\-*/&|])>=", ">"),
    (r"(?<= )<(?= )", "<="), (r"(?<= )>(?= )", ">="),
    (r"==", "!="), (r"!=", "=="), (r"&&", "||"), (r"\|\|", "&&"),
    (r"(?<= )\+(?= )", "-"), (r"(?<= )-(?= )", "+"), (r"(?<= )\*(?= )", "/"),
    (r"(?<= )%(?= )", "*"), (r"\+\+", "--"), (r"\+=", "-="), (r"-=", "+="),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"), (r"(?<=[ (])!(?=[a-z])", ""),
    (r"\b\d+(?='?\d*\b)(?!['.])", "+1"), (r"\bcontinue;", "break;"),
]


def mutants(source):
    """Every change of one place: (line, column, old, new)."""
    found = []
    for number, line in enumerate(source.splitlines()):
        code = line.split("//")[0]
        if re.match(r"\s*(#|static_assert|template|using|/\*|\*)", code) or "operator" in code:
            continue
        code = re.sub(r'"(\\.|[^"\\])*"', lambda text: "\0" * len(text[0]), code)
        for pattern, new in SWAPS:
            for match in re.finditer(pattern, code):
                old = match[0]
                if new == "+1":
                    value = str(int(old) + 1)
                    if code[max(0, match.start() - 1)] in "'x." or "<" in code[:match.start()][-12:]:
                        continue
                else:
                    value = new
                found.append((number, match.start(), old, value))
    return found


def command_of(source):
    commands = json.loads((BUILD / "compile_commands.json").read_text())
    for entry in commands:
        if entry["file"] == str(source):
            return shlex.split(entry["command"])
    raise KeyError(source)


def link_command():
    text = subprocess.run(["ninja", "-C", BUILD, "-t", "commands", "rules_tests"], text=True,
                          capture_output=True, check=True).stdout
    line = [line for line in text.splitlines() if " -o tests/rules_tests " in line][-1]
    line = line.split("&&")[1].strip() if "&&" in line else line
    return shlex.split(line)


def passes(program, tests, folder):
    try:
        return subprocess.run([program, "--gtest_fail_fast", "--gtest_brief=1",
                               f"--gtest_filter={tests}"], cwd=folder, capture_output=True,
                              stdin=subprocess.DEVNULL, timeout=120).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def judge(path, mutant, link):
    number, column, old, new = mutant
    lines = path.read_text().splitlines(keepends=True)
    line = lines[number]
    lines[number] = line[:column] + new + line[column + len(old):]
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder) / path.name
        copy.write_text("".join(lines))
        compile_line = command_of(path)
        compile_line[compile_line.index("-o") + 1] = folder + "/mutant.o"
        compile_line[compile_line.index(str(path))] = str(copy)
        compile_line += [f"-I{path.parent}", "-w"]
        if subprocess.run(compile_line, cwd=BUILD, capture_output=True).returncode != 0:
            return "invalid"
        out = list(link)
        out[out.index("-o") + 1] = folder + "/program"
        library = next(i for i, word in enumerate(out) if word.endswith("libkarvenis_rules.a"))
        out.insert(library, folder + "/mutant.o")
        if subprocess.run(out, cwd=BUILD, capture_output=True).returncode != 0:
            return "invalid"
        slow = "*Failing*:*Hostile*:Damaged*:*LongList*:Model*:RandomKills*"
        if not passes(folder + "/program", "-" + slow, folder):
            return "killed"
        return "survived" if passes(folder + "/program", "*FailingDoor*:Model*", folder) else "killed"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--sample", type=int, default=150)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--only", default="src")
    options = parser.parse_args()
    sources = [p for p in sorted((ROOT / options.only).rglob("*.cpp"))
               if "platform/qt" not in str(p) and not p.name.startswith("frm") and p.name != "main.cpp"]
    every = [(path, m) for path in sources for m in mutants(path.read_text())]
    chosen = random.Random(options.seed).sample(every, min(options.sample, len(every)))
    link = link_command()
    counts = {"killed": 0, "survived": 0, "invalid": 0}
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        verdicts = pool.map(lambda one: judge(*one, link), chosen)
        for (path, (number, column, old, new)), verdict in zip(chosen, verdicts):
            counts[verdict] += 1
            if verdict == "survived":
                print(f"{path.relative_to(ROOT)}:{number + 1}:{column + 1}: {old} -> {new} unnoticed",
                      flush=True)
    valid = counts["killed"] + counts["survived"]
    print(f"{len(every)} places, {valid} changes tried, {counts['killed']} noticed "
          f"({100 * counts['killed'] / max(valid, 1):.1f} %), {counts['invalid']} not valid")
    return 0 if counts["killed"] >= 0.95 * valid else 1


if __name__ == "__main__":
    sys.exit(main())
