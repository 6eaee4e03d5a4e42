#!/usr/bin/env python3
"""The check of random data files, those of differential.py.

    random_checks.py [--files N] [--seed N] PROGRAM

Each check must end with 0 or 1, print lines FILE:LINE: TEXT by their lines, say nothing else and
write nothing; a run that ends in a fault must have a finding. All files together must take less
processor time to check than to run.
"""

import argparse
import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys
import tempfile

from differential import Writer

FINDING = re.compile(r"(?P<file>.*?\.(?:dat|cor)):(?P<line>[1-9]\d*): \S.*")


def processor_seconds(command, folder):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(command, cwd=folder, capture_output=True)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return (after.ru_utime + after.ru_stime) - (before.ru_utime + before.ru_stime)


def complaint_of(program, folder, name):
    """What is wrong with the check of one file; None if nothing is."""
    before = sorted(os.listdir(folder))
    done = subprocess.run([program, "--app-folder", ".", "--check", name], cwd=folder, capture_output=True)
    if done.returncode not in (0, 1) or done.stderr:
        return f"exit code {done.returncode}, {done.stderr[:300]}"
    if sorted(os.listdir(folder)) != before:
        return "a file was written"
    lines = done.stdout.decode("utf-8").splitlines()
    if bool(lines) != (done.returncode == 1):
        return f"{len(lines)} findings with exit code {done.returncode}"
    matches = [FINDING.fullmatch(line) for line in lines]
    if None in matches:
        return "no finding: " + lines[matches.index(None)][:200]
    places = [(match["file"] != name, int(match["line"])) for match in matches]
    if places != sorted(places):
        return "findings out of order"
    run = subprocess.run([program, "--app-folder", ".", name], cwd=folder, capture_output=True)
    if run.returncode == 1 and not lines:
        return "a fault without a finding: " + run.stderr.decode("utf-8", "replace")[-300:]
    return None


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--files", type=int, default=200)
    parser.add_argument("--seed", type=int, default=20040607)
    parser.add_argument("program", type=pathlib.Path)
    options = parser.parse_args()
    program = str(options.program.resolve())
    folder = pathlib.Path(tempfile.mkdtemp(prefix="kelvo-"))
    try:
        bad, names = 0, []
        for n in range(options.files):
            writer = Writer(random.Random(f"{options.seed}/{n}"))
            data, known = writer.data_file(), writer.known_points()
            own = folder / str(n)
            own.mkdir()
            (own / "run.dat").write_bytes(data)
            if known is not None:
                (own / "kelvo.cor").write_bytes(known)
            (folder / f"{n}.dat").write_bytes(data)
            names.append(f"{n}.dat")
            complaint = complaint_of(program, own, "run.dat")
            if complaint:
                bad += 1
                print(f"file {n} of seed {options.seed}: {complaint}")
        (folder / "kelvo.cor").write_bytes((folder / "1" / "kelvo.cor").read_bytes())
        # The least of a few: whatever else the machine does only adds.
        checks, runs = (
            min(processor_seconds([program, "--quiet", "--app-folder", ".", *extra, *names], folder) for _ in range(5))
            for extra in (["--check"], []))
        print(f"{options.files - bad} of {options.files} checks well; all checked in {1000 * checks:.0f} ms, run in {1000 * runs:.0f} ms")
        return 1 if bad or checks >= runs else 0
    finally:
        shutil.rmtree(folder)


if __name__ == "__main__":
    sys.exit(main())
