#!/usr/bin/python3 -B
"""Runs the program and a bare window of Qt on a virtual display, a session each, and writes what their keys, starts and
memory took as Google Benchmark writes its results. Understands those of its options that scripts/bench gives.
"""

import argparse
import json
import os
import pathlib
import random
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
BUILD = pathlib.Path.cwd()
KEYS = 120
LONGEST = 60  # s a session may take on a busy machine
FEW, MANY = 5, 1000  # makers of antennas


def program_folder(folder, makers):
    """Lays the program out with made-up makers in place of the shipped ones. Returns its path."""
    subprocess.run([ROOT / "scripts/lay-out-program-folder.sh", ROOT / "data", folder], check=True)
    shutil.rmtree(folder / "Antennas")
    (folder / "Antennas").mkdir()
    for number in range(makers):
        model = f"[MODEL {number}]\r\nGainType=dBi\r\n" + "".join(f"Gain{band}=71\r\n" for band in (10, 15, 20, 40))
        (folder / "Antennas" / f"MAKER {number:04}.DAT").write_text(model, newline="")
    return pathlib.Path(shutil.copy2(BUILD / "program/Quillon", folder))


def programs(folder):
    return {
        "Quillon": program_folder(folder / "few", FEW),
        f"Quillon, {MANY} makers": program_folder(folder / "many", MANY),
        "bare window": BUILD / "bench/quillon_bench_bare",
    }


def watch(program, keys, folder):
    """Runs a program once under watch. Returns what was found."""
    out = folder / "found.json"
    out.unlink(missing_ok=True)
    library = BUILD / "bench/libquillon_bench_watch.so"
    if not library.exists():
        raise FileNotFoundError(library)  # the loader would go on without it
    environment = {**os.environ, "LD_PRELOAD": str(library), "WATCH_OUT": str(out),
                   "WATCH_KEYS": str(keys), "LC_ALL": "C.UTF-8", "XDG_CONFIG_HOME": str(folder),
                   "WATCH_START": repr(time.monotonic())}
    subprocess.run([program], env=environment, check=True, timeout=LONGEST)
    return json.loads(out.read_text())


def percentile(values, share):
    return sorted(values)[min(len(values) - 1, int(len(values) * share))]


def start_figures(found):
    """From the process to the first window painted, and from its click to the main window painted: together."""
    parts = [found["main"]] + ([found["splash"]] if found["has_splash"] else [])
    return {clock: sum(part[clock] for part in parts) for clock in ("cpu_time", "real_time")} | found["memory"]


def key_figures(found):
    """The median key; and as counters the one that 95 % are quicker than, and the most flushes that one has taken."""
    keys = found["keys"]
    figures = {clock: statistics.median(key[clock] for key in keys) for clock in ("cpu_time", "real_time")}
    return figures | {"p95": percentile([key["cpu_time"] for key in keys], 0.95),
                      "flushes": max(key["flushes"] for key in keys)}


# What is measured: keys that are pressed, and what is taken from what was found.
WORKS = {"start": (0, start_figures), "key": (KEYS, key_figures)}


def measure(arguments):
    results = []
    with tempfile.TemporaryDirectory() as folder:
        found = programs(pathlib.Path(folder))
        chosen = [(work, who) for work in WORKS for who in found
                  if re.search(arguments.benchmark_filter, f"{work}/{who}")]
        for repetition in range(arguments.benchmark_repetitions):
            random.shuffle(chosen)
            for work, who in chosen:
                keys, figures = WORKS[work]
                results.append({"name": f"{work}/{who}", "run_name": f"{work}/{who}", "run_type": "iteration",
                                "repetition_index": repetition, "time_unit": "us"}
                               | figures(watch(found[who], keys, pathlib.Path(folder))))
    return results


def on_display():
    """Comes back only when there is a display that nobody sees: runs itself again with one."""
    if "WATCH_DISPLAY" not in os.environ:
        os.environ["WATCH_DISPLAY"] = "1"
        os.execv(ROOT / "scripts/on-virtual-display.sh", ["on-virtual-display.sh", sys.executable, "-B", *sys.argv])


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--benchmark_filter", default=".")
    parser.add_argument("--benchmark_repetitions", type=int, default=3)
    parser.add_argument("--benchmark_out", type=pathlib.Path)
    arguments, _ = parser.parse_known_args()
    on_display()
    text = json.dumps({"benchmarks": measure(arguments)}, indent=1)
    if arguments.benchmark_out:
        arguments.benchmark_out.write_text(text + "\n")
    else:
        print(text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
