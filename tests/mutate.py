#!/usr/bin/python3
"""Changes the program in one place at a time and tells which changes no test notices.

    tests/mutate.py [--sample 200] [--seed 1] [--jobs 2] [--only windows] [--desktop]

Changed are operators, constants, values of enumerations, conditions and guards; statements are
dropped, and arguments of one type swapped. All changes stand in one build (mutants.py), so that a
change costs a run of tests and no compilation. First every suite runs unchanged and tells which
changes it comes by. A change is noticed if a suite that comes by it fails, crashes or takes far too
long: the quick suites first, then the slow ones, then, if asked for, the desktop tests. Changes in
excused_mutants.txt, each with the reason why nobody could notice it, are left out. Fails below
95 %.
"""
import argparse
import collections
import concurrent.futures
import contextlib
import hashlib
import json
import os
import pathlib
import pickle
import random
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import time

import mutants

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "build/mutate"
TREE, BUILD = FOLDER / "tree", FOLDER / "build"
MEMORY = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
MOST = 1 << 16  # as in Mutants.h
PROGRAMS = ("rules_tests", "windows_tests")
DESKTOP = ("main_window", "heard_keys", "activation", "bag_windows", "combination_list",
           "random_list", "printing", "sound", "locales", "reading_aids")


def configure():
    """Copies the project, ready to be built; writes only files that differ."""
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, text=True,
                          capture_output=True, check=True).stdout
    names = {name for name in listed.splitlines() if (ROOT / name).is_file()}
    for name in names:
        if not is_changed(name) or not (TREE / name).exists():
            write(TREE / name, (ROOT / name).read_bytes())
            (TREE / name).chmod((ROOT / name).stat().st_mode)
    for path in TREE.rglob("*"):
        if path.is_file() and str(path.relative_to(TREE)) not in names:
            path.unlink()
    flags = f"-O1 -w -include {ROOT}/tests/Mutants.h"
    subprocess.run(["cmake", "--preset", "debug", "-S", TREE, "-B", BUILD,
                    f"-DCMAKE_CXX_FLAGS_DEBUG={flags}",
                    f"-DCMAKE_CXX_COMPILER_LAUNCHER={shutil.which('ccache') or ''}"],
                   cwd=TREE, check=True, capture_output=True)


def is_changed(name):
    """Whether this is a source file, which gets its changes in build()."""
    return name.startswith("src/") and name.endswith(".cpp")


def is_window(name):
    """Whether this source belongs to the windows or to their doors (as in src/CMakeLists.txt)."""
    path = pathlib.PurePath(name)
    return path.name.startswith("frm") or path.parent.name in ("qt", "widgets", "src")


def write(path, content):
    if not path.exists() or path.read_bytes() != content:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


def found():
    """Every change of every source file; kept as long as no file changes."""
    told = hashlib.sha256()
    for path in sorted([*(ROOT / "src").rglob("*.*"), pathlib.Path(mutants.__file__)]):
        told.update(path.read_bytes())
    kept = FOLDER / f"found-{told.hexdigest()[:16]}"
    if not kept.exists():
        write(kept, pickle.dumps(looked_for()))
    return pickle.loads(kept.read_bytes())


def looked_for():
    commands = json.loads((BUILD / "compile_commands.json").read_text())
    sources = {}
    for entry in commands:
        path = pathlib.Path(entry["file"])
        if path.is_relative_to(TREE / "src"):
            sources[path.relative_to(TREE)] = shlex.split(entry["command"])
    everything = []
    with concurrent.futures.ProcessPoolExecutor() as pool:
        jobs = [pool.submit(find, str(name), command) for name, command in sorted(sources.items())]
        for job in jobs:
            everything += job.result()
    for number, mutant in enumerate(everything, 1):
        mutant.number = number
    return everything


def find(name, command):
    """The changes of one file, read by clang with the other compiler's arguments."""
    arguments, words = [], iter(command)
    for word in words:
        if word in ("-o", "-include"):
            value = next(words)
            if value.endswith("cmake_pch.hxx"):
                header = FOLDER / "headers" / value.replace("/", "_")
                write(header, pathlib.Path(value).read_bytes())
                arguments += ["-include", str(header)]
        elif word.startswith(("-I", "-D", "-std")):
            arguments.append(word.replace(f"{TREE}/src", f"{ROOT}/src"))
        elif word == "-isystem":
            arguments += [word, next(words)]
    return mutants.find(name, ROOT / name, ["-xc++", *arguments])


def build(everything):
    """Builds the tests and the program with all changes; gives those back that compile."""
    while True:
        by_file = collections.defaultdict(list)
        for mutant in everything:
            by_file[mutant.file].append(mutant)
        for path in (ROOT / "src").rglob("*.cpp"):
            name = str(path.relative_to(ROOT))
            write(TREE / name, mutants.written(path.read_bytes(), by_file[name]))
        done = subprocess.run(["cmake", "--build", BUILD, "--target", *PROGRAMS, "karvenis", "--",
                               "-k0"], text=True, capture_output=True)
        if done.returncode == 0:
            return everything
        refused = {(str(pathlib.Path(file).relative_to(TREE)), int(line))
                   for file, line in re.findall(
                       rf"^({TREE}/src/.*?):(\d+):\d+:\s+(?:error|required from here)", done.stdout,
                       re.M)}
        constants = set(re.findall(r"‘[^’]*?(\w+)’", done.stdout))
        kept = [mutant for mutant in everything
                if (mutant.file, mutant.line) not in refused and mutant.constant not in constants
                and not any(mutant.file == file and mutant.line <= line <= mutant.last_line
                            for file, line in refused)]
        if len(kept) == len(everything):
            sys.exit(done.stdout[-4000:])
        print(f"{len(everything) - len(kept)} changes do not compile", flush=True)
        everything = kept


class Suite:
    """A suite of a test program, or a script of desktop tests."""

    def __init__(self, name, program):
        self.name, self.program = name, program
        self.seconds, self.reached = 0.0, b""  # how long it takes, which changes it comes by

    def learn(self):
        """Runs it unchanged. Returns whether it passes; what does not can judge nothing."""
        with tempfile.TemporaryDirectory(dir=MEMORY) as folder:
            reached = pathlib.Path(folder, "reached")
            reached.write_bytes(bytes(MOST))
            reached.chmod(0o666)
            start = time.monotonic()
            passed = passes([self], folder, 600, {"KARVENIS_REACHED": str(reached)})
            self.seconds = time.monotonic() - start
            self.reached = reached.read_bytes()
        return passed


def passes(group, folder, seconds, switches):
    """Whether suites of one program pass within a time, run in one process."""
    program = group[0].program
    if program in PROGRAMS:
        filters = ":".join(f"{suite.name}.*" for suite in group)
        command = [BUILD / "tests" / program, "--gtest_fail_fast", f"--gtest_filter={filters}"]
        environment = switches
    else:
        command = ["/usr/bin/python3", ROOT / "tests/desktop" / program, "--failfast"]
        environment = {"KARVENIS_PROGRAM": str(switched(folder, switches)),
                       "KARVENIS_PICTURES": folder}
    environment = {**os.environ, "TMPDIR": folder, **environment}
    process = subprocess.Popen(command, cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               start_new_session=True, preexec_fn=limit)
    try:
        return process.wait(seconds) == 0
    except subprocess.TimeoutExpired:
        return False
    finally:
        with contextlib.suppress(ProcessLookupError):
            os.killpg(process.pid, signal.SIGKILL)


def switched(folder, switches):
    """A command that starts the program with the switches; a desktop test gives it no variables,
    and may run it as another user."""
    told = " ".join(f"{name}={value}" for name, value in switches.items())
    for name in ("karvenis-bell", "karvenis"):
        command = pathlib.Path(folder, name)
        command.write_text(f"#!/bin/sh\n{told} exec {BUILD}/{name} \"$@\"\n")
        command.chmod(0o755)
    os.chmod(folder, 0o755)
    return command


def limit():
    """A change may write without an end."""
    resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 30, 1 << 30))


def learned(jobs, with_desktop):
    """Every suite that passes, the quickest first."""
    suites = []
    for program in PROGRAMS:
        told = subprocess.run([BUILD / "tests" / program, "--gtest_list_tests"], text=True,
                              capture_output=True, check=True).stdout
        suites += [Suite(name, program) for name in re.findall(r"(?m)^(\S+)\.", told)]
    if with_desktop:
        suites += [Suite(name, f"test_{name}.py") for name in DESKTOP]
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        verdicts = list(pool.map(Suite.learn, suites))
    for suite, passed in zip(suites, verdicts):
        if not passed:
            print(f"{suite.name} fails without a change and is left out", flush=True)
    return sorted((suite for suite, passed in zip(suites, verdicts) if passed),
                  key=lambda suite: suite.seconds)


def judge(mutant, suites):
    """Who notices the change: the quick suites that come by it, the slow ones, the desktop tests.
    Returns nothing if nobody does."""
    asked = [suite for suite in suites if suite.reached[mutant.number]]
    groups = [[suite for suite in asked
               if suite.program == program and (suite.seconds < 1) == quick]
              for quick in (True, False) for program in reversed(PROGRAMS)]
    groups += [[suite] for suite in asked if suite.program not in PROGRAMS]
    for group in filter(None, groups):
        with tempfile.TemporaryDirectory(dir=MEMORY) as folder:
            seconds = 30 + 3 * sum(suite.seconds for suite in group)
            if not passes(group, folder, seconds, {"KARVENIS_MUTANT": str(mutant.number)}):
                return group[0].program
    return None


def excused():
    """The names of changes that nobody could notice."""
    lines = (ROOT / "tests/excused_mutants.txt").read_text().splitlines()
    return {line for line in lines if line and not line.startswith("#")}


def report(asked, verdicts):
    """Tells who was noticed, file by file; returns how many were."""
    counts = collections.defaultdict(lambda: [0, 0])
    for mutant, noticed in zip(asked, verdicts):
        counts[mutant.file][0] += noticed is not None
        counts[mutant.file][1] += 1
        if noticed is None:
            print(f"unnoticed: {mutant.name}  (line {mutant.line})", flush=True)
    for name, (noticed, tried) in sorted(counts.items()):
        print(f"{noticed:4} of {tried:3}  {name}")
    return sum(noticed for noticed, _ in counts.values())


@contextlib.contextmanager
def stage(name):
    """Tells how long a stage took, and how much of a core."""
    def worked():
        used = resource.getrusage(resource.RUSAGE_CHILDREN)
        return used.ru_utime + used.ru_stime
    start, before = time.monotonic(), worked()
    yield
    print(f"{name}: {time.monotonic() - start:.0f} s, {worked() - before:.0f} s of work",
          flush=True)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--sample", type=int, default=200)
    parser.add_argument("--seed", type=int, default=random.randrange(1, 10000))
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--only", choices=("rules", "windows"), help="of which layer")
    parser.add_argument("--desktop", action="store_true", help="ask the desktop tests too")
    options = parser.parse_args()
    with stage("find"):
        configure()
        everything = found()
    for name in sorted(excused() - {mutant.name for mutant in everything}):
        print(f"excused, but no longer there: {name}", flush=True)
    with stage("build"):
        everything = build(everything)
    with stage("learn"):
        suites = learned(options.jobs, options.desktop)
    layer = [mutant for mutant in everything
             if options.only is None or (options.only == "windows") == is_window(mutant.file)]
    chosen = random.Random(options.seed).sample(layer, min(options.sample, len(layer)))
    reasons = excused()
    asked = [mutant for mutant in chosen if mutant.name not in reasons]
    print(f"{len(everything)} changes stand in the build, {len(asked)} are tried; "
          f"--seed {options.seed}", flush=True)
    with stage("judge"), concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        noticed = report(asked, pool.map(lambda mutant: judge(mutant, suites), asked))
    share = 100 * noticed / max(len(asked), 1)
    print(f"{noticed} of {len(asked)} changes noticed ({share:.1f} %), "
          f"{len(chosen) - len(asked)} excused")
    return 0 if noticed >= 0.95 * len(asked) else 1


if __name__ == "__main__":
    sys.exit(main())
