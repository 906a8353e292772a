#!/usr/bin/env python3
"""Changes operators and constants of engine and store, one at a time, and tells whether the tests notice.

mutation.py BUILD [--count N] [--seed S] [--file PART]: a seeded choice of N changes, or all of them; survivors that no
test can notice stand with the reason in survivors.toml.
"""

import argparse
import concurrent.futures
import os
import pathlib
import random
import sys
import tempfile
import tomllib

import mutants
import test_programs

ROOT = pathlib.Path(__file__).resolve().parents[3]
SURVIVORS = pathlib.Path(__file__).with_name("survivors.toml")
LEAST_KILLED = 90  # percent


def all_mutants(part):
    """The mutants of all sources whose path contains a text."""
    for library in test_programs.LIBRARIES:
        for source in sorted((ROOT / library).glob("*.cpp")):
            file = str(source.relative_to(ROOT))
            if part in file:
                yield from mutants.mutants_of(file, source.read_text())


def known_survivors():
    """The reason by the change; a change is known by its file, its line's text, and what becomes what."""
    survivors = tomllib.loads(SURVIVORS.read_text()).get("survivor", [])
    return {(entry["file"], entry["line"], change): entry["reason"] for entry in survivors for change in entry["changes"]}


def identity(mutant):
    return mutant.file, mutant.line_text, f"{mutant.original} -> {mutant.changed}"


def try_mutant(programs, mutant):
    """Returns "refused" by the compiler, "killed" by a test, or "survived"."""
    source = ROOT / mutant.file
    text = source.read_text()
    changed = text[:mutant.begin] + mutant.changed + text[mutant.end:]
    library = mutant.file.split("/", maxsplit=1)[0]
    with tempfile.TemporaryDirectory(dir=programs.folder) as name:
        folder = pathlib.Path(name)
        instead = programs.compile_changed(source, changed, folder)
        if not instead:
            return "refused"
        programs.link_library(library, folder, instead)
        return "killed" if programs.notice(library, folder) else "survived"


def work_through(programs, chosen):
    """Tries all mutants, as many at once as there are processors. Returns the mutants by their end."""
    ends = {"refused": [], "killed": [], "survived": []}
    known = known_survivors()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as workers:
        for mutant, end in zip(chosen, workers.map(lambda mutant: try_mutant(programs, mutant), chosen)):
            ends[end].append(mutant)
            if end == "survived":
                print(f"survived: {mutant}\n          {known.get(identity(mutant), 'WITHOUT A REASON')}", flush=True)
    return ends


def verdict(ends):
    """Prints the figures. Returns whether they are reached."""
    killed, survived = len(ends["killed"]), len(ends["survived"])
    known = known_survivors()
    unknown = sum(identity(mutant) not in known for mutant in ends["survived"])
    share = 100 * killed / max(1, killed + survived)
    print(f"{killed + survived} changes, {share:.1f} % noticed, {survived} survivors of which {unknown} without a reason")
    return share >= LEAST_KILLED and unknown == 0


def main():
    parser = argparse.ArgumentParser(description="Changes engine and store, and tells whether the tests notice.")
    parser.add_argument("build", help="folder of a built tree with tests")
    parser.add_argument("--count", type=int, help="how many changes; all when not given")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--file", default="", help="only sources whose path contains this")
    arguments = parser.parse_args()
    chosen = list(all_mutants(arguments.file))
    if arguments.count and arguments.count < len(chosen):
        chosen = random.Random(arguments.seed).sample(chosen, arguments.count)
    # Not below /tmp, which the tests see empty.
    with tempfile.TemporaryDirectory(dir=arguments.build) as folder:
        programs = test_programs.TestPrograms(arguments.build, pathlib.Path(folder).resolve())
        for library in test_programs.LIBRARIES:
            if failing := programs.notice(library, programs.folder):
                sys.exit(f"The tests of {failing} fail as they are.")
        return 0 if verdict(work_through(programs, chosen)) else 1


if __name__ == "__main__":
    sys.exit(main())
