#!/usr/bin/env python3
"""The launcher killed at each of its steps, or with each of them failing: every file is wholly the old or wholly the new one,
and the next start makes all good. In place of the system's tools stand others that count the steps."""

import shutil
import sys
import unittest

from launcher_case import FIRST, PROGRAM, SECOND, LauncherCase, contents

TOOLS = ("cp", "mkdir", "mv", "rm", "sha256sum", "sync")

# The step that goes wrong is killed after it did its work, or, of a copy, with a part of it done; or it fails. A killed one
# takes its whole group of processes along. Nothing here is to outlast the machine, so that nobody waits for a disk.
TOOL = """#!/bin/bash
read -r at way <"{work}/plan"
tool=${{0##*/}}
echo "$tool" >>"{work}/steps"
mapfile -t steps <"{work}/steps"
work() {{ if [[ $tool != sync ]]; then "/usr/bin/$tool" "$@"; fi; }}
if [[ ${{#steps[@]}} -ne $at ]]; then work "$@"; exit; fi
if [[ $way == after ]]; then work "$@"; fi
if [[ $way == half || $way == fail ]] && [[ $tool == cp ]]; then head --bytes 3 "${{@: -2:1}}" >"${{@: -1}}"; fi
if [[ $way == fail ]]; then exit 1; fi
kill -KILL 0
"""

THIRD = {name: text.replace("second", "third") for name, text in SECOND.items()}


def whole(version, files, **mine):
    """The contents of a folder that was laid out."""
    texts = {**files, "Quillon": PROGRAM.format(version=version)}
    return {name: text.encode() for name, text in {**texts, **mine}.items()}


def without_deleted(files):
    return {name: text for name, text in files.items() if name != "Antennas/DELETED.DAT"}


class Interrupted(LauncherCase):
    MINE = {"Antennas/CHANGED.DAT": "mine"}

    def setUp(self):
        super().setUp()
        self.tools = self.work / "tools"
        self.tools.mkdir()
        for name in TOOLS:
            path = self.tools / name
            path.write_text(TOOL.format(work=self.work))
            path.chmod(0o755)
        self.plan(0, "-")

    def environment(self, **changes):
        return super().environment(**changes, PATH=f"{self.tools}:/usr/bin:/bin")

    def plan(self, at, way):
        (self.work / "plan").write_text(f"{at} {way}\n")
        (self.work / "steps").write_text("")

    def steps_of(self, begin):
        """The tools that a launch from the beginning calls, in order."""
        begin()
        self.plan(0, "-")
        self.launch()
        return (self.work / "steps").read_text().split()

    def interrupt(self, at, way):
        self.plan(at, way)
        self.launch(prefix=("setsid", "--wait"))
        self.plan(0, "-")

    def expect_whole(self, wholes, described):
        for name, text in contents(self.folder).items():
            if ".laid-out.new" not in name:
                self.assertIn(text, [files.get(name) for files in wholes], f"{name} {described}")

    def sweep(self, begin, wholes, end, ways=("half", "fail", "after")):
        """Does something wrong at each step in turn, each time from the beginning."""
        steps = self.steps_of(begin)
        self.assertGreater(len(steps), 10)
        for way in ways:
            for at, tool in enumerate(steps, 1):
                if way != "half" or tool == "cp":
                    begin()
                    self.interrupt(at, way)
                    self.expect_whole(wholes, f"with step {at}, {tool}, {way}")
                    end(f"with step {at}, {tool}, {way}")

    def expect_after_start(self, version, final, described):
        self.start(version)
        self.assertEqual(contents(self.folder), final, described)

    def test_first_start(self):
        first = whole("first", FIRST)
        self.sweep(lambda: shutil.rmtree(self.folder, ignore_errors=True), [first],
                   lambda described: self.expect_after_start("first", first, described))

    def lay_out_first_and_install_second(self):
        """Returns what makes the folder again as it is now: a person's, of the first version."""
        self.start("first")
        for name, text in self.MINE.items():
            self.write(name, text)
        (self.folder / "Antennas/DELETED.DAT").unlink()
        self.system.install("second", SECOND)
        saved = self.work / "saved"
        shutil.copytree(self.folder, saved)

        def begin():
            shutil.rmtree(self.folder)
            shutil.copytree(saved, self.folder)

        return begin

    def test_upgrade(self):
        begin = self.lay_out_first_and_install_second()
        old, new = whole("first", FIRST, **self.MINE), whole("second", SECOND, **self.MINE)
        self.sweep(begin, [old, new],
                   lambda described: self.expect_after_start("second", without_deleted(new), described))

    def test_upgrade_over_an_upgrade_that_was_killed(self):
        """A file that the killed one had brought is not taken for somebody's."""
        again = self.lay_out_first_and_install_second()
        old, new = whole("first", FIRST, **self.MINE), whole("second", SECOND, **self.MINE)
        final = without_deleted(whole("third", THIRD, **self.MINE))

        def begin():
            self.system.install("second", SECOND)
            again()

        def end(described):
            self.system.install("third", THIRD)
            self.expect_after_start("third", final, described)

        self.sweep(begin, [old, new], end, ways=("after",))


if __name__ == "__main__":
    sys.dont_write_bytecode = True
    unittest.main(verbosity=2)
