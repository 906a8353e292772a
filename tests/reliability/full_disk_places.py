"""Places that cannot be written: each is a small file system of its own in memory, which can be relieved again."""

import contextlib
import errno
import os
import pathlib
import shutil
import subprocess

NOBODY = "65534"


def run(*command):
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)


class Place:
    """A file system with a folder for the program. `prefix` goes before commands that are to be stopped here."""

    options = "size=64m"
    prefix = ()

    def __init__(self, mount_point):
        self._mount_point = pathlib.Path(mount_point)
        self.folder = self._mount_point / "program folder"

    @contextlib.contextmanager
    def mounted(self):
        run("mount", "-t", "tmpfs", "-o", f"{self.options},mode=755", "quillon", self._mount_point)
        try:
            self.folder.mkdir()
            yield self
        finally:
            run("umount", self._mount_point)

    def spoil(self):
        """From now on nothing can be written."""
        raise NotImplementedError

    def relieve(self):
        """From now on everything can be written again."""
        raise NotImplementedError


class FullDisk(Place):
    name = "full disk"

    @property
    def _filler(self):
        return self._mount_point / "filler"

    def spoil(self):
        with open(self._filler, "wb", buffering=0) as filler:
            with contextlib.suppress(OSError):
                while filler.write(bytes(65536)):
                    pass
            with contextlib.suppress(OSError):
                while filler.write(bytes(1)):
                    pass

    def relieve(self):
        self._filler.unlink()


class NoInodes(FullDisk):
    name = "no inodes"
    options = "size=64m,nr_inodes=600"

    def spoil(self):
        self._filler.mkdir()
        try:
            for number in range(100_000):
                (self._filler / str(number)).touch()
        except OSError as error:
            if error.errno != errno.ENOSPC:
                raise

    def relieve(self):
        shutil.rmtree(self._filler)


class ReadOnly(Place):
    name = "read-only"

    def spoil(self):
        run("mount", "-o", "remount,ro", self._mount_point)

    def relieve(self):
        run("mount", "-o", "remount,rw", self._mount_point)


class NoRight(Place):
    """The files may be written, but the folders belong to somebody else."""

    name = "no right to the folder"
    prefix = ("setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups")

    def _set_modes(self, folders, files):
        for path in [self.folder, *self.folder.rglob("*")]:
            if path.is_dir():
                path.chmod(folders)
            elif not os.access(path, os.X_OK):
                path.chmod(files)

    def spoil(self):
        self._set_modes(0o755, 0o666)

    def relieve(self):
        self._set_modes(0o777, 0o666)


PLACES = (FullDisk, NoInodes, ReadOnly, NoRight)
