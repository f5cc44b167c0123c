#!/usr/bin/env python3
"""Times the first painted main window against an empty one, in turn, as whole processes.

usage: bench/startup.py BUILD_FOLDER [PAIRS]   (needs a display; `xvfb-run -a` gives one)

Prints the medians of wall time and of the largest resident memory, their ratios, and how much of one
core the program takes while it idles with its clock and banner running.
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time


def run(program):
    """Wall seconds and largest resident kilobytes of one whole process."""
    start = time.perf_counter()
    child = subprocess.Popen([program], stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(child.pid, 0)
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        sys.exit(f"{program}: status {child.returncode}")
    return time.perf_counter() - start, usage.ru_maxrss


def idle_share(program, seconds=10):
    """The share of one core that the idle program takes."""
    with tempfile.TemporaryDirectory() as folder:
        child = subprocess.Popen([program], cwd=folder, stderr=subprocess.DEVNULL)
        time.sleep(3)
        before = cpu_seconds(child.pid)
        time.sleep(seconds)
        after = cpu_seconds(child.pid)
        child.kill()
        child.wait()
    return (after - before) / seconds


def cpu_seconds(pid):
    with open(f"/proc/{pid}/stat", encoding="ascii") as stat:
        fields = stat.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def main():
    build = os.path.abspath(sys.argv[1])
    pairs = int(sys.argv[2]) if len(sys.argv) > 2 else 20
    programs = {kind: os.path.join(build, "bench", kind) for kind in ("empty_window", "first_window")}
    times = {kind: [] for kind in programs}
    for program in programs.values():
        run(program)
    for _ in range(pairs):
        for kind, program in programs.items():
            times[kind].append(run(program))
    for name, part, unit, scale in (("wall", 0, "ms", 1000), ("resident", 1, "MiB", 1 / 1024)):
        medians = {k: statistics.median(r[part] for r in rs) * scale for k, rs in times.items()}
        ratio = statistics.median(
            k[part] / e[part] for k, e in zip(times["first_window"], times["empty_window"]))
        print(f"{name}: empty {medians['empty_window']:.1f} {unit}, main window "
              f"{medians['first_window']:.1f} {unit}, ratio {ratio:.3f} (median of {pairs} pairs)")
    print(f"idle: {100 * idle_share(os.path.join(build, 'karvenis')):.2f} % of one core")


if __name__ == "__main__":
    main()
