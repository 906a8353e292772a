#!/usr/bin/env python3
"""Takes the pictures that the README shows, of the window and of the printed page:

scripts/install-packages.sh build virtual-display test
scripts/on-virtual-display.sh /usr/bin/python3 -B scripts/renew_pictures.py build/dev/program/Quillon
"""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests" / "support"))

from private_printer import PrivatePrinter  # noqa: E402
from quillon_window import QuillonWindow, wait_for  # noqa: E402
from take_picture import choose, take  # noqa: E402
from window_titles import PRINT  # noqa: E402

NOTES = "Both beams at 60 ft, pointed to Europe."
PAGE_WIDTH = 800  # pixels


def print_page(window, printer):
    """Prints the report of both systems. Returns the printed file."""
    window.press("ctrl+r")
    window.wait_for_dialog(PRINT)
    window.tab_to("Enter any notes for this report.", PRINT)
    window.type(NOTES)
    window.press("alt+p")
    wait_for("the page", printer.has_caught)
    window.wait_for_focus("Finish", PRINT)
    window.press("Return")
    window.wait_for_no_dialog()
    return printer.caught


def main():
    (program,) = sys.argv[1:]
    with tempfile.TemporaryDirectory() as work:
        folder = Path(work) / "program folder"
        subprocess.run([ROOT / "scripts" / "lay-out-program-folder.sh", ROOT / "data", folder], check=True)
        with PrivatePrinter(Path(work) / "printer") as printer:
            os.environ["CUPS_SERVER"] = str(printer.server)
            with QuillonWindow(shutil.copy2(program, folder)) as window:
                choose(window)
                take(window, ROOT / "docs" / "window.png")
                page = print_page(window, printer)
        subprocess.run(["pdftoppm", "-png", "-singlefile", "-scale-to-x", str(PAGE_WIDTH), "-scale-to-y", "-1",
                        page, ROOT / "docs" / "report"], check=True)


if __name__ == "__main__":
    main()
