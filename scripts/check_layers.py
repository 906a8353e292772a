#!/usr/bin/env python3
"""Checks that no layer sees the layers above it, that the lower ones know no windows, and that includes start at the root.

usage: check_layers.py [--self-test]
"""

import re
import sys
import tempfile
from pathlib import Path

# What the code of each folder may include besides its own headers. The first folder that a path begins with counts.
MAY_SEE = {
    "engine": [],
    "store": ["engine"],
    "ui/platform": ["store", "engine"],
    "ui/widgets": ["ui/platform", "store", "engine"],
    "ui/main": ["ui/widgets", "ui/platform", "store", "engine"],
    "ui/systems": ["ui/widgets", "ui/platform", "store", "engine"],
    "ui/report": ["ui/widgets", "ui/platform", "store", "engine"],
    "ui/editor": ["ui/widgets", "ui/platform", "store", "engine"],
    "ui/table": ["ui/widgets", "ui/platform", "store", "engine"],
    "ui/help": ["ui/widgets", "ui/platform", "store", "engine"],
    "ui/startup": ["ui/widgets", "ui/platform", "store", "engine"],
    "app": ["ui", "store", "engine"],
    "tests": ["app", "ui", "store", "engine"],
    "bench": ["ui", "store", "engine"],
    "fuzz": ["ui", "store", "engine"],
}

# System headers by folder; other folders may include any. The engine is pure C++, the store adds POSIX.
SYSTEM_HEADERS = {
    "engine": (re.compile(r"[a-z_]+"), "the C++ standard library"),
    "store": (re.compile(r"[a-z_]+|([a-z]+/)?[a-z_]+\.h"), "the C++ standard library and POSIX"),
}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
LIBRARY = re.compile(r"\bquillon_([a-z]+)\b")
QT = re.compile(r"\bQt[56]?::|\bQt[56]\b|\bAUTOMOC\b")


def layer_of(path):
    return next((layer for layer in MAY_SEE if path == layer or path.startswith(layer + "/")), None)


def sees(layer, other):
    return other == layer or any(other == seen or other.startswith(seen + "/") for seen in MAY_SEE[layer])


def check_include(root, layer, bracket, header):
    """Returns what is wrong with one include, or nothing."""
    if bracket == "<":
        pattern, named = SYSTEM_HEADERS.get(layer, (None, None))
        if pattern and not pattern.fullmatch(header):
            return f"<{header}>: {layer} includes nothing but {named}"
        return None
    if header.endswith(".moc"):
        return None
    if ".." in header.split("/") or not (root / header).is_file():
        return f'"{header}": no such file from the root of the project'
    other = layer_of(header)
    if other is None or not sees(layer, other):
        return f'"{header}": {layer} must not see {other or "what is in no layer"}'
    return None


def check_source(root, path, layer):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if match := INCLUDE.match(line):
            if wrong := check_include(root, layer, *match.groups()):
                yield f"{path.relative_to(root)}:{number}: {wrong}"


def check_build_file(root, path, layer):
    """Looks at what a folder's libraries link."""
    libraries = {known.rsplit("/", 1)[-1]: known for known in MAY_SEE}
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        where = f"{path.relative_to(root)}:{number}"
        if layer in SYSTEM_HEADERS and QT.search(line):
            yield f"{where}: {layer} is built without Qt"
        if layer == "tests":
            continue
        for name in LIBRARY.findall(line):
            if name in libraries and not sees(layer, libraries[name]):
                yield f"{where}: {layer} must not link quillon_{name}"


def check(root):
    """Returns the violations, one line each, and the number of files looked at."""
    found, count = [], 0
    tops = sorted({layer.split("/")[0] for layer in MAY_SEE})
    for path in sorted(path for top in tops for path in (root / top).rglob("*")):
        name = path.relative_to(root).as_posix()
        is_source = path.suffix in {".h", ".cpp"}
        if not is_source and path.name != "CMakeLists.txt":
            continue
        count += 1
        layer = layer_of(name)
        if layer is None:
            if is_source:
                found.append(f"{name}: its folder is in no layer; name it in {Path(__file__).name}")
        elif is_source:
            found += check_source(root, path, layer)
        else:
            found += check_build_file(root, path, layer)
    return found, count


# (file, line to plant, part of the message; nothing where the line is allowed)
PLANTED = [
    ("engine/a.cpp", '#include "store/file.h"', "engine must not see store"),
    ("engine/a.cpp", "#include <QString>", "engine includes nothing but"),
    ("engine/a.cpp", "#include <QtCore/QString>", "engine includes nothing but"),
    ("engine/a.cpp", "#include <unistd.h>", "engine includes nothing but"),
    ("engine/a.cpp", "#include <vector>", None),
    ("engine/CMakeLists.txt", "target_link_libraries(quillon_engine PRIVATE Qt6::Core)", "without Qt"),
    ("engine/CMakeLists.txt", "target_link_libraries(quillon_engine PRIVATE quillon_store)", "not link quillon_store"),
    ("store/a.cpp", '#include "ui/platform/file.h"', "store must not see ui/platform"),
    ("store/a.cpp", "  #  include <QFile>", "store includes nothing but"),
    ("store/a.cpp", "#include <sys/stat.h>", None),
    ("store/a.cpp", '#include "engine/file.h"', None),
    ("store/CMakeLists.txt", "target_link_libraries(quillon_store PRIVATE Qt6::Core)", "without Qt"),
    ("ui/platform/a.h", '#include "ui/widgets/file.h"', "ui/platform must not see ui/widgets"),
    ("ui/widgets/a.h", '#include "ui/main/file.h"', "ui/widgets must not see ui/main"),
    ("ui/widgets/a.h", "#include <QWidget>", None),
    ("ui/main/a.h", '#include "ui/editor/file.h"', "ui/main must not see ui/editor"),
    ("ui/main/a.h", '#include "app/file.h"', "ui/main must not see app"),
    ("ui/main/a.h", '#include "tests/file.h"', "ui/main must not see tests"),
    ("ui/main/CMakeLists.txt", "target_link_libraries(quillon_main PRIVATE quillon_editor)", "not link quillon_editor"),
    ("ui/editor/a.h", '#include "ui/main/file.h"', "ui/editor must not see ui/main"),
    ("ui/editor/a.h", '#include "ui/table/file.h"', "ui/editor must not see ui/table"),
    ("ui/editor/a.h", '#include "ui/widgets/file.h"', None),
    ("ui/main/a.h", '#include "file.h"', "no such file from the root"),
    ("ui/main/a.h", '#include "../widgets/file.h"', "no such file from the root"),
    ("engine/a.cpp", '#include "engine/../store/file.h"', "no such file from the root"),
    ("ui/other/a.h", "#pragma once", "its folder is in no layer"),
    ("app/a.cpp", '#include "ui/main/file.h"', None),
    ("tests/ui/a.cpp", '#include "ui/main/file.h"', None),
]


def self_test():
    failed = 0
    for name, line, message in PLANTED:
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            for layer in MAY_SEE:
                (root / layer).mkdir(parents=True, exist_ok=True)
                (root / layer / "file.h").touch()
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(line + "\n", encoding="utf-8")
            found, _ = check(root)
        as_wanted = len(found) == 1 and message in found[0] if message else not found
        if not as_wanted:
            failed += 1
            print(f"{name}: {line}\n    wanted: {message}\n    found: {found}")
    print(f"Layer check on {len(PLANTED)} planted lines: {failed} wrong")
    return failed


def main():
    if sys.argv[1:] == ["--self-test"]:
        return 1 if self_test() else 0
    found, count = check(Path(__file__).resolve().parent.parent)
    print("\n".join(found + [f"Layers of {count} files: {len(found)} violations"]))
    return 1 if found or not count else 0


if __name__ == "__main__":
    sys.exit(main())
