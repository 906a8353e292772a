"""Runs Quillon and works it as a person would: keys go to the window through the display, and what stands on the screen
is read as a screen reader reads it. Needs a display, a window manager and a session bus (on-virtual-display.sh).
"""

import locale
import os
import re
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402
from window_titles import LOAD, MAIN, SAVE, SPLASH  # noqa: E402

# What choose_system chooses, from the shipped catalogues.
SYSTEM_ONE = {"coax": ("BELDEN", "8267 RG-213"), "antenna": ("HY-GAIN", "TH7DX", "20 Meters")}
SYSTEM_TWO = {"coax": ("TIMES MICROWAVE", "LMR-400"), "antenna": ("M2", "2M9", "2 Meters")}
# What a screen reader says of them.
# System One, 14.25 MHz and 100 ft: 0.55 + 0.01 + 2 * 0.1 * (1.3 - 0.55) = 0.71 dB; by the row of 0.7 dB 85.11 W arrive;
# 5.0 dBd are a factor of 3.162.
# System Two, 144.2 MHz by its band: 0.12229 * sqrt(144.2) + 0.00026 * 144.2 = 1.506 dB; by the row of 1.5 dB 70.77 W
# arrive; 12.1 dBd are a factor of 16.22.
BOTH_ERPS = ("Antenna System ERP, System 1: 269.12 W", "Antenna System ERP, System 2: 1147.89 W")

# Long enough for a sanitized build on a busy machine; nothing waits longer than it has to.
PATIENCE = 60


class NotSeen(Exception):
    """What was waited for did not come."""


def wait_for(what, condition, found=lambda: ""):
    """Returns the first result of the condition that is not empty. What is found instead goes into the complaint."""
    deadline = time.monotonic() + PATIENCE
    while True:
        try:
            result = condition()
        except GLib.GError:
            result = None  # the element went away while it was looked at
        if result:
            return result
        if time.monotonic() > deadline:
            raise NotSeen(f"waited in vain for {what} {found()}")
        time.sleep(0.02)


def has_state(element, state):
    element.clear_cache()
    return element.get_state_set().contains(state)


def with_point(text):
    """A text as it is shown, with a point in its numbers whatever the desktop's language has there."""
    locale.setlocale(locale.LC_NUMERIC, "")
    sign = re.escape(locale.localeconv()["decimal_point"])
    return re.sub(rf"(?<=\d){sign}(?=\d)", ".", text)


def name_of(element):
    element.clear_cache()
    return with_point(element.get_name() or "")


def text_of(element):
    return with_point(Atspi.Text.get_text(element, 0, -1))


def elements_below(element):
    """All elements below one, but not the entries of lists: there are hundreds."""
    for index in range(element.get_child_count()):
        child = element.get_child_at_index(index)
        if child is not None:
            yield child
            if child.get_role() != Atspi.Role.LIST:
                yield from elements_below(child)


class QuillonWindow:
    """One run of the program, ready to be worked: `with QuillonWindow(program) as window`."""

    keys = 0  # that were pressed

    def __init__(self, program):
        self._start(program)
        try:
            self._end_splash()
            self._enter()
        except BaseException:
            self.close()
            raise

    def _start(self, program):
        settings = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        Atspi.init()
        self._process = subprocess.Popen([program], env={**os.environ, **settings})

    def _end_splash(self):
        """Presses a key in the splash window, unless its time is over anyway."""
        wait_for("the program on the accessibility bus", self._application)
        wait_for("the splash window", lambda: self._active(SPLASH) or self.id_of(MAIN))
        if not self.id_of(MAIN):
            self.press("Escape")

    def _enter(self):
        self.id = wait_for("the window on the display", lambda: self.id_of(MAIN))
        frame = wait_for(f'the window "{MAIN}"', lambda: self.window(MAIN))
        self._xdotool("windowactivate", "--sync", self.id)
        wait_for("the window to become active", lambda: has_state(frame, Atspi.StateType.ACTIVE))
        # The name of a list box is its text once something is chosen, so everything keeps the name it starts with.
        self._elements = [(element, element.get_name()) for element in elements_below(frame)]

    def __enter__(self):
        return self

    def __exit__(self, *_):
        code = self._process.poll()
        self.close()
        if code:
            raise NotSeen(f"the program in good health: it ended with {code}")

    def close(self):
        """Ends the program."""
        if self._process.poll() is None:
            self._process.terminate()
        self.wait_for_end()

    def wait_for_end(self):
        """Returns the program's exit code."""
        return self._process.wait(PATIENCE)

    def names(self):
        """What a screen reader says of everything in the window, unnamed elements left out."""
        return [name for name in (name_of(element) for element, _ in self._elements) if name]

    def wait_for_names(self, *wanted):
        wait_for(f"{wanted}", lambda: set(wanted) <= set(self.names()), lambda: f"among {self.names()}")

    def focused(self, dialog=None):
        """Name of what has the keyboard; for the inner parts of a list box, the list box's."""
        elements = self._elements
        if dialog is not None:
            elements = [(element, element.get_name()) for element in elements_below(self.window(dialog))]
        box = ""
        for element, name in elements:
            if element.get_role() == Atspi.Role.COMBO_BOX:
                box = name
            if has_state(element, Atspi.StateType.FOCUSED):
                return name or box
        return ""

    def wait_for_focus(self, name, dialog=None):
        """Returns once the named element has the keyboard: a button answers its access key only after a moment."""
        wait_for(f'the keyboard in "{name}"', lambda: self.focused(dialog) == name, lambda: f"not in {self.focused(dialog)}")

    def wait_until_usable(self, name, dialog):
        """Returns once the named element of a dialog takes input."""
        def usable():
            found = [element for element in elements_below(self.window(dialog)) if element.get_name() == name]
            return found and has_state(found[0], Atspi.StateType.SENSITIVE)

        wait_for(f'"{name}" to be usable', usable)

    def tab_to(self, name, dialog=None):
        """Presses Tab until the named element has the keyboard, in the main window or in an open dialog."""
        before = wait_for("the keyboard focus", lambda: self.focused(dialog))
        for _ in self._elements:
            if before == name:
                return
            self.press("Tab")
            before = wait_for("the focus to move on",
                              lambda: self.focused(dialog) not in ("", before) and self.focused(dialog))
        raise NotSeen(f'"{name}" on the way of the Tab key')

    def choose(self, list_name, entry, first=None):
        """Types an entry, or its first letters, into the list that has the keyboard, in small letters, and takes it with
        Enter.
        """
        self.wait_for_focus(list_name)
        box = next(element for element, name in self._elements if name == list_name)
        text = next(child for child in elements_below(box) if child.get_role() == Atspi.Role.TEXT)
        self.type((first or entry).lower())
        wait_for(f'"{entry}" in "{list_name}"', lambda: text_of(text) == entry, lambda: f"not {text_of(text)}")
        self.press("Return")

    def choose_system(self, system, coax, antenna):
        """Chooses (maker, type) and (maker, model, band): each Enter opens the next list, from the first to the last."""
        self.tab_to(f"System {system} coax brand")
        for kind, entry in zip(("coax brand", "coax type"), coax, strict=True):
            self.choose(f"System {system} {kind}", entry)
        for kind, entry in zip(("antenna brand", "antenna model", "antenna band"), antenna, strict=True):
            self.choose(f"System {system} {kind}", entry)

    def choose_both_systems(self):
        """Chooses SYSTEM_ONE and SYSTEM_TWO, and returns once they are computed."""
        self.choose_system(1, **SYSTEM_ONE)
        self.choose_system(2, **SYSTEM_TWO)
        self.wait_for_names(*BOTH_ERPS)

    def save_pair(self, file):
        """Saves both systems under the name they are offered, into a file that holds nothing yet."""
        self.press("ctrl+s")
        self.wait_for_dialog(SAVE)
        self.press("alt+s")
        wait_for("the saved pair", file.read_bytes)
        self.press("Return")
        self.wait_for_no_dialog()

    def load_pair(self):
        """Loads the pair that the dialog offers."""
        self.press("ctrl+o")
        self.wait_for_dialog(LOAD)
        self.press("alt+l")
        self.wait_for_no_dialog()

    def wait_for_dialog(self, title):
        """Returns once a dialog of the program is open and has the keyboard."""
        wait_for(f'the dialog "{title}"', lambda: self._active(title), lambda: f"among {self._titles()}")

    def wait_for_no_dialog(self):
        """Returns once the main window has the keyboard again."""
        wait_for("the main window to become active", lambda: self._active(MAIN))

    def press(self, key):
        self._xdotool("key", key)
        self.keys += 1

    def type(self, text):
        self._xdotool("type", "--delay", "20", text)
        self.keys += len(text)

    @staticmethod
    def _xdotool(*arguments):
        subprocess.run(["xdotool", *arguments], check=True, capture_output=True, timeout=PATIENCE)

    def _application(self):
        if self._process.poll() is not None:
            raise NotSeen(f"the program ended at its start with {self._process.returncode}")
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        children = map(desktop.get_child_at_index, range(desktop.get_child_count()))
        return next((child for child in children if child and child.get_process_id() == self._process.pid), None)

    def _windows(self):
        application = self._application()
        application.clear_cache()
        children = map(application.get_child_at_index, range(application.get_child_count()))
        return [child for child in children if child]

    def _titles(self):
        return [child.get_name() for child in self._windows()]

    def window(self, title):
        """The element of the window with a title, nothing where there is none."""
        return next((child for child in self._windows() if child.get_name() == title), None)

    def _active(self, title):
        window = self.window(title)
        return window is not None and has_state(window, Atspi.StateType.ACTIVE)

    def id_of(self, title):
        """The window with a title that is on the display, nothing where there is none."""
        search = ["xdotool", "search", "--onlyvisible", "--all", "--pid", str(self._process.pid), "--name", f"^{title}$"]
        return next(iter(subprocess.run(search, check=False, capture_output=True, text=True).stdout.split()), None)
