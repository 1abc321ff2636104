#!/usr/bin/env python3
"""Solves the same problems by chance with the batch program of this system and with that of Windows.

What they say agrees to the letter, and their numbers within the bound that the manual names.
Usage: compare_numbers.py NATIVE WINDOWS EMULATOR...   COUNT in the environment: so many problems, 5000 by default;
status 77 where NATIVE is not built
"""
import csv
import math
import os
import random
import subprocess
import sys
import tempfile
from pathlib import Path

NATIVE, WINDOWS = (Path(word).resolve() for word in sys.argv[1:3])
HEAD = "ChannelType,Flow,Depth,Slope,ManningN,Diameter,BaseWidth,SideSlopeLeft,SideSlopeRight,IrregPoints"
KINDS = ["Rectangular Channel", "Triangular Channel", "Trapezoidal Channel", "Circular Channel", "Irregular Section"]
# The largest relative difference: that of a pipe is the greater the less water is in it, as its area is then the small
# difference of an angle and its sine.
PRISM, PIPE = 1e-15, 4e-13

chance = random.Random(1)


def any_size(low, high):
    return math.exp(chance.uniform(math.log(low), math.log(high)))


def survey():
    count = chance.randint(5, 30)
    points = [(5 * i, 30 * abs(2 * i / (count - 1) - 1) ** 2 + chance.uniform(0, 2)) for i in range(count)]
    points[0], points[-1] = (0, 60), (points[-1][0], 60)
    return ";".join(f"{x} {z:.2f}" + (f" {chance.uniform(0.015, 0.1):.4f}" if i % 7 == 0 else "")
                    for i, (x, z) in enumerate(points))


def problem():
    kind = chance.choice(KINDS)
    diameter = chance.uniform(4, 144)
    flow, depth = any_size(0.01, 3000), any_size(0.05, 20)
    if kind == "Circular Channel":
        flow, depth = any_size(0.01, 10), diameter / 12 * any_size(0.001, 1)
    if kind == "Irregular Section":
        depth = chance.uniform(3, 40)
    known = (flow, "") if chance.random() < 0.5 else ("", depth)
    return [kind, *known, any_size(1e-5, 0.3), chance.uniform(0.008, 0.15), diameter, any_size(0.3, 100),
            chance.uniform(0, 5), chance.uniform(0, 5), survey() if kind == "Irregular Section" else ""]


def solved(*command):
    made = subprocess.run([*command, "--record-units", "problems.csv"], capture_output=True, text=True, timeout=300)
    assert made.returncode in (0, 1) and made.stderr == "", made.stderr
    return list(csv.DictReader(made.stdout.splitlines()))


def compare():
    differ, worst = 0, {}
    native, windows = solved(NATIVE), solved(*sys.argv[3:], WINDOWS)
    for ours, theirs in zip(native, windows, strict=True):
        differ += ours != theirs
        for name in (name for name in ours if ours[name] != theirs[name]):
            number = float(ours[name])  # a text must agree
            key = (ours["ChannelType"], name)
            worst[key] = max(worst.get(key, 0), abs(float(theirs[name]) - number) / abs(number))
    print(f"{differ} of {len(native)} answers differ; the largest relative difference of each number:")
    for (kind, name), most in sorted(worst.items()):
        print(f"{most:8.1e}  {kind}, {name}")
    assert sum(row["Reason"] == "" for row in native) > len(native) / 2
    assert all(most <= (PIPE if kind == "Circular Channel" else PRISM) for (kind, _), most in worst.items())


if not NATIVE.exists():
    print(f"{NATIVE} is not built")
    sys.exit(77)
with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    with open("problems.csv", "w", encoding="utf-8", newline="") as sheet:
        csv.writer(sheet).writerows([HEAD.split(","), *(problem() for _ in range(int(os.environ.get("COUNT", 5000))))])
    compare()
