#!/usr/bin/env python3
"""Disks that fail under a file that other programs shall read.

    failing_disks.py KELVO_CONVERT [unittest options]

Where strace is missing or may not trace, the exit code is 77 after everything else went well.
"""

import itertools
import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

CONVERT = str(pathlib.Path(sys.argv.pop(1)).resolve())
HEADING = "name,lat,lon,h\n"
ROWS = HEADING + "A,37.5,127,50\nB,36,128.5,0\n" * 150
MORE_THAN_A_PIPE_HOLDS = HEADING + "A,37.5,127,50\n" * 20000
FORMATS = ("shp", "geojson", "gpkg", "kml", "gpx", "dxf", "xlsx", "ods")
NOT_DONE = 77


def may_trace():
    if not shutil.which("strace"):
        return False
    tried = subprocess.run(["strace", "-o", os.devnull, "true"], capture_output=True, check=False)
    return tried.returncode == 0


class FailingDisks(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def convert(self, name, before=(), **more):
        return subprocess.run([*before, CONVERT, "--from", "wgs", "-", name], cwd=self.folder, input=ROWS,
                              text=True, capture_output=True, check=False, timeout=60, **more)  # fmt: skip

    def files(self):
        return sorted(path.name for path in self.folder.iterdir())

    def test_a_full_disk_is_one_sentence_and_leaves_nothing(self):
        # GDAL's driver of drawings reads beyond the end of one that was cut off there: one start in thirteen crashed.
        of_drawings = [("dxf", 100)] * 30
        for ending, limit in itertools.chain(itertools.product(FORMATS, (100, 3000)), of_drawings):
            with self.subTest(ending=ending, limit=limit):
                def few_bytes(limit=limit):
                    resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit))

                done = self.convert("out." + ending, preexec_fn=few_bytes)
                self.assertEqual(done.returncode, 2, done.stderr)
                self.assertRegex(done.stderr, "^kelvo-convert: [^\n]*\n$")
                if ending != "gpkg":  # SQLite says so in its own words
                    self.assertIn("디스크가 꽉 찼습니다", done.stderr)
                self.assertEqual(self.files(), [])

    def begun(self, name):
        """A conversion that waits for more points, its folder made."""
        before = set(self.files())
        started = subprocess.Popen([CONVERT, "--from", "wgs", "-", name], cwd=self.folder, stdin=subprocess.PIPE,
                                   stderr=subprocess.DEVNULL)  # fmt: skip
        self.addCleanup(started.wait)
        self.addCleanup(started.kill)
        self.addCleanup(started.stdin.close)
        started.stdin.write(MORE_THAN_A_PIPE_HOLDS.encode())
        started.stdin.flush()
        until = time.monotonic() + 30
        while time.monotonic() < until:
            made = [left for left in self.files() if left not in before]
            if made:
                return started, made[0]
            time.sleep(0.01)
        raise self.failureException("no folder was made")

    def test_what_a_kill_left_goes_with_the_next_file_and_nothing_else_does(self):
        (self.folder / ".kelvo-unfinished-").mkdir()  # no name of ours
        (self.folder / ".kelvo-unfinished-mine").mkdir()
        others = self.files()
        killed, left = self.begun("killed.kml")
        killed.kill()
        killed.wait()
        self.assertEqual(self.files(), sorted([*others, left]))
        running, kept = self.begun("running.kml")
        self.assertEqual(self.files(), sorted([*others, kept]))
        self.assertEqual(self.convert("whole.kml").returncode, 0)
        self.assertEqual(self.files(), sorted([*others, kept, "whole.kml"]))
        running.stdin.close()
        self.assertEqual(running.wait(), 0)
        self.assertEqual(self.files(), sorted([*others, "running.kml", "whole.kml"]))
        points = [(self.folder / name).read_text().count("<Placemark") for name in ("running.kml", "whole.kml")]
        self.assertEqual(points, [20000, 300])

    @unittest.skipUnless(may_trace(), "strace is missing or may not trace here")
    def test_what_does_not_settle_leaves_the_old_file_and_nothing_else(self):
        tracing = ["strace", "-f", "-qq", "-o", os.devnull, "-e"]
        for name in ("out.csv", "out.geojson"):
            # The two last say that this is nothing that could settle.
            for error, settles in (("EIO", False), ("EINVAL", True), ("EROFS", True)):
                with self.subTest(name=name, error=error):
                    (self.folder / name).write_text("old")
                    before = self.files()
                    done = self.convert(name, [*tracing, f"inject=fsync:error={error}"],
                                        env={**os.environ, "ASAN_OPTIONS": "detect_leaks=0"})  # fmt: skip
                    self.assertEqual(done.returncode == 0, settles, done.stderr)
                    self.assertEqual((self.folder / name).read_text() == "old", not settles)
                    self.assertEqual(self.files(), before)


if __name__ == "__main__":
    result = unittest.main(exit=False).result
    for _, reason in result.skipped:
        print(reason)
    sys.exit(1 if not result.wasSuccessful() else NOT_DONE if result.skipped else 0)
