#!/usr/bin/env python3
"""Every command of the built program, by keyboard alone: every_command_test.py PROGRAM"""

import os
from unittest import mock

from program_case import ProgramCase, contents, run
from quillon_window import SYSTEM_TWO, QuillonWindow, wait_for
from window_titles import ABOUT, CLOSING, EDITOR, HELP, LOAD, PRINT, SAVE, TABLE

# Key of the command, window that it opens, key that closes that.
WINDOWS = [
    ("ctrl+r", PRINT, "Escape"),
    ("ctrl+p", PRINT, "Escape"),
    ("ctrl+m", EDITOR, "Escape"),
    ("ctrl+t", TABLE, "alt+c"),
    ("ctrl+i", ABOUT, "Escape"),
    ("F1", HELP, "Escape"),
    ("ctrl+h", HELP, "Escape"),
    ("alt+e", EDITOR, "Escape"),
    ("alt+o", LOAD, "Escape"),
    ("alt+t", TABLE, "alt+c"),
]
OUTSIDE = [
    ("ctrl+k", "xcalc"),
    ("ctrl+l", "xdg-open https://quillon.example/"),
    ("ctrl+shift+l", "xdg-open https://tarvel.example/"),
    ("alt+u", "xcalc"),
]
# Menu by its access key, entry by its own.
# The program menu shares its access key with a button, so the way to it is from the menu beside; two of its entries begin
# with the same letter.
MENU_WINDOWS = [
    ("alt+h", "a", ABOUT, "Escape"),
    ("alt+h", "o", HELP, "Escape"),
    ("alt+l Left", "Return", TABLE, "alt+c"),
    ("alt+l Left", "p", PRINT, "Escape"),
]
MENU_OUTSIDE = [
    ("alt+l", "q", "xdg-open https://quillon.example/"),
    ("alt+l", "t", "xdg-open https://tarvel.example/"),
]


class EveryCommand(ProgramCase):
    def setUp(self):
        super().setUp()
        self.started = self.folder.parent / "started"
        self.started.touch()
        programs = self.folder.parent / "programs"
        programs.mkdir()
        for name in ("xcalc", "xdg-open"):
            program = programs / name
            program.write_text(f'#!/bin/sh\necho {name} "$@" >>"{self.started}"\n')
            program.chmod(0o755)
        # Alone, so that no calculator of the desktop comes first.
        for name in ("sh", "xdotool"):
            (programs / name).symlink_to(f"/usr/bin/{name}")
        path = mock.patch.dict(os.environ, {"PATH": str(programs)})
        path.start()
        self.addCleanup(path.stop)

    def wait_for_start(self, what):
        wait_for(f"the start of {what}", lambda: self.started.read_text() == what + "\n", self.started.read_text)
        self.started.write_text("")

    def test_each_has_a_key_of_its_own(self):
        before = contents(self.folder)
        with QuillonWindow(self.program) as window:
            for key, title, close in WINDOWS:
                window.press(key)
                window.wait_for_dialog(title)
                window.press(close)
                window.wait_for_no_dialog()
            for key, what in OUTSIDE:
                window.press(key)
                self.wait_for_start(what)
            window.press("ctrl+q")
            self.assertEqual(window.wait_for_end(), 0)
        self.assertEqual(contents(self.folder), before, "looking around writes no file")

    def test_menus_open_by_their_access_keys(self):
        with QuillonWindow(self.program) as window:
            for menu, entry, title, close in MENU_WINDOWS:
                for key in menu.split():
                    window.press(key)
                window.press(entry)
                window.wait_for_dialog(title)
                window.press(close)
                window.wait_for_no_dialog()
            for menu, entry, what in MENU_OUTSIDE:
                window.press(menu)
                window.press(entry)
                self.wait_for_start(what)

    def test_the_db_table_is_left_by_its_button_only(self):
        with QuillonWindow(self.program) as window:
            window.press("ctrl+t")
            window.wait_for_dialog(TABLE)
            for key in ("Escape", "alt+F4", "alt+d", "alt+u"):
                window.press(key)
            window.wait_for_dialog(TABLE)
            window.press("alt+c")
            window.wait_for_no_dialog()

    def test_the_help_is_read_beside_a_dialog(self):
        with QuillonWindow(self.program) as window:
            window.press("ctrl+i")
            window.wait_for_dialog(ABOUT)
            window.press("F1")
            window.wait_for_dialog(HELP)
            window.press("Escape")
            window.wait_for_dialog(ABOUT)
            window.press("alt+c")
            window.wait_for_no_dialog()

    def test_a_maker_and_a_model_that_were_added_are_there_to_choose_at_once(self):
        file = self.folder / "Antennas" / "ACME.DAT"
        with QuillonWindow(self.program) as window:
            window.press("ctrl+m")
            window.wait_for_dialog(EDITOR)
            window.press("alt+b")
            window.wait_for_focus("New antenna manufacturer", EDITOR)
            window.type("ACME")
            window.press("Return")
            window.wait_for_focus("New antenna model", EDITOR)
            window.type("LONG BEAM")
            window.press("Return")
            wait_for("the new model", lambda: file.exists() and file.read_bytes() == b"[LONG BEAM]\r\nGainType=dBd\r\n")
            window.press("alt+e")
            window.wait_until_usable("20 Meters", EDITOR)
            window.tab_to("20 Meters", EDITOR)
            window.press("space")
            window.tab_to("Gain Figure, 20 Meters", EDITOR)
            window.type("5.15")
            window.press("alt+s")
            wait_for("the gain", lambda: b"Gain20=52\r\n" in file.read_bytes(), file.read_bytes)
            window.press("Escape")
            window.wait_for_no_dialog()
            window.choose_system(2, coax=SYSTEM_TWO["coax"], antenna=("ACME", "LONG BEAM", "20 Meters"))
            window.wait_for_names("Antenna Gain in dBd, System 2: 5.20 dBd")
        index = (self.folder / "Antennas" / "ANTENNAS.ZEP").read_bytes()
        day = rb"\d\d/\d\d/\d{4}\r\n"
        entry = rb"\[ACME\]\r\n=\r\nDateCreated=" + day + rb"LastModified=" + day + rb"NumEntries=1\r\n$"
        self.assertRegex(index, entry)

    def test_about_writes_a_mail_to_the_maker(self):
        with QuillonWindow(self.program) as window:
            window.press("ctrl+i")
            window.wait_for_dialog(ABOUT)
            window.press("alt+s")
            mail = wait_for("the mail", self.started.read_text)
        self.assertTrue(mail.startswith("xdg-open mailto:quillon@tarvel.example?subject=Quillon%2C%20Version%201.0%200%2C"), mail)

    def test_a_configured_pair_is_saved_on_the_way_out(self):
        with QuillonWindow(self.program) as window:
            window.choose_both_systems()
            window.press("ctrl+q")
            window.wait_for_dialog(CLOSING)
            window.press("Return")  # Cancel
            window.wait_for_no_dialog()
            window.press("alt+c")
            window.wait_for_dialog(CLOSING)
            window.press("alt+y")
            window.wait_for_dialog(SAVE)
            window.press("alt+s")
            saved = self.folder / "QuillonSystems.dat"
            wait_for("the saved pair", saved.read_bytes)
            window.press("Return")
            window.wait_for_no_dialog()
            window.press("ctrl+q")
            self.assertEqual(window.wait_for_end(), 0)

    def test_a_configured_pair_may_be_left_unsaved(self):
        before = contents(self.folder)
        with QuillonWindow(self.program) as window:
            window.choose_both_systems()
            window.press("ctrl+q")
            window.wait_for_dialog(CLOSING)
            window.press("alt+n")
            self.assertEqual(window.wait_for_end(), 0)
        self.assertEqual(contents(self.folder), before)

    def test_the_close_box_asks_nothing(self):
        with QuillonWindow(self.program) as window:
            window.choose_both_systems()
            window.press("alt+F4")
            self.assertEqual(window.wait_for_end(), 0)


if __name__ == "__main__":
    run()
