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
