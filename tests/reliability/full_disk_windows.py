"""Saves in the windows, by keys, where nothing can be written and where there is room again."""

import contextlib
import os
import shutil
import subprocess
import time

from full_disk_places import FullDisk, NoInodes, ReadOnly
from kill_restart_display import Display, display
from kill_restart_files import MAKER_STATES, MODEL, SYSTEMS, first_systems
from kill_restart_session import EDITOR, LOAD, MAIN, SAVE, UPDATE, ROOT, NotSeen, Session

CLOSING = "Save Configured System?"
MAKER = "aaa"  # the first of the list
NEW_MAKER = "newmaker"
NEW_MODEL = "dish"


class Windows(Session):
    """A session of which nothing is taken for granted: what the user is told is told by a window."""

    def wait_for_editors(self, count):
        """A message of the editor bears the editor's title."""
        self.wait_until(f"{count} windows of the editor", lambda: self._screen.titles().count(EDITOR) == count)
        self.wait_for(EDITOR)

    def save(self, name, exists):
        self.press("Control_L s")
        self.wait_for(SAVE)
        self.type(name)
        self.press("Tab", "Return")
        if exists:
            self.wait_for(UPDATE)
            self.press("Left", "Return")
            self.wait_for(SAVE)
        self.press("Return")
        self.wait_for(MAIN)

    def asks_when_closed(self):
        """Whether closing asks to save; the answer is Cancel."""
        self.press("Control_L q")
        try:
            self.wait_for(CLOSING)
        except NotSeen:
            return False
        self.press("Escape")
        self.wait_for(MAIN)
        return True

    def open_editor(self):
        self.press("Control_L m")
        self.wait_for(EDITOR)

    def choose_model(self):
        """In the editor: the maker, the model, and its fields opened for editing."""
        self.type(MAKER)
        self.press("Return")
        self.type(MODEL)
        self.press("Return")

    def add_maker(self):
        self.press("Tab", "Return")
        self.type(NEW_MAKER)
        self.press("Return")

    def add_model(self):
        self.choose_model()
        self.press("Tab", "Return")
        self.type(NEW_MODEL)
        self.press("Return")

    def save_bands(self):
        self.choose_model()
        self.press("Tab", "Tab", "Tab", "Tab", "space", "Shift_L Tab", "Return")

    def leave_editor(self):
        self.press("Escape")
        self.wait_for(MAIN)
