#!/usr/bin/python3
"""Runs the tests of engine and store under valgrind's memcheck, with every leak an error.

tests/reliability/valgrind.py BUILD_FOLDER [--all]

Without --all the tests that work on files of many megabytes or on thousands of files or pairs are left out.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys
import time

SUPPRESSIONS = pathlib.Path(__file__).with_name("valgrind.supp")
VALGRIND = ["valgrind", "--quiet", "--error-exitcode=9", "--leak-check=full", "--show-leak-kinds=all",
            "--errors-for-leak-kinds=definite,possible", f"--suppressions={SUPPRESSIONS}"]

EXECUTABLES = {
    "engine": pathlib.Path("tests/engine/quillon_engine_tests"),
    "store": pathlib.Path("tests/store/quillon_store_tests"),
}

# What takes long here, as patterns of the test framework's filter.
LONG = {
    "engine": [],
    "store": ["DamagedFiles.*", "ProfileVectors.*", "*TooLargeToReadBack", "*LargestFile*", "*HugeText*",
              "*.ProcessKilled*", "*.AnyPair*", "*.TenThousandPairs*"],
}


def run(build, part, everything):
    """Runs one executable. Returns whether it is free of errors, the number of its tests, and what it printed."""
    chosen = "*" if everything or not LONG[part] else "-" + ":".join(LONG[part])
    environment = {**os.environ, "GTEST_FILTER": chosen}
    done = subprocess.run([*VALGRIND, build / EXECUTABLES[part]], env=environment, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="backslashreplace")
    passed = re.search(r"\[  PASSED  \] (\d+) tests?", done.stdout)
    return done.returncode == 0, int(passed.group(1)) if passed else 0, done.stdout


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--all", action="store_true")
    arguments = parser.parse_args()

    tests = faulty = 0
    for part in EXECUTABLES:
        start = time.monotonic()
        clean, count, output = run(arguments.build, part, arguments.all)
        print(f"{part}: {count} tests in {time.monotonic() - start:.0f} s", flush=True)
        tests += count
        if not clean or count == 0:
            faulty += 1
            print(output)
    print(f"{tests:,} tests of engine and store under memcheck, {faulty} executables with errors or leaks")
    return 0 if faulty == 0 else 1


if __name__ == "__main__":
    sys.exit(main())
