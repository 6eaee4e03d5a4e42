#!/usr/bin/env python3
"""Runs every form script in a folder and compares its transcript byte by byte.

    run_form_goldens.py FORM_DRIVER GOLDEN_FOLDER [NAME ...] [--renew] [--wine WINE]

NAME.app is the application folder that a session starts with (none: an empty one with "data"),
NAME.txt the script, or NAME.1.txt, NAME.2.txt, ... run in turn on one folder, and NAME.transcript
what they print. "@APP@" in scripts and files stands for the application folder and shows as APP
in a transcript, the editor of a first start as EDITOR, the owner's line as <free:owner>. Of a
fault only the number counts. A value with line ends inside, a whole report say, stands in a stored
transcript line by line, each line after the first marked with ">> ". --renew writes the transcripts
of all sessions, or of those named, again, without <free:owner>: put it back, and read the difference
before committing it. --wine runs a driver built for Windows; the transcripts hold there too, see OnWindows.
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
TIME_LIMIT = 60
LINE_END = r"\r\n"  # as a transcript shows one inside a value
NEXT = ">> "


class Here:
    """What a session on this machine writes otherwise than the transcripts."""

    first_editor = "xdg-open"
    start = ()

    def in_file(self, data, folder):
        return data.replace(b"@APP@", str(folder).encode())

    in_script = in_file

    def argument(self, folder):
        return str(folder)

    def shown(self, line, folder):
        return line.replace(str(folder), "APP")

    def expected(self, line):
        return line


class OnWindows(Here):
    """The differences that are right on Windows, and no others.

    Paths have a drive and backslashes, which are escaped in scripts and transcripts. File names
    ignore case: a name goes into the recent list in small letters whatever file is there, and shows
    so where the list shows, while the folder counts in any case. The editor of a first start is
    the one that every Windows has.
    """

    first_editor = r"Notepad\.exe"

    def __init__(self, wine):
        self.start = (wine,)

    def argument(self, folder):
        return "Z:" + str(folder).replace("/", "\\")

    def in_file(self, data, folder):
        return self.with_paths(data, self.argument(folder), "\\")

    def in_script(self, data, folder):
        return self.with_paths(data, self.argument(folder).replace("\\", "\\\\"), "\\\\")

    def with_paths(self, data, folder, separator):
        return re.sub(rb"@APP@([^\s\",]*)",
                      lambda m: (folder.encode() + m[1].replace(b"/", separator.encode())), data)

    def shown(self, line, folder):
        for name in (self.argument(folder).replace("\\", "\\\\"), self.argument(folder)):
            separator = "\\\\" if "\\\\" in name else "\\"
            line = re.sub("(?i)" + re.escape(name) + r"((?:%s[^\\|]*)*)" % re.escape(separator),
                          lambda m: "APP" + m[1].replace(separator, "/"), line)
        return line

    def expected(self, line):
        from_list = r"(RecentFiles\(|mnuFileItem\(|frmKelvo\.caption=|print Data File = )"
        if not re.match(from_list, line):
            return line
        return re.sub(r"APP/[^|\s]*", lambda m: "APP" + m[0][3:].lower(), line)


def folded(lines):
    """Values with line ends inside, line by line."""
    return [part for line in lines
            for part in line.replace(LINE_END, LINE_END + "\n" + NEXT).split("\n")]


def unfolded(lines):
    whole = []
    for line in lines:
        if line.startswith(NEXT):
            whole[-1] += line[len(NEXT):]
        else:
            whole.append(line)
    return whole


def stored(path):
    """The lines of a stored transcript as the driver writes them."""
    return unfolded(path.read_text(encoding="utf-8").replace("<free:owner>", OWNER).splitlines())


def prepare(source, folder, platform):
    folder.mkdir()
    if source.is_dir():
        for path in sorted(source.rglob("*")):
            target = folder / path.relative_to(source)
            if path.is_dir():
                target.mkdir()
            else:
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_bytes(platform.in_file(path.read_bytes(), folder))
    (folder / "data").mkdir(exist_ok=True)


def without_free_words(line):
    return re.sub(r"^fault\|(\d+)\|.*$", r"fault|\1|", line)


def run(driver, goldens, name, platform=Here()):
    scripts = sorted(goldens.glob(name + ".[0-9]*.txt")) or [goldens / (name + ".txt")]
    with tempfile.TemporaryDirectory(prefix="kelvo") as place:
        folder = pathlib.Path(place) / "app"
        prepare(goldens / (name + ".app"), folder, platform)
        lines = []
        for script in scripts:
            text = platform.in_script(script.read_bytes(), folder)
            done = subprocess.run([*platform.start, driver, platform.argument(folder)], input=text,
                                  capture_output=True, timeout=TIME_LIMIT, cwd=folder, check=False)
            lines.append("start " + script.name)
            lines += done.stdout.decode("utf-8", "replace").splitlines()
            lines.append("exit code %d" % done.returncode)
    result = []
    for line in lines:
        line = platform.shown(line, folder)
        line = re.sub(r"^(Cfg\.Editor=)" + platform.first_editor + "$", r"\1EDITOR", line)
        result.append(without_free_words(line))
    return result


def main():
    arguments = [a for a in sys.argv[1:] if a != "--renew"]
    renew = "--renew" in sys.argv
    platform = Here()
    if "--wine" in arguments:
        at = arguments.index("--wine")
        platform = OnWindows(arguments[at + 1])
        del arguments[at:at + 2]
    driver, goldens = os.path.abspath(arguments[0]), pathlib.Path(arguments[1])
    names = arguments[2:] or sorted(
        {re.sub(r"(\.[0-9]+)?\.txt$", "", p.name) for p in goldens.glob("*.txt")})
    failed = 0
    for name in names:
        expected_path = goldens / (name + ".transcript")
        found = run(driver, goldens, name, platform)
        if renew:
            expected_path.write_text("".join(line + "\n" for line in folded(found)),
                                     encoding="utf-8")
            continue
        expected = [platform.expected(without_free_words(line)) for line in stored(expected_path)]
        if found == expected:
            continue
        failed += 1
        print("differs: " + name)
        print("\n".join(difflib.unified_diff(folded(expected), folded(found), "expected", "found",
                                             lineterm="")))
    print("%d sessions, %d differ" % (len(names), failed))
    return 1 if failed or not names else 0


if __name__ == "__main__":
    sys.exit(main())
