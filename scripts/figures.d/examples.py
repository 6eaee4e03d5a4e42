"""What the examples must be: README shows one as it is, and their heights are possible ones.

In Korea the geoid lies above the ellipsoid, so no height above sea level is above the ellipsoidal one.
"""

import pathlib
import re

from correction import known_points

TOP = pathlib.Path(__file__).resolve().parents[2]


def lines_of(name):
    text = (TOP / "examples" / name).read_bytes().decode("cp949")
    return [line.rstrip() for line in text.split("\r\n")]


def readme_complaints():
    text = (TOP / "README.md").read_text(encoding="utf-8")
    blocks = [[line[4:].rstrip() for line in block.splitlines()] for block in re.findall(r"(?:^    .+\n)+", text, re.M)]
    found = []
    if [line for line in lines_of("corrected.dat") if line] not in blocks:
        found.append("README's data file isn't examples/corrected.dat")
    shown = [line for block in blocks if re.search("명칭|Distance =", " ".join(block)) for line in block]
    if not shown:
        found.append("README shows no line of a report")
    printed = lines_of("corrected.out")
    return found + [f"README shows what examples/corrected.out hasn't: {line}" for line in shown if line not in printed]


def heights(name, heading):
    lines = lines_of(name)
    rows = lines[lines.index(heading) + 2 :]
    return [float(row.split()[-1]) for row in rows[: rows.index("")]]


def height_complaints():
    found = [f"kelvo.cor: {name} has {up} m above sea level, {h} m above the ellipsoid"
             for name, _, _, h, _, _, up, _ in known_points() if h and not 15 < h - up < 32]  # fmt: skip
    for path in sorted((TOP / "examples").glob("*.out")):
        if path.name == "sample.out":
            continue  # the data file that the program itself writes: a run without correction
        pairs = zip(heights(path.name, "WGS 타윈체 경위도 및 타원체고"), heights(path.name, "사용자 타윈체 경위도 및 표고"))
        found += [f"{path.name} has {up} m above sea level, {h} m above the ellipsoid" for h, up in pairs if up >= h]
    return found


def complaints():
    return readme_complaints() + height_complaints()
