#!/usr/bin/env python3
"""Saving and loading with the built program, by keyboard: saved_systems_test.py PROGRAM"""

from program_case import BOTH_ERPS, ProgramCase, contents, run
from quillon_window import SYSTEM_ONE, SYSTEM_TWO, QuillonWindow, wait_for
from window_titles import LOAD, SAVE


class SavedSystems(ProgramCase):
    def saved(self):
        return (self.folder / "QuillonSystems.dat").read_bytes()

    def test_a_pair_that_was_saved_is_there_in_the_next_run(self):
        with QuillonWindow(self.program) as window:
            window.choose_system(1, **SYSTEM_ONE)
            window.choose_system(2, **SYSTEM_TWO)
            window.wait_for_names(*BOTH_ERPS)
            window.press("ctrl+s")
            window.wait_for_dialog(SAVE)
            window.press("alt+s")
            wait_for("the saved pair", self.saved)
            window.press("Return")
            window.wait_for_no_dialog()
        self.assertTrue(self.saved().startswith(b"[SavedSystems]\r\nSystem:1=HY-GAIN / TH7DX\r\n"), self.saved())

        before = contents(self.folder)
        with QuillonWindow(self.program) as window:
            window.press("ctrl+o")
            window.wait_for_dialog(LOAD)
            window.press("alt+l")
            window.wait_for_no_dialog()
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
