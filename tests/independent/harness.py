"""Runs kelvo-batch on a folder of its own and compares what it leaves."""

import difflib
import pathlib
import shutil
import subprocess
import tempfile

from run import Run


class Outcome:
    """What a run leaves: both reports, messages with the fault's number, exit code."""

    def __init__(self, out, det, said, code):
        self.parts = {"out": out, "det": det, "err": said, "exit code": str(code).encode()}

    def difference(self, expected, names=("out", "det", "err", "exit code")):
        text = ""
        for name in names:
            one, other = expected.parts[name], self.parts[name]
            if one != other:
                lines = [part.decode("cp949", "backslashreplace").splitlines() for part in (one, other)]
                text += "\n".join(difflib.unified_diff(*lines, f"expected {name}", f"found {name}", "", "", 1, ""))
                text += "\n" if lines[0] != lines[1] else f"{name}: line ends or bytes differ\n"
        return text


def said(text):
    """Standard error without the free wording of a fault."""
    lines = []
    for line in text.replace("\r\n", "\n").splitlines():
        if line.startswith("run-time error "):
            line = line.split(":")[0]
        lines.append(line)
    return "\n".join(lines).encode()


def run_program(command, data, known):
    """`command` is the program with what stands in front of it, a list."""
    command = [*command[:-1], str(pathlib.Path(command[-1]).resolve())]
    folder = pathlib.Path(tempfile.mkdtemp(prefix="kelvo-"))
    try:
        (folder / "run.dat").write_bytes(data)
        if known is not None:
            (folder / "kelvo.cor").write_bytes(known)
        done = subprocess.run([*command, "--app-folder", ".", "run.dat"], cwd=folder, capture_output=True)
        def left(name):
            return (folder / name).read_bytes() if (folder / name).exists() else b"(missing)"

        return Outcome(left("run.out"), left("kelvo.det"), said(done.stderr.decode("utf-8", "replace")), done.returncode)
    finally:
        shutil.rmtree(folder)


def run_reference(data, known):
    run = Run(data, known)
    fault = run.run()
    lines = ["message: " + text for text in run.messages]
    if fault:
        lines.append(f"run-time error {fault}")
    return Outcome(run.out.data(), run.det.data(), "\n".join(lines).encode(), 1 if fault else 0)
