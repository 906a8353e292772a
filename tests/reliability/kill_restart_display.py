"""A display that nobody sees, read and typed into through the X library itself: a look or a key takes microseconds, where
starting a tool for it takes longer than the program takes to start.
"""

import contextlib
import ctypes
import os
import subprocess
import tempfile

PATIENCE = 60  # seconds
VIEWABLE = 2

Window = ctypes.c_ulong


class Attributes(ctypes.Structure):
    """XWindowAttributes; only the state of the mapping is read."""

    _fields_ = [("place", ctypes.c_int * 4), ("widths", ctypes.c_int * 2), ("visual", ctypes.c_void_p), ("root", Window),
                ("kinds", ctypes.c_int * 4), ("planes", ctypes.c_ulong * 2), ("save_under", ctypes.c_int),
                ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int), ("map_state", ctypes.c_int),
                ("rest", ctypes.c_long * 16)]


X = ctypes.CDLL("libX11.so.6")
TEST = ctypes.CDLL("libXtst.so.6")
ERROR_HANDLER = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
# A window that goes away while it is looked at is an error of the protocol, which would end this process.
IGNORE_ERRORS = ERROR_HANDLER(lambda _display, _error: 0)

X.XOpenDisplay.restype = ctypes.c_void_p
X.XDefaultRootWindow.restype = Window
X.XStringToKeysym.restype = ctypes.c_ulong


class Display:
    """A connection to a display."""

    def __init__(self, name):
        X.XSetErrorHandler(IGNORE_ERRORS)
        self._display = ctypes.c_void_p(X.XOpenDisplay(name.encode()))
        if not self._display:
            raise OSError(f"no display {name}")
        self._root = X.XDefaultRootWindow(self._display)
        self._last_keys = ""

    def _children(self, window):
        root, parent, children, count = Window(), Window(), ctypes.POINTER(Window)(), ctypes.c_uint()
        if not X.XQueryTree(self._display, Window(window), ctypes.byref(root), ctypes.byref(parent),
                            ctypes.byref(children), ctypes.byref(count)):
            return []
        found = children[:count.value]
        if children:
            X.XFree(children)
        return found

    def _title(self, window):
        text = ctypes.c_char_p()
        if not X.XFetchName(self._display, Window(window), ctypes.byref(text)) or not text.value:
            return None
        title = text.value.decode("utf-8", "replace")
        X.XFree(text)
        return title

    def _is_visible(self, window):
        attributes = Attributes()
        return bool(X.XGetWindowAttributes(self._display, Window(window), ctypes.byref(attributes))) and \
            attributes.map_state == VIEWABLE

    def titles(self):
        """Titles of the windows on the display, the lowest first: a window manager's frames lie around them."""
        windows = [inner for outer in self._children(self._root) for inner in [outer, *self._children(outer)]]
        return [title for window in windows if (title := self._title(window)) and self._is_visible(window)]

    def focused_window(self):
        """The window that has the keyboard, 0 when none has it."""
        window, revert = Window(), ctypes.c_int()
        X.XGetInputFocus(self._display, ctypes.byref(window), ctypes.byref(revert))
        return window.value if window.value > 1 else 0

    def focused(self):
        """Title of the window that has the keyboard."""
        window = self.focused_window()
        return self._title(window) if window else None

    def press(self, keys):
        """Presses a key, with others held: "Return", "Control_L s"."""
        # With the time stamp of its own release a key would be one that repeats itself.
        pause = 2 if keys == self._last_keys else 0  # ms
        self._last_keys = keys
        codes = [X.XKeysymToKeycode(self._display, ctypes.c_ulong(X.XStringToKeysym(key.encode()))) for key in keys.split()]
        for code in codes:
            TEST.XTestFakeKeyEvent(self._display, code, 1, ctypes.c_ulong(pause))
        for code in reversed(codes):
            TEST.XTestFakeKeyEvent(self._display, code, 0, ctypes.c_ulong(0))
        X.XFlush(self._display)

    def type(self, text):
        """Types small letters and digits."""
        for character in text:
            self.press(character)


@contextlib.contextmanager
def display():
    """A display with a window manager of its own; its name."""
    with tempfile.TemporaryDirectory() as work:
        read, write = os.pipe()
        server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x800x24", "-nolisten", "tcp",
                                   "-noreset"], pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        try:
            with open(read, encoding="ascii") as number:
                name = f":{int(number.readline())}"
            settings = {**os.environ, "DISPLAY": name, "XDG_CONFIG_HOME": work}
            manager = subprocess.Popen(["openbox"], env=settings, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            try:
                yield name
            finally:
                manager.terminate()
                manager.wait(PATIENCE)
        finally:
            server.terminate()
            server.wait(PATIENCE)
