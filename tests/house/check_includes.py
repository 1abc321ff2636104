#!/usr/bin/env python3
"""Proves who includes whom: the folders of src only downwards; Qt in the desktop alone.

Usage: check_includes.py ROOT   prints one line for each fault; status 1 when there is any
"""
import re
import sys
from pathlib import Path

# The rooms that each room may include besides itself.
SHARED = ["engine", "notes", "platform", "files", "app"]
KEPT = [*SHARED, "app/project", "app/settings"]
CALCULATOR = [*KEPT, "app/main"]
WINDOWS = [*CALCULATOR, "rating", "section", "working", "print", "help"]
FRONT = [*WINDOWS, "program"]
FLOOR = ["desktop/kit", "desktop/main", "desktop/chart", "desktop/help"]
MAY_INCLUDE = {
    "engine": [],
    "notes": ["engine"],
    "platform": [],
    "files": [],
    "app": ["engine", "notes", "platform", "files"],
    "app/project": SHARED,
    "app/settings": SHARED,
    "app/main": KEPT,
    "section": CALCULATOR,
    "print": CALCULATOR,
    "help": CALCULATOR,
    "rating": ["print", *CALCULATOR],
    "working": ["print", *CALCULATOR],
    "program": WINDOWS,
    "batch": ["rating", "print", *CALCULATOR],
    "desktop/kit": FRONT,
    "desktop/main": ["desktop/kit", *FRONT],
    "desktop/chart": ["desktop/kit", *FRONT],
    "desktop/help": ["desktop/kit", *FRONT],
    "desktop/section": [*FLOOR, *FRONT],
    "desktop/rating": [*FLOOR, *FRONT],
    "desktop/print": [*FLOOR, *FRONT],
    "desktop/working": [*FLOOR, *FRONT],
    "desktop/shell": [*FLOOR, "desktop/section", "desktop/rating", "desktop/print",
                      "desktop/working", *FRONT],
}
WITH_QT = ["src/desktop/", "tests/desktop/", "bench/desktop/"]
QT = re.compile(r"Q[A-Z]|Qt|q[a-z]+\.h$|qcustomplot")
STANDARD = re.compile(r"[a-z_]+")  # headers of the standard library have no suffix
# The one room that may ask the system itself, in sources that are named after it: the standard library cannot flush a
# file to the disk, keep its rights or start a program.
WITH_SYSTEM = "files"
SYSTEMS = {
    "Posix.cpp": {"fcntl.h", "spawn.h", "sys/file.h", "sys/stat.h", "sys/wait.h", "sys/xattr.h", "unistd.h"},
    "Windows.cpp": {"fcntl.h", "io.h", "shlobj.h", "windows.h"},
}
# Besides Qt the desktop has one library, in one source.
WITH_LIBRARY = ("src/desktop/help/HelpFile.cpp", "chm_lib.h")
DIRECTIVE = re.compile(r'^\s*#\s*include\s*(?:<([^>]*)>|"([^"]*)"|(.*))')


def sources(root, folder):
    return sorted(file for file in (root / folder).rglob("*") if file.suffix in (".h", ".cpp"))


def includes(file):
    """(line number, header in <>, header in quotes) of every include; both None when it is neither."""
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
        directive = DIRECTIVE.match(line)
        if directive:
            yield number, directive[1], directive[2]


def room(path):
    """The folder of a path below src: "app/main" of "app/main/frmMain.h"."""
    return path.rpartition("/")[0]


def fault_of_include(place, system, own):
    folder = room(place.removeprefix("src/"))
    if system is None and own is None:
        return "an include names its header in <> or quotes"
    if folder.startswith("desktop") and own is not None and own.endswith(".moc"):
        return None
    if folder.startswith("desktop") and system is not None:
        if QT.match(system) or STANDARD.fullmatch(system) or (place, system) == WITH_LIBRARY:
            return None
        return f"{folder} asks the system through Qt, not <{system}>"
    if system is not None:
        asked = [headers for ending, headers in SYSTEMS.items() if folder == WITH_SYSTEM and place.endswith(ending)]
        if STANDARD.fullmatch(system) or any(system in headers for headers in asked):
            return None
        return f"{folder} stands on the standard library alone, not <{system}>"
    target = room(own)
    if target not in MAY_INCLUDE:
        return f'"{own}" does not begin with a folder of src'
    if target != folder and target not in MAY_INCLUDE[folder]:
        return f"{folder} may not include {target}"
    return None


def faults_of_folders(root):
    for file in sources(root, "src"):
        place = file.relative_to(root)
        folder = room(str(place.relative_to("src")))
        if folder not in MAY_INCLUDE:
            yield f"{place}: no rule says what {folder} may include"
            continue
        for number, system, own in includes(file):
            fault = fault_of_include(str(place), system, own)
            if fault:
                yield f"{place}:{number}: {fault}"


def faults_of_qt(root):
    for folder in ["src", "tests", "bench", "fuzz"]:
        for file in sources(root, folder):
            place = str(file.relative_to(root))
            for number, system, own in includes(file):
                if QT.match(system or own or "") and not place.startswith(tuple(WITH_QT)):
                    yield f"{place}:{number}: Qt belongs to the desktop alone"


def faults(root):
    return [*faults_of_folders(root), *faults_of_qt(root)]


if __name__ == "__main__":
    found = faults(Path(sys.argv[1]))
    print("\n".join(found))
    sys.exit(1 if found else 0)
