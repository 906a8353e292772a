"""What the tests of the built program have in common: each works a copy of it in a folder of its own."""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "scripts"))

PROGRAM = Path(sys.argv[1]).resolve()

# System One, 14.25 MHz and 100 ft: 0.55 + 0.01 + 2 * 0.1 * (1.3 - 0.55) = 0.71 dB; by the row of 0.7 dB 85.11 W arrive;
# 5.0 dBd are a factor of 3.162.
# System Two, 144.2 MHz by its band: 0.12229 * sqrt(144.2) + 0.00026 * 144.2 = 1.506 dB; by the row of 1.5 dB 70.77 W
# arrive; 12.1 dBd are a factor of 16.22.
BOTH_ERPS = ("Antenna System ERP, System 1: 269.12 W", "Antenna System ERP, System 2: 1147.89 W")


def contents(folder):
    return {path: path.read_bytes() for path in sorted(folder.rglob("*")) if path.is_file()}


class ProgramCase(unittest.TestCase):
    def setUp(self):
        # A copy, with the catalogues as shipped, so that nothing of the build and nothing of a person's is touched.
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name) / "program folder"
        subprocess.run([ROOT / "scripts" / "lay-out-program-folder.sh", ROOT / "data", self.folder], check=True)
        self.program = shutil.copy2(PROGRAM, self.folder)


def run():
    unittest.main(module="__main__", argv=sys.argv[:1], verbosity=2)
