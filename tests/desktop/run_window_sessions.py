#!/usr/bin/env python3
"""Runs the form's sessions through the real widgets and compares what a screen can show.

    run_window_sessions.py WINDOW_DRIVER GOLDEN_FOLDER [NAME ...]

The transcripts are those of the form. What no widget shows is left out on both sides: drawing
calls, started programs, raw printing, the beep, and of a dialog all but its kind and title.
"""
import difflib
import json
import os
import pathlib
import re
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "drivers"))
import run_form_goldens as goldens  # noqa: E402

SCREEN = {"name": "driver", "x": 0, "y": 0, "width": 1024, "height": 768,
          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}
UNSEEN = re.compile(r"^(start\||rawprint\||beep$)")
CALL = re.compile(r"^(Line|Circle|print|ForeColor|BackColor|FillColor|FillStyle|DrawMode|"
                  r"DrawWidth|ScaleMode|Font|fontsize|FontBold|FontItalic|FontStrikethru|"
                  r"FontUnderline|CurrentX|CurrentY|CreateFontIndirectA|SelectObject|TextOutA|"
                  r"DeleteObject|Cls|EndDoc|NewPage|Orientation)( |$)|^\.$")


def seen(lines):
    result = []
    for line in lines:
        if UNSEEN.match(line) or CALL.match(line):
            continue
        if line.startswith("dialog|"):
            kind, title = line.split("|")[1:3]
            line = "dialog|%s|%s" % (kind, "" if kind == "printer" else title)
        result.append(goldens.without_free_words(line))
    return result


def main():
    driver, folder = os.path.abspath(sys.argv[1]), pathlib.Path(sys.argv[2])
    names = sys.argv[3:] or sorted(
        {re.sub(r"(\.[0-9]+)?\.txt$", "", p.name) for p in folder.glob("*.txt")})
    failed = 0
    with tempfile.NamedTemporaryFile("w", suffix=".json") as config, \
            tempfile.TemporaryDirectory() as own:
        os.environ["XDG_RUNTIME_DIR"] = own
        json.dump({"screens": [SCREEN]}, config)
        config.flush()
        os.environ["QT_QPA_PLATFORM"] = "offscreen:configfile=" + config.name
        for name in names:
            expected = seen(goldens.stored(folder / (name + ".transcript")))
            found = seen(goldens.run(driver, folder, name))
            if found == expected:
                continue
            failed += 1
            print("differs: " + name)
            print("\n".join(difflib.unified_diff(goldens.folded(expected), goldens.folded(found),
                                                 "expected", "found", lineterm="")))
    print("%d sessions, %d differ" % (len(names), failed))
    return 1 if failed or not names else 0


if __name__ == "__main__":
    sys.exit(main())
