#!/usr/bin/env python3
"""Lets faults befall the file calls of every command that writes: in process by the tens of thousands, and a seeded sample
with strace at the system calls of the program's own code.

faults.py BUILD_FOLDER [--pairs N] [--strace N] [--wide] [--seed S]
"""

import argparse
import concurrent.futures
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
from dataclasses import dataclass

ERRORS = ("EIO", "ENOSPC", "EDQUOT", "EINTR", "EACCES", "EROFS", "ENOMEM")
MORE_ERRORS = ("EMFILE", "ENFILE", "EPERM", "EBUSY", "EFBIG", "ELOOP", "ESTALE", "ETIMEDOUT", "EAGAIN", "ENXIO")
LENGTHS = (0, 1, 2, 7, 30, 64, 200, 300, 500)  # bytes that a file may grow to: the write is short, the next one ends it
KILLED = (-signal.SIGKILL, -signal.SIGXFSZ)


@dataclass(frozen=True)
class Scene:
    """One command on one state of its file."""

    operation: str
    state: str
    is_done: bool
    file: str
    creates_file: bool
    before: pathlib.Path
    after: pathlib.Path


@dataclass(frozen=True)
class Point:
    scene: Scene
    call: str
    number: int
    what: str

    def __str__(self):
        return f"{self.scene.operation}, {self.scene.state}, {self.call} {self.number}: {self.what}"


def tree(folder):
    """Every file and link below a folder with its text or target, by path."""
    found = {}
    for base, folders, files in os.walk(folder):
        for name in folders + files:
            path = os.path.join(base, name)
            if os.path.islink(path):
                found[os.path.relpath(path, folder)] = ("link", os.readlink(path))
            elif name in files:
                with open(path, "rb") as file:
                    found[os.path.relpath(path, folder)] = ("file", file.read())
    return found


def load_scenes(program, folder):
    """Has the program lay out all scenes."""
    lines = subprocess.run([program, "lay-out", folder], check=True, capture_output=True, text=True).stdout.splitlines()
    scenes = []
    for line in lines:
        operation, state, is_done, file, creates_file = line.split("\t")
        place = pathlib.Path(folder, operation, state)
        scenes.append(Scene(operation, state, is_done == "1", file, creates_file == "1", place / "before", place / "after"))
    return scenes


class Tracer:
    """Runs a command under strace in a folder of its own, of whose paths alone the calls count."""

    def __init__(self, program, folder):
        self.program = program
        self.folder = pathlib.Path(folder)

    def lay_out(self, scene):
        shutil.rmtree(self.folder, ignore_errors=True)
        shutil.copytree(scene.before, self.folder, symlinks=True)

    def paths(self, scene):
        """Those that the command can touch: files, folders, links, and temporary files beside each of them."""
        names = {"", "Antennas", "Kept", *tree(self.folder), scene.file, *tree(scene.after)}
        names |= {os.path.join(os.path.dirname(name), f".{os.path.basename(name)}.tmp") for name in names if name}
        found = [str(self.folder / name) for name in sorted(names)]
        # A link is followed name by name, and a folder is left through "..".
        found += [f"{self.folder}/Antennas/../{name}" for name in sorted(names) if name.startswith("Kept")]
        return [argument for path in found for argument in ("-P", path.rstrip("/"))]

    def run(self, scene, *options, output=os.devnull):
        command = ["strace", "-f", "-qq", "-o", output, *self.paths(scene), *options, *self.command(scene)]
        return subprocess.run(command, stderr=subprocess.DEVNULL, stdout=subprocess.DEVNULL, check=False).returncode

    def command(self, scene):
        return [self.program, "run", scene.operation, str(self.folder)]

    def calls(self, scene):
        """The system calls of an undisturbed run as (name, number among those of this name)."""
        self.lay_out(scene)
        with tempfile.NamedTemporaryFile("r", dir=self.folder.parent) as log:
            code = self.run(scene, output=log.name)
            names = re.findall(r"^\d+\s+(\w+)\(", log.read(), re.MULTILINE)
        if (code == 0) != scene.is_done or tree(self.folder) != tree(scene.after):
            sys.exit(f"{scene.operation}, {scene.state}: goes wrong even in peace ({code})")
        counted = {}
        for name in names:
            counted[name] = counted.get(name, 0) + 1
            yield name, counted[name]

    def next_start(self):
        subprocess.run([self.program, "next-start", str(self.folder)], check=True)

    def inject(self, point):
        """Runs a point. Returns what is wrong, as a list of (kind, text)."""
        self.lay_out(point.scene)
        if point.what.startswith("fsize="):
            code = subprocess.run(["prlimit", f"--{point.what}", *self.command(point.scene)], check=False).returncode
        else:
            code = self.run(point.scene, "-e", f"trace={point.call}", "-e",
                            f"inject={point.call}:{point.what}:when={point.number}")
        return self.judge(point, code)

    def judge(self, point, code):
        scene = point.scene
        before, after, found = tree(scene.before), tree(scene.after), tree(self.folder)
        wrong = []
        left = set(found) - set(before) - set(after)
        if left:
            if code not in KILLED:
                wrong.append(("stray", f"left without a kill: {', '.join(left)}"))
            self.next_start()
            found = tree(self.folder)
            left = set(found) - set(before) - set(after)
            if left:
                wrong.append(("stray", f"left behind the next start: {', '.join(left)}"))
        is_new = found == after
        is_old = found == before or (scene.creates_file and found == {**before, scene.file: ("file", b"")})
        is_last_sync = point.call == "fsync" and is_new  # the folder's, which cannot be taken back
        if not is_new and not is_old:
            wrong.append(("torn", "neither the old files nor the new ones"))
        if code == 0 and not (is_new and scene.is_done):
            wrong.append(("false success", "success without the new file"))
        if code == 1 and is_new and not is_old and not is_last_sync:
            wrong.append(("false failure", "failure with the new file"))
        if code not in (0, 1, *KILLED):
            wrong.append(("torn", f"ended with {code}"))
        return wrong


def all_points(scenes, calls, is_wide):
    for scene in scenes:
        longest = max(len(text) for _, text in tree(scene.after).values())
        for call, number in calls[scene]:
            whats = [f"error={error}" for error in ERRORS + (MORE_ERRORS if is_wide else ())] + ["signal=SIGKILL"]
            if call == "write":
                whats += ["retval=0"] + [f"fsize={length}" for length in LENGTHS if length < longest]
            yield from (Point(scene, call, number, what) for what in whats)


def sweep(program, base, arguments):
    """Runs a sample of all points, two at a time. Returns the number of points and of faults found by kind."""
    scenes = load_scenes(program, os.path.join(base, "scenes"))
    tracers = [Tracer(program, os.path.join(base, f"program{number}")) for number in range(2)]
    calls = {scene: list(tracers[0].calls(scene)) for scene in scenes}
    points = list(all_points(scenes, calls, arguments.wide))
    random.Random(arguments.seed).shuffle(points)
    points = points[: arguments.strace]
    found = {}

    def work(number):
        for point in points[number :: len(tracers)]:
            for kind, text in tracers[number].inject(point):
                found.setdefault(kind, []).append(point)
                print(f"{kind}: {point}: {text}", flush=True)

    with concurrent.futures.ThreadPoolExecutor(len(tracers)) as pool:
        list(pool.map(work, range(len(tracers))))
    return len(points), {kind: len(cases) for kind, cases in found.items()}


def numbers(line):
    """The figures of the program in process: {"torn files": 0, ...}, by their words."""
    return {words: int(number) for number, words in re.findall(r"(\d+) ([^,]+)", line)}


def main():
    parser = argparse.ArgumentParser(description="Lets faults befall every file call of the commands that write.")
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--pairs", type=int, default=1000, help="points with two faults")
    parser.add_argument("--strace", type=int, default=100, help="points by strace")
    parser.add_argument("--wide", action="store_true", help="further errors")
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    programs = arguments.build.resolve() / "tests" / "reliability" / "faults"
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(prefix="quillon-faults-", dir=memory) as base:
        options = ["--pairs", str(arguments.pairs), "--seed", str(arguments.seed)] + ["--wide"] * arguments.wide
        inside = subprocess.Popen([programs / "quillon_reliability_faults", *options], stdout=subprocess.PIPE, text=True,
                                  env={**os.environ, "TMPDIR": base})
        traced, wrong = sweep(str(programs / "quillon_reliability_operation"), base, arguments)
        *findings, figures = inside.communicate()[0].splitlines() or [""]
    print("\n".join(findings))
    counts = numbers(figures)

    def total(words, kind):
        return counts.get(words, -1) + wrong.get(kind, 0)

    print(f"{counts.get('points', 0) + traced:,} points ({traced:,} by strace), {counts.get('with two faults', 0):,} with two "
          f"faults, {total('torn files', 'torn')} torn files, {total('false successes', 'false success')} false successes, "
          f"{total('false failures', 'false failure')} false failures, "
          f"{total('stray files after the next start', 'stray')} stray files after the next start, "
          f"seed {arguments.seed}")
    return 1 if inside.returncode != 0 or wrong else 0


if __name__ == "__main__":
    sys.exit(main())
