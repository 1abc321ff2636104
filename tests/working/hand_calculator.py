#!/usr/bin/env python3
"""Checks every line of a working as a reader does: computes with the numbers put in and compares the last digit but one.

Usage: hand_calculator.py CONSOLE   types problems by chance into the console, in both unit systems; status 1 and one
line for each fault
"""
import math
import random
import re
import subprocess
import sys

NUMBER = r"-?(?:\d[\d,]*\.?\d*|\.\d+)(?:e[-+]?\d+)?"
WORDS = {"sqrt": math.sqrt, "arccos": math.acos, "sin": math.sin}


def computed(numbers):
    """The value of "2 × √(3 × (6.0000 - 3))"; None where it is no formula."""
    python = numbers.replace(",", "").replace("×", "*").replace("²", "**2").replace("^", "**")
    python = re.sub(r"√(?:\(|(" + NUMBER + "))", lambda m: f"sqrt({m[1]})" if m[1] else "sqrt(", python)
    python = re.sub(r"sin (" + NUMBER + ")", r"sin(\1)", python)
    if re.search(r"[A-Za-zθπτγν]", re.sub(r"sqrt|arccos|sin|(?<=\d)e(?=[-+\d])", "", python)):
        return None
    return eval(python, {"__builtins__": {}}, WORDS)


def faults(text):
    checked = 0
    for line in text.split("\n"):
        if re.search(r"\bnan\b|\binf\b|= *$|=  ", line):
            yield f"no number: {line}"
        parts = line.split(" = ")
        if len(parts) < 3 or not re.match(NUMBER, parts[-1]):
            continue
        value = computed(parts[-2])
        if value is None:
            continue
        checked += 1
        shown = float(re.match(NUMBER, parts[-1])[0].replace(",", ""))
        unit = 10 ** (math.floor(math.log10(abs(shown))) - 4) if shown else 1e-9
        if abs(value - shown) > 1.01 * unit:
            yield f"{value}: {line}"
    if checked < 8:
        yield f"only {checked} lines can be computed:\n{text}"


def problem(chance):
    types = ["Rect", "Triangular", "Trap", "Circular", "Irreg"]
    kind = chance.choice(types)
    for_flow = chance.random() < 0.5
    lines = ["start", "click mnuOptionsUnits" + chance.choice(["English", "Metric"]),
             "click mnuOptions" + kind, "click mnuSolveFor" + ("Flow" if for_flow else "Depth")]

    def put(box, low, high):
        lines.append(f"type {box} {math.exp(chance.uniform(math.log(low), math.log(high))):.{chance.randint(2, 5)}g}")

    put("tbSlope", 1e-5, 0.3)
    if kind != "Irreg":
        put("tbMann", 0.005, 0.4)
    if kind in ("Rect", "Trap"):
        put("tbBaseWidth", 0.1, 200)
    if kind in ("Triangular", "Trap"):
        put("tbSSL", 0.1, 9)
        put("tbSSR", 0.1, 9)
    if kind == "Circular":
        put("tbDiameter", 300, 3000)
    if kind == "Irreg":
        x = 0
        rows = []
        for row, level in enumerate([chance.uniform(5, 9)] + [chance.uniform(0, 4) for _ in range(6)] +
                                    [chance.uniform(5, 9)]):
            rows.append(f"{x:.2f}\\t{level:.2f}\\t" + (f"{chance.uniform(0.02, 0.1):.3f}" if row in (0, 3) else ""))
            x += chance.uniform(0.5, 20)
        lines += ["click cmdIrreg", "select MSFlexGrid1 1 1 8 3", "clipboard " + "\\r".join(rows), "click cmdPaste",
                  "click cmdOK"]
    if for_flow:
        put("tbDepth", 0.02, 4.5) if kind != "Circular" else put("tbDepth", 0.01, 0.3)
    else:
        put("tbFlow", 0.001, 1000)
    return lines + ["click mnuSolveWorking", "get frmWorking.pgWorking.Text"]


def run(console, seed):
    lines = problem(random.Random(seed))
    replies = subprocess.run([console], input="\n".join(lines) + "\n", capture_output=True, text=True,
                             check=True).stdout.split("\n")
    text = replies[len(lines) - 1].replace("\\n", "\n").replace("\\t", "\t")
    if "Results\n" in text:
        return None
    return [f"seed {seed}: {fault}" for fault in faults(text)]


results = [result for result in (run(sys.argv[1], seed) for seed in range(150)) if result is not None]
found = [fault for result in results for fault in result]
if len(results) < 75:
    found.append(f"only {len(results)} problems have an answer")
print("\n".join(found))
sys.exit(1 if found else 0)
