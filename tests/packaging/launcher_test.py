#!/usr/bin/env python3
"""The launcher of the Debian package: whose folder it makes, and what it brings up to date there."""

import fcntl
import os
import shutil
import subprocess
import sys
import unittest

from launcher_case import FIRST, SECOND, LauncherCase, contents

NOBODY = ("setpriv", "--reuid=65534", "--regid=65534", "--clear-groups")


class FirstStart(LauncherCase):
    def test_makes_the_program_folder_and_starts_the_program_there(self):
        self.assertEqual(self.start("first"), "")
        self.assertEqual(contents(self.folder), self.system.shipped())

    def test_says_and_writes_nothing_the_second_time(self):
        self.start("first")
        before = {path: os.stat(path).st_mtime_ns for path in self.folder.rglob("*")}
        self.assertEqual(self.start("first"), "")
        self.assertEqual({path: os.stat(path).st_mtime_ns for path in self.folder.rglob("*")}, before)

    def test_goes_below_the_data_home(self):
        data = self.work / "data home"
        self.start("first", folder=data / "quillon", XDG_DATA_HOME=str(data))
        self.assertFalse(self.home.exists())

    def test_a_relative_data_home_counts_for_nothing(self):
        self.start("first", XDG_DATA_HOME="somewhere")

    def test_each_user_has_a_folder(self):
        self.start("first")
        self.write("QuillonSystems.dat", "mine")
        other = self.work / "another home"
        self.start("first", folder=other / ".local/share/quillon", HOME=str(other))
        self.assertEqual((other / ".local/share/quillon/QuillonSystems.dat").read_text(), "")
        self.assertEqual((self.folder / "QuillonSystems.dat").read_text(), "mine")

    def test_the_files_belong_to_their_user_alone_where_the_user_wants_it(self):
        done = subprocess.run(["sh", "-c", 'umask 077 && exec "$0"', self.system.launcher], env=self.environment(),
                              capture_output=True, check=True)
        self.assertIn(b"first", done.stdout)
        for path in self.folder.rglob("*"):
            self.assertEqual(path.stat().st_mode & 0o077, 0, path)
            self.assertEqual(path.stat().st_mode & 0o600, 0o600, path)

    def test_a_link_to_the_launcher_finds_the_system(self):
        link = self.work / "a link"
        link.symlink_to(self.system.launcher)
        done = subprocess.run([link], env=self.environment(), capture_output=True, text=True, check=True)
        self.assertEqual(done.stdout, f"first {self.folder}/Quillon <>")


class Upgrade(LauncherCase):
    def setUp(self):
        super().setUp()
        self.start("first")
        self.write("Antennas/CHANGED.DAT", "mine")
        self.write("Antennas/ADDED.DAT", "added")
        self.write("QuillonSystems.dat", "saved")
        (self.folder / "Antennas/DELETED.DAT").unlink()
        self.system.install("second", SECOND)

    MINE = {"Antennas/CHANGED.DAT": b"mine", "Antennas/ADDED.DAT": b"added", "QuillonSystems.dat": b"saved"}

    def expect_mine(self):
        found = contents(self.folder)
        self.assertEqual(found, {name: text for name, text in {**self.system.shipped(), **self.MINE}.items()
                                 if name != "Antennas/DELETED.DAT"})

    def test_refreshes_what_nobody_changed(self):
        said = self.start("second")
        self.assertIn("Kept", said)
        self.assertIn("CHANGED.DAT", said)
        self.expect_mine()
        self.assertEqual(self.start("second"), "")
        self.expect_mine()

    def test_and_back_again(self):
        self.start("second")
        self.system.install("first", FIRST)
        self.start("first")
        self.expect_mine()

    def test_skipping_a_version(self):
        self.start("second")
        self.system.install("third", {name: text.replace("second", "third") for name, text in SECOND.items()})
        self.start("third")
        self.expect_mine()

    def test_removal_leaves_the_folder_and_its_program(self):
        self.start("second")
        before = contents(self.folder)
        self.system.remove()
        self.assertEqual(contents(self.folder), before)
        done = subprocess.run([self.folder / "Quillon"], capture_output=True, text=True, check=True)
        self.assertEqual(done.stdout, f"second {self.folder}/Quillon <>")

    def test_a_program_that_is_missing_comes_back(self):
        (self.folder / "Quillon").unlink()
        self.start("second")
        (self.folder / "Quillon").unlink()
        self.start("second")
        self.expect_mine()

    def test_nothing_changes_below_a_running_program(self):
        before = contents(self.folder)
        running = os.open(self.folder, os.O_RDONLY)
        fcntl.flock(running, fcntl.LOCK_EX)
        self.assertEqual(self.start("first"), "", "the old program, which ends as it runs already")
        self.assertEqual(contents(self.folder), before)
        os.close(running)
        self.start("second")
        self.expect_mine()

    def test_the_program_gets_the_lock(self):
        program = self.system.master / "Quillon"
        program.write_text('#!/bin/sh\nflock --nonblock "$(dirname "$0")" printf locked\n')
        self.assertEqual(self.launch().stdout.split("\n")[-1], "locked")


class Links(LauncherCase):
    def test_nothing_is_written_through_them(self):
        outside = self.work / "outside"
        outside.mkdir()
        for name in ("STAYS", "DROPPED"):
            (outside / f"{name}.DAT").write_text(f"first {name.lower()}")
        (outside / "precious").write_text("precious")
        (outside / "Quillon").write_text("a name that is laid out, too")
        before = contents(outside)
        self.start("first")
        shutil.rmtree(self.folder / "Antennas")
        (self.folder / "Antennas").symlink_to(outside)
        for name, target in {"Coax/TWO WORDS.DAT": "precious", "SOURCES.md": "nowhere", "Quillon": "precious"}.items():
            (self.folder / name).unlink()
            (self.folder / name).symlink_to(outside / target)
        (self.folder / ".laid-out.new").symlink_to(outside)
        (self.folder / "Help/.laid-out.new").symlink_to(outside)
        self.system.install("second", SECOND)
        self.start("second")
        self.assertEqual(contents(outside), before)
        for name in ("Antennas", "Coax/TWO WORDS.DAT", "SOURCES.md"):
            self.assertTrue((self.folder / name).is_symlink(), name)
        self.assertFalse((self.folder / "Quillon").is_symlink())
        self.assertEqual((self.folder / "Help/Quillon.hlp").read_text(), "second help")

    def test_a_record_of_other_files_removes_none(self):
        self.start("first")
        precious = self.home / "precious"
        precious.write_text("precious")
        mine = self.folder / "notes" / "mine"
        mine.parent.mkdir()
        mine.write_text("precious")
        checksum = subprocess.run(["sha256sum", precious], capture_output=True, text=True, check=True).stdout.split()[0]
        with open(self.folder / ".laid-out", "a", encoding="utf-8") as record:
            for name in ("../../../precious", precious, "Coax/../../../../precious", "notes/mine", "..", ""):
                record.write(f"{checksum}  {name}\n")
        self.system.install("second", SECOND)
        self.start("second")
        self.assertEqual(precious.read_text(), "precious")
        self.assertEqual(mine.read_text(), "precious")


class NoFolder(LauncherCase):
    def test_the_system_s_copy_is_never_worked_in(self):
        self.home.write_text("no folder")
        done = self.launch()
        if os.access(self.system.master, os.W_OK):
            self.assertEqual((done.stdout, done.returncode), ("", 1))
            self.assertIn(f"no program can be started in {self.folder}", done.stderr)

    @unittest.skipUnless(os.geteuid() == 0, "only an administrator can become somebody else")
    def test_somebody_without_any_folder_gets_the_system_s_copy(self):
        self.work.chmod(0o755)
        done = self.launch("one", prefix=NOBODY, HOME="/nonexistent")
        self.assertEqual((done.stdout, done.returncode), (f"first {self.system.master}/Quillon <one>", 0), done)

    @unittest.skipUnless(os.geteuid() == 0, "only an administrator can become somebody else")
    def test_a_folder_that_cannot_be_written_keeps_its_program(self):
        self.start("first")
        self.work.chmod(0o755)
        before = contents(self.folder)
        self.system.install("second", SECOND)
        done = self.launch(prefix=NOBODY)
        self.assertEqual((done.stdout, done.returncode), (f"first {self.folder}/Quillon <>", 0), done)
        self.assertEqual(contents(self.folder), before)


if __name__ == "__main__":
    sys.dont_write_bytecode = True
    unittest.main(verbosity=2)
