#!/usr/bin/env python3
"""Ends the program by SIGKILL at any moment of a save: afterwards every file is the old or the new
one, never a part, and the program starts again.

    kill_test.py FORM_DRIVER [--moments N] [--random N]

First at each system call of a session that saves the text of the viewer, kelvo.cfg and plot.cfg,
by the tampering of strace (left out, and said so, where strace may not trace); and each of those
calls made to fail, which has to be told. Once more with a data file that has two names, which is
written in place: there the next start has to put right what the kill left. The calls of a save are
looked at, too: nothing is renamed before it was settled. Then at random moments of a program that
saves over and over.
"""
import argparse
import collections
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time

# Whatever touches a file. The reading calls are there since a kill in front of them is a moment
# between two writes.
CALLS = ("openat,write,writev,pwrite64,fsync,fdatasync,close,rename,renameat,renameat2,unlink,unlinkat,"
         "chmod,fchmod,fchmodat,ftruncate,fallocate,link,linkat,symlink,mkdir")
KEPT = ("kelvo.cfg", "plot.cfg", "data/work.dat")
EMPTY_SESSION = b"get RecentFiles(1)\n"


def text_of(word, lines):
    return "".join(f"* {word} {i}\\r\\n" for i in range(lines)) + "end\\r\\n"


class Place:
    """An application folder as a day's work left it, made afresh for each kill.

    With two names of the data file a save writes it in place.
    """

    def __init__(self, driver, root, two_names=False):
        self.driver, self.root, self.two_names = driver, root, two_names
        self.app = root / "app"
        self.morning = root / "morning"
        (self.app / "data").mkdir(parents=True)
        (self.app / "data/work.dat").write_bytes(b"* old\r\n" * 6000 + b"end\r\n")
        self.session(f"dialog {self.app}/data/work.dat\nclick mnuFileItem(2)\n"
                     "type txtdLam 0.25\ntype txtXb 1000\nclose\n")
        shutil.copytree(self.app, self.morning)

    def renew(self):
        shutil.rmtree(self.app)
        shutil.copytree(self.morning, self.app)
        if self.two_names:
            os.link(self.app / "data/work.dat", self.app / "data/linked.dat")

    def files(self):
        return tuple((self.app / name).read_bytes() for name in KEPT)

    def session(self, script, before=()):
        done = subprocess.run([*before, self.driver, str(self.app)], input=script.encode(),
                              stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, cwd=self.app, timeout=60)
        return done.returncode

    def states(self, steps):
        """What each file may hold: its content after each number of undisturbed steps."""
        allowed = [set() for _ in KEPT]
        for count in range(len(steps) + 1):
            self.renew()
            self.session("\n".join(steps[:count]) + "\n")
            for held, content in zip(allowed, self.files()):
                held.add(content)
        return allowed


def check(place, allowed, moment):
    problems = []
    for name, held, content in zip(KEPT, allowed, place.files()):
        if content not in held and not (place.two_names and name == "data/work.dat"):
            problems.append(f"{moment}: {name} is neither the old nor the new one ({len(content)} bytes)")
    if place.session(EMPTY_SESSION.decode()) != 0:
        problems.append(f"{moment}: the program doesn't start again")
    for name, held, content in zip(KEPT, allowed, place.files()):
        if content not in held:
            problems.append(f"{moment}: {name} is another one after the next start")
    left = [path.name for pattern in ("*.new", "*.copy") for path in place.app.rglob(pattern)]
    if left:
        problems.append(f"{moment}: the next start leaves {left}")
    if place.two_names and not (place.app / "data/work.dat").samefile(place.app / "data/linked.dat"):
        problems.append(f"{moment}: the two names lead to two files")
    return problems


def may_trace():
    if not shutil.which("strace"):
        return False
    tried = subprocess.run(["strace", "-o", os.devnull, "-e", "inject=close:signal=SIGKILL:when=1", "true"],
                           capture_output=True)
    return tried.returncode in (-9, 137)


def saving_steps():
    return ["click mnuBatchEdit",
            "type Richtxt " + text_of("new", 3000),
            "click cmdSave",
            "type txtdLam 0.5",
            "click cmdOneClose",
            "type txtXb 2000",
            "close"]


def states_of_saving(place):
    allowed = place.states(saving_steps())
    if any(len(held) < 2 for held in allowed):
        raise SystemExit(f"the session doesn't change what it should: {[len(h) for h in allowed]} states")
    return allowed, place.files()


def calls_of_saving(place):
    """The calls from the first one on the configuration: name, number among its like, line."""
    log = place.root / "calls"
    place.renew()
    place.session("\n".join(saving_steps()) + "\n", ["strace", "-f", "-o", str(log), "-e", "trace=" + CALLS])
    lines = log.read_text(errors="replace").splitlines()
    first = next(i for i, line in enumerate(lines) if "kelvo.cfg" in line)
    seen = collections.Counter()
    calls = []
    for index, line in enumerate(lines):
        name = re.match(r"(?:\d+ +)?(\w+)\(", line)
        if name:
            seen[name[1]] += 1
            if index >= first:
                calls.append((name[1], seen[name[1]], line))
    return calls


def settled_before_renamed(place):
    """Each new file is settled between its last write and its new name, and then its folder is."""
    log = place.root / "order"
    place.renew()
    place.session("\n".join(saving_steps()) + "\n",
                  ["strace", "-y", "-f", "-o", str(log), "-e", "trace=write,fsync,rename,renameat,renameat2"])
    unsettled, folders, renames, problems = set(), set(), 0, []
    for line in log.read_text(errors="replace").splitlines():
        call = re.match(r"(?:\d+ +)?(\w+)\((?:\d+<([^>]*)>)?", line)
        name, path = (call[1], call[2]) if call else ("", None)
        if name == "write" and path and path.endswith(".new"):
            unsettled.add(path)
        elif name == "fsync":
            unsettled.discard(path)
            folders.discard(path)
        elif name.startswith("rename"):
            source, target = re.findall(r'"([^"]*)"', line)[-2:]
            renames += 1
            if source in unsettled:
                problems.append(f"renamed before it was settled: {line[:100]}")
            folders.add(str(pathlib.Path(target).parent))
    problems += [f"the new names in {folder} were never settled" for folder in folders]
    if renames < 3:
        problems.append(f"only {renames} files were replaced")
    print(f"{renames} files replaced, each settled before its name and its folder behind: {len(problems)} problems")
    return problems


def kill_at_each_call(place, moments):
    allowed, _ = states_of_saving(place)
    script = "\n".join(saving_steps()) + "\n"
    calls = calls_of_saving(place)
    if moments and moments < len(calls):
        calls = random.Random(1).sample(calls, moments)
    problems, killed, left = [], 0, 0
    for name, when, line in calls:
        place.renew()
        code = place.session(script, ["strace", "-f", "-o", os.devnull, "-e", "trace=" + CALLS,
                                      "-e", f"inject={name}:signal=SIGKILL:when={when}"])
        killed += code in (-9, 137)
        left += any(place.app.rglob("*.new"))
        problems += check(place, allowed, f"killed at {name} {when} ({line[:100]})")
    print(f"{killed} kills, one at each of {len(calls)} system calls on files: "
          f"{len(problems)} files harmed, {left} kills left a file *.new beside")
    if killed < len(calls) * 0.9:
        problems.append("the program wasn't killed where it should have been")
    return problems


def fail_at_each_call(place, moments):
    """Each call of the saving itself fails: the file stays whole, and the user is told."""
    allowed, final = states_of_saving(place)
    calls = calls_of_saving(place)
    begin = next((i for i, (_, _, line) in enumerate(calls) if ".new" in line), 0)
    cases = [(name, when, line, error) for name, when, line in calls[begin:]
             for error in ("ENOSPC", "EIO", "EACCES")
             if name in ("openat", "write", "fsync", "rename", "renameat", "renameat2", "close") and "(1, " not in line]
    if moments and moments < len(cases):
        cases = random.Random(2).sample(cases, moments)
    script = ("\n".join(saving_steps()) + "\n").encode()
    problems, told = [], 0
    for name, when, line, error in cases:
        place.renew()
        done = subprocess.run(["strace", "-f", "-o", os.devnull, "-e", "trace=" + CALLS, "-e",
                               f"inject={name}:error={error}:when={when}", place.driver, str(place.app)],
                              input=script, capture_output=True, cwd=place.app, timeout=60)
        said = done.stdout.decode()
        moment = f"{name} {when} fails by {error} ({line[:100]})"
        told += "message|" in said or "fault|" in said
        if place.files() != final and "message|" not in said and "fault|" not in said:
            problems.append(f"{moment}: not saved, and not told")
        problems += check(place, allowed, moment)
    print(f"{len(cases)} failures of the system calls of a save, {told} told (the others harm nothing): "
          f"{len(problems)} problems")
    return problems


def kill_at_random(place, count):
    one, other = text_of("one", 20000), text_of("two", 30000)
    steps = ["click mnuBatchEdit"]
    for number in range(400):
        steps += ["type Richtxt " + (one if number % 2 else other), "click cmdSave",
                  f"type txtdLam 0.{number % 2 + 1}", "click cmdOneClose"]
    place.renew()
    allowed = place.states(steps[:9])
    script = ("\n".join(steps) + "\n").encode()
    problems, killed = [], 0
    chance = random.Random(20040607)
    for number in range(count):
        place.renew()
        with tempfile.TemporaryFile() as given:
            given.write(script)
            given.seek(0)
            running = subprocess.Popen([place.driver, str(place.app)], stdin=given,
                                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, cwd=place.app)
            time.sleep(chance.uniform(0.005, 0.25))
            running.kill()
            killed += running.wait() == -9
        problems += check(place, allowed, f"random kill {number}")
    print(f"{killed} of {count} kills at random moments of a program that saves over and over: "
          f"{len(problems)} files harmed")
    if killed < count / 2:
        problems.append("the program mostly ended before the kill")
    return problems


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("driver")
    parser.add_argument("--moments", type=int, default=0, help="at most so many system calls; 0: each")
    parser.add_argument("--random", type=int, default=30)
    options = parser.parse_args()
    driver = str(pathlib.Path(options.driver).resolve())
    problems = []
    with tempfile.TemporaryDirectory(prefix="kelvo-") as root:
        place = Place(driver, pathlib.Path(root))
        if may_trace():
            problems += settled_before_renamed(place)
            problems += kill_at_each_call(place, options.moments)
            problems += fail_at_each_call(place, options.moments)
            two_names = Place(driver, pathlib.Path(root) / "two", two_names=True)
            print("a data file with two names:")
            problems += kill_at_each_call(two_names, options.moments)
        else:
            print("strace is missing or may not trace here: kills at random moments only")
        problems += kill_at_random(place, options.random)
    print("\n".join(problems[:40]))
    return 1 if problems else 0


sys.exit(main())
