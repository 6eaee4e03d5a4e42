#!/usr/bin/python3
"""A folder converted by a scheduler and two workers, one of which is killed in the middle.

    lost_worker.py KELVO_CONVERT CONVERT_FOLDER

Every file must be what kelvo-convert alone makes of it. Exit code 77 where Dask is missing.
"""

import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time

try:
    import distributed  # noqa: F401
except ImportError:
    print("skipped: no python3-distributed")
    sys.exit(77)

PROGRAM, EXAMPLE = (str(pathlib.Path(argument).resolve()) for argument in sys.argv[1:3])
PYTHON, FILES, POINTS = "/usr/bin/python3", 16, 40000
OPTIONS = ["--from", "wgs", "--to", "tm,utm"]


def dask(folder, *words):
    return subprocess.Popen([PYTHON, "-m", "distributed.cli." + words[0], *words[1:]], cwd=folder,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)  # fmt: skip


def wait_for(what, holds, seconds=120):
    end = time.monotonic() + seconds
    while not holds():
        if time.monotonic() > end:
            sys.exit(f"{what} never came")
        time.sleep(0.01)


def make_points(folder):
    r = random.Random(14)
    folder.mkdir()
    for n in range(FILES):
        rows = "".join(f"P{i},{r.uniform(33, 39):.8f},{r.uniform(125, 131):.8f},{r.uniform(0, 900):.3f}\n" for i in range(POINTS))
        (folder / f"part{n:02d}.csv").write_text("name,lat,lon,h\n" + rows)


def main():
    started = []
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        make_points(folder / "in")
        try:
            started.append(dask(folder, "dask_scheduler", "--host", "127.0.0.1", "--port", "0", "--no-dashboard", "--scheduler-file", "s.json"))
            wait_for("the scheduler", lambda: (folder / "s.json").exists())
            for n in range(2):
                started.append(dask(folder, "dask_worker", "--scheduler-file", "s.json", "--nthreads", "1", "--no-nanny", "--memory-limit", "0",
                                    "--local-directory", f"w{n}", "--name", f"w{n}", "--death-timeout", "60"))  # fmt: skip
            with distributed.Client(scheduler_file=str(folder / "s.json")) as client:
                client.wait_for_workers(2, timeout=120)
            example = subprocess.Popen([PYTHON, EXAMPLE, "--scheduler-file", "s.json", "--program", PROGRAM, "in", "out", "--", *OPTIONS],
                                       cwd=folder, stdout=subprocess.PIPE, text=True)  # fmt: skip
            shown = [example.stdout.readline()]  # the first file has ended, the others haven't
            done_before = len(list((folder / "out").glob("*.csv")))
            os.kill(started[1].pid, signal.SIGKILL)
            shown += example.stdout.read().splitlines(keepends=True)
            code = example.wait(timeout=300)
        finally:
            for process in reversed(started):
                process.kill()
                process.wait()
        print("".join(shown), end="")
        if code != 0 or len(shown) != FILES or done_before >= FILES:
            sys.exit(f"exit code {code}, {len(shown)} files shown, {done_before} done before the kill")
        for source in sorted((folder / "in").iterdir()):
            alone = subprocess.run([PROGRAM, *OPTIONS, "--quiet", source], capture_output=True, check=True).stdout
            if (folder / "out" / source.name).read_bytes() != alone:
                sys.exit(f"{source.name} differs")
        if leftovers := [path.name for path in (folder / "out").iterdir() if path.suffix != ".csv"]:
            sys.exit(f"left behind: {leftovers}")
    print(f"{FILES} files alike; a worker was lost after {done_before} of them")


main()
