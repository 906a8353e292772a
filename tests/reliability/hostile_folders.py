#!/usr/bin/env python3
"""The program in folders that are out for trouble: hostile_folders.py PROGRAM CHOICES [--only TEXT] [--jobs N]

In each of them the program starts, answers keys and ends; every maker is chosen once. Every folder is compared with the usual
one in the same run, so that a busy machine slows both: how much longer the start takes than there (process start to splash,
and click on the splash to the first answer to a key; not the splash's own waiting), and how much more memory was in use at
most. As an administrator's rights would pass over those of files, everything runs as somebody else where that is possible.
"""

import argparse
import json
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

from hostile_folder_list import FOLDERS

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[1]
NOBODY = 65534

MOST_SECONDS = 2.0
MOST_MEGABYTES = 100.0
# Processor time of one choice, in a build that is not optimized.
MOST_CHOOSING = 5.0
# A start that took too long is measured again: what the program needs is the least of its times.
TRIES = 3


def lay_out_usual(work, program, choices):
    """The folder that all others are copies of, and what is run, where everybody may read it."""
    subprocess.run([ROOT / "scripts" / "lay-out-program-folder.sh", ROOT / "data", work / "usual"], check=True)
    tools = work / "tools"
    tools.mkdir()
    for file in (ROOT / "scripts" / "on-virtual-display.sh", ROOT / "scripts" / "window_titles.py",
                 HERE / "hostile_folder_run.py", HERE / "hostile_folder_list.py", program, choices):
        shutil.copy2(file, tools)
    return tools


def lay_out(work, tools, number, among="hostile"):
    """Lays one of the folders out. Returns its path."""
    folder = work / "folders" / among / str(number) / "program"
    shutil.copytree(work / "usual", folder)
    os.link(tools / "Quillon", folder / "Quillon")
    if os.geteuid() == 0:
        subprocess.run(["chown", "-R", f"{NOBODY}:{NOBODY}", folder.parent], check=True)
    FOLDERS[number][1](folder)
    if os.geteuid() == 0:
        subprocess.run(["chown", "-hR", f"{NOBODY}:{NOBODY}", folder.parent], check=True)
    return folder


def start_worker(work, tools, job, folders):
    """Starts the runs in some of the folders on a display of their own. Returns the process and where the results go."""
    home = work / f"home{job}"
    home.mkdir(exist_ok=True)
    results = home / "results"
    results.unlink(missing_ok=True)
    command = [tools / "on-virtual-display.sh", "/usr/bin/python3", "-B", tools / "hostile_folder_run.py", results,
               tools / "quillon_reliability_hostile_choices", *folders]
    if os.geteuid() == 0:
        os.chown(home, NOBODY, NOBODY)
        command = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", "--no-new-privs", *command]
    environment = {**os.environ, "HOME": str(home), "TMPDIR": str(home), "LC_ALL": "C.UTF-8", "XDG_CACHE_HOME": str(home)}
    return subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL), results


def run_all(work, tools, folders):
    """Runs the program in the folders, given for each display by itself. Returns the results by the folders' names, each a list."""
    workers = [start_worker(work, tools, job, folders[job]) for job in range(len(folders))]
    found = {}
    for process, results in workers:
        if process.wait() != 0:
            print(f"the runs on one display ended with {process.returncode}")
        for line in results.read_text().splitlines() if results.exists() else []:
            result = json.loads(line)
            found.setdefault(result["name"], []).append(result)
    return found


class Judgement:
    """Compares what was found in the folders with the usual one."""

    def __init__(self, usual):
        self._start = statistics.median(result["start"] for result in usual)
        self._answer = max(result["answer"] for result in usual)
        self._memory = statistics.median(result["memory"] for result in usual)
        self._choosing = usual[0]["choosing"]["memory"]
        print(f"the usual folder: {self._start:.2f} s to start, {self._memory:.0f} MB")

    def later(self, result):
        """Seconds that the start, or the slowest answer, took longer than usual."""
        return max(result["start"] - self._start, result["answer"] - self._answer)

    def larger(self, result):
        """Megabytes that were in use more than usual."""
        return max(result["memory"] - self._memory, result["choosing"]["memory"] - self._choosing)

    def is_well(self, result):
        return ("trouble" not in result and self.later(result) <= MOST_SECONDS and self.larger(result) <= MOST_MEGABYTES
                and result["choosing"]["slowest"] <= MOST_CHOOSING)

    def describe(self, result):
        if "trouble" in result:
            return f"{result['name']}: {result['trouble']}"
        choosing = result["choosing"]
        return (f"{result['name']}: start {result['start'] - self._start:+.2f} s, {result['memory'] - self._memory:+.0f} MB; "
                f"{choosing['choices']} choices, slowest {choosing['slowest']:.2f} s, "
                f"{choosing['memory'] - self._choosing:+.0f} MB")


def report(judgement, found, expected):
    """Prints the figures. Returns whether they are reached."""
    best = [next(filter(judgement.is_well, results), results[0]) for results in found.values()]
    for result in best:
        print(("" if judgement.is_well(result) else "FOUND ") + judgement.describe(result))
    whole = [result for result in best if "trouble" not in result]
    findings = sum(not judgement.is_well(result) for result in best) + expected - len(best)
    devices = "" if os.geteuid() == 0 else ", without devices (only an administrator can make them)"
    print(f"{len(best)} folders{devices}, slowest start {max(map(judgement.later, whole)):.1f} s more than usual, most "
          f"{max(map(judgement.larger, whole)):.0f} MB more than usual, slowest choice "
          f"{max(result['choosing']['slowest'] for result in whole):.1f} s, {findings} findings")
    return findings == 0


def with_usual(usual, folders):
    """The folders with the usual one in between, so that it sees the same machine."""
    return [one for place, folder in enumerate(folders) for one in ([usual] if place % 4 == 0 else []) + [folder]]


def check(work, arguments):
    tools = lay_out_usual(work, arguments.program, arguments.choices)
    numbers = [number for number, (name, *_) in enumerate(FOLDERS) if number > 0 and arguments.only in name]
    folders = {FOLDERS[number][0]: lay_out(work, tools, number) for number in numbers}
    hostile = list(folders.values())
    # No two copies of the program run in one folder, so that each display has a usual one of its own.
    jobs = range(min(arguments.jobs, len(hostile)))
    found = run_all(work, tools, [with_usual(lay_out(work, tools, 0, f"usual{job}"), hostile[job::len(jobs)]) for job in jobs])
    usual_runs = found.pop(FOLDERS[0][0], [])
    if not usual_runs or any("trouble" in result for result in usual_runs):
        sys.exit(f"The program does not even run in the usual folder: {usual_runs}")
    judgement = Judgement(usual_runs)
    for _ in range(TRIES - 1):
        again = [name for name, results in found.items() if not any(map(judgement.is_well, results))]
        if again:
            for name, results in run_all(work, tools, [[folders[name] for name in again]]).items():
                found[name] += results
    return report(judgement, found, len(hostile))


def main():
    parser = argparse.ArgumentParser(description="Runs the program in folders that are out for trouble.")
    parser.add_argument("program", type=Path)
    parser.add_argument("choices", type=Path)
    parser.add_argument("--only", default="", help="only folders with this in their names")
    parser.add_argument("--jobs", type=int, default=2, help="displays at once")
    arguments = parser.parse_args()
    work = Path(tempfile.mkdtemp(prefix="quillon-hostile-"))
    try:
        work.chmod(0o755)
        return 0 if check(work, arguments) else 1
    finally:
        subprocess.run(["chmod", "-R", "u+rwX", work / "folders"], check=False)
        shutil.rmtree(work)


if __name__ == "__main__":
    sys.exit(main())
