#!/usr/bin/env python3
"""kelvo-convert against the independent calculation: each point as the only one of a fresh run.

    convert.py [--definitions N] [--seed N] PROGRAM

Random definitions (parameter lines, known points, systems, angle forms), some points each: numbers,
origins, statuses, standard error and exit code must be those of runs that hold one point alone.
"""

import argparse
import csv
import io
import pathlib
import random
import subprocess
import sys
import tempfile

from geodesy import WGS_A
from run import WGS_FLATTENING, Run
from text import format_num

SYSTEMS = {"wgs": "WGS", "user": "UGS", "tm": "TM", "utm": "UTM"}
COLUMNS = {
    "wgs": ["wgs_lat", "wgs_lon", "wgs_h"],
    "user": ["user_lat", "user_lon", "user_h"],
    "tm": ["tm_x", "tm_y", "tm_h", "tm_lon0"],
    "utm": ["utm_x", "utm_y", "utm_h", "utm_lon0"],
    "wgsutm": ["wgsutm_x", "wgsutm_y", "wgsutm_h", "wgsutm_lon0"],
}
FORMS = {"deg": "deg", "dms": "ddd.mmssss", "blanks": "ddd mm ss.ss", "hyphens": "ddd-mm-ss.ss"}
BESSEL, WGS = "6377397.155 299.1528128", "6378137 298.257223563"


class LoneRun(Run):
    """Remembers what a reader of the reports has to know besides."""

    said_of_definition = None  # known by the first point; otherwise the definition is bad

    def _run_header(self):
        super()._run_header()
        self.said_of_definition = len(self.messages)

    def _tables(self):
        self.utm_lon0 = self.para.ULam0
        super()._tables()

    def wgs_utm(self):
        p, row = self.para, self.rows[0]
        return self.geo.geo_to_tm(row.WgsPhi, row.WgsLam, WGS_A, WGS_FLATTENING, p.UX0, p.UY0, p.UPhi0, p.ULam0, p.US0)


class BadDefinition(Exception):
    """The run ends before its first point."""


class Definitions:
    def __init__(self, r):
        self.r = r

    def pick(self, *choices):
        return self.r.choice(choices)

    def grid(self, keyword):
        r = self.r
        return [f"{keyword} para", self.pick(BESSEL, WGS, "6378245 298.3"),
                f"{self.pick('0', '38', '37.5')} {self.pick('127', '129', '127.5', '128.3000000001', f'{r.uniform(124, 132):.6f}')}",
                f"{self.pick('0', '500000', '600000')} {self.pick('200000', '500000')}", self.pick("1", "0.9996", "0.9999")]  # fmt: skip

    def command(self):
        r = self.r
        return self.pick(
            lambda: ["7 para", "115.8 -474.99 -674.11", "1.16 -2.31 -1.63", "-6.43"],
            lambda: ["7para", f"{r.uniform(-200, 200):.3f} -474.99 -674.11", f"1.16 {r.uniform(-3, 3):.3f} -1.63", "-6.4"],
            lambda: [f"1st {r.uniform(-1, 1):.3f} {r.uniform(-1, 1):.3f} {r.uniform(-1, 1):.3f}"],
            lambda: [f"zone {self.pick(0, 1, 2, 3, 4, 5, 9)}"],
            lambda: [f"add {self.pick(0, 1, 2, -1)}"],
            lambda: self.grid("tm"),
            lambda: self.grid("utm"),
            lambda: [self.pick("utm 123", "UTM 129")],
            lambda: [self.pick("* 설명", "", "   ")],
            lambda: [self.pick("NOCORRECTION", "CORRECTION")],
        )()

    def parameters(self, correct):
        lines = ["CORRECTION"] if correct else []
        for _ in range(self.r.randint(0, 4)):
            lines += self.command()
        return lines

    def dms(self, value):
        degrees, seconds = divmod(round(value * 3600, 5), 3600)
        minutes, seconds = divmod(seconds, 60)
        return f"{int(degrees)}.{int(minutes):02d}" + f"{seconds:08.5f}".replace(".", "")

    def known_points(self):
        r, lines = self.r, ["* 기지점"]
        for n in range(self.pick(1, 2, 3, 12, 40)):
            latitude, longitude = r.uniform(33.2, 38.3), r.uniform(126.1, 129.5)
            lines.append(" ".join([f"기{n}", self.dms(latitude), self.dms(longitude), f"{r.uniform(0, 900):.3f}",
                                   self.dms(latitude - 0.00278 + r.gauss(0, 1e-5)), self.dms(longitude + 0.0022 + r.gauss(0, 1e-5)),
                                   f"{r.uniform(0, 900):.3f}", self.pick("1", "2", "0.5") if n else "1"]))  # fmt: skip
        return lines + ["*", ""]

    def angle(self, low, high, form):
        value = self.r.uniform(low, high)
        if self.r.random() < 0.04:
            return self.pick("0", "90", "-90", "89.9999", "180", "-37.5", "40000", "1e300", "33000.5", "-0", "1e-8")
        if form == "dms":
            if self.r.random() < 0.1:
                return f"{int(value)}.{self.r.randint(0, 59):02d}{self.pick('59999991', '59999995', '5999999', '60', '0')}"
            return self.dms(value)
        return f"{value:.{self.r.randint(0, 12)}f}"

    def point(self, system, form):
        r = self.r
        height = f"{r.uniform(-50, 2000):.4f}" if r.random() < 0.97 else self.pick("0", "1e300", "-1e300", "-0.00001", "1e9")
        if system in ("wgs", "user"):
            return [self.angle(33, 39, form), self.angle(124.5, 132, form), height]
        if r.random() < 0.04:
            return [self.pick("0", "1e300", "-1e12", "1e8"), self.pick("1", "-3e7", "1e200"), height]
        if system == "tm":
            return [f"{r.uniform(0, 650000):.4f}", f"{r.uniform(0, 400000):.5f}", height]
        return [f"{r.uniform(3.6e6, 4.3e6):.6f}", f"{r.uniform(2e5, 8e5):.6f}", height]


def expected_row(parameters, known, system, form_in, form_out, point, systems):
    """The cells, the texts that a run shows, and the fault's number."""
    lines = [*parameters, "INPUT " + FORMS[form_in], "OUTPUT " + FORMS[form_out],
             " ".join([SYSTEMS[system], "x", *point]), "end", ""]  # fmt: skip
    run = LoneRun("\r\n".join(lines).encode("cp949"), known)
    fault = run.run()
    if run.said_of_definition is None:
        raise BadDefinition
    texts = [text.replace("\r\n", " ") for text in run.messages[run.said_of_definition:]]
    if texts or fault:
        return None, texts, fault
    row = run.rows[0]
    values = {
        "wgs": (row.WgsPhi, row.WgsLam, row.WgsH, None),
        "user": (row.UserPhi, row.UserLam, row.UserH, None),
        "tm": (row.TmX, row.TmY, row.TmH, run.para.Lam0),
        "utm": (row.UtmX, row.UtmY, row.UtmH, run.utm_lon0),
        "wgsutm": (*run.wgs_utm(), row.TmH, run.para.ULam0),
    }
    cells = []
    for name in systems:
        first, second, height, origin = values[name]
        for value in (first, second):
            angle = origin is None
            cells.append((run.geo.angle_text(value, run.angle_out) if angle else format_num(value, 12, 6)).strip())
        cells.append(format_num(height, 8, 4).strip())
        if origin is not None:
            cells.append(f"{float(origin):.15g}")
    return cells, texts, fault


def check(program, r, folder):
    make = Definitions(r)
    correct = r.random() < 0.4
    parameters, known = make.parameters(correct), "\r\n".join(make.known_points())
    system, form_in = r.choice(list(SYSTEMS)), r.choice(["deg", "dms"])
    form_out = r.choice(list(FORMS))
    systems = r.sample(list(COLUMNS), r.randint(1, 5)) if r.random() < 0.5 else list(COLUMNS)
    points = [make.point(system, form_in) for _ in range(12)]
    (folder / "p.txt").write_bytes("\n".join(parameters).encode(r.choice(["utf-8", "cp949"])))
    (folder / "k.cor").write_bytes(known.encode(r.choice(["utf-8", "cp949"])))
    (folder / "in.csv").write_text("".join(f"점{n},{','.join(p)}\n" for n, p in enumerate(points)), encoding="utf-8")
    done = subprocess.run(
        [program, "--from", system, "--to", ",".join(systems), "--angles-in", form_in, "--angles-out", form_out, "--parameters",
         folder / "p.txt", "--known-points", folder / "k.cor", "--jobs", str(r.randint(1, 3)), folder / "in.csv"],
        capture_output=True)  # fmt: skip
    def expected(point):
        return expected_row(parameters, known.encode("cp949"), system, form_in, form_out, point, systems)

    try:
        expected(points[0])
    except BadDefinition:
        one_line = done.stderr.count(b"\n") == 1 and not done.stdout
        return [] if done.returncode == 2 and one_line else [f"{parameters}: {done.stderr} {done.returncode}"], 0
    found = list(csv.reader(io.StringIO(done.stdout.decode("utf-8"), newline="")))
    header = ["name", *(column for name in systems for column in COLUMNS[name]), "status"]
    problems = [] if found[:1] == [header] else [f"header {found[:1]}"]
    bad, said = 0, []
    for n, point in enumerate(points):
        cells, texts, fault = expected(point)
        row = found[n + 1] if n + 1 < len(found) else []
        if cells is not None:
            if row != [f"점{n}", *cells, ""]:
                problems.append(f"point {point}\n  expected {cells}\n  found    {row}")
            continue
        bad += 1
        status = row[-1] if row else ""
        said.append(f"line {n + 1}: {status}")
        joined = "; ".join(texts)
        good = status == joined if not fault else status.startswith(joined + "; " if texts else "") and len(status) > len(joined)
        if not good or row[:-1] != [f"점{n}"] + [""] * (len(header) - 2):
            problems.append(f"point {point}\n  expected {texts} fault {fault}\n  found    {row}")
    said.append(f"12 points, {bad} not converted")
    if done.stderr.decode().splitlines() != said:
        problems.append("standard error: " + done.stderr.decode())
    if done.returncode != (1 if bad else 0):
        problems.append(f"exit code {done.returncode}")
    return problems and [f"{parameters} from {system} to {systems} {form_in} {form_out}", *problems], bad


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--definitions", type=int, default=150)
    parser.add_argument("--seed", type=int, default=20040607)
    parser.add_argument("program")
    options = parser.parse_args()
    failed = bad = 0
    with tempfile.TemporaryDirectory() as folder:
        for n in range(options.definitions):
            problems, of_bad = check(options.program, random.Random(f"{options.seed}/{n}"), pathlib.Path(folder))
            bad += of_bad
            if problems:
                failed += 1
                print(f"definition {n} of seed {options.seed}:", *problems, sep="\n")
    print(f"{options.definitions - failed} of {options.definitions} definitions alike, {bad} bad points among their points")
    return 1 if failed else 0


sys.exit(main())
