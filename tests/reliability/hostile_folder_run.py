#!/usr/bin/env python3
"""Starts the program in one folder after the other on a display of its own, and writes down how it went, a line of JSON each:
hostile_folder_run.py RESULTS CHOICES FOLDER...
"""

import json
import multiprocessing
import os
import signal
import subprocess
import sys
import time
from pathlib import Path

from hostile_folder_list import FOLDERS
from window_titles import ABOUT, MAIN, SPLASH, TABLE, UNWRITABLE

PATIENCE = 60
# Save, load, print, the editor, the table, the help.
COMMANDS = ["ctrl+s", "ctrl+o", "ctrl+r", "ctrl+m", "ctrl+t", "F1"]
# A hostile document opens no help, so that nobody can wait for it.
MAY_STAY_SHUT = "F1"


class Trouble(Exception):
    """What the program should not do."""


def xdotool(*arguments, check=True):
    done = subprocess.run(["xdotool", *arguments], check=False, capture_output=True, text=True, timeout=PATIENCE)
    if check and done.returncode != 0:
        raise Trouble(f"xdotool {arguments}: {done.stderr.strip()}")
    return done.stdout.strip()


def shown(title):
    return next(iter(xdotool("search", "--onlyvisible", "--name", f"^{title}$", check=False).split()), "")


def active():
    return xdotool("getactivewindow", "getwindowname", check=False)


class Run:
    """One run of the program in one folder."""

    def __init__(self, folder):
        self._began = time.monotonic()
        self._process = subprocess.Popen([folder / "Quillon"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._was_told = False

    def wait_for(self, what, condition, patience=PATIENCE):
        deadline = time.monotonic() + patience
        while time.monotonic() < deadline:
            if self._process.poll() is not None:
                raise Trouble(f"ended with {self._process.returncode} before {what}")
            if found := condition():
                return found
            time.sleep(0.005)
        raise Trouble(f"waited {patience} s for {what}; \"{active()}\" is in front")

    def _splash(self):
        """The splash window; a message that comes before it is answered, once."""
        message = "" if self._was_told else shown(UNWRITABLE)
        if message:
            self._was_told = True
            xdotool("windowactivate", "--sync", message, "key", "Return")
        return shown(SPLASH)

    def start(self):
        """Returns the seconds that the program itself took: to the splash, and from the click on it to the first command's
        window. Nobody waits for the splash's own time."""
        splash = self.wait_for("the splash window", self._splash)
        to_splash = time.monotonic() - self._began
        clicked = time.monotonic()
        xdotool("mousemove", "--window", splash, "20", "20", "click", "1")
        window = self.wait_for("the main window", lambda: shown(MAIN))
        xdotool("windowactivate", "--sync", window)
        self.wait_for("the main window in front", lambda: active() == MAIN)
        xdotool("key", "ctrl+i")
        self.wait_for("its answer to a key", lambda: active() == ABOUT)
        seconds = to_splash + time.monotonic() - clicked
        self._leave()
        return seconds

    def _leave(self):
        """Closes whatever is in front of the main window, messages and dialogs alike. The table has but its button."""
        for _ in range(20):
            front = active()
            if front == MAIN:
                return
            # Once only, and never to the main window: there the same key would end the program.
            if front:
                xdotool("key", "alt+c" if front == TABLE else "Escape")
            self._watch(front)
        self.wait_for("the main window in front again", lambda: active() == MAIN, 5)

    def _watch(self, front):
        """Returns once another window is in front, or after a while."""
        deadline = time.monotonic() + 2
        while active() == front and time.monotonic() < deadline and self._process.poll() is None:
            time.sleep(0.01)

    def give_commands(self):
        """Gives every command that reads the folder. Returns the longest that one was waited for, in seconds."""
        slowest = 0.0
        for key in COMMANDS:
            before = time.monotonic()
            xdotool("key", key)
            try:
                self.wait_for(f"an answer to {key}", lambda: active() not in (MAIN, ""), 1 if key == MAY_STAY_SHUT else PATIENCE)
                slowest = max(slowest, time.monotonic() - before)
            except Trouble:
                if key != MAY_STAY_SHUT or self._process.poll() is not None:
                    raise
            self._leave()
        return slowest

    def memory(self):
        """The most memory that was in use so far, in megabytes."""
        status = Path(f"/proc/{self._process.pid}/status").read_text()
        return next(int(line.split()[1]) / 1024 for line in status.splitlines() if line.startswith("VmHWM:"))

    def close(self):
        xdotool("key", "alt+F4")
        try:
            code = self._process.wait(PATIENCE)
        except subprocess.TimeoutExpired as error:
            raise Trouble("does not close") from error
        if code != 0:
            raise Trouble(f"ended with {code}")

    def end(self):
        """Whatever happened, the process goes."""
        if self._process.poll() is None:
            os.kill(self._process.pid, signal.SIGKILL)
            self._process.wait()


def work(folder):
    """Starts the program, gives its commands by key, closes it."""
    run = Run(folder)
    try:
        figures = {"start": run.start()}
        figures["answer"] = run.give_commands()
        figures["memory"] = run.memory()
        run.close()
        return figures
    finally:
        run.end()


def choose_all(choices, folder):
    """Chooses each maker of the folder once, in the program's own windows. Returns what that took."""
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    done = subprocess.run([choices, folder], check=False, capture_output=True, timeout=5 * PATIENCE, env=environment)
    if done.returncode != 0:
        raise Trouble(f"choosing everything ended with {done.returncode}: {done.stderr[-2000:].decode(errors='replace')}")
    return json.loads(done.stdout.splitlines()[-1])


def try_folder(choices, folder):
    name, _, meanwhile = FOLDERS[int(folder.parent.name)]
    beside = multiprocessing.Process(target=meanwhile, args=(folder,)) if meanwhile else None
    if beside:
        beside.start()
    try:
        return {"name": name, **work(folder), "choosing": choose_all(choices, folder)}
    except (Trouble, subprocess.TimeoutExpired) as trouble:
        return {"name": name, "trouble": str(trouble)}
    finally:
        if beside:
            beside.kill()
            beside.join()


def main():
    results, choices, *folders = map(Path, sys.argv[1:])
    with results.open("a") as file:
        for folder in folders:
            print(json.dumps(try_folder(choices, folder)), file=file, flush=True)


if __name__ == "__main__":
    main()
