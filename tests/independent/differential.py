#!/usr/bin/env python3
"""Random data files through the program and through the independent calculation.

    differential.py [--runs N] [--seed N] [--sensible] [--keep FOLDER] PROGRAM...

Any difference in a report, a message, a fault's number or the exit code is a failure; the data
file that shows it goes into the folder given by --keep. With --sensible no coordinate is far out
of the country: there the last digit shows how another C library rounds a sine.
"""

import argparse
import pathlib
import random
import sys

from harness import run_program, run_reference

NAMES = ["A-1", "a-1", "U2", "인천No-3", "인천부두끝", "TP-153", "가나다라마바", "abcdefghijk", "ㄱ1", "①", "PARA1", "x", "12", "β"]
REMARKS = ["* 설명", "*", "", " ", "   ", "\t", "모르는 말", "XYZ 1 2 3", "7x", "  12 13", "5.5"]


class Writer:
    def __init__(self, random, sensible=False):
        self.r = random
        self.sensible = sensible

    def pick(self, *choices):
        return self.r.choice(choices)

    def number(self):
        r = self.r
        return self.pick(
            "0", "1", "-1", "1e3", "1E-7", "1D2", ".5", "-.25", "1.2.3", "&H1F", "&o17", "+3", ".", "12abc", "1E", "가",
            f"{r.uniform(-5, 5):.4f}", f"{r.uniform(0, 2000):.3f}")  # fmt: skip

    def nonsense(self):
        if self.sensible:
            return self.pick("37", "37.2959")
        return self.pick("0", "90", "-90", "1e6", "1e300", "-1e300", "89.5959", "180", "360", "5e-324", "9999.9999")

    def height(self):
        return self.number() if self.r.random() < 0.05 else f"{self.r.uniform(-50, 2000):.4f}"

    def angle(self, low, high, decimal):
        if self.r.random() < 0.02:
            return self.nonsense()
        value = self.r.uniform(low, high)
        if self.r.random() < 0.1:
            value = round(value)
        if decimal:
            return f"{value:.{self.r.randint(0, 10)}f}"
        degrees, rest = divmod(value, 1)
        minutes, rest = divmod(rest * 60, 1)
        seconds = rest * 60
        if self.r.random() < 0.05:
            seconds = self.pick(0, 59.99999, 59.999991, 59.999995, 59.9999, 60.5)
        return f"{int(degrees)}.{int(minutes):02d}{seconds:09.6f}".replace(".", "#", 1).replace(".", "").replace("#", ".")

    def spaces(self):
        return self.pick(" ", "   ", "\t", ", ", " ,\t ", "          ")

    def name(self):
        return self.r.choice(NAMES) if self.r.random() < 0.7 else f"P{self.r.randint(1, 99)}"

    def line(self, *parts):
        text = parts[0]
        for part in parts[1:]:
            text += self.spaces() + part
        return text + self.pick("", "", "", " ", "  <- 참고", " 77 88")

    def coordinates(self, kind, decimal):
        r = self.r
        if kind in ("WGS", "UGS"):
            low, high = (33, 39) if self.sensible or r.random() < 0.95 else (-60, 60)
            first, second = self.angle(low, high, decimal), self.angle(124.5, 132, decimal)
        elif kind == "TM":
            first, second = f"{r.uniform(0, 650000):.4f}", f"{r.uniform(0, 400000):.5f}"
        else:
            first, second = f"{r.uniform(3.6e6, 4.3e6):.6f}", f"{r.uniform(2e5, 8e5):.6f}"
        if r.random() < 0.02 and not self.sensible:
            first = self.pick(self.nonsense(), self.number())
        return [first, second, self.height()][: 3 if self.sensible or r.random() < 0.95 else r.randint(0, 3)]

    def block(self, decimal):
        kind = self.pick("WGS", "WGS", "WGS", "UGS", "TM", "UTM")
        word = self.pick(kind, kind.lower(), kind.capitalize())
        lines = [self.line(word, self.name(), *self.coordinates(kind, decimal))]
        for _ in range(self.r.choice([0, 0, 1, 2, 3, 6])):
            lines.append(self.line(self.pick("   ", "       ", "   \t"), self.name(), *self.coordinates(kind, decimal)))
        if self.r.random() < 0.1:
            lines.append(self.line(self.pick("  ", "\t", " "), self.name(), *self.coordinates(kind, decimal)))
        return lines

    def distances(self):
        lines = [self.line(self.pick("DIST", "dist", "DI"), self.name(), self.name())]
        for _ in range(self.r.randint(0, 3)):
            lines.append(self.line("      ", self.name(), *([self.name()] if self.r.random() < 0.9 else [])))
        return lines

    def ellipsoid(self):
        if self.r.random() < 0.05:
            return self.pick("0 299", "6377397.155 0", "6377397.155 1", "-5 300", "1e200 300")
        return self.pick("6377397.155    299.1528128", "6378137 298.257223563", "6378137,0.0033528", "6378245 298.3")

    def parameters(self, keyword, latitude):
        r = self.r
        lines = [
            self.line(keyword, self.pick("para", "PARA", "para")),
            self.ellipsoid(),
            self.line(latitude, self.pick("127", "127.5", "117", "129.0028902777778", f"{r.uniform(120, 135):.4f}")),
            self.line(self.pick("0", "500000", "550000", self.number()), self.pick("200000", "500000")),
            self.pick("1", "1.0", "0.9996", "0.9999", "0.9996", "1.0", "0" if r.random() < 0.2 else "1"),
        ]
        return lines[:-1] if r.random() < 0.03 else lines

    def command(self, decimal):
        r = self.r
        kind = r.choice(["7", "1", "co", "no", "zone", "add", "in", "out", "tm", "utm", "utm9", "remark", "remark"])
        if kind == "7":
            small = r.random() < 0.8
            return [
                self.pick("7 para    국립지리원 값", "7", "7PARA", " 7, para"),
                self.line(*(f"{x + r.uniform(-1, 1):.3f}" for x in (115.8, -474.99, -674.11))) if small else self.line(*(self.number() for _ in range(3))),
                self.line(*(f"{r.uniform(-3, 3):.2f}" for _ in range(3))),
                self.pick("-6.43", "0", "", self.number()),
            ]
        if kind == "1":
            return [self.line(self.pick("1st", "1", "1ST corr", "1st corr"), *(f"{r.uniform(-1, 1):.3f}" for _ in range(3)))]
        if kind == "co":
            return [self.pick("CORRECTION", "correction", "comment")]
        if kind == "no":
            return [self.pick("NO CORR   ", "note")]
        if kind == "zone":
            return [self.line(self.pick("zone", "ZO"), self.pick("1", "2", "3", "4", "5", "6", "0", "-2", "2.5", "3.5", "99", "x"))]
        if kind == "add":
            return [self.line(self.pick("add", "AD"), self.pick("0", "10.405", "1", "-1", "1e-50", "1e-40", "1e39", "가산", ".001"))]
        if kind == "out":
            return [self.line(self.pick("OUTPUT", "out"), self.pick("deg", "ddd mm ss.ss", "ddd-mm-ss.ss", "ddd.mmssss", "DEGREE", "x", "Ddd"))]
        if kind == "tm":
            return self.parameters(self.pick("tm", "TM"), self.pick("38", "38.0", "36.5"))
        if kind == "utm":
            return self.parameters(self.pick("UTM", "utm"), "0")
        if kind == "utm9":
            return [self.line("UTM", self.pick("123", "129", "123 0 0", "125", ""))]
        return [r.choice(REMARKS)]

    def data_file(self):
        r = self.r
        lines, decimal = [], False
        if r.random() < 0.5:
            lines.append("CORRECTION")
        for _ in range(r.randint(1, 14)):
            roll = r.random()
            if roll < 0.1:
                decimal = not decimal
                lines.append("INPUT deg" if decimal else self.pick("INPUT ddd.mmssss", "IN DEGREE", "input"))
            elif roll < 0.5:
                lines += self.command(decimal)
            elif roll < 0.62:
                lines += self.distances()
            else:
                lines += self.block(decimal)
        if r.random() < 0.7:
            lines.append(self.pick("end", "END", "English"))
        if r.random() < 0.3:
            lines += [self.pick("", "* 끝", "WGS late 37 127 0")]
        return self.joined(lines)

    def joined(self, lines):
        end = "\r\n" if self.r.random() < 0.8 else self.pick("\n", "\r")
        text = end.join(lines) + (end if self.r.random() < 0.9 else "")
        return text.encode("cp949")

    def known_points(self):
        r = self.r
        if r.random() < 0.05:
            return None
        lines = []
        for _ in range(r.choice([0, 1, 2, 5, 12, 12, 14, 14, 20, 20, 60, 200 if r.random() < 0.7 else 201])):
            if r.random() < 0.1:
                lines.append(self.pick("*", "* 설명 37.1 127.1", "", "  "))
            latitude, longitude = r.uniform(33.2, 38.3), r.uniform(126.1, 129.5)
            miss = 0.01 if r.random() < 0.03 else 1e-5
            parts = [self.name(), self.dms(latitude), self.dms(longitude), self.height(),
                     self.dms(latitude - 0.00278 + r.gauss(0, miss)), self.dms(longitude + 0.0022 + r.gauss(0, miss)),
                     self.pick(self.height(), self.height(), self.height(), "0"), self.pick("1", "1", "1", "2", "0.5", "0")]  # fmt: skip
            if r.random() < 0.03 and not self.sensible:
                parts = parts[: r.randint(1, 8)]
            lines.append(self.line(*parts))
        if r.random() < 0.93:
            lines += ["*", self.pick("*", "", "last 37 127 0 37 127 0 1")]
        return self.joined(lines)

    def dms(self, value):
        seconds = round(value * 3600, 5)
        degrees, seconds = divmod(seconds, 3600)
        minutes, seconds = divmod(seconds, 60)
        return f"{int(degrees)}.{int(minutes):02d}" + f"{seconds:08.5f}".replace(".", "")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--runs", type=int, default=400)
    parser.add_argument("--seed", type=int, default=20040607)
    parser.add_argument("--sensible", action="store_true")
    parser.add_argument("--keep", type=pathlib.Path)
    parser.add_argument("program", nargs="+")
    options = parser.parse_args()
    bad = faults = corrected = 0
    for n in range(options.runs):
        writer = Writer(random.Random(f"{options.seed}/{n}"), options.sensible)
        files = writer.data_file(), writer.known_points()
        expected = run_reference(*files)
        found = run_program(options.program, *files)
        faults += expected.parts["exit code"] != b"0"
        corrected += len(expected.parts["det"]) > 0
        difference = found.difference(expected)
        if difference:
            bad += 1
            print(f"run {n} of seed {options.seed}:\n{difference}")
            if options.keep:
                options.keep.mkdir(parents=True, exist_ok=True)
                (options.keep / f"{n}.dat").write_bytes(files[0])
                (options.keep / f"{n}.cor").write_bytes(files[1] or b"")
    print(f"{options.runs - bad} of {options.runs} runs alike; {corrected} with known points, {faults} ended by a fault")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
