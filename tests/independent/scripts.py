#!/usr/bin/env python3
"""Stored scripts of a driver against their transcripts.

    scripts.py FOLDER DRIVER...

Each NAME.txt in FOLDER is the driver's standard input, NAME.transcript what it must answer. The
wording of a fault is free, and `*` stands for any number of one.
"""

import pathlib
import subprocess
import sys


def plain(text):
    lines = []
    for line in text.decode("utf-8").replace("\r\n", "\n").split("\n"):
        lines.append("|".join(line.split("|")[:2]) if line.startswith("fault|") else line)
    return lines


def main():
    folder, driver = pathlib.Path(sys.argv[1]), sys.argv[2:]
    bad = count = 0
    for script in sorted(folder.glob("*.txt")):
        done = subprocess.run(driver, input=script.read_bytes(), capture_output=True)
        expected = plain(script.with_suffix(".transcript").read_bytes())
        found = plain(done.stdout)
        unlike = [
            f"  line {n}: expected {one}\n            found    {other}"
            for n, (one, other) in enumerate(zip(expected, found), 1)
            if one != other and not (one == "fault|*" and other.startswith("fault|"))
        ]
        if len(expected) != len(found):
            unlike.append(f"  {len(expected)} lines expected, {len(found)} found")
        count += 1
        if unlike:
            bad += 1
            print(f"{script.name}:", *unlike, sep="\n")
    print(f"{count - bad} of {count} scripts answered as stored")
    return 1 if bad or not count else 0


sys.exit(main())
