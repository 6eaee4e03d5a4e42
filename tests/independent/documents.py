#!/usr/bin/env python3
"""Runs every example of docs/data-file.md: each must end well, convert a point, say nothing.

    documents.py PROGRAM...
"""

import pathlib
import re
import sys

from harness import run_program, run_reference

TOP = pathlib.Path(__file__).resolve().parents[2]
EMPTY_TABLE = "WGS 타윈체 경위도 및 타원체고\r\n 명칭               위도               경도          타원체고  \r\n\r\n"


def main():
    text = (TOP / "docs/data-file.md").read_text(encoding="utf-8")
    known = (TOP / "examples/kelvo.cor").read_bytes()
    examples = re.findall(r"```kelvo\n(.*?)```", text, re.S)
    bad = 0
    if EMPTY_TABLE.encode("cp949") not in run_reference(b"end\r\n", known).parts["out"]:
        bad += 1
        print("An empty table is no longer known by EMPTY_TABLE: give it the text that a run writes.")
    for example in examples:
        data = example.replace("\n", "\r\n").encode("cp949")
        found = run_program(sys.argv[1:], data, known)
        wrong = found.difference(run_reference(data, known))
        if found.parts["exit code"] != b"0" or found.parts["err"]:
            wrong += "it doesn't end well\n"
        if EMPTY_TABLE.encode("cp949") in found.parts["out"]:
            wrong += "it converts no point\n"
        if wrong:
            bad += 1
            print(example + wrong)
    print(f"{len(examples) - bad} of {len(examples)} examples run")
    return 1 if bad or not examples else 0


sys.exit(main())
