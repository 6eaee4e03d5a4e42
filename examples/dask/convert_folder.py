#!/usr/bin/python3
"""Converts a folder of CSV files on a Dask cluster: a file in is a file out.

    convert_folder.py --scheduler tcp://HOST:PORT | --scheduler-file FILE
                      [--program kelvo-convert] IN OUT [-- OPTIONS OF kelvo-convert]

    convert_folder.py --scheduler-file s.json points grid -- --from wgs --to tm,utm

IN and OUT are folders that every worker sees under the same name (a shared disk), and kelvo-convert is
installed on every worker. A file is a task: if its worker is lost, another one does it again.
That does no harm, since kelvo-convert lets a result take its place only when it is whole.

Exit code: 0 all points of all files converted, 1 some points not, 2 a file that couldn't be converted.
"""

import argparse
import pathlib
import subprocess
import sys

from distributed import Client, as_completed


def convert_file(program, options, source, target):
    """Runs on a worker: exit code and last words of kelvo-convert."""
    done = subprocess.run([program, "--jobs", "1", *options, source, target], capture_output=True, text=True, check=False)
    return done.returncode, done.stderr.strip().splitlines()


def convert_folder(client, program, options, source, target, show=print):
    """Converts every *.csv of `source`, gives the highest exit code, and shows each file as it ends."""
    files = sorted(source.glob("*.csv"))
    target.mkdir(parents=True, exist_ok=True)
    names = {}
    for file in files:
        task = client.submit(convert_file, program, options, str(file), str(target / file.name), pure=False)
        names[task] = file.name
    worst = 0
    for done, task in enumerate(as_completed(names), 1):
        code, said = task.result()
        worst = max(worst, code)
        show(f"[{done}/{len(files)}] {names[task]}: {said[-1] if said else ''}")
    return worst


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    where = parser.add_mutually_exclusive_group(required=True)
    where.add_argument("--scheduler")
    where.add_argument("--scheduler-file")
    parser.add_argument("--program", default="kelvo-convert")
    parser.add_argument("source", type=pathlib.Path)
    parser.add_argument("target", type=pathlib.Path)
    parser.add_argument("options", nargs="*")
    chosen = parser.parse_args()
    if not chosen.source.is_dir():
        parser.error(f"{chosen.source} is no folder")
    with Client(chosen.scheduler, scheduler_file=chosen.scheduler_file) as client:
        return convert_folder(client, chosen.program, chosen.options, chosen.source.resolve(), chosen.target.resolve())


if __name__ == "__main__":
    sys.exit(main())
