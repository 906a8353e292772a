#!/usr/bin/env python3
"""Lets nothing be written while the program wants to save: full_disk.py BUILD_FOLDER

The disk is full, has no inodes left, is read-only, or its folders belong to somebody else. Every writing command then has
to fail, every file has to stay as it was, byte by byte, and once there is room again the same command has to succeed: all
commands in a program of their own, and those of the windows once more in the windows, by keys.

Needs root and tmpfs; without them it fails.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

from full_disk_places import PLACES, FullDisk
from full_disk_windows import work_windows
from kill_restart_files import first_systems

COMMANDS = ("save-new", "save-over", "add-maker", "add-model", "save-bands", "index", "delete-key", "delete-model")

# An empty file takes no room.
CAN_SUCCEED = (FullDisk.name, "add-maker")


def lay_out(folder):
    """The smallest program folder that all commands find something to change in."""
    (folder / "Antennas").mkdir()
    (folder / "QuillonSystems.dat").write_bytes(first_systems())
    (folder / "Antennas" / "aaa.DAT").write_bytes(b"[beam]\r\nGainType=dBd\r\nGain20=50\r\n[dish]\r\nGainType=dBi\r\n")
    (folder / "Antennas" / "ANTENNAS.ZEP").write_bytes(
        b"[aaa]\r\nDateCreated=01/01/2000\r\nLastModified=01/01/2000\r\nNumEntries=2\r\n")


def contents(folder):
    return {path: path.read_bytes() for path in sorted(folder.rglob("*")) if path.is_file()}


def try_command(place, tool, command):
    """Runs a command where it cannot write and where it can. Returns what is wrong."""

    def succeeds():
        result = subprocess.run([*place.prefix, tool, place.folder, command], check=False).returncode
        if result not in (0, 1):
            findings.append(f"the command ended with {result}")
        return result == 0

    findings = []
    lay_out(place.folder)
    before = contents(place.folder)
    place.spoil()
    can_succeed = (place.name, command) == CAN_SUCCEED
    if succeeds() != can_succeed:
        findings.append("no success" if can_succeed else "false success")
    if (contents(place.folder) != before) != can_succeed:
        findings.append("nothing written" if can_succeed else "changed files")
    place.relieve()
    if not succeeds():
        findings.append("no success when there is room again")
    if contents(place.folder) == before:
        findings.append("nothing written when there is room again")
    return findings


def try_commands(build, work):
    """Every command in every place. Yields what it was and what is wrong."""
    # Somebody without rights has to be able to run it.
    tool = shutil.copy2(build / "tests" / "reliability" / "quillon_reliability_save", work)
    for kind in PLACES:
        for command in COMMANDS:
            with kind(work / "disk").mounted() as place:
                yield f"{kind.name}, {command}", try_command(place, tool, command)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    arguments = parser.parse_args()
    if os.geteuid() != 0:
        sys.exit("This check cannot run here: only root can mount a file system.")
    counts = {"commands": 0, "window": 0, "wrong": 0}
    with tempfile.TemporaryDirectory(prefix="quillon-full-") as folder:
        work = pathlib.Path(folder)
        work.chmod(0o755)
        (work / "disk").mkdir()
        for kind, trials in (("commands", try_commands(arguments.build, work)),
                             ("window", work_windows(arguments.build, work))):
            for trial, findings in trials:
                counts[kind] += 1
                counts["wrong"] += bool(findings)
                for finding in findings:
                    print(f"{trial}: {finding}", flush=True)
    print(f"{len(PLACES)} places that cannot be written: {counts['commands']} commands, {counts['window']} saves in windows, "
          f"{counts['wrong']} with a changed file, a false success, nothing told or no way on")
    return 1 if counts["wrong"] else 0


if __name__ == "__main__":
    sys.exit(main())
