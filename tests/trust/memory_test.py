#!/usr/bin/env python3
"""Lets every single call for memory fail, one in each run of a program: the program says so and
ends, no file is harmed, nothing is left beside the files.

    memory_test.py FAILING_MALLOC KELVO_BATCH FORM_DRIVER [--step N]

A run of kelvo-batch, and a session of the form that edits, saves, runs and closes. --step tries every
N-th call only.
"""
import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

DATA = (b"CORRECTION\r\nINPUT deg\r\nWGS a 37.3 127 1\r\n    b 37.31 127.01 1\r\n    c 60 127 1\r\n"
        b"DIST a b\r\nend\r\n\r\n")
KNOWN = (b"k1 37.30 127.00 10 37.2950 127.0007 20 1\r\nk2 37.40 127.10 12 37.3950 127.1007 22 1\r\n"
         b"*\r\n*\r\n")
STEPS = ["click mnuBatchEdit", "type Richtxt * typed\\r\\nWGS a 37.3 127 1\\r\\nend\\r\\n\\r\\n", "click cmdSave",
         "click mnuBatchGo", "click mnuOneOpen", "type txtdLam 0.5", "click mnuPrintBrief",
         "click cmdOneClose", "type txtXb 1000", "close"]
WRITTEN_AS_THEY_GO = (".out", ".det")


class Subject:
    """A program, a folder that it works on, and what each file may hold afterwards."""

    def __init__(self, library, root, name, arguments, script=""):
        self.library, self.name, self.script = library, name, script
        self.arguments = arguments
        self.app, self.morning = root / name / "app", root / name / "morning"
        (self.app / "data").mkdir(parents=True)
        (self.app / "data/work.dat").write_bytes(DATA)
        (self.app / "kelvo.cor").write_bytes(KNOWN)

    def keep_as_morning(self):
        shutil.copytree(self.app, self.morning)

    def renew(self):
        shutil.rmtree(self.app)
        shutil.copytree(self.morning, self.app)

    def run(self, fail_at=0, script=None):
        """Exit code, output, and how many calls for memory there were."""
        readable, writable = os.pipe()
        environment = dict(os.environ, LD_PRELOAD=str(self.library), FAIL_AT=str(fail_at), COUNT_TO=str(writable))
        done = subprocess.run([str(a) for a in self.arguments], env=environment, cwd=self.app, timeout=60,
                              input=(self.script if script is None else script).encode(),
                              capture_output=True, pass_fds=(writable,))
        os.close(writable)
        with os.fdopen(readable) as counted:
            count = counted.read().strip()
        return done.returncode, done.stdout + done.stderr, int(count or 0)

    def files(self):
        return {str(p.relative_to(self.app)): p.read_bytes() for p in self.app.rglob("*") if p.is_file()}

    def states(self):
        """Every content that a file has after one more of the steps."""
        allowed = {}
        steps = self.script.splitlines(keepends=True)
        for count in range(len(steps) + 1):
            self.renew()
            if steps or count:
                self.run(script="".join(steps[:count]))
            for name, content in self.files().items():
                allowed.setdefault(name, set()).add(content)
        return allowed


def harm(subject, allowed, whole, before):
    problems = []
    for name, content in subject.files().items():
        if content in allowed.get(name, ()):
            continue
        if name.endswith(WRITTEN_AS_THEY_GO) or name == "Kelvo.out":
            if any(full.startswith(content) for full in allowed.get(name, ())):
                continue
        if name.startswith("unsaved/"):
            continue
        problems.append(f"{name} is harmed ({len(content)} bytes)")
    problems += [f"{name} is gone" for name in before if not (subject.app / name).exists()]
    return problems


def check(subject, step, says):
    subject.renew()
    code, said, count = subject.run()
    if code != 0:
        raise SystemExit(f"{subject.name}: the undisturbed run ends with {code}: {said}")
    whole = subject.files()
    allowed = subject.states() if subject.script else {name: {content} for name, content in whole.items()}
    before = {str(p.relative_to(subject.morning)) for p in subject.morning.rglob("*") if p.is_file()}
    for name in before:
        allowed.setdefault(name, set()).add((subject.morning / name).read_bytes())
    problems, told = [], 0
    for at in range(1, count + 1, step):
        subject.renew()
        code, said, _ = subject.run(at)
        if code not in (0, 1):
            problems.append(f"{subject.name}: call {at} fails: the program ends with {code}: {said[-200:]}")
        elif code == 1 and says not in said:
            problems.append(f"{subject.name}: call {at} fails: exit code 1, but it says {said[-200:]}")
        elif code == 0 and subject.files() != whole and not subject.script:
            problems.append(f"{subject.name}: call {at} fails: exit code 0, but not all is written")
        told += code == 1
        problems += [f"{subject.name}: call {at} fails: {what}" for what in harm(subject, allowed, whole, before)]
    print(f"{subject.name}: {(count + step - 1) // step} of {count} calls for memory failed, {told} ended the "
          f"program: {len(problems)} problems")
    return problems


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("library")
    parser.add_argument("batch")
    parser.add_argument("form")
    parser.add_argument("--step", type=int, default=1)
    options = parser.parse_args()
    for name in ("library", "batch", "form"):
        setattr(options, name, pathlib.Path(getattr(options, name)).resolve())
    problems = []
    with tempfile.TemporaryDirectory(prefix="kelvo-") as place:
        root = pathlib.Path(place)
        batch = Subject(options.library, root, "batch",
                        [options.batch, "--app-folder", root / "batch/app", root / "batch/app/data/work.dat"])
        batch.keep_as_morning()
        problems += check(batch, options.step, b"run-time error 7: ")
        form = Subject(options.library, root, "form", [options.form, root / "form/app"], "\n".join(STEPS) + "\n")
        form.run(script=f"dialog {form.app}/data/work.dat\nclick mnuFileItem(2)\nclick mnuBatchGo\nclose\n")
        form.keep_as_morning()
        problems += check(form, options.step, b"fault|7|")
    print("\n".join(problems[:30]))
    return 1 if problems else 0


sys.exit(main())
