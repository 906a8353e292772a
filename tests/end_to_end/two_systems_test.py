#!/usr/bin/env python3
"""The built program, worked by keyboard and read by a screen reader: two_systems_test.py PROGRAM"""

import collections
import subprocess

from program_case import ProgramCase, contents, run
from quillon_window import BOTH_ERPS, PATIENCE, SYSTEM_ONE, SYSTEM_TWO, QuillonWindow
from window_titles import MAIN


class TwoSystems(ProgramCase):
    def test_choosing_both_systems_shows_their_results(self):
        before = contents(self.folder)
        with QuillonWindow(self.program) as window:
            window.choose_system(1, **SYSTEM_ONE)
            # Two connectors take 0.01304 dB.
            window.wait_for_names(
                "Coax Loss in dB, System 1: 0.71 dB",
                "Coax Power Loss, System 1: 14.89 W",
                "Antenna Feedpoint Power, System 1: 85.11 W",
                "Antenna Gain in dBd, System 1: 5.00 dBd",
                "Antenna Power Gain, System 1: 184.01 W",
                "Antenna System Gain in dB, System 1: 4.28 dB",
                "Antenna System ERP, System 1: 269.12 W",
                "Antenna System ERP, System 2: 0.00 W",
            )
            window.choose_system(2, **SYSTEM_TWO)
            # The connectors keep their loss at 14.25 MHz.
            window.wait_for_names(
                "Coax Loss in dB, System 2: 1.51 dB",
                "Coax Power Loss, System 2: 29.23 W",
                "Antenna Feedpoint Power, System 2: 70.77 W",
                "Antenna Gain in dBd, System 2: 12.10 dBd",
                "Antenna Power Gain, System 2: 1077.12 W",
                "Antenna System Gain in dB, System 2: 10.58 dB",
                *BOTH_ERPS,
            )
            # System 1 leads in the three rows of coax and feed point, System 2 in the four of antenna, gain and ERP; the
            # two rows of the VSWR are equal, with a marker on either side.
            spoken = collections.Counter(window.names())
            self.assertEqual(
                {text: spoken[text] for text in ("System 1 better", "System 2 better", "equal")},
                {"System 1 better": 3, "System 2 better": 4, "equal": 4},
            )
        self.assertEqual(contents(self.folder), before, "choosing writes no file")

    def test_second_copy_ends_silently_and_leaves_the_first_alone(self):
        with QuillonWindow(self.program) as window:
            second = subprocess.run([self.program], capture_output=True, timeout=PATIENCE, check=False)
            self.assertEqual((second.returncode, second.stdout), (0, b""))
            shown = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", MAIN],
                                   capture_output=True, text=True, timeout=PATIENCE, check=False)
            self.assertEqual(shown.stdout.split(), [window.id])
            window.wait_for_names("Antenna System ERP, System 1: 0.00 W")

    def test_close_box_ends_the_program(self):
        with QuillonWindow(self.program) as window:
            window.press("alt+F4")
            self.assertEqual(window.wait_for_end(), 0)


if __name__ == "__main__":
    run()
