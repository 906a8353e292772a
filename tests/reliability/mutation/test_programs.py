"""Builds the tests against a library with one changed source, and runs them where they can harm nothing."""

import json
import os
import pathlib
import re
import resource
import shlex
import subprocess

LIBRARIES = ("engine", "store")  # in the order in which they are linked
SLOW = "*HugeText*:ProfileVectors.*"
# By library: what is run in turn until one notices, the likeliest and quickest first. Program, tests in it.
TESTS = {
    "engine": [("engine", "*"), ("data", "*"), ("store", "*")],
    "store": [("store", f"*:-{SLOW}"), ("data", "*"), ("store", SLOW)],
}
LONGEST_RUN = 45  # s of processor time; the tests take a dozen at most
LONGEST_WAIT = 20 * LONGEST_RUN  # on a busy machine
MOST_MEMORY = 4 << 30

# A changed source may do anything that its names tell it to: it sees the file system read-only, and an empty /tmp.
SEALED = ("mount --make-rprivate / && mount -o remount,bind,ro / && mount -t tmpfs tmpfs /tmp &&"
          " mount -t tmpfs tmpfs /dev/shm && exec \"$@\"")
SEAL = ["unshare", "--mount", *([] if os.geteuid() == 0 else ["--map-root-user"]), "sh", "-c", SEALED, "sh"]


class TestPrograms:
    """The test programs of a built tree, linked anew so that each library can be exchanged for a changed one."""

    def __init__(self, build, folder):
        self.build = pathlib.Path(build).resolve()
        self.folder = pathlib.Path(folder)
        commands = json.loads((self.build / "compile_commands.json").read_text())
        self.commands = {entry["file"]: entry for entry in commands}
        for library in LIBRARIES:
            self.link_library(library, self.folder)
        for name in dict.fromkeys(name for name, _ in TESTS["engine"]):
            self.link_tests(name)

    def objects(self, library):
        return sorted(self.build.glob(f"{library}/CMakeFiles/quillon_{library}.dir/*.o"))

    def link_library(self, library, folder, instead=None):
        """Links a library as a shared one. @param instead: a changed object that stands for the one of its name."""
        objects = [instead if instead and instead.name == object.name else object for object in self.objects(library)]
        below = [f"-lquillon_{name}" for name in LIBRARIES[:LIBRARIES.index(library)]]
        run(["g++", "-shared", "-o", folder / f"libquillon_{library}.so", *objects, f"-L{self.folder}", *below])

    def link_tests(self, name):
        objects = sorted(self.build.glob(f"tests/{name}/CMakeFiles/quillon_{name}_tests.dir/*.o"))
        libraries = [f"-lquillon_{library}" for library in reversed(LIBRARIES)]
        run(["g++", "-o", self.folder / f"{name}_tests", *objects, f"-L{self.folder}", *libraries,
             "-lgtest_main", "-lgmock", "-lgtest"])

    def compile_changed(self, source, text, folder):
        """Compiles a changed source. Returns the object, or nothing when the change is none that a compiler takes."""
        entry = self.commands[str(source)]
        changed = folder / source.name
        changed.write_text(text)
        result = folder / f"{source.name}.o"
        command = re.sub(r" -o \S+ -c \S+$", "", entry["command"])
        command = re.sub(r"(?<= )(-Werror|-W\w[\w-]*|-g\w*)(?= )", "", command)
        # With the library's own checks: a step beyond the end of an array is noticed, whatever lies there.
        flags = ["-w", "-D_GLIBCXX_ASSERTIONS"]
        done = subprocess.run([*shlex.split(command), *flags, "-o", result, "-c", changed], cwd=entry["directory"],
                              capture_output=True, check=False)
        return result if done.returncode == 0 else None

    def notice(self, library, folder):
        """Runs the tests with the libraries of a folder first. Returns the program that fails, if one does."""
        environment = {"PATH": os.environ["PATH"], "LD_LIBRARY_PATH": f"{folder}:{self.folder}"}
        for name, tests in TESTS[library]:
            command = [*SEAL, self.folder / f"{name}_tests", f"--gtest_filter={tests}", "--gtest_fail_fast"]
            try:
                done = subprocess.run(command, env=environment, cwd="/", capture_output=True, check=False,
                                      timeout=LONGEST_WAIT, preexec_fn=set_limits)
            except subprocess.TimeoutExpired:
                return f"{name}, which came to no end"
            if done.returncode != 0:
                return name
        return None


def set_limits():
    resource.setrlimit(resource.RLIMIT_CPU, (LONGEST_RUN, LONGEST_RUN))
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(command):
    subprocess.run(command, check=True)
