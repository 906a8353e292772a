#!/usr/bin/env python3
"""The built program where the print service's library cannot be loaded: print_library_test.py PROGRAM"""

import os
from unittest import mock

from program_case import ProgramCase, run
from quillon_window import QuillonWindow
from spoken_controls import labels_of
from window_titles import PRINT

ERROR = "Printer Error"


class NoPrintLibrary(ProgramCase):
    def setUp(self):
        super().setUp()
        libraries = self.folder.parent / "libraries"
        libraries.mkdir()
        (libraries / "libcups.so.2").write_text("no library")
        path = mock.patch.dict(os.environ, {"LD_LIBRARY_PATH": str(libraries)})
        path.start()
        self.addCleanup(path.stop)

    def test_is_told_when_a_report_is_printed_and_hinders_nothing_else(self):
        with QuillonWindow(self.program) as window:
            window.choose_both_systems()
            window.press("ctrl+r")
            window.wait_for_dialog(PRINT)
            window.press("alt+p")
            window.wait_for_dialog(ERROR)
            told = " ".join(labels_of(window.window(ERROR)))
            self.assertRegex(told, "Error Printing, Error Number 1282 Error Description .*libcups.so.2.* Error Source CUPS")
            window.press("Return")
            window.wait_for_dialog(PRINT)
            window.press("Escape")
            window.wait_for_no_dialog()
            window.save_pair(self.folder / "QuillonSystems.dat")


if __name__ == "__main__":
    run()
