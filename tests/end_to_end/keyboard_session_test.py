#!/usr/bin/env python3
"""A whole session with the built program without a mouse: keyboard_session_test.py PROGRAM"""

import os
import subprocess
import sys
from unittest import mock

from program_case import ROOT, ProgramCase, run
from quillon_window import QuillonWindow, wait_for
from window_titles import CLOSING, EDITOR, HELP, PRINT, TABLE

sys.path.insert(0, str(ROOT / "tests" / "support"))

from private_printer import PrivatePrinter  # noqa: E402

MOST_KEYS = 60

# For each list what is typed, and what it completes to.
SYSTEMS = {
    1: [("coax brand", "b", "BELDEN"), ("coax type", "8267", "8267 RG-213"),
        ("antenna brand", "h", "HY-GAIN"), ("antenna model", "th7", "TH7DX"), ("antenna band", "20", "20 Meters")],
    2: [("coax brand", "t", "TIMES MICROWAVE"), ("coax type", "lmr-4", "LMR-400"),
        ("antenna brand", "m2", "M2"), ("antenna model", "2m9", "2M9"), ("antenna band", "2 ", "2 Meters")],
}
POWERS = {1: "400", 2: "50"}
# 0.8511 of 400 W arrive, 340.44 W, and 0.7077 of 50 W, 35.39 W; the gains are factors of 3.162 and 16.22.
CHOSEN = ("Antenna System ERP, System 1: 1076.47 W", "Antenna System ERP, System 2: 574.03 W")
# 6 dBd are a factor of 3.981.
EDITED = ("Antenna System ERP, System 1: 1355.29 W", "Antenna System ERP, System 2: 574.03 W")
# 0.71 W of 1 W arrive.
WITH_ONE_WATT = "Antenna System ERP, System 2: 11.52 W"


class KeyboardSession(ProgramCase):
    def setUp(self):
        super().setUp()
        self.printer = self.enterContext(PrivatePrinter(self.folder.parent / "printer"))
        self.enterContext(mock.patch.dict(os.environ, {"CUPS_SERVER": str(self.printer.server)}))

    def test_a_whole_session(self):
        pointer = self.pointer()
        with QuillonWindow(self.program) as window:
            self.choose_both_systems(window)
            self.save(window)
            self.edit_an_antenna(window)
            self.load(window)
            self.print(window)
            self.look_into_table_and_help(window)
            window.press("ctrl+q")
            window.wait_for_dialog(CLOSING)
            window.press("alt+n")
            self.assertEqual(window.wait_for_end(), 0)
        self.assertEqual(self.pointer(), pointer)

    @staticmethod
    def pointer():
        return subprocess.run(["xdotool", "getmouselocation"], check=True, capture_output=True, text=True).stdout

    def choose_both_systems(self, window):
        before = window.keys
        for system, entries in SYSTEMS.items():
            window.tab_to(f"System {system} power, watts")
            window.type(POWERS[system])
            window.tab_to(f"System {system} coax brand")
            for kind, first, entry in entries:
                window.choose(f"System {system} {kind}", entry, first)
        window.wait_for_names(*CHOSEN)
        self.assertLessEqual(window.keys - before, MOST_KEYS)

    def save(self, window):
        saved = self.folder / "QuillonSystems.dat"
        window.save_pair(saved)
        self.assertTrue(saved.read_bytes().startswith(b"[SavedSystems]\r\nSystem:1=HY-GAIN / TH7DX\r\n"))

    def edit_an_antenna(self, window):
        file = self.folder / "Antennas" / "HY-GAIN.DAT"
        window.press("ctrl+m")
        window.wait_for_dialog(EDITOR)
        window.type("h")
        window.press("Return")
        window.wait_for_focus("Antenna model", EDITOR)
        window.type("th7")
        window.press("Return")
        window.wait_until_usable("20 Meters", EDITOR)
        window.tab_to("Gain Figure, 20 Meters", EDITOR)
        window.type("6")
        window.press("alt+s")
        wait_for("the gain", lambda: b"Gain20=60\r\n" in file.read_bytes(), file.read_bytes)
        window.press("Escape")
        window.wait_for_no_dialog()
        window.wait_for_names(*EDITED)

    def load(self, window):
        window.tab_to("System 2 power, watts")
        window.type("1")
        window.wait_for_names(WITH_ONE_WATT)
        window.load_pair()
        window.wait_for_names(*EDITED)

    def print(self, window):
        window.press("ctrl+r")
        window.wait_for_dialog(PRINT)
        window.tab_to("Enter any notes for this report.", PRINT)
        window.type("No mouse")
        window.press("alt+p")
        wait_for("the page", self.printer.has_caught)
        window.wait_for_focus("Finish", PRINT)
        window.press("Return")
        window.wait_for_no_dialog()

    def look_into_table_and_help(self, window):
        window.press("ctrl+t")
        window.wait_for_dialog(TABLE)
        window.press("alt+d")
        window.press("alt+c")
        window.wait_for_no_dialog()
        window.press("F1")
        window.wait_for_dialog(HELP)
        window.press("ctrl+f")
        window.wait_for_focus("Find", HELP)
        window.type("keyboard")
        window.press("Return")
        window.press("Escape")
        window.wait_for_no_dialog()


if __name__ == "__main__":
    run()
