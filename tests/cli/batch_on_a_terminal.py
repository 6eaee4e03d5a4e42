#!/usr/bin/env python3
"""What a terminal on standard error sees of kelvo-batch.

    batch_on_a_terminal.py PROGRAM [unittest options]
"""

import os
import pathlib
import pty
import subprocess
import sys
import tempfile
import unittest

from terminal_text import text_on

PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
DATA = b"INPUT deg\r\nWGS A 37.3 127 1\r\nend\r\n\r\n"


class Terminal(unittest.TestCase):
    def seen(self, files, *options):
        with tempfile.TemporaryDirectory() as folder:
            names = [f"data{i}.dat" for i in range(files)]
            for name in names:
                (pathlib.Path(folder) / name).write_bytes(DATA)
            ours, its = pty.openpty()
            done = subprocess.run([PROGRAM, "--app-folder", folder, *options, *names], cwd=folder,
                                  stdout=subprocess.DEVNULL, stderr=its, check=False)  # fmt: skip
            os.close(its)
            self.assertEqual(done.returncode, 0)
        return text_on(ours)

    def test_many_files_show_how_many_are_done_and_which_comes(self):
        seen = self.seen(5)
        for i in range(5):
            self.assertIn(f" {i}/5 data{i}.dat", seen)
        self.assertNotIn("5/5", seen)
        self.assertRegex(seen, r"\r +\r$")  # wiped at the end

    def test_few_files_and_quiet_ones_show_nothing(self):
        self.assertEqual(self.seen(4), "")
        self.assertEqual(self.seen(5, "--quiet"), "")


if __name__ == "__main__":
    unittest.main()
