#!/usr/bin/env python3
"""Changes one constant, comparison, operator or unit of the calculator at a time and asks whether a test notices.

Usage: tests/mutation.py [COUNT]   how many changes, chosen at random but always alike (default: 200)
Works on a copy of the sources under build/mutation and takes about 15 seconds a change.
"""
import random
import re
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
COPY = ROOT / "build/mutation"
BUILD = COPY / "build"
# What is changed, and the programs whose tests are to notice, the likeliest first.
TARGETS = {
    "engine/*.cpp": ["engine_tests", "console_tests", "rating_tests"],
    "engine/*.h": ["engine_tests", "console_tests"],
    "app/Units.cpp": ["app_tests", "console_tests"],
    "app/NumberDisplay.cpp": ["app_tests", "console_tests"],
    "app/project/ProjectFile.cpp": ["app_tests", "console_tests"],
    "app/project/ProjectItems.cpp": ["app_tests", "console_tests"],
    "app/project/FileNumber.cpp": ["app_tests", "console_tests"],
    "rating/RatingSeries.cpp": ["rating_tests", "console_tests"],
    "rating/RatingColumn.cpp": ["rating_tests", "console_tests"],
}
SLOW = "--gtest_filter=-*Kill*:*Memory*"
CHANGES = [
    (r"(?<![\w.])\d+\.\d+(?:e[-+]?\d+)?\b", lambda text: f"({text} * 1.01 + 1e-9)"),
    (r"(?<![\w.])[1-9]\d*(?![\w.])", lambda text: str(int(text) + 1)),
    (r"(?<![\w.])0(?![\w.])", lambda text: "1"),
    (r" <= ", lambda text: " < "),
    (r" >= ", lambda text: " > "),
    (r" < ", lambda text: " <= "),
    (r" > ", lambda text: " >= "),
    (r" == ", lambda text: " != "),
    (r" != ", lambda text: " == "),
    (r" && ", lambda text: " || "),
    (r" \|\| ", lambda text: " && "),
    (r" \+ ", lambda text: " - "),
    (r" - ", lambda text: " + "),
    (r" \* ", lambda text: " / "),
    (r" / ", lambda text: " * "),
    (r"\bUnits::Length\b", lambda text: "Units::Area"),
    (r"\bUnits::Flow\b", lambda text: "Units::Velocity"),
    (r"\bmin\(", lambda text: "max("),
    (r"\bmax\(", lambda text: "min("),
]
NO_CODE = re.compile(r'//[^\n]*|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|^#[^\n]*|\btemplate <[^>]*>|static_cast<[^>]*>|'
                     r'\bstatic_assert\([^;]*;', re.M)


def mutants():
    """(source, its tests, position, end, new text) of every possible change."""
    for pattern, tests in TARGETS.items():
        for source in sorted((ROOT / "src").glob(pattern)):
            text = source.read_text()
            code = NO_CODE.sub(lambda match: "\x00" * len(match[0]), text)
            for expression, change in CHANGES:
                for match in re.finditer(expression, code):
                    yield source, tests, match.start(), match.end(), change(match[0])


def succeeds(*command, limit=600):
    try:
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=limit).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def builds(*targets):
    return succeeds("ninja", "-C", BUILD, *targets)


def passes(program):
    return succeeds(next(BUILD.rglob(program)), SLOW, "--gtest_brief=1", limit=60)


def survives(tests):
    """Whether all tests pass; None when the change does not even compile."""
    for program in tests:
        if not builds(program):
            return None
        if not passes(program):
            return False
    return True


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 200
    for folder in ["src", "tests", "bench", "fuzz", "examples", "cmake", "docs", "packaging"]:
        shutil.rmtree(COPY / folder, ignore_errors=True)
        shutil.copytree(ROOT / folder, COPY / folder, copy_function=shutil.copyfile)
    shutil.copy(ROOT / "CMakeLists.txt", COPY)
    programs = sorted({program for tests in TARGETS.values() for program in tests})
    configure = ["cmake", "-S", COPY, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                 "-DCMAKE_CXX_FLAGS=-O1 -g0 -D_GLIBCXX_ASSERTIONS", "-DFLUMEWISE_DESKTOP=OFF"]
    if not succeeds(*configure) or not builds(*programs) or not all(map(passes, programs)):
        sys.exit("The tests do not pass as they are")
    found = list(mutants())
    random.Random(20261121).shuffle(found)
    killed, survivors = 0, []
    for source, tests, start, end, changed in found:
        if killed + len(survivors) == count:
            break
        text = source.read_text()
        copy = COPY / source.relative_to(ROOT)
        copy.write_text(text[:start] + changed + text[end:])
        alive = survives(tests)
        copy.write_text(text)
        if alive:
            line = text.count("\n", 0, start)
            survivors.append(f"{source.relative_to(ROOT)}:{line + 1}: "
                             f"{text[start:end].strip()} -> {changed.strip()} in: {text.splitlines()[line].strip()}")
            print("survived:", survivors[-1], flush=True)
        elif alive is not None:
            killed += 1
    print(f"{len(found)} changes possible; {killed} of {killed + len(survivors)} tried were noticed: "
          f"{100 * killed / (killed + len(survivors)):.0f} %")


if __name__ == "__main__":
    main()
