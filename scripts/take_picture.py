#!/usr/bin/env python3
"""Takes a picture of the window with both systems chosen from the shipped catalogues: take_picture.py PROGRAM PICTURE"""

import subprocess
import sys

from quillon_window import SYSTEM_ONE, QuillonWindow, wait_for

SYSTEMS = {
    1: SYSTEM_ONE,
    2: {"coax": ("TIMES MICROWAVE", "LMR-400"), "antenna": ("OPTIBEAM", "OB16-5", "20 Meters")},
}


def has_erp(window, system):
    caption = f"Antenna System ERP, System {system}: "
    return any(name.startswith(caption) and not name.startswith(caption + "0.00 ") for name in window.names())


def choose(window):
    """Chooses both systems, and returns once they are computed."""
    for system, choices in SYSTEMS.items():
        window.choose_system(system, **choices)
        wait_for(f"the ERP of system {system}", lambda: has_erp(window, system), window.names)


def take(window, picture):
    subprocess.run(["maim", "--hidecursor", "--window", window.id, picture], check=True)


def main():
    program, picture = sys.argv[1:]
    with QuillonWindow(program) as window:
        choose(window)
        take(window, picture)
    print(f"A picture of the window with both systems chosen: {picture}")


if __name__ == "__main__":
    main()
