"""README's example is examples/corrected.dat, and the lines of a report that it shows stand there."""

import pathlib
import re

TOP = pathlib.Path(__file__).resolve().parents[2]


def lines_of(name):
    text = (TOP / "examples" / name).read_bytes().decode("cp949")
    return [line.rstrip() for line in text.split("\r\n")]


def complaints():
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
