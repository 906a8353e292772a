#!/usr/bin/env python3
"""A whole session of the program under strace: session_trace.py PROGRAM

Nothing outside the data folder is written but what is declared here, nothing in it without a command that says so, and no
other machine is asked for anything. Needs a display (on-virtual-display.sh).
"""

import contextlib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from unittest import mock

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[1]
sys.path[:0] = [str(ROOT / "scripts"), str(ROOT / "tests" / "support")]

from private_printer import PrivatePrinter  # noqa: E402
from quillon_window import QuillonWindow, wait_for  # noqa: E402
from session_trace_log import TRACED, TraceLog  # noqa: E402
from window_titles import ABOUT, EDITOR, HELP, LOAD, PRINT, TABLE  # noqa: E402

# Written outside the data folder, with the reason. @ stands for the folder that the session's own home is in, % for the
# one that the desktop gives a session.
OUTSIDE = {
    r"%": "made when it is not there, which it is",
    r"@/home/\.cache/fontconfig(/.*)?": "what is known of the fonts, where the system has not written it down",
}
# Sockets on this machine.
SOCKETS = {
    r"/tmp/\.X11-unix/X\d+": "the display",
    r"/tmp/dbus-.*|.*/at-spi/.*|.*/bus(_\d+)?": "the session bus, and the screen reader's on it",
    r"@/printer/run/cups\.sock": "the print service",
    r"(/var)?/run/nscd/socket": "the name of the user; a computer's name would be asked for over the network next",
}


def declared(path, table, base):
    def here(pattern):
        return pattern.replace("@", re.escape(str(base))).replace("%", re.escape(os.environ["XDG_RUNTIME_DIR"]))

    return any(re.fullmatch(here(pattern), path) for pattern in table)


class Session:
    """The steps of a session: when each began, and the files of the data folder that it may write."""

    def __init__(self):
        self.steps = []

    @contextlib.contextmanager
    def step(self, name, *writes):
        """writes: patterns of names below the data folder, the temporary files beside them included"""
        self.steps.append((time.time(), name, writes))
        yield
        # What is written late still belongs here.
        time.sleep(0.2)

    def step_at(self, when):
        return [step for step in self.steps if step[0] <= when][-1]


def look_around(session, window):
    with session.step("look at windows"):
        for key, title, leave in (("ctrl+t", TABLE, "alt+c"), ("ctrl+i", ABOUT, "Escape"), ("F1", HELP, "Escape"),
                                  ("ctrl+o", LOAD, "Escape"), ("ctrl+m", EDITOR, "Escape")):
            window.press(key)
            window.wait_for_dialog(title)
            window.press(leave)
            window.wait_for_no_dialog()
    with session.step("go outside"):
        for key in ("ctrl+k", "ctrl+l", "ctrl+shift+l"):
            window.press(key)


def save_and_load(session, window, saved):
    with session.step("choose both systems"):
        window.choose_both_systems()
    with session.step("save", r"\.?QuillonSystems\.dat(\.tmp)?"):
        window.save_pair(saved)
    with session.step("load"):
        window.load_pair()


def edit(session, window, file):
    with session.step("open the editor"):
        window.press("ctrl+m")
        window.wait_for_dialog(EDITOR)
    with session.step("add a maker", r"Antennas/ACME\.DAT"):
        window.press("alt+b")
        window.wait_for_focus("New antenna manufacturer", EDITOR)
        window.type("ACME")
        window.press("Return")
        window.wait_for_focus("New antenna model", EDITOR)
    with session.step("add a model", r"Antennas/\.?(ACME\.DAT|ANTENNAS\.ZEP)(\.tmp)?"):
        window.type("BEAM")
        window.press("Return")
        wait_for("the new model", file.read_bytes)
    with session.step("change its gain"):
        window.press("alt+e")
        window.wait_until_usable("20 Meters", EDITOR)
        window.tab_to("20 Meters", EDITOR)
        window.press("space")
        window.tab_to("Gain Figure, 20 Meters", EDITOR)
        window.type("5.15")
    with session.step("save the model", r"Antennas/\.?(ACME\.DAT|ANTENNAS\.ZEP)(\.tmp)?"):
        window.press("alt+s")
        wait_for("the gain", lambda: b"Gain20=52" in file.read_bytes())
    with session.step("close the editor"):
        window.press("Escape")
        window.wait_for_no_dialog()


def print_report(session, window, printer):
    with session.step("print"):
        window.press("ctrl+r")
        window.wait_for_dialog(PRINT)
        window.press("alt+p")
        wait_for("the page", printer.has_caught)
        window.press("Escape")
        window.wait_for_no_dialog()


def traced(base, program):
    """A program that starts the given one under strace: the tracer stands beside it, so that it is the one started."""
    start = base / "start"
    (base / "trace").mkdir()
    start.write_text(f'#!/bin/sh\nexec strace -D -ff -ttt -y -s 4096 -e trace={TRACED} -o "{base}/trace/t" "{program}"\n')
    start.chmod(0o755)
    return start


def run_session(base, folder, printer):
    session = Session()
    with session.step("start"), QuillonWindow(traced(base, folder / "Quillon")) as window:
        look_around(session, window)
        save_and_load(session, window, folder / "QuillonSystems.dat")
        edit(session, window, folder / "Antennas" / "ACME.DAT")
        print_report(session, window, printer)
        with session.step("close"):
            window.press("alt+F4")
            if code := window.wait_for_end():
                print(f"The program ended with {code}")
    return session, window.keys


def findings(base, folder, session, log):
    """What should not be in the trace, by kinds."""
    network = [call.line for call in log.network()]
    sockets = [f"connected to {path}" for path in sorted(log.connected()) if not declared(path, SOCKETS, base)]
    outside, uncalled = [], []
    for call in log.writes():
        _, step, writes = session.step_at(call.time)
        for path in call.paths:
            if path.startswith(f"{folder}/") or path == str(folder):
                name = os.path.relpath(path, folder)
                if not any(re.fullmatch(pattern, name) for pattern in writes):
                    uncalled.append(f"in the step \"{step}\": {call.line}")
            elif not declared(path, OUTSIDE, base):
                outside.append(f"in the step \"{step}\": {call.line}")
    return {"network calls": network, "other sockets": sockets, "writes outside the data folder": outside,
            "writes without a command": uncalled}


def report(keys, session, log, found):
    for kind, lines in found.items():
        for line in lines:
            print(f"{kind}: {line}")
    inside = sum(1 for call in log.writes())
    figures = ", ".join(f"{len(lines)} {kind}" for kind, lines in found.items())
    print(f"session of {keys} keys in {len(session.steps)} steps, {len(log.calls)} calls of which {inside} write: {figures}")
    return not any(found.values()) and inside > 0


def check(base, program):
    folder = base / "program folder"
    subprocess.run([ROOT / "scripts" / "lay-out-program-folder.sh", ROOT / "data", folder], check=True)
    shutil.copy2(program, folder)
    for name in ("home", "tmp", "programs"):
        (base / name).mkdir()
    for name in ("xcalc", "xdg-open"):
        (base / "programs" / name).write_text("#!/bin/sh\n")
        (base / "programs" / name).chmod(0o755)
    with PrivatePrinter(base / "printer") as printer:
        settings = {"HOME": str(base / "home"), "TMPDIR": str(base / "tmp"), "CUPS_SERVER": str(printer.server),
                    "PATH": f"{base}/programs:{os.environ['PATH']}"}
        with mock.patch.dict(os.environ, settings):
            session, keys = run_session(base, folder, printer)
    log = TraceLog(base / "trace")
    return report(keys, session, log, findings(base, folder, session, log))


def main():
    with tempfile.TemporaryDirectory(prefix="quillon-session-", ignore_cleanup_errors=True) as base:
        return 0 if check(Path(base), Path(sys.argv[1]).resolve()) else 1


if __name__ == "__main__":
    sys.exit(main())
