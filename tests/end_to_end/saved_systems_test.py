#!/usr/bin/env python3
"""Saving and loading with the built program, by keyboard: saved_systems_test.py PROGRAM"""

from program_case import ProgramCase, contents, run
from quillon_window import BOTH_ERPS, SYSTEM_ONE, QuillonWindow
from window_titles import SAVE


class SavedSystems(ProgramCase):
    def setUp(self):
        super().setUp()
        self.saved = self.folder / "QuillonSystems.dat"

    def test_a_pair_that_was_saved_is_there_in_the_next_run(self):
        with QuillonWindow(self.program) as window:
            window.choose_both_systems()
            window.save_pair(self.saved)
        self.assertTrue(self.saved.read_bytes().startswith(b"[SavedSystems]\r\nSystem:1=HY-GAIN / TH7DX\r\n"))

        before = contents(self.folder)
        with QuillonWindow(self.program) as window:
            window.load_pair()
            window.wait_for_names(*BOTH_ERPS)
        self.assertEqual(contents(self.folder), before, "loading writes no file")

    def test_a_dialog_that_is_left_by_the_escape_key_writes_nothing(self):
        before = contents(self.folder)
        with QuillonWindow(self.program) as window:
            window.choose_system(1, **SYSTEM_ONE)
            window.press("ctrl+s")
            window.wait_for_dialog(SAVE)
            window.press("Escape")
            window.wait_for_no_dialog()
        self.assertEqual(contents(self.folder), before)


if __name__ == "__main__":
    run()
