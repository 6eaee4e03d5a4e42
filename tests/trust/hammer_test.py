#!/usr/bin/env python3
"""Several programs at work on one application folder at once, and somebody who looks at its files
all the time: every file is whole in every look.

    hammer_test.py KELVO_BATCH FORM_DRIVER [--seconds S] [--saves N]

Two kelvo-batch run data files of their own, two the same one, and two sessions of the form run, change
parameters and save the settings. Where several write the same file any of their contents may be found,
but no mixture and no part. Before that two sessions save a change of their own at the same moment, N times:
both changes are there each time.
"""
import argparse
import pathlib
import subprocess
import sys
import tempfile
import threading
import time

KNOWN = (b"k1 37.30 127.00 10 37.2950 127.0007 20 1\r\nk2 37.40 127.10 12 37.3950 127.1007 22 1\r\n"
         b"*\r\n*\r\n")


def data(name):
    # More than is written at once.
    points = b"".join(b"    %s%d 37.3 127.01 1\r\n" % (name, i) for i in range(1500))
    return b"CORRECTION\r\nINPUT deg\r\nWGS " + name + b" 37.3 127 1\r\n" + points + b"end\r\n\r\n"


class Folder:
    def __init__(self, batch, form, root):
        self.batch, self.form, self.app = batch, form, root / "app"
        (self.app / "data").mkdir(parents=True)
        (self.app / "kelvo.cor").write_bytes(KNOWN)
        for name in (b"one", b"two", b"both", b"three", b"four"):
            self.data(name).write_bytes(data(name))
        self.details, self.reports = {}, {}
        for name in (b"one", b"two", b"both", b"three", b"four"):
            self.run_batch(name)
            self.details[name] = self.read("kelvo.det")
            self.reports[name] = self.data(name).with_suffix(".out").read_bytes()
        if len(set(self.details.values())) < 5:
            raise SystemExit("the runs don't differ")

    def data(self, name):
        return self.app / "data" / (name.decode() + ".dat")

    def read(self, name):
        return (self.app / name).read_bytes()

    def run_batch(self, name):
        done = subprocess.run([self.batch, "--app-folder", self.app, self.data(name)], capture_output=True, timeout=60)
        if done.returncode != 0:
            raise SystemExit(f"kelvo-batch: {done.returncode} {done.stderr}")

    def run_form(self, name, box, value):
        script = (f"dialog {self.data(name)}\nclick mnuFileItem(2)\nclick mnuBatchGo\nget frmeFile.caption\n"
                  f"click mnuOneOpen\ntype {box} {value}\nclick cmdOneClose\ntype txtXb {value}000\nclose\n")
        done = subprocess.run([self.form, self.app], input=script.encode(), capture_output=True, timeout=60, cwd=self.app)
        if done.returncode != 0 or not done.stdout.rstrip().endswith(b"end"):
            raise SystemExit(f"form_driver: {done.returncode} {done.stdout[-300:]} {done.stderr[-300:]}")


class Session:
    """A session that waits for its next line."""

    def __init__(self, folder):
        self.program = subprocess.Popen([folder.form, folder.app], stdin=subprocess.PIPE, stdout=subprocess.PIPE, cwd=folder.app)

    def send(self, script):
        self.program.stdin.write((script + "get RecentFiles(1)\n").encode())
        self.program.stdin.flush()

    def wait(self):
        for line in self.program.stdout:
            if line.startswith(b"RecentFiles(1)="):
                return
        raise SystemExit("a session has ended")

    def close(self):
        self.program.communicate(b"close\n", timeout=60)


def lost_changes(folder, saves):
    """What two programs that save at one moment lose of each other's changes, as sentences."""
    changes = (("txtdX", 1), ("txtdPhi", 5))  # box, and the line of kelvo.cfg that begins with its value
    sessions = [Session(folder) for _ in changes]
    lost = []
    for number in range(1, saves + 1):
        for session, (box, _) in zip(sessions, changes):
            session.send(f"click mnuOneOpen\ntype {box} {number}\n")
        for session in sessions:
            session.wait()
        for session in sessions:
            session.send("click cmdOneClose\n")
        for session in sessions:
            session.wait()
        lines = folder.read("kelvo.cfg").split(b"\r\n")
        lost += [f"save {number}: {box} is {lines[at].split()[0].decode()}" for box, at in changes
                 if float(lines[at].split()[0]) != number]
    for session in sessions:
        session.close()
    return lost


def look(folder, problems):
    if folder.read("kelvo.det") not in folder.details.values():
        problems.append(f"kelvo.det is a mixture ({len(folder.read('kelvo.det'))} bytes)")
    for name, whole in folder.reports.items():
        if folder.data(name).with_suffix(".out").read_bytes() != whole:
            problems.append(f"{name.decode()}.out is a part or a mixture")
    for name, least, most in (("kelvo.cfg", 18, 22), ("plot.cfg", 6, 6)):
        try:
            lines = folder.read(name).split(b"\r\n")
        except FileNotFoundError:
            continue  # before the first session has ended
        if not least <= len(lines) - 1 <= most or lines[-1] != b"":
            problems.append(f"{name} is a part or a mixture: {len(lines) - 1} lines")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("batch")
    parser.add_argument("form")
    parser.add_argument("--seconds", type=float, default=4)
    parser.add_argument("--saves", type=int, default=100)
    options = parser.parse_args()
    problems, failures, runs = [], [], [0]
    with tempfile.TemporaryDirectory(prefix="kelvo-") as root:
        folder = Folder(pathlib.Path(options.batch).resolve(), pathlib.Path(options.form).resolve(), pathlib.Path(root))
        folder.run_form(b"three", "txtdX", 0)
        lost = lost_changes(folder, options.saves)
        print(f"{options.saves} times two programs saved at one moment: {len(lost)} changes lost")
        # On a busy disk a save may outlast the half second for which the other one waits.
        if len(lost) <= options.saves // 10:
            lost = []
        end = time.monotonic() + options.seconds

        def repeat(work):
            number = 0
            try:
                while time.monotonic() < end:
                    number += 1
                    work(number)
                    runs[0] += 1
            except BaseException as failure:  # of any kind: the test has failed
                failures.append(str(failure))

        works = [lambda _: folder.run_batch(b"one"), lambda _: folder.run_batch(b"two"),
                 lambda _: folder.run_batch(b"both"), lambda _: folder.run_batch(b"both"),
                 lambda n: folder.run_form(b"three", "txtdX", n), lambda n: folder.run_form(b"four", "txtdPhi", n)]
        threads = [threading.Thread(target=repeat, args=(work,)) for work in works]
        for thread in threads:
            thread.start()
        looks = 0
        while time.monotonic() < end and len(problems) < 20:
            look(folder, problems)
            looks += 1
        for thread in threads:
            thread.join()
        look(folder, problems)
        left = [p.name for p in folder.app.rglob("*") if p.name.endswith((".new", ".copy", ".lock"))]
        if left:
            problems.append(f"left behind: {left}")
        print(f"{runs[0]} runs and sessions of six programs at once, {looks} looks: {len(problems)} files not whole")
        if looks < 20 or runs[0] < 12:
            problems.append("there was too little to see")
    print("\n".join(failures + lost[:20] + problems[:20]))
    return 1 if problems or lost or failures else 0


sys.exit(main())
