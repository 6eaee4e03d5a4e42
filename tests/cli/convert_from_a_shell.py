#!/usr/bin/env python3
"""kelvo-convert as it is used from a shell: options, files, streams, exit codes.

    convert_from_a_shell.py PROGRAM [unittest options]
"""

import os
import pathlib
import pty
import resource
import signal
import subprocess
import sys
import tempfile
import time
import unittest

from terminal_text import text_on

PROGRAM = str(pathlib.Path(sys.argv.pop(1)).resolve())
POINTS = "name,lat,lon,h\nA,37.5,127,50\nB,36,128.5,0\n"
KNOWN = "기1 37.30 127.00 100 37.2950 127.0008 80 1\n*\n\n"


class Case(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.temporary.name)
        self.addCleanup(self.temporary.cleanup)
        self.write("in.csv", POINTS)

    def write(self, name, text):
        (self.folder / name).write_bytes(text if isinstance(text, bytes) else text.encode())

    def read(self, name):
        return (self.folder / name).read_text(encoding="utf-8")

    def run_it(self, *arguments, text=None, **more):
        done = subprocess.run([PROGRAM, *arguments], cwd=self.folder, input=text.encode() if isinstance(text, str) else text,
                              capture_output=True, timeout=60, **more)  # fmt: skip
        self.said = done.stderr.decode()
        self.out = done.stdout.decode("utf-8", "surrogateescape")
        return done.returncode

    def refused(self, *arguments, text=""):
        self.assertEqual(self.run_it(*arguments, text=text), 2, (arguments, self.said))
        self.assertTrue(self.said.startswith("kelvo-convert: "), self.said)
        self.assertEqual(self.out, "")
        return self.said

    def leftovers(self):
        return sorted(path.name for path in self.folder.iterdir())


class Usage(Case):
    def test_from_must_be_given(self):
        self.assertIn("--from", self.refused())

    def test_what_is_wrong_is_refused_in_one_sentence(self):
        for arguments in (
            ["--from", "bessel"], ["--from", "wgsutm"], ["--from"], ["--from", "wgs", "--from", "tm"],
            ["--from", "wgs", "--to", "wgs,wgs"], ["--from", "wgs", "--to", "xyz"], ["--from", "wgs", "--to", "all,wgs"],
            ["--from", "wgs", "--to", ""], ["--from", "wgs", "--to", "wgs,"],
            ["--from", "wgs", "--angles-in", "hyphens"], ["--from", "wgs", "--angles-out", "x"],
            ["--from", "wgs", "--jobs", "0"], ["--from", "wgs", "--jobs", "-1"], ["--from", "wgs", "--jobs", "two"],
            ["--from", "wgs", "--jobs", "1.5"], ["--from", "wgs", "--bogus"], ["--from", "wgs", "-q"], ["--frm", "wgs"],
            ["--from", "wgs", "--quiet=1"], ["--from", "wgs", "--columns="], ["--from", "wgs", "--columns", "1,2,2"],
            ["--from", "wgs", "--columns", "1,2,3,4,5"], ["--from", "wgs", "--columns", "1,-,3"],
            ["--from", "wgs", "--columns", "1,2"], ["--from", "wgs", "a", "b", "c"], ["--from", "wgs", "--", "a", "b", "c"],
            ["--from", "wgs", ""], ["--from", "wgs", "--parameters"],
        ):  # fmt: skip
            said = self.refused(*arguments)
            self.assertIn("usage:", said, arguments)

    def test_help_and_version_win(self):
        self.assertEqual(self.run_it("--help"), 0)
        self.assertIn("--known-points", self.out)
        self.assertEqual(self.run_it("--version"), 0)
        self.assertRegex(self.out, r"^kelvo-convert [0-9.]+\n$")

    def test_options_may_stand_anywhere_and_take_an_equals_sign(self):
        self.assertEqual(self.run_it("in.csv", "--from=wgs", "out.csv", "--to=tm", "--jobs=2"), 0)
        self.assertEqual(self.read("out.csv").splitlines()[0], "name,tm_x,tm_y,tm_h,tm_lon0,status")

    def test_a_name_that_begins_with_a_hyphen_follows_two(self):
        self.write("-odd.csv", POINTS)
        self.assertEqual(self.run_it("--from", "wgs", "--", "-odd.csv"), 0)
        self.assertIn("-odd.csv", self.refused("--from", "wgs", "-odd.csv"))


class Numbers(Case):
    def test_a_point_has_the_cells_of_a_run(self):
        self.assertEqual(self.run_it("--from", "wgs", "--angles-out", "hyphens", "--to", "user,wgs", text="P,37.5,127,50\n"), 0)
        header, row = self.out.splitlines()
        self.assertEqual(header, "name,user_lat,user_lon,user_h,wgs_lat,wgs_lon,wgs_h,status")
        self.assertRegex(row, r"^P,37-29-49\.\d{4},127-00-07\.\d{4},-?\d+\.\d{4},37-30-00\.0000,127-00-00\.0000,50\.0000,$")

    def test_all_systems_are_the_default(self):
        self.run_it("--from", "wgs", text="")
        self.assertEqual(self.out, "name,wgs_lat,wgs_lon,wgs_h,user_lat,user_lon,user_h,tm_x,tm_y,tm_h,tm_lon0,utm_x,utm_y,"
                         "utm_h,utm_lon0,wgsutm_x,wgsutm_y,wgsutm_h,wgsutm_lon0,status\n")  # fmt: skip

    def test_what_a_run_leaves_unwritten_is_zero(self):
        self.run_it("--from", "utm", "--to", "utm,tm", text="P,4151307.454303,332251.188495,61.5\n")
        cells = self.out.splitlines()[1].split(",")
        self.assertEqual((cells[3], cells[7]), ("61.5000", "0.0000"))

    def test_parameters_and_known_points_count_in_either_encoding(self):
        self.write("p.txt", "* 보정\nCORRECTION\nadd 0\n".encode("cp949"))
        self.write("k.cor", KNOWN.encode("cp949"))
        self.assertEqual(self.run_it("--from", "wgs", "--parameters", "p.txt", "--known-points", "k.cor", "in.csv"), 0, self.said)
        corrected = self.out
        self.write("p.txt", b"\xef\xbb\xbf" + "* 보정\r\nCORRECTION\r\nadd 0".encode())
        self.write("k.cor", KNOWN)
        self.assertEqual(self.run_it("--from", "wgs", "--parameters", "p.txt", "--known-points", "k.cor", "in.csv"), 0, self.said)
        self.assertEqual(self.out, corrected)
        self.run_it("--from", "wgs", "in.csv")
        self.assertNotEqual(self.out, corrected)


class BadPoints(Case):
    TEXT = "A,37.5,127,50\nB,x,127\n\nC,37\n\"D,e\",40000,127\n"

    def test_they_have_a_status_and_the_next_goes_on(self):
        self.assertEqual(self.run_it("--from", "wgs", "--to", "tm", text=self.TEXT), 1)
        rows = self.out.splitlines()
        self.assertEqual(len(rows), 5)
        self.assertTrue(rows[2].startswith("B,,,,,") and "line 2" in rows[2], rows[2])
        self.assertTrue(rows[3].startswith("C,,,,,") and "line 4" in rows[3], rows[3])
        self.assertTrue(rows[4].startswith("\"D,e\",,,,,"), rows[4])
        said = self.said.splitlines()
        self.assertEqual(said[0], "line 2: " + rows[2].removeprefix("B,,,,,"))
        self.assertEqual(said[1], "line 4: " + rows[3].removeprefix("C,,,,,"))
        self.assertTrue(said[2].startswith("line 5: "))
        self.assertEqual(said[3:], ["4 points, 3 not converted"])

    def test_twenty_of_them_are_shown(self):
        self.assertEqual(self.run_it("--from", "wgs", text="A,1,2\n" + "B,x,1\n" * 30), 1)
        self.assertEqual(len(self.said.splitlines()), 21)
        self.assertEqual(self.said.splitlines()[-1], "31 points, 30 not converted")

    def test_quiet_leaves_the_summary_out(self):
        self.assertEqual(self.run_it("--from", "wgs", "--quiet", text=self.TEXT), 1)
        self.assertEqual([line[:6] for line in self.said.splitlines()], ["line 2", "line 4", "line 5"])

    def test_the_summary_is_the_same_for_one(self):
        self.assertEqual(self.run_it("--from", "wgs", text="A,37,127\n"), 0)
        self.assertEqual(self.said, "1 points, 0 not converted\n")


class Definitions(Case):
    def definition(self, text, *more):
        self.write("p.txt", text)
        said = self.refused("--from", "wgs", "--parameters", "p.txt", *more, "in.csv", "out.csv")
        self.assertEqual(said.count("\n"), 1, said)
        self.assertNotIn("out.csv", self.leftovers())
        return said

    def test_a_bad_line_is_named(self):
        for text, line in (("add 1\nIN deg\n", 2), ("utm 117", 1), ("\n\nWGS a 37 127 0\n", 3), ("7 para\n1 2 3\n", 1),
                           ("tm para\n-1 299\n38 127\n0 0\n1\n", 2), ("add x\n", 1)):  # fmt: skip
            self.assertIn(f"p.txt line {line}: ", self.definition(text))

    def test_a_correction_needs_known_points_that_can_be_used(self):
        self.assertIn("p.txt line 1: ", self.definition("CORRECTION\n"))
        for known in ("", "*\n\n", KNOWN.replace(" 1\n", " 0\n"), "기1 37.30\n", KNOWN[:-3] * 201 + "*\n\n"):
            self.write("k.cor", known)
            self.assertIn("k.cor", self.definition("CORRECTION\n", "--known-points", "k.cor"))
            self.assertEqual(self.run_it("--from", "wgs", "--known-points", "k.cor", "in.csv"), 0)

    def test_a_missing_file_is_named(self):
        self.assertIn("nowhere.txt", self.refused("--from", "wgs", "--parameters", "nowhere.txt", "in.csv"))
        self.assertIn("nowhere.cor", self.refused("--from", "wgs", "--known-points", "nowhere.cor", "in.csv"))


class Files(Case):
    def setUp(self):
        super().setUp()
        self.run_it("--from", "wgs", "in.csv")
        self.whole = self.out

    def test_names_and_streams_give_the_same(self):
        self.assertEqual(self.run_it("--from", "wgs", "-", "out.csv", text=POINTS), 0)
        self.assertEqual(self.read("out.csv"), self.whole)
        self.assertEqual(self.run_it("--from", "wgs", text=POINTS), 0)
        self.assertEqual(self.out, self.whole)
        self.assertEqual(self.run_it("--from", "wgs", "in.csv", "-"), 0)
        self.assertEqual(self.out, self.whole)

    def test_what_cannot_be_read_or_written_is_a_clear_sentence(self):
        self.assertIn("nowhere.csv", self.refused("--from", "wgs", "nowhere.csv", "out.csv"))
        self.assertIn("gone/out.csv", self.refused("--from", "wgs", "in.csv", "gone/out.csv"))
        (self.folder / "sub").mkdir()
        self.refused("--from", "wgs", "sub", "out.csv")
        self.refused("--from", "wgs", "in.csv", "sub")
        self.assertEqual(self.leftovers(), ["in.csv", "sub"])

    def test_a_file_that_is_read_is_never_written(self):
        os.link(self.folder / "in.csv", self.folder / "hard.csv")
        os.symlink("in.csv", self.folder / "soft.csv")
        for output in ("in.csv", "./in.csv", "hard.csv", "soft.csv"):
            self.assertIn("same file", self.refused("--from", "wgs", "in.csv", output))
        self.write("p.txt", "add 0\n")
        self.assertIn("same file", self.refused("--from", "wgs", "--parameters", "p.txt", "in.csv", "p.txt"))
        with open(self.folder / "in.csv", "rb") as stream:
            done = subprocess.run([PROGRAM, "--from", "wgs", "-", "in.csv"], cwd=self.folder, stdin=stream, capture_output=True)
        self.assertEqual(done.returncode, 2)
        with open(self.folder / "in.csv", "ab") as stream:
            done = subprocess.run([PROGRAM, "--from", "wgs", "in.csv"], cwd=self.folder, stdout=stream, stderr=subprocess.PIPE)
        self.assertEqual(done.returncode, 2)
        self.assertEqual(self.read("in.csv"), POINTS)

    def test_permissions_and_links_of_an_old_output_stay(self):
        self.write("old.csv", "old")
        os.chmod(self.folder / "old.csv", 0o640)
        os.symlink("old.csv", self.folder / "link.csv")
        self.assertEqual(self.run_it("--from", "wgs", "in.csv", "link.csv"), 0)
        self.assertTrue((self.folder / "link.csv").is_symlink())
        self.assertEqual(self.read("old.csv"), self.whole)
        self.assertEqual((self.folder / "old.csv").stat().st_mode & 0o777, 0o640)

    def test_a_new_output_has_the_permissions_of_any_new_file(self):
        self.assertEqual(self.run_it("--from", "wgs", "in.csv", "out.csv", preexec_fn=lambda: os.umask(0o027)), 0)
        self.assertEqual((self.folder / "out.csv").stat().st_mode & 0o777, 0o640)

    def test_a_device_is_written_in_place(self):
        self.assertEqual(self.run_it("--from", "wgs", "in.csv", "/dev/null"), 0)
        self.assertTrue(pathlib.Path("/dev/null").is_char_device())

    def test_a_full_disk_leaves_the_old_output_and_nothing_else(self):
        self.write("out.csv", "old")
        def few_bytes():
            resource.setrlimit(resource.RLIMIT_FSIZE, (20000, 20000))

        self.assertEqual(self.run_it("--from", "wgs", "-", "out.csv", text=POINTS * 500, preexec_fn=few_bytes), 2)
        self.assertEqual(self.read("out.csv"), "old")
        self.assertEqual(self.leftovers(), ["in.csv", "out.csv"])
        self.assertIn("out.csv", self.said)

    def test_a_full_disk_behind_standard_output_is_an_error(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([PROGRAM, "--from", "wgs", "in.csv"], cwd=self.folder, stdout=full, stderr=subprocess.PIPE)
        self.assertEqual(done.returncode, 2)
        self.assertTrue(done.stderr.startswith(b"kelvo-convert: "))

    def test_a_closed_pipe_ends_quietly(self):
        reading, writing = os.pipe()
        os.close(reading)
        done = subprocess.run([PROGRAM, "--from", "wgs", "in.csv"], cwd=self.folder, stdout=writing, stderr=subprocess.PIPE)
        os.close(writing)
        self.assertEqual((done.returncode, done.stderr), (0, b""))

    def test_a_killed_conversion_leaves_the_old_output_and_nothing_else(self):
        self.write("out.csv", "old")
        started = subprocess.Popen([PROGRAM, "--from", "wgs", "-", "out.csv"], cwd=self.folder,
                                   stdin=subprocess.PIPE, stderr=subprocess.DEVNULL)  # fmt: skip
        started.stdin.write(POINTS.encode() * 50000)  # more than a pipe holds, so much was taken
        started.stdin.flush()
        started.send_signal(signal.SIGKILL)
        started.wait()
        started.stdin.close()
        self.assertEqual(self.read("out.csv"), "old")
        self.assertEqual([name for name in self.leftovers() if not name.endswith(".new")], ["in.csv", "out.csv"])

    def test_a_row_without_end_is_refused(self):
        self.write("out.csv", "old")
        self.assertIn("line 2", self.refused("--from", "wgs", "-", "out.csv", text="A,37,127\n" + "\"" + "x" * 3000000))
        self.assertEqual(self.read("out.csv"), "old")


class Progress(Case):
    def bar(self, *options):
        """What a terminal on standard error sees while more than a second passes."""
        ours, its = pty.openpty()
        started = subprocess.Popen([PROGRAM, "--from", "wgs", *options, "-", "out.csv"], cwd=self.folder,
                                   stdin=subprocess.PIPE, stderr=its)  # fmt: skip
        os.close(its)
        end = time.monotonic() + 1.5
        while time.monotonic() < end:
            started.stdin.write(b"P,37,127\n" * 20000)
        started.stdin.close()
        started.wait()
        return text_on(ours)

    def test_a_terminal_sees_a_bar_that_is_wiped_before_the_summary(self):
        seen = self.bar()
        self.assertRegex(seen, r"\d+ points\r +\r")
        self.assertRegex(seen, r"\r\d+ points, 0 not converted\r?\n$")

    def test_quiet_shows_nothing(self):
        self.assertEqual(self.bar("--quiet"), "")


if __name__ == "__main__":
    unittest.main()
