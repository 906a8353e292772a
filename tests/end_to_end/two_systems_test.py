#!/usr/bin/env python3
"""The built program, worked by keyboard and read by a screen reader: two_systems_test.py PROGRAM"""

import collections
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from quillon_window import PATIENCE, TITLE, QuillonWindow  # noqa: E402

PROGRAM = Path(sys.argv[1]).resolve()


def contents(folder):
    return {path: path.read_bytes() for path in sorted(folder.rglob("*")) if path.is_file()}


class TwoSystems(unittest.TestCase):
    def setUp(self):
        # A copy, with the catalogues as shipped, so that nothing of the build and nothing of a person's is touched.
        data = Path(__file__).resolve().parents[2] / "data"
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name) / "program folder"
        lay_out = data.parent / "scripts" / "lay-out-program-folder.sh"
        subprocess.run([lay_out, data, self.folder], check=True)
        self.program = shutil.copy2(PROGRAM, self.folder)

    def test_choosing_both_systems_shows_their_results(self):
        before = contents(self.folder)
        with QuillonWindow(self.program) as window:
            # 14.25 MHz, 100 ft: 0.55 + 0.01 + 2 * 0.1 * (1.3 - 0.55) = 0.71 dB; by the row of 0.7 dB 85.11 W arrive;
            # 5.0 dBd are a factor of 3.162. Two connectors take 0.01304 dB.
            window.choose_system(1, coax=("BELDEN", "8267 RG-213"), antenna=("HY-GAIN", "TH7DX", "20 Meters"))
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
            # The band brings 144.2 MHz: 0.12229 * sqrt(144.2) + 0.00026 * 144.2 = 1.506 dB; by the row of 1.5 dB
            # 70.77 W arrive; 12.1 dBd are a factor of 16.22. The connectors keep their loss at 14.25 MHz.
            window.choose_system(2, coax=("TIMES MICROWAVE", "LMR-400"), antenna=("M2", "2M9", "2 Meters"))
            window.wait_for_names(
                "Coax Loss in dB, System 2: 1.51 dB",
                "Coax Power Loss, System 2: 29.23 W",
                "Antenna Feedpoint Power, System 2: 70.77 W",
                "Antenna Gain in dBd, System 2: 12.10 dBd",
                "Antenna Power Gain, System 2: 1077.12 W",
                "Antenna System Gain in dB, System 2: 10.58 dB",
                "Antenna System ERP, System 2: 1147.89 W",
                "Antenna System ERP, System 1: 269.12 W",
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
            shown = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", TITLE],
                                   capture_output=True, text=True, timeout=PATIENCE, check=False)
            self.assertEqual(shown.stdout.split(), [window.id])
            window.wait_for_names("Antenna System ERP, System 1: 0.00 W")

    def test_close_box_ends_the_program(self):
        with QuillonWindow(self.program) as window:
            window.press("alt+F4")
            self.assertEqual(window.wait_for_end(), 0)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
