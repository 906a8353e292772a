"""A print service of a test's own, whose one printer puts its pages into a folder."""

import os
import shutil
import subprocess
import time
from pathlib import Path

SUPPORT = Path(__file__).resolve().parent / "private_cups"

PRINTER = """<Printer Shack>
DeviceURI catch:@/caught
State Idle
Accepting Yes
Shared No
</Printer>
"""


class PrivatePrinter:
    """with PrivatePrinter(folder) as printer: its socket is printer.server"""

    def __init__(self, folder):
        self._folder = folder
        self.server = folder / "run" / "cups.sock"
        self.caught = folder / "caught" / "1.pdf"  # the first page that was printed
        for name in ("etc/ppd", "spool", "tmp", "cache", "run", "log", "bin/backend", "caught"):
            (folder / name).mkdir(parents=True)
        for part in Path("/usr/lib/cups").iterdir():
            if part.name != "backend":
                (folder / "bin" / part.name).symlink_to(part)
        backend = Path(shutil.copy2(SUPPORT / "catch.sh", folder / "bin" / "backend" / "catch"))
        backend.chmod(0o700)
        (folder / "etc" / "ppd" / "Shack.ppd").write_text((SUPPORT / "queue.ppd").read_text().replace("@PAPER@", "A4"))
        texts = {name: (SUPPORT / name).read_text() for name in ("cups-files.conf", "cupsd.conf")}
        for name, text in (texts | {"printers.conf": PRINTER}).items():
            (folder / "etc" / name).write_text(text.replace("@", str(folder)))

    def __enter__(self):
        program = shutil.which("cupsd", path=os.environ["PATH"] + ":/usr/sbin")
        etc = self._folder / "etc"
        self._service = subprocess.Popen([program, "-f", "-c", etc / "cupsd.conf", "-s", etc / "cups-files.conf"],
                                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        deadline = time.monotonic() + 20
        while not self.server.exists():
            if time.monotonic() > deadline or self._service.poll() is not None:
                raise RuntimeError("the print service does not start")
            time.sleep(0.02)
        return self

    def has_caught(self):
        return self.caught.exists()

    def __exit__(self, *_):
        self._service.terminate()
        self._service.wait()
