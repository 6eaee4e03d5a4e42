#!/usr/bin/env python3
"""Compares the program, and the independent calculation, with the stored runs.

    goldens.py [--reference] [--renew] PROGRAM...

PROGRAM is kelvo-batch, after whatever starts it. A run is NAME.dat with NAME.out, NAME.det and,
if anything is said, NAME.err; known points stand in NAME.cor or, for all of a folder, in
kelvo.cor. With --reference the independent calculation takes the program's place. --renew
writes what the program gives, but only where the independent calculation agrees; a run that ends
otherwise than before is left to be renewed by hand.
"""

import argparse
import pathlib
import sys

from harness import Outcome, run_program, run_reference, said

TOP = pathlib.Path(__file__).resolve().parents[2]
FOLDERS = (TOP / "examples", TOP / "tests/golden/batch")


def stored(data):
    error = data.with_suffix(".err")
    lines = error.read_text(encoding="utf-8").splitlines() if error.exists() else ["exit code 0"]
    read = [data.with_suffix(s).read_bytes() if data.with_suffix(s).exists() else b"(missing)" for s in (".out", ".det")]
    return Outcome(*read, said("\n".join(lines[:-1])), lines[-1].removeprefix("exit code "))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--reference", action="store_true")
    parser.add_argument("--renew", action="store_true")
    parser.add_argument("program", nargs="*")
    options = parser.parse_args()
    bad = count = 0
    for folder in FOLDERS:
        for data in sorted(folder.glob("*.dat")):
            known = next((k for k in (data.with_suffix(".cor"), folder / "kelvo.cor") if k.exists()), None)
            files = data.read_bytes(), known.read_bytes() if known else None
            found = run_reference(*files) if options.reference else run_program(options.program, *files)
            if options.renew:
                difference = (found.difference(run_reference(*files))
                              or found.difference(stored(data), ("err", "exit code")))
                for report in ("out", "det"):
                    target = data.with_suffix("." + report)
                    if not difference and (target.exists() or found.parts[report] != b"(missing)"):
                        target.write_bytes(found.parts[report])
            else:
                difference = found.difference(stored(data))
            count += 1
            if difference:
                bad += 1
                print(f"{data.relative_to(TOP)}:\n{difference}")
    print(f"{count - bad} of {count} runs as stored")
    return 1 if bad or not count else 0


sys.exit(main())
