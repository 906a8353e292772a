#!/usr/bin/env python3
"""The life of the packages, from unpacking to removal, in a root folder of its own: life_cycle_test.py FOLDER_OF_THE_PACKAGES

Needs a display, a window manager and a session bus (on-virtual-display.sh)."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

ROOT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "scripts"), str(ROOT / "tests" / "end_to_end")]

PACKAGES = Path(sys.argv[1]).resolve()
# The other tests' common part takes its first argument for the program.
sys.argv[1] = os.devnull

from program_case import contents  # noqa: E402
from quillon_window import BOTH_ERPS, QuillonWindow, name_of, wait_for  # noqa: E402
from window_titles import MAIN, UNWRITABLE  # noqa: E402



def package(pattern):
    (found,) = PACKAGES.glob(pattern)
    return found


def make_version(package_file, work, version, changes):
    """A package of another version, with other contents of some files of the master copy."""
    tree = work / version
    subprocess.run(["dpkg-deb", "--raw-extract", package_file, tree], check=True)
    control = tree / "DEBIAN" / "control"
    control.write_text("".join(f"Version: {version}\n" if line.startswith("Version:") else line
                               for line in control.read_text().splitlines(keepends=True)))
    for name, text in changes.items():
        (tree / "usr/lib/quillon" / name).write_bytes(text)
    made = work / f"{version}.deb"
    subprocess.run(["dpkg-deb", "--root-owner-group", "-Zgzip", "--build", tree, made], check=True, stdout=subprocess.DEVNULL)
    return made


class System:
    """A root folder with nothing but a package database."""

    def __init__(self, folder):
        self.folder = folder
        for name in ("updates", "info", "triggers"):
            (folder / "var/lib/dpkg" / name).mkdir(parents=True)
        for name in ("status", "available"):
            (folder / "var/lib/dpkg" / name).touch()

    def dpkg(self, *arguments):
        """Without what the program builds on: that is the machine's own. As an administrator, or as if."""
        as_root = [] if os.geteuid() == 0 else ["fakeroot"]
        subprocess.run([*as_root, "dpkg", f"--root={self.folder}", "--force-depends", "--force-not-root", "--log=/dev/null",
                        "--force-script-chrootless", *arguments], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    @property
    def launcher(self):
        return self.folder / "usr/bin/quillon"

    @property
    def master(self):
        return self.folder / "usr/lib/quillon"


class PackageCase(unittest.TestCase):
    def setUp(self):
        work = tempfile.TemporaryDirectory(prefix="quillon life ")
        self.addCleanup(work.cleanup)
        self.work = Path(work.name)
        root = self.work / "root"
        root.mkdir()
        self.system = System(root)

    def use(self, home):
        """Makes it the home of whoever starts the program. Returns where the program folder will be."""
        variables = mock.patch.dict(os.environ, {"HOME": str(home), "XDG_DATA_HOME": str(home / "data")})
        variables.start()
        self.addCleanup(variables.stop)
        return home / "data" / "quillon"


class LifeCycle(PackageCase):
    def configure_and_save(self):
        with QuillonWindow(self.system.launcher) as window:
            window.choose_both_systems()
            window.save_pair(self.folder / "QuillonSystems.dat")

    def load(self):
        with QuillonWindow(self.system.launcher) as window:
            program = os.readlink(f"/proc/{window._process.pid}/exe")
            window.load_pair()
            window.wait_for_names(*BOTH_ERPS)
        self.assertEqual(program, str(self.folder / "Quillon"))

    def expect(self, mine, but=()):
        """The user's folder holds the master copy, but for what is the user's."""
        shipped = contents(self.system.master)
        expected = {str(path.relative_to(self.system.master)): text for path, text in shipped.items()}
        found = {str(path.relative_to(self.folder)): text for path, text in contents(self.folder).items()}
        del expected["lay-out-program-folder.sh"]
        del found[".laid-out"]
        for name in but:
            del expected[name]
        self.assertEqual(sorted(found), sorted({**expected, **mine}))
        for name, text in {**expected, **mine}.items():
            self.assertTrue(found[name] == text, name)

    def test_installed_used_upgraded_downgraded_removed(self):
        first = package("*.deb")
        second = make_version(first, self.work, "1.1.0", {
            "Antennas/COMET.DAT": b"[SECOND]\r\nGain20=50\r\n", "Antennas/DIAMOND.DAT": b"[SECOND]\r\n",
            "Antennas/NEW.DAT": b"[NEW]\r\n", "Antennas/KLM.DAT": b"[SECOND]\r\n"})
        self.folder = self.use(self.work / "first home")
        self.system.dpkg("--install", first)
        master = contents(self.system.master)
        self.configure_and_save()
        saved = (self.folder / "QuillonSystems.dat").read_bytes()
        self.expect({"QuillonSystems.dat": saved})

        (self.folder / "Antennas/DIAMOND.DAT").write_bytes(b"[MINE]\r\n")
        (self.folder / "Antennas/ADDED.DAT").write_bytes(b"[ADDED]\r\n")
        (self.folder / "Antennas/KLM.DAT").unlink()
        mine = {"QuillonSystems.dat": saved, "Antennas/DIAMOND.DAT": b"[MINE]\r\n", "Antennas/ADDED.DAT": b"[ADDED]\r\n"}
        self.system.dpkg("--install", second)
        self.load()
        self.assertEqual((self.folder / "Antennas/COMET.DAT").read_bytes(), b"[SECOND]\r\nGain20=50\r\n")
        self.expect(mine, but=["Antennas/KLM.DAT"])

        self.system.dpkg("--install", first)
        self.load()
        self.expect(mine, but=["Antennas/KLM.DAT"])

        before = contents(self.folder)
        self.assertEqual(contents(self.system.master), master, "nobody wrote in the master copy")
        self.system.dpkg("--purge", "quillon")
        self.assertFalse(self.system.master.exists())
        self.assertEqual(contents(self.folder), before)
        self.system.launcher.parent.mkdir(parents=True, exist_ok=True)
        self.system.launcher.symlink_to(self.folder / "Quillon")
        self.load()

    def test_a_second_user_begins_anew(self):
        self.system.dpkg("--install", package("*.deb"))
        self.folder = self.use(self.work / "first home")
        self.configure_and_save()
        mine = contents(self.folder)
        first, self.folder = self.folder, self.use(self.work / "second home")
        with QuillonWindow(self.system.launcher):
            self.expect({})
        self.assertEqual(contents(first), mine)

    def test_the_portable_folder_runs_where_it_is_unpacked(self):
        subprocess.run(["tar", "--extract", "--file", package("*.tar.gz"), "--directory", self.work], check=True)
        (unpacked,) = self.work.glob("quillon-*")
        self.folder = self.work / "somewhere else"
        unpacked.rename(self.folder)
        self.use(self.work / "no home")
        before = contents(self.folder)
        self.system.launcher.parent.mkdir(parents=True)
        self.system.launcher.symlink_to(self.folder / "Quillon")
        self.configure_and_save()
        self.load()
        after = contents(self.folder)
        changed = [path.name for path in after if after[path] != before.get(path)]
        self.assertEqual(changed, ["QuillonSystems.dat"])
        self.assertFalse((self.work / "no home").exists())


class ToldWindow(QuillonWindow):
    """A run that begins with a message; it is answered."""

    said = ""

    def _end_splash(self):
        wait_for("the program on the accessibility bus", self._application)
        wait_for("the message", lambda: self._active(UNWRITABLE))
        assert not self.id_of(MAIN), "the message comes before the window"
        self.said = " ".join(filter(None, map(name_of, self._message_parts())))
        self.press("Return")
        super()._end_splash()

    def _message_parts(self):
        box = self.window(UNWRITABLE)
        return [box.get_child_at_index(index) for index in range(box.get_child_count())]


@unittest.skipUnless(os.geteuid() == 0, "only an administrator can mount a read-only folder")
class Unwritable(PackageCase):
    def test_is_told_before_the_window_opens(self):
        self.system.dpkg("--install", package("*.deb"))
        self.folder = self.use(self.work / "home")
        with QuillonWindow(self.system.launcher):
            pass
        subprocess.run(["mount", "--bind", "-o", "ro", self.folder, self.folder], check=True)
        try:
            with ToldWindow(self.system.launcher) as window:
                self.assertIn(f"The folder {self.folder} cannot be written.", window.said)
                self.assertIn("Antenna System ERP", window.names())
        finally:
            subprocess.run(["umount", self.folder], check=True)


if __name__ == "__main__":
    unittest.main(module="__main__", argv=sys.argv[:1], verbosity=2)
