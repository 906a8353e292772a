#!/usr/bin/env python3
"""How the built program begins, and that it ends with its window: start_up_test.py PROGRAM"""

import subprocess
import time

from program_case import ProgramCase, run
from quillon_window import PATIENCE, QuillonWindow, wait_for
from window_titles import LOAD, MAIN, SPLASH

BOTH = (MAIN, SPLASH)


class StartingProgram(QuillonWindow):
    """The program from its first moment on; nobody touches the splash window."""

    def __init__(self, program):
        self.began = time.monotonic()
        self._start(program)

    def on_display(self):
        # In the reverse order of their coming and going, so that no change in between puts both on the display.
        return tuple(title for title in BOTH if self.id_of(title))

    def watch_until(self, last):
        """Returns what was on the display, each change once, until it was the given."""
        seen = []

        def look():
            now = self.on_display()
            if seen[-1:] != [now]:
                seen.append(now)
            return now == last

        wait_for(f"{last} on the display", look, lambda: f"after {seen}")
        return [windows for windows in seen if windows]

    def click(self, window):
        self._xdotool("mousemove", "--window", window, "20", "20", "click", "1")

    def wait_for_keyboard(self):
        """Returns once the main window has the keyboard."""
        wait_for("the program on the accessibility bus", self._application)
        self.wait_for_no_dialog()

    def elapsed(self):
        return time.monotonic() - self.began


class StartUp(ProgramCase):
    def test_left_alone_the_main_window_comes_and_then_the_splash_goes(self):
        with StartingProgram(self.program) as start:
            self.assertEqual(start.watch_until(BOTH), [(SPLASH,), BOTH])
            self.assertGreaterEqual(start.elapsed(), 2.5)
            start.wait_for_keyboard()
            start.watch_until((MAIN,))
            self.assertGreaterEqual(start.elapsed(), 5)
            start.wait_for_keyboard()

    def test_a_click_opens_the_main_window_in_place_of_the_splash(self):
        with StartingProgram(self.program) as start:
            splash = wait_for("the splash window", lambda: start.id_of(SPLASH))
            start.click(splash)
            self.assertNotIn(BOTH, start.watch_until((MAIN,)))
            start.wait_for_keyboard()

    def test_keys_are_the_main_windows_while_the_splash_is_still_there_and_no_dialog_stands_behind_it(self):
        with StartingProgram(self.program) as start:
            start.watch_until(BOTH)
            start.wait_for_keyboard()
            start.press("ctrl+o")
            start.wait_for_dialog(LOAD)
            self.assertIsNone(start.id_of(SPLASH))
            start.press("Escape")
            start.wait_for_no_dialog()

    def test_closing_the_main_window_ends_the_program_with_the_splash(self):
        with StartingProgram(self.program) as start:
            start.watch_until(BOTH)
            start.wait_for_keyboard()
            start.press("alt+F4")
            self.assertEqual(start.wait_for_end(), 0)

    def test_a_second_copy_ends_before_it_shows_anything(self):
        with StartingProgram(self.program) as start:
            splash = wait_for("the splash window", lambda: start.id_of(SPLASH))
            second = subprocess.run([self.program], capture_output=True, timeout=PATIENCE, check=False)
            self.assertEqual((second.returncode, second.stdout), (0, b""))
            shown = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{SPLASH}$"],
                                   capture_output=True, text=True, timeout=PATIENCE, check=False)
            self.assertLessEqual(set(shown.stdout.split()), {splash})


if __name__ == "__main__":
    run()
