"""Saves in the windows, by keys, where nothing can be written and where there is room again."""

import subprocess
import tempfile

from full_disk_places import FullDisk, NoInodes, ReadOnly
from kill_restart_display import Display, display
from kill_restart_files import FIRST_PAIR, MAKER_STATES, MODEL, SYSTEMS, first_systems, parse
from kill_restart_session import ROOT, NotSeen, Session, settings_for
from window_titles import CLOSING, EDITOR, MAIN, SAVE, UPDATE

MAKER = "aaa"  # the first of the list
POWER = "250"
NEW_PAIR = "newpair"
NEW_MAKER = "newmaker"
NEW_MODEL = "dish"


class Windows(Session):
    """A session of which nothing is taken for granted: what the user is told is told by a window."""

    _editor = 0  # the window of the editor

    def answer_editor(self):
        """Waits for a message of the editor, which bears the editor's title, and closes it."""
        self.wait_until(f"a message titled {EDITOR}", lambda: self._is_message(self._screen.focused_window()))
        self.press("Return")
        self.wait_until("the editor", lambda: self._screen.focused_window() == self._editor)

    def _is_message(self, window):
        return window not in (0, self._editor) and self._screen.focused() == EDITOR

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
        self._editor = self._screen.focused_window()

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


def lay_out(folder, program):
    """The program as it is installed, with a pair to begin with and a small maker."""
    subprocess.run([ROOT / "scripts" / "lay-out-program-folder.sh", ROOT / "data", folder], check=True)
    subprocess.run(["strip", "-o", folder / program.name, program], check=True)
    (folder / SYSTEMS).write_bytes(first_systems())
    (folder / "Antennas" / f"{MAKER}.DAT").write_bytes(MAKER_STATES[2])


def data_of(folder):
    """All files but the program, which is large and cannot change while it runs."""
    return {path: path.read_bytes() for path in folder.rglob("*") if path.is_file() and path.name != "Quillon"}


def value(file, section, key):
    return (parse(file.read_bytes()) or {}).get(section, {}).get(key)


def saves(folder):
    """What can be saved: name, how, and whether it stands in the file."""
    systems, maker = folder / SYSTEMS, folder / "Antennas" / f"{MAKER}.DAT"
    return (
        ("save over", lambda windows: windows.save(FIRST_PAIR, True),
         lambda: value(systems, FIRST_PAIR, "System1XmitPower") == POWER),
        ("save new", lambda windows: windows.save(NEW_PAIR, False),
         lambda: value(systems, NEW_PAIR, "System1XmitPower") == POWER),
        ("add maker", Windows.add_maker, (folder / "Antennas" / f"{NEW_MAKER}.DAT").exists),
        ("add model", Windows.add_model, lambda: value(maker, NEW_MODEL, "GainType") == "dBd"),
        ("save bands", Windows.save_bands, lambda: value(maker, MODEL, "Gain160") == "0"),
    )


def is_in_editor(name):
    return name not in ("save over", "save new")


def fail(windows, name, save):
    """Saves in vain. Returns whether the user is told."""
    if not is_in_editor(name):
        save(windows)
        return windows.asks_when_closed()
    windows.open_editor()
    save(windows)
    windows.answer_editor()
    windows.leave_editor()
    return True


def succeed(windows, name, save):
    if is_in_editor(name):
        windows.open_editor()
        save(windows)
        windows.leave_editor()
    else:
        save(windows)


def try_windows(place, windows):
    """All saves in one run, first in vain, then with room. Yields what each was and what is wrong."""
    windows.start()
    windows.load()
    windows.set_power(POWER)
    before = data_of(place.folder)
    place.spoil()
    for name, save, _ in saves(place.folder):
        if (place.name, name) == (FullDisk.name, "add maker"):
            continue  # an empty file takes no room
        findings = [] if fail(windows, name, save) else ["nothing told"]
        if data_of(place.folder) != before:
            findings.append("changed files")
        yield f"{place.name}, {name}", findings
    place.relieve()
    for name, save, stands in saves(place.folder):
        try:
            succeed(windows, name, save)
        except NotSeen as missing:
            raise NotSeen(f"{place.name} relieved, {name}: {missing}") from missing
        yield f"{place.name} relieved, {name}", [] if stands() else ["no success when there is room again"]


def work_windows(build, work):
    """The saves of the windows in every place. Yields what each was and what is wrong."""
    program = build / "program" / "Quillon"
    with display() as name, tempfile.TemporaryDirectory(prefix="quillon-full-home-") as home:
        screen = Display(name)
        for kind in (FullDisk, NoInodes, ReadOnly):
            with kind(work / "disk").mounted() as place:
                lay_out(place.folder, program)
                windows = Windows(screen, place.folder / program.name, settings_for(name, home))
                try:
                    yield from try_windows(place, windows)
                except NotSeen as missing:
                    yield place.name, [str(missing)]
                finally:
                    windows.kill()
