#!/usr/bin/env python3
"""Pulls the plug while the program's own code saves: power_cut.py BUILD_FOLDER --count N --seed S

An ext4 file system lies on a disk of our own (power_cut_disk.cpp), which knows what the kernel has had flushed and what is
still in the disk's cache. At random moments of a running loop of saves it hands out an image of what a power cut would
leave. A copy of an ordinary backing file would not do: it takes a while, in which the file goes on changing, and it holds
everything that was ever written, flushed or not.

Each image is mounted as the next start of the machine would do it. The file system has to be clean, each save that had
been reported before the cut has to be there, and each file has to be wholly one state of the sequence of saves; what a
save under way has left beside them has to be gone after the program's start.

Needs root, loop devices and /dev/fuse; without them it fails.
"""

import argparse
import contextlib
import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time
import zlib

MEGABYTES = 12
CUTS_PER_DISK = 50
PATIENCE = 60  # seconds
LONGEST_WAIT = 0.03  # seconds from one cut to the next, a dozen saves
EMPTY = zlib.crc32(b"")

# A file system that looks after careless programs, by writing a file's bytes before it is renamed, and one that does not.
MOUNT_OPTIONS = ("loop", "loop,noauto_da_alloc")


def run(*command):
    result = subprocess.run(command, capture_output=True, text=True, check=False)
    if result.returncode != 0:
        sys.exit(f"This check cannot run here: {' '.join(map(str, command))}: {result.stderr.strip()}")


@contextlib.contextmanager
def mounted(image, folder, options):
    run("mount", "-o", options, image, folder)
    try:
        yield folder
    finally:
        run("umount", folder)


@contextlib.contextmanager
def process(*command, **pipes):
    child = subprocess.Popen(command, **pipes)
    try:
        yield child
    finally:
        child.send_signal(signal.SIGCONT)
        child.terminate()
        child.wait(PATIENCE)


class Disk:
    """The disk process: `file` is the disk, cut() pulls the plug."""

    def __init__(self, child, folder):
        self._child = child
        self.file = folder / "disk"
        deadline = time.monotonic() + PATIENCE
        while not self.file.exists():
            if child.poll() is not None or time.monotonic() > deadline:
                sys.exit("This check cannot run here: the disk does not come up; is there a /dev/fuse?")
            time.sleep(0.01)

    def cut(self, image, seed):
        """Returns the number of writes that were at risk."""
        self._child.stdin.write(f"{image} {seed}\n")
        self._child.stdin.flush()
        answer = self._child.stdout.readline().split()
        if answer[:1] != ["cut"]:
            sys.exit(f"The disk gave no image: {' '.join(answer)}")
        return int(answer[1])


class Saves:
    """The saves that a running loop has reported: for each file its states, oldest first."""

    def __init__(self, child):
        self._child = child
        self._rest = b""
        self.states = {}
        self.count = 0
        self.failed = 0
        os.set_blocking(child.stdout.fileno(), False)

    def take_reported(self):
        """Takes what has been reported so far, without waiting."""
        while chunk := self._child.stdout.read(65536):
            *lines, self._rest = (self._rest + chunk).split(b"\n")
            for line in lines:
                file, crc, what = line.decode().split(" ", 2)
                self.states.setdefault(file, []).append(int(crc))
                self.count += 1
                self.failed += what == "FAILED"

    def take_one_more(self):
        """Waits until a save has been reported: the one that was under way is then among the states."""
        before = self.count
        deadline = time.monotonic() + PATIENCE
        while self.count == before:
            self.take_reported()
            if self._child.poll() is not None or time.monotonic() > deadline:
                sys.exit("The loop of saves has ended: a save failed without any fault.")
            time.sleep(0.0005)

    def places(self):
        """How many states of each file have been reported."""
        return {file: len(states) for file, states in self.states.items()}


def judge(file, found, states, reported):
    """What is wrong with a file after the cut, or nothing.

    found: checksum, None when there is no such file; reported: how many of its states had been reported before the cut
    """
    allowed = states[reported - 1:] if reported else [None, EMPTY, *states]
    if found in allowed:
        return None
    return f"lost save in {file}" if found is None or found in [EMPTY, *states] else f"torn file {file}"


def read_files(folder):
    """Checksums of all files but the file system's own."""
    files = (path for path in folder.rglob("*") if path.is_file() and "lost+found" not in path.parts)
    return {str(path.relative_to(folder)): zlib.crc32(path.read_bytes()) for path in files}


def check_image(tools, image, folder, saves, reported):
    """Starts again from an image. Returns what is wrong with it."""
    with mounted(image, folder, "loop"):
        run(tools / "quillon_reliability_save", folder, "start")
        found = read_files(folder)
    fsck = subprocess.run(["e2fsck", "-fn", image], capture_output=True, text=True, check=False)
    findings = [f"e2fsck: {fsck.stdout.strip()}"] if fsck.returncode != 0 else []
    for file, states in saves.states.items():
        findings.append(judge(file, found.get(file), states, reported.get(file, 0)))
    for file in found.keys() - saves.states.keys() - {"QuillonSystems.dat"}:
        findings.append(f"stray file {file}")
    return [finding for finding in findings if finding]


class Figures:
    def __init__(self):
        self.cuts = self.saves = self.at_risk = 0
        self.findings = []

    def line(self):
        def count(word):
            return sum(finding.startswith(word) for finding in self.findings)

        return (f"{self.cuts:,} power cuts in {self.saves:,} saves, {self.at_risk:,} with writes in the disk's cache, "
                f"{count('lost')} lost saves, {count('torn')} torn files, {count('e2fsck')} damaged file systems, "
                f"{count('stray')} stray files after the next start")


def cut_once(disk, saves, loop, image, chance):
    """Lets the loop save for a moment and pulls the plug. Returns what was reported before, and the writes at risk."""
    loop.send_signal(signal.SIGCONT)
    time.sleep(chance.uniform(0, LONGEST_WAIT))
    saves.take_reported()
    reported = saves.places()
    at_risk = disk.cut(image, chance.getrandbits(63))
    saves.take_one_more()
    loop.send_signal(signal.SIGSTOP)
    return reported, at_risk


def run_disk(tools, work, seed, number, count, figures):
    """Makes a fresh disk and pulls its plug a number of times."""
    chance = random.Random(f"{seed} {number}")
    image, served, live, again = (work / name for name in ("empty.img", "served", "live", "again"))
    run("mke2fs", "-q", "-F", "-t", "ext4", "-b", "4096", "-E", "lazy_itable_init=0,lazy_journal_init=0", image,
        f"{MEGABYTES}M")
    with process(tools / "quillon_reliability_disk", served, image, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                 text=True) as child:
        disk = Disk(child, served)
        with mounted(disk.file, live, MOUNT_OPTIONS[number % len(MOUNT_OPTIONS)]):
            (live / "Antennas").mkdir()
            (live / "QuillonSystems.dat").touch()
            run("sync", "-f", live)
            with process(tools / "quillon_reliability_save_loop", live, str(chance.getrandbits(63)),
                         stdout=subprocess.PIPE) as loop:
                saves = Saves(loop)
                for cut in range(count):
                    # Another name each time: the loop device of the picture before may still be going, and what is known by
                    # a name that it holds would be read through its cache.
                    picture = work / f"cut{cut}.img"
                    reported, at_risk = cut_once(disk, saves, loop, picture, chance)
                    figures.cuts += 1
                    figures.at_risk += at_risk > 0
                    for finding in check_image(tools, picture, again, saves, reported):
                        figures.findings.append(finding)
                        print(f"seed {seed}, disk {number}, cut {cut}: {finding}", flush=True)
                    picture.unlink()
                figures.saves += saves.count


def run_disks(arguments, work, figures):
    for name in ("served", "live", "again"):
        (work / name).mkdir()
    number = 0
    while figures.cuts < arguments.count:
        cuts = min(CUTS_PER_DISK, arguments.count - figures.cuts)
        run_disk(arguments.build / "tests" / "reliability", work, arguments.seed, number, cuts, figures)
        number += 1


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--count", type=int, required=True)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    if os.geteuid() != 0:
        sys.exit("This check cannot run here: only root can mount a file system.")
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # nothing stays mounted
    figures = Figures()
    memory = "/dev/shm" if os.path.isdir("/dev/shm") else None
    try:
        with tempfile.TemporaryDirectory(prefix="quillon-power-", dir=memory) as work:
            run_disks(arguments, pathlib.Path(work), figures)
    finally:
        print(f"seed {arguments.seed}: {figures.line()}", flush=True)
    return 1 if figures.findings or figures.at_risk == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
