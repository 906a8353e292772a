#!/usr/bin/env python3
"""Kills the program while it is worked, and starts it again: kill_restart.py BUILD_FOLDER --count N --seed S

Each round starts the program on the folder that the round before has left, loads a pair, saves pairs and edits antennas by
keys, and ends with a SIGKILL: at any moment of the start, or up to some milliseconds after a key, which is about as long as
a save takes. The program has to start as if nothing had been, and what the user has seen to be saved has to be there: a
save counts as seen once its dialog has closed.
"""

import argparse
import contextlib
import multiprocessing
import pathlib
import queue
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from kill_restart_display import Display, display
from kill_restart_files import MODEL, Expected
from kill_restart_session import ROOT, NotSeen, Session, settings_for
from window_titles import EDITOR, MAIN, SAVE, UPDATE

ROUNDS_PER_FOLDER = 25
SAVES_PER_ROUND = 5
LONGEST_SAVE = 0.012  # seconds
LONGEST_START = 0.4

KINDS = ("no start", "stale lock", "lost save", "torn file", "changed file", "stray file", "no answer")


class Killed(Exception):
    """The round has come to its kill."""


class KilledSession(Session):
    """A session that ends at one of its saves."""

    def __init__(self, screen, program, settings, kill_at, chance):
        """kill_at: number of the save, from 1"""
        super().__init__(screen, program, settings)
        self._chance = chance
        self._saves_left = kill_at

    def save_key(self, *keys):
        """Presses keys that make the program save; the kill may come now."""
        self.press(*keys)
        self._saves_left -= 1
        if self._saves_left == 0:
            time.sleep(self._chance.uniform(0, LONGEST_SAVE))
            raise Killed

    def save_pair(self, name, power, expected):
        exists = name == expected.last_pair()
        self.set_power(power)
        self.press("Control_L s")
        self.wait_for(SAVE)
        self.type(name)
        self.press("Tab")
        expected.begin_pair(name, power)
        if exists:
            self.press("Return")
            self.wait_for(UPDATE)
            self.save_key("Left", "Return")
            self.wait_for(SAVE)
        else:
            self.save_key("Return")
        self.press("Return")
        self.wait_for(MAIN)
        expected.end_pair()

    def edit_antennas(self, maker, expected):
        """Adds a maker, a model, and a band of the model."""
        self.press("Control_L m")
        self.wait_for(EDITOR)
        expected.begin_maker(maker)
        self.press("Tab", "Return")
        self.type(maker)
        self.save_key("Return")
        self.type(MODEL)
        self.save_key("Return")
        self.press("Return", "Tab", "Tab", "Tab", "Tab", "space", "Shift_L Tab")
        self.save_key("Return")
        self.press("Escape")
        self.wait_for(MAIN)
        expected.end_maker(maker)


def work(session, expected, number):
    """What each round does until its kill."""
    session.load()
    session.save_pair(f"pair{number}", str(200 + number), expected)
    session.save_pair(f"pair{number}", str(300 + number), expected)
    session.edit_antennas(f"maker{number}", expected)


def run_round(screen, program, settings, expected, number, chance):
    """One start and one kill. Returns what was found wrong."""
    kill_at = chance.randrange(SAVES_PER_ROUND + 1)
    session = KilledSession(screen, program, settings, kill_at, chance)
    findings = []
    try:
        if kill_at == 0:
            with contextlib.suppress(subprocess.TimeoutExpired):
                session.process.wait(chance.uniform(0, LONGEST_START))
        else:
            session.start()
            findings += expected.check_strays()
            work(session, expected, number)
    except Killed:
        pass
    except NotSeen as missing:
        findings.append(str(missing))
    session.kill()
    return findings + expected.check_saves()


def fresh_folder(program, folder):
    """Lays out a program folder as it is installed. Returns what is expected of it."""
    shutil.rmtree(folder, ignore_errors=True)
    subprocess.run([ROOT / "scripts" / "lay-out-program-folder.sh", ROOT / "data", folder], check=True)
    shutil.copy2(program, folder)
    return Expected(folder)


def run_worker(program, seed, numbers, results):
    """Runs some rounds on a display of its own, which ends with it."""
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    with display() as name, tempfile.TemporaryDirectory(prefix="quillon-kill-") as home:
        folder = pathlib.Path(home) / "program folder"
        screen = Display(name)
        expected = None
        for place, number in enumerate(numbers):
            if place % ROUNDS_PER_FOLDER == 0 or expected is None:
                expected = fresh_folder(program, folder)
            findings = run_round(screen, folder / program.name, settings_for(name, home), expected, number % 1000,
                                 random.Random(f"{seed} {number}"))
            if findings:
                expected = None
            results.put((number, findings))


def gather(workers, results, count):
    """Yields what each round has found, as it comes."""
    for _ in range(count):
        while True:
            try:
                yield results.get(timeout=1)
                break
            except queue.Empty:
                if any(worker.exitcode for worker in workers):
                    sys.exit("A worker has ended before its time.")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--count", type=int, required=True)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--workers", type=int, default=2)
    arguments = parser.parse_args()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    program = arguments.build / "program" / "Quillon"
    results = multiprocessing.Queue()
    shares = [range(first, arguments.count, arguments.workers) for first in range(arguments.workers)]
    workers = [multiprocessing.Process(target=run_worker, args=(program, arguments.seed, share, results), daemon=True)
               for share in shares]
    for worker in workers:
        worker.start()
    counts = dict.fromkeys(KINDS, 0)
    kills = 0
    try:
        for number, findings in gather(workers, results, arguments.count):
            kills += 1
            for finding in findings:
                print(f"seed {arguments.seed}, round {number}: {finding}", flush=True)
                counts[next(kind for kind in KINDS if finding.startswith(kind))] += 1
    finally:
        print(f"seed {arguments.seed}: {kills:,} kills and starts, " +
              ", ".join(f"{count} x {kind}" for kind, count in counts.items()), flush=True)
    for worker in workers:
        worker.join()
    return 1 if any(counts.values()) else 0


if __name__ == "__main__":
    sys.exit(main())
