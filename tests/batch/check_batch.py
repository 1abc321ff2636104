#!/usr/bin/env python3
"""Holds the batch program to hand work, to the main window and to itself in several processes.

Usage: check_batch.py BATCH CONSOLE EXAMPLES [EMULATOR...]   programs of another system run under an emulator
"""
import csv
import io
import math
import os
import random
import subprocess
import sys
import tempfile
from pathlib import Path

BATCH, CONSOLE, EXAMPLES = (Path(word).resolve() for word in sys.argv[1:4])
EMULATOR = sys.argv[4:]
INPUTS = "Flow Depth ManningN Slope Diameter BaseWidth SideSlopeRight SideSlopeLeft".split()
RESULTS = ("Velocity VelocityHead Area WettedPerimeter HydraulicRadius TopWidth Froude CriticalDepth"
           " CriticalSlope").split()


def run(*arguments, **options):
    return subprocess.run([*EMULATOR, BATCH, *arguments], capture_output=True, text=True, timeout=60, **options)


def rows_of(text):
    return list(csv.DictReader(io.StringIO(text)))


def sheet(name, *rows):
    Path(name).write_text("\n".join(rows) + "\n", encoding="utf-8")
    return name


def same_as_the_window(project):
    """Every number of the record, bit for bit, is what the window computes from the same file."""
    lines = ["start", f"choose {project}", "click mnuFileOpen", *(f"record {name}" for name in INPUTS + RESULTS)]
    answers = subprocess.run([*EMULATOR, CONSOLE], input="\n".join(lines), capture_output=True, text=True, check=True, timeout=60)
    row = rows_of(run("--record-units", project).stdout)[0]
    for name, reply in zip(INPUTS + RESULTS, answers.stdout.splitlines()[3:], strict=True):
        if row[name]:
            assert reply.startswith("d:") or name in INPUTS, (project, name, reply)
            number = float.fromhex(reply[2:]) if reply.startswith("d:") else float(reply[2:])
            assert float(row[name]) == number, (project, name, row[name], reply)


def hand_work():
    """The rectangle b 10 ft, y 2 ft, in feet and in metres, and with walls nearly upright as a survey."""
    head = "UnitsEorM,ChannelType,SolveForFlow,Flow,Depth,Slope,ManningN,BaseWidth,IrregPoints"
    made = run(sheet("hand.csv", head, "0,Rectangular Channel,,,2,.001,0.013,10",
                     "1,Rectangular Channel,True,,0.5,0.001,0.013,3",
                     "0,Irregular Section,,,2,0.001,,,0 2.1 0.013;0.001 0;10.001 0;10.002 2.1"))
    assert made.returncode == 0, made
    feet, metres, surveyed = rows_of(made.stdout)
    flow = 1.486 / 0.013 * 20 * (20 / 14) ** (2 / 3) * math.sqrt(0.001)
    for row in (feet, surveyed):
        assert math.isclose(float(row["Flow"]), flow, rel_tol=1e-3), row
    assert (feet["Area"], feet["WettedPerimeter"], feet["TopWidth"]) == ("20", "14", "10")
    assert math.isclose(float(feet["CriticalDepth"]), (float(feet["Flow"]) ** 2 / 32.2 / 100) ** (1 / 3), rel_tol=1e-3)
    assert math.isclose(float(metres["Flow"]), 1.5 / 0.013 * (1.5 / 4) ** (2 / 3) * math.sqrt(0.001), rel_tol=1e-3)
    assert math.isclose(float(metres["Area"]), 1.5, rel_tol=1e-6)
    assert surveyed["Reason"] == "a surveyed section has no critical slope"
    assert (feet["Slope"], feet["Reason"], feet["Source"]) == ("0.001", "", "hand.csv:2")


def own_row_only():
    """What cannot be read or solved costs its own row, with the reason; the rows beside it are solved."""
    Path("broken.fwd").write_text("damaged", encoding="utf-8")
    good = "Rectangular Channel,50,0.001,0.013,10,,"
    reasons = {
        "Oval Channel,50,0.001,0.013,10,,": "Choose a channel type",
        "Rectangular Channel,,0.001,0.013,10,,": "Flow must be greater than 0",
        "Rectangular Channel,50,steep,0.013,10,,": "Slope must be a number",
        "Circular Channel,500,0.001,0.013,,24,": "the pipe carries at most",
        "Rectangular Channel,50,0.001,0.013,10,,broken.fwd": "items are missing",
        "Rectangular Channel,50,0.001,0.013,10,,gone.fwd": "there is no such file",
        "Rectangular Channel,50,0.001,0.013,10,,,more": "the row is longer than the head",
    }
    rows = [row for bad in reasons for row in (bad, good)]
    made = run(sheet("bad.csv", "ChannelType,Flow,Slope,ManningN,BaseWidth,Diameter,File", *rows), "broken.fwd")
    answers = rows_of(made.stdout)
    assert made.returncode == 1 and len(answers) == len(rows) + 1, made
    for answer, reason in zip(answers[0:-1:2], reasons.values(), strict=True):
        assert reason in answer["Reason"] and not any(answer[name] for name in RESULTS), answer
    for answer in answers[1:-1:2]:
        assert answer["Depth"] == answers[1]["Depth"] != "" and answer["Reason"] == "", answer
    assert answers[-1]["Source"] == "broken.fwd" and "items are missing" in answers[-1]["Reason"]


def same_in_parts():
    """Whoever does the work, and wherever, the sheet is the same; and it can be read again."""
    chance = random.Random(7)
    rows = [f'"Reach ""{i}"", left\nbank",{chance.choice(["Circular Channel", "Trapezoidal Channel"])},'
            f"{i % 2},{chance.uniform(0.1, 90)},{chance.uniform(1e-4, 0.01)},0.015,{chance.uniform(20, 2000)},3,1,2"
            for i in range(100)]
    name = sheet("many – Straße 渠.csv", "ProjName,ChannelType,UnitsEorM,Flow,Slope,ManningN,Diameter,BaseWidth,SideSlopeLeft,"
                 "SideSlopeRight", *rows)
    projects = sorted(EXAMPLES.glob("*.fwd"))
    for options in ([], ["--rating"], ["--record-units", "--rating=Slope,0.001,0.002,0.0005"]):
        whole = run(*options, *projects, name)
        parted = run(*options, "-j", "3", *projects, name)
        assert (whole.stdout, whole.returncode) == (parted.stdout, parted.returncode), options
        parts = [run(*options, f"--part={i}/3", "-j2", *projects, name).stdout for i in (1, 2, 3)]
        assert "".join(parts) == whole.stdout, options
    once = rows_of(run(*projects, name).stdout)
    again = rows_of(run(sheet("again.csv", *run(*projects, name).stdout.splitlines())).stdout)
    assert len(once) == len(again) == 106
    for first, second in zip(once, again, strict=True):
        assert {**first, "Source": ""} == {**second, "Source": ""}


def rated():
    """A rating steps one input, ends at its last value, and counts what has no result."""
    made = rows_of(run("--rating=Depth,0.5,4,0.5", EXAMPLES / "storm-drain.fwd", EXAMPLES / "roadside-ditch.fwd").stdout)
    pipe, ditch = (made[:1], made[1:])
    assert pipe[0]["Reason"] == "Depth is no input of this problem"
    assert [row["Depth"] for row in ditch] == ["0.5", "1", "1.5", "2", "2.5", "3", "3.5", "4"]
    for row in ditch:  # z 4 and 3: A = 3.5 y^2, and Q rises with y^(8/3)
        assert math.isclose(float(row["Area"]), 3.5 * float(row["Depth"]) ** 2, rel_tol=1e-12)
        assert math.isclose(float(row["Flow"]), float(ditch[1]["Flow"]) * float(row["Depth"]) ** (8 / 3), rel_tol=1e-9)
    made = rows_of(run("--rating=Flow,10,60,10", EXAMPLES / "storm-drain.fwd").stdout)
    assert len(made) == 5 and made[-1]["Reason"].startswith("2 of 6 points: "), made


def unusable():
    for arguments in ([], ["--some"], ["gone.csv"], [sheet("typo.csv", "ChanelType,Flow", "a,1")], ["-j", "0", "hand.csv"],
                      ["--part=4/3", "hand.csv"], ["--rating=Depth,1,1,1", "hand.csv"],
                      ["--rating=Area,1,2,1", "hand.csv"], ["-j3", "gone.csv"]):
        made = run(*arguments)
        assert made.returncode == 2 and made.stdout == "" and made.stderr.count("\n") == 1, (arguments, made)
    with open("/dev/full", "w", encoding="utf-8") as full:
        assert subprocess.run([*EMULATOR, BATCH, "hand.csv"], stdout=full, stderr=subprocess.DEVNULL, check=False).returncode == 2
    assert run("--help").stdout.startswith("Usage: flumewise-batch ")


with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    for example in sorted(EXAMPLES.glob("*.fwd")):
        same_as_the_window(example)
    for case in (hand_work, own_row_only, same_in_parts, rated, unusable):
        case()
