#!/usr/bin/env python3
"""Runs every form script in a folder and compares its transcript byte by byte.

    run_form_goldens.py FORM_DRIVER GOLDEN_FOLDER [NAME ...] [--renew]

NAME.app is the application folder that a session starts with (none: an empty one with "data"),
NAME.txt the script, or NAME.1.txt, NAME.2.txt, ... run in turn on one folder, and NAME.transcript
what they print. "@APP@" in scripts and files stands for the application folder and shows as APP
in a transcript, the editor of a first start as EDITOR, the owner's line as <free:owner>. Of a
fault only the number counts. --renew writes the transcripts anew: read the difference before
committing it.
"""
import difflib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

OWNER = ""
FIRST_EDITOR = "xdg-open"
TIME_LIMIT = 60


def prepare(source, folder):
    folder.mkdir()
    if source.is_dir():
        for path in sorted(source.rglob("*")):
            target = folder / path.relative_to(source)
            if path.is_dir():
                target.mkdir()
            else:
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_bytes(path.read_bytes().replace(b"@APP@", str(folder).encode()))
    (folder / "data").mkdir(exist_ok=True)


def without_free_words(line):
    return re.sub(r"^fault\|(\d+)\|.*$", r"fault|\1|", line)


def run(driver, goldens, name):
    scripts = sorted(goldens.glob(name + ".[0-9]*.txt")) or [goldens / (name + ".txt")]
    with tempfile.TemporaryDirectory(prefix="kelvo") as place:
        folder = pathlib.Path(place) / "app"
        prepare(goldens / (name + ".app"), folder)
        lines = []
        for script in scripts:
            text = script.read_bytes().replace(b"@APP@", str(folder).encode())
            done = subprocess.run([driver, str(folder)], input=text, capture_output=True,
                                  timeout=TIME_LIMIT, cwd=folder, check=False)
            lines.append("start " + script.name)
            lines += done.stdout.decode("utf-8", "replace").splitlines()
            lines.append("exit code %d" % done.returncode)
    result = []
    for line in lines:
        line = line.replace(str(folder), "APP")
        line = re.sub(r"^(Cfg\.Editor=)" + FIRST_EDITOR + "$", r"\1EDITOR", line)
        result.append(without_free_words(line))
    return result


def main():
    arguments = [a for a in sys.argv[1:] if a != "--renew"]
    renew = "--renew" in sys.argv
    driver, goldens = os.path.abspath(arguments[0]), pathlib.Path(arguments[1])
    names = arguments[2:] or sorted(
        {re.sub(r"(\.[0-9]+)?\.txt$", "", p.name) for p in goldens.glob("*.txt")})
    failed = 0
    for name in names:
        expected_path = goldens / (name + ".transcript")
        found = run(driver, goldens, name)
        if renew:
            expected_path.write_text("".join(line + "\n" for line in found), encoding="utf-8")
            continue
        expected = [without_free_words(line.replace("<free:owner>", OWNER)) for line in
                    expected_path.read_text(encoding="utf-8").splitlines()]
        if found == expected:
            continue
        failed += 1
        print("differs: " + name)
        print("\n".join(difflib.unified_diff(expected, found, "expected", "found", lineterm="")))
    print("%d sessions, %d differ" % (len(names), failed))
    return 1 if failed or not names else 0


if __name__ == "__main__":
    sys.exit(main())
