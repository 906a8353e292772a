"""The program on a display, worked by keys; what it does is seen by which window has the keyboard."""

import os
import pathlib
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts"))

from window_titles import LOAD, MAIN, SPLASH  # noqa: E402

START_LIMIT = 60  # seconds, on a machine that does much else
ANSWER_LIMIT = 60
SOON = 5


class NotSeen(Exception):
    """What the user would wait for did not come."""


class Session:
    """One run of the program."""

    def __init__(self, screen, program, settings):
        self._screen = screen
        self.process = subprocess.Popen([program], env=settings, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def kill(self):
        """Ends the run, and waits until nothing of it is on the display."""
        self.process.kill()
        self.process.wait()
        deadline = time.monotonic() + ANSWER_LIMIT
        while self._screen.titles() and time.monotonic() < deadline:
            time.sleep(0.001)

    def wait_until(self, what, condition, limit=ANSWER_LIMIT, otherwise="no answer"):
        deadline = time.monotonic() + limit
        while not condition():
            if self.process.poll() is not None:
                raise NotSeen(f"{otherwise}: the program has ended with {self.process.returncode}")
            if time.monotonic() > deadline:
                raise NotSeen(f"{otherwise}: waited in vain for {what} among {self._screen.titles()}")
            time.sleep(0.001)

    def wait_for(self, title, limit=ANSWER_LIMIT, otherwise="no answer"):
        """Waits until a window has the keyboard."""
        self.wait_until(f'"{title}"', lambda: self._screen.focused() == title, limit, otherwise)

    def start(self):
        # On a busy machine the splash window's time may be over before it gets the keyboard.
        self.wait_until("a window or the end",
                        lambda: self._screen.focused() in (SPLASH, MAIN) or self.process.poll() == 0, START_LIMIT, "no start")
        if self.process.poll() == 0:
            raise NotSeen("stale lock: taken for a second copy")
        if self._screen.focused() == SPLASH:
            self._screen.press("Escape")
        self.wait_for(MAIN, START_LIMIT, "no start")

    def press(self, *keys):
        for key in keys:
            self._screen.press(key)

    def type(self, text):
        self._screen.type(text)

    def load(self):
        """Loads the first pair of the list."""
        self.press("Control_L o")
        self.wait_for(LOAD)
        self.press("Tab", "Return")
        try:
            self.wait_for(MAIN, SOON)
        except NotSeen:
            # A busy window manager may still be putting the start's windows in order, and keys go astray meanwhile.
            self.press("Alt_L l")
            self.wait_for(MAIN)

    def set_power(self, power):
        """Types into the first box, which has the keyboard from the start."""
        self.press(*["Delete", "BackSpace"] * 4)
        self.type(power)


def settings_for(display, home):
    """What the program sees of the world around it: no session bus, whose services take longer to start than it does."""
    return {"PATH": os.environ["PATH"], "DISPLAY": display, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8",
            "DBUS_SESSION_BUS_ADDRESS": "disabled:", "XDG_RUNTIME_DIR": str(home), "HOME": str(home)}
