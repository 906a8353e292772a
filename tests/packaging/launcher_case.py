"""What the tests of the launcher have in common: a small system folder with the launcher in it, and users with homes."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LAUNCHER = ROOT / "packaging" / "quillon"
LAY_OUT = ROOT / "scripts" / "lay-out-program-folder.sh"

# Tells where it was started from, and with what, in place of opening a window.
PROGRAM = """#!/bin/bash
# {version}
printf '{version} %s' "$(readlink -f "$0")"
printf ' <%s>' "$@"
"""

FIRST = {
    "Antennas/ANTENNAS.ZEP": "first index",
    "Antennas/CHANGED.DAT": "first changed",
    "Antennas/DELETED.DAT": "first deleted",
    "Antennas/DROPPED.DAT": "first dropped",
    "Antennas/STAYS.DAT": "first stays",
    "Coax/TWO WORDS.DAT": "first two words",
    "Help/Quillon.hlp": "first help",
    "SOURCES.md": "first sources",
    "QuillonSystems.dat": "",
}
SECOND = {name: text.replace("first", "second") for name, text in FIRST.items() if name != "Antennas/DROPPED.DAT"}
SECOND["Antennas/NEW.DAT"] = "second new"


def contents(folder):
    """Every file of a folder by its name, but for the record of what was laid out."""
    return {str(path.relative_to(folder)): path.read_bytes() for path in sorted(folder.rglob("*"))
            if path.is_file() and path.name != ".laid-out"}


class SystemFolder:
    """A folder with what the package puts into the system, of one version at a time."""

    def __init__(self, root):
        self.root = root
        self.master = root / "usr" / "lib" / "quillon"
        self.launcher = root / "usr" / "bin" / "quillon"

    def install(self, version, files):
        shutil.rmtree(self.root, ignore_errors=True)
        self.launcher.parent.mkdir(parents=True)
        shutil.copy2(LAUNCHER, self.launcher)
        for name, text in {**files, "Quillon": PROGRAM.format(version=version)}.items():
            path = self.master / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        (self.master / "Quillon").chmod(0o755)
        shutil.copy2(LAY_OUT, self.master)

    def shipped(self):
        files = contents(self.master)
        del files[LAY_OUT.name]
        return files

    def remove(self):
        shutil.rmtree(self.root)


class LauncherCase(unittest.TestCase):
    def setUp(self):
        work = tempfile.TemporaryDirectory(prefix="quillon launcher ")
        self.addCleanup(work.cleanup)
        self.work = Path(work.name)
        self.system = SystemFolder(self.work / "system folder")
        self.system.install("first", FIRST)
        self.home = self.work / "a user's home"
        self.folder = self.home / ".local" / "share" / "quillon"

    def environment(self, **changes):
        environment = {"PATH": os.environ["PATH"], "HOME": str(self.home), **changes}
        return {name: value for name, value in environment.items() if value is not None}

    def launch(self, *arguments, prefix=(), **changes):
        return subprocess.run([*prefix, self.system.launcher, *arguments], env=self.environment(**changes), cwd=self.work,
                              capture_output=True, text=True, timeout=60, check=False)

    def start(self, version, folder=None, **changes):
        """Launches, and expects that version of the program from that folder. Returns what else was said."""
        done = self.launch("-style", "two words", **changes)
        *said, started = done.stdout.split("\n")
        program = (folder or self.folder) / "Quillon"
        self.assertEqual((started, done.returncode), (f"{version} {program} <-style> <two words>", 0), done)
        return "\n".join(said) + done.stderr

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def expect(self, **texts):
        """Compares the user's folder with the shipped files, but for those that are given by name."""
        self.assertEqual(contents(self.folder), {**self.system.shipped(), **texts})
