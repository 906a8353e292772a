#!/usr/bin/env python3
"""Checks that a built program carries what makes a mistake in it hard to abuse: hardening.py BUILD"""

import json
import pathlib
import re
import subprocess
import sys

# What readelf tells of the built file: what to look for, and in which of its listings.
IN_THE_FILE = [
    ("position independent", "--file-header", r"Type:\s+DYN \(Position-Independent Executable"),
    ("relocations read-only", "--program-headers", r"GNU_RELRO"),
    ("all bound at start", "--dynamic", r"FLAGS.*\bNOW\b"),
    ("stack not executable", "--program-headers", r"GNU_STACK.*\sRW\s"),
    ("stack protector", "--dyn-syms", r"__stack_chk_fail"),
]

# What leaves no trace of its own in the file, told by how each of the program's sources is compiled.
FOR_EVERY_SOURCE = [
    ("checked buffer lengths", r"-D_FORTIFY_SOURCE=2\b"),
    ("optimised, which the checked lengths need", r" -O[123sg]\b"),
    ("stack protector", r"-fstack-protector-strong\b"),
    ("guard pages kept", r"-fstack-clash-protection\b"),
]


ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDERS = ("app", "engine", "store", "ui")


def missing_in_file(program):
    """What the built file lacks."""
    for what, listing, pattern in IN_THE_FILE:
        text = subprocess.run(["readelf", "--wide", listing, program], capture_output=True, text=True, check=True).stdout
        if not re.search(pattern, text):
            yield f"{program.name}: {what}"


def commands_of_sources(build):
    """How each source of the program is compiled: its path from the root, and the command."""
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"])
        if path.is_relative_to(ROOT) and path.relative_to(ROOT).parts[0] in FOLDERS:
            yield path.relative_to(ROOT), entry["command"]


def missing_in_sources(commands):
    """What sources of the program are compiled without."""
    for path, command in commands:
        for what, pattern in FOR_EVERY_SOURCE:
            if not re.search(pattern, command):
                yield f"{path}: {what}"


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    commands = list(commands_of_sources(build))
    missing = [*missing_in_file(build / "program" / "Quillon"), *missing_in_sources(commands)]
    for fault in missing:
        print("missing:", fault)
    print(f"{len(IN_THE_FILE)} marks of the built file and {len(FOR_EVERY_SOURCE)} of each of {len(commands)} sources, "
          f"{len(missing)} missing")
    return 1 if missing or not commands else 0


if __name__ == "__main__":
    sys.exit(main())
